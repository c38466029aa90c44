/**
 * How things stand, for the pop-up: {link, safe, locked, logins}; nothing of it before the link and the program
 * have said. link: "connected", "offline", "busy", "approval" or "version".
 */
export function createStatus({ send }) {
  const readers = new Map(); // port → the address that it asked about
  let link;
  let told;

  function view(url) {
    if (told?.refused) return { link: told.refused };
    if (link !== 'connected') return link && { link };
    if (!told) return undefined;
    const logins = told.url === url ? (told.logins ?? 0) : undefined;
    return logins === undefined && !told.locked ? undefined : { link, safe: told.safe ?? '', locked: Boolean(told.locked), logins };
  }

  function show(port) {
    const state = view(readers.get(port));
    if (state) port.postMessage(state);
  }

  const showAll = () => [...readers.keys()].forEach(show);
  const ask = (url) => send('getState', { request_id: url, url });

  return {
    /** The link's own state changed. */
    linked(state) {
      link = state;
      told = undefined;
      if (state === 'connected') readers.forEach(ask);
      showAll();
    },

    /** The program said how it is. What it says unasked may be of another page than the one that is shown. */
    told(payload) {
      // An extension that is too old stays so, whatever else it is told.
      if (told?.refused) return;
      told = payload;
      for (const [port, url] of readers) {
        if (payload.url === url || payload.locked || payload.refused) show(port);
        else if (payload.request_id === undefined) ask(url);
      }
    },

    watch(port, url) {
      readers.set(port, url);
      ask(url);
      show(port);
    },

    forget: (port) => readers.delete(port),
  };
}
