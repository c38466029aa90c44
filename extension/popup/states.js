// How each state of the link looks. Only what has something to press has an action.
const LOOKS = {
  connected: { icon: 'connected', tone: 'strong', title: 'connectedTitle', action: 'connectedAction', isMain: true },
  locked: { icon: 'locked', tone: 'weak', title: 'lockedTitle', text: 'lockedText', action: 'lockedAction' },
  offline: { icon: 'offline', tone: 'terrible', title: 'offlineTitle', text: 'offlineText', action: 'offlineAction' },
  busy: { icon: 'busy', tone: '', title: 'busyTitle', text: 'busyText' },
  approval: { icon: 'approval', tone: 'weak', title: 'approvalTitle', text: 'approvalText' },
  version: { icon: 'version', tone: 'weak', title: 'versionTitle', text: 'versionText' },
};

function loginsText(count, say, locale) {
  if (count === 0) return say('loginsNone');
  return say(`logins_${new Intl.PluralRules(locale).select(count)}`, String(count));
}

/**
 * What the pop-up shows for {link, safe, locked, logins}: {name, icon, tone, title, text, action, isMain} in words of
 * the user's language.
 */
export function stateOf({ link, safe, locked, logins }, { say, locale }) {
  const name = link === 'connected' && locked ? 'locked' : link;
  const look = LOOKS[name];
  const text = look.text ? say(look.text) : say('connectedText', safe, loginsText(logins, say, locale));
  return { ...look, name, title: say(look.title), text, action: look.action && say(look.action) };
}
