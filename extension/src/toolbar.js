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

// The browser may start this script for the click alone, and the connection takes a moment.
const KEEP = 5000;

/** The button's wish to see the program, kept for a few seconds until somebody listens. */
export function createWish({ send, now }) {
  let kept;

  function deliver() {
    if (kept && (now() > kept.until || send('showWindow', { url: kept.url }))) kept = undefined;
  }

  function make(url) {
    kept = { url, until: now() + KEEP };
    deliver();
  }

  return { make, deliver };
}
