import { stateOf } from './states.js';

const api = globalThis.browser ?? globalThis.chrome;
const ALL_PAGES = { origins: ['http://*/*', 'https://*/*'] };
const find = (selector) => document.querySelector(selector);
const say = (name, ...values) => api.i18n.getMessage(name, values);
const port = api.runtime.connect({ name: 'popup' });

function show(told) {
  const state = stateOf(told, { say, locale: say('locale') });
  document.body.dataset.state = state.name;
  find('#state').hidden = false;
  find('#state use').setAttribute('href', `#${state.icon}`);
  find('#state .icon').setAttribute('class', `icon ${state.tone}`);
  find('h1').textContent = state.title;
  find('#text').textContent = state.text;
  const button = find('#act');
  button.hidden = !state.action;
  button.className = state.isMain ? 'main' : '';
  button.textContent = state.action ?? '';
  find('kbd').hidden = !state.isMain || find('kbd').textContent === '';
  const isHelp = state.name === 'offline';
  find('#help').textContent = isHelp ? say('offlineHelp') : '';
  if (!isHelp) find('#help').hidden = true;
  if (isHelp) button.setAttribute('aria-expanded', String(!find('#help').hidden));
  else button.removeAttribute('aria-expanded');
}

find('#act').onclick = ({ target }) => {
  if (document.body.dataset.state === 'offline') {
    find('#help').hidden = !find('#help').hidden;
    target.setAttribute('aria-expanded', String(!find('#help').hidden));
    return;
  }
  port.postMessage({ open: true });
  window.close();
};

async function showKey() {
  const command = (await api.commands.getAll()).find(({ name }) => name === 'quick-access');
  find('kbd').textContent = (command?.shortcut ?? '').replaceAll('+', ' ');
}

// In Firefox the user decides whether the extension may work in pages, and it may be asked for here only.
async function showPermission() {
  find('#permission').hidden = await api.permissions.contains(ALL_PAGES);
  find('#permission h2').textContent = say('pagesTitle');
  find('#permission p').textContent = say('pagesText');
  find('#permission button').textContent = say('pagesAction');
}
find('#permission button').onclick = async () => {
  await api.permissions.request(ALL_PAGES);
  showPermission();
};

document.documentElement.lang = say('locale');
await Promise.all([showKey(), showPermission()]);
port.onMessage.addListener(show);
const [tab] = await api.tabs.query({ active: true, lastFocusedWindow: true });
port.postMessage({ url: tab?.url ?? '' });
