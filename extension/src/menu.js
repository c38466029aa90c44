// What the menu of a field offers, and what of it the program is asked for.
const ENTRIES = {
  menuLogin: { kind: 'login', fill: true },
  menuCard: { kind: 'creditcard' },
  menuIdentity: { kind: 'identity' },
  menuGenerate: { kind: 'generate' },
  menuQuickAccess: {},
};

const COMMANDS = {
  'quick-access': {},
  'fill': { kind: 'login', fill: true },
  'generate': { kind: 'generate' },
};

/** The keys and the menu of fields; open(tab, wish) opens what was asked for. */
export function listenToUser({ api, open }) {
  async function drawMenu() {
    await api.contextMenus.removeAll();
    for (const id of Object.keys(ENTRIES)) {
      const documentUrlPatterns = ['http://*/*', 'https://*/*'];
      api.contextMenus.create({ id, title: api.i18n.getMessage(id), contexts: ['editable'], documentUrlPatterns });
    }
  }

  // The browser keeps the menu; the language may have changed since.
  api.runtime.onInstalled.addListener(drawMenu);
  api.runtime.onStartup.addListener(drawMenu);
  api.contextMenus.onClicked.addListener(({ menuItemId }, tab) => open(tab, ENTRIES[menuItemId]));
  api.commands.onCommand.addListener((command, tab) => open(tab, COMMANDS[command]));
}
