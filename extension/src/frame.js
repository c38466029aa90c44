/**
 * Where a document stands: {origin, around: the origins of the frames around it}. Runs inside of pages and uses nothing
 * from around itself.
 */
export function describeFrame() {
  // Where the browser does not tell, what is around a frame is of no site.
  const around = location.ancestorOrigins ? [...location.ancestorOrigins] : self === top ? [] : ['null'];
  return { origin: self.origin, around };
}

/** As describeFrame; says it to the background script at once, too, since the browser answers for all frames together. */
export function announceFrame(id) {
  const around = location.ancestorOrigins ? [...location.ancestorOrigins] : self === top ? [] : ['null'];
  const place = { origin: self.origin, around };
  // Not "browser": the page may have an element or a frame with that name.
  globalThis.chrome.runtime.sendMessage({ frame: { id, ...place } }).catch(() => {});
  return place;
}
