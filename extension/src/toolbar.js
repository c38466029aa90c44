// "connected" needs no badge: the plain icon is the usual case.
const LOOKS = {
  connected: { badge: '', color: '#0c7a58' },
  offline: { badge: '!', color: '#c8374a' },
  busy: { badge: '⇄', color: '#526e7c' },
  approval: { badge: '?', color: '#9a5b00' },
  version: { badge: '!', color: '#9a5b00' },
};

/** Shows the state of the link on the toolbar button. */
export function showState(api, state) {
  const { badge, color } = LOOKS[state];
  api.action.setBadgeText({ text: badge });
  api.action.setBadgeBackgroundColor({ color });
  api.action.setTitle({ title: `Glaceron Password Manager: ${api.i18n.getMessage(`${state}Title`)}` });
}
