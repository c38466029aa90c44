// "connected" needs no badge: the plain icon is the usual case.
const LOOKS = {
  connected: { badge: '', color: '#0c7a58', title: 'stateConnected' },
  offline: { badge: '!', color: '#c8374a', title: 'stateOffline' },
  busy: { badge: '⇄', color: '#526e7c', title: 'stateBusy' },
};

export function showState(api, state) {
  const { badge, color, title } = LOOKS[state];
  api.action.setBadgeText({ text: badge });
  api.action.setBadgeBackgroundColor({ color });
  api.action.setTitle({ title: api.i18n.getMessage(title) });
}
