/**
 * Where a document stands: {origin, around: the origins of the frames around it}. Runs inside of pages and uses nothing
 * from around itself.
 */
export function describeFrame() {
  // Where the browser does not tell, what is around a frame is of no site.
  const around = location.ancestorOrigins ? [...location.ancestorOrigins] : self === top ? [] : ['null'];
  return { origin: self.origin, around };
}
