const WIZARD = '^Set up Glaceron Password Manager$';
const LOCKED = '^Glaceron Password Manager$';

/** What a person does with the program, by key strokes in its window. */
export function makeUser(desktop, program) {
  const { press, type } = desktop;
  const open = (name) => `^${name} - Glaceron Password Manager$`;
  let safe = '';

  async function fill(texts) {
    for (const [index, text] of texts.entries()) {
      if (index > 0) await press('Tab');
      if (text) await type(text);
    }
  }

  return {
    /** The identifier of the window while the safe is locked, or open. */
    lockedWindow: () => desktop.activate(LOCKED),
    openWindow: () => desktop.activate(open(safe)),

    async createSafe(name, password, hint) {
      if (program.safes().length === 0) {
        // The wizard of the first start: the way past it.
        await desktop.activate(WIZARD);
        await press('Escape');
      }
      await desktop.activate(LOCKED);
      await fill([name, password, password, hint]);
      await press('Return');
      safe = name;
      await desktop.activate(open(safe));
    },

    /** Adds a login and waits until it is on the disk. */
    async addLogin({ title, userName, password, url }) {
      const count = () => program.items().length;
      const before = count();
      await desktop.activate(open(safe));
      await press('ctrl+n');
      await fill([title, userName, password, url]);
      await press('ctrl+s');
      await program.until(() => count() === before + 1, `the login ${title} on the disk`);
    },

    /** Adds an item of a kind, given by its place in the menu of new items, with texts for its fields in their order. */
    async addItem(place, texts) {
      const count = () => program.items().length;
      const before = count();
      await desktop.activate(open(safe));
      await press('ctrl+f', 'Tab', 'space', ...Array(place).fill('Down'), 'Return');
      await fill(texts);
      await press('ctrl+s');
      await program.until(() => count() === before + 1, `the item ${texts[0]} on the disk`);
    },

    async lock() {
      await desktop.activate(open(safe));
      await press('ctrl+l');
      await desktop.activate(LOCKED);
    },

    async enterPassword(password) {
      await desktop.activate(LOCKED);
      await type(password);
      await press('Return');
    },

    async unlock(password) {
      await this.enterPassword(password);
      await desktop.activate(open(safe));
    },

    /** The identifier of quick access, once it is there. */
    quickAccess: () => desktop.activate('^Quick access$'),

    /** Finds a login by its title and logs in with it. */
    async logIn(title) {
      await desktop.activate(open(safe));
      await press('ctrl+f', 'ctrl+a');
      await type(title);
      await press('Down', 'Return');
    },
  };
}
