// The inputs of a form shadow the form's own properties by name (<input name="action">, <input name="parentNode">),
// so whatever may be a form is read through the prototypes.
const getter = (prototype, name) => Object.getOwnPropertyDescriptor(prototype, name).get;
const nodeType = getter(Node.prototype, 'nodeType');
const parentNode = getter(Node.prototype, 'parentNode');
const rootNode = Node.prototype.getRootNode;
const connected = getter(Node.prototype, 'isConnected');
const assignedSlot = getter(Element.prototype, 'assignedSlot');
const FIND = {
  [Node.ELEMENT_NODE]: Element.prototype.querySelectorAll,
  [Node.DOCUMENT_NODE]: Document.prototype.querySelectorAll,
  [Node.DOCUMENT_FRAGMENT_NODE]: DocumentFragment.prototype.querySelectorAll,
};

export const isElement = (node) => node !== null && nodeType.call(node) === Node.ELEMENT_NODE;

/** The attribute's text, empty when absent. */
export const attr = (element, name) => Element.prototype.getAttribute.call(element, name) ?? '';
export const hasAttr = (element, name) => Element.prototype.hasAttribute.call(element, name);
export const matches = (element, selector) => Element.prototype.matches.call(element, selector);
export const isConnected = (node) => connected.call(node);
export const rootOf = (node) => rootNode.call(node);
export const partsOf = (form) => getter(HTMLFormElement.prototype, 'elements').call(form);
export const titleOf = (doc) => getter(Document.prototype, 'title').call(doc);
export const boxOf = (element) => Element.prototype.getBoundingClientRect.call(element);

/** All matching descendants in document order, without those in shadow trees. */
export const findAll = (root, selector) => FIND[nodeType.call(root)].call(root, selector);

// Only what runs beside the page's own scripts is told of closed shadow trees: in Chromium by a function of the
// browser's, in Firefox by the element.
const tell = globalThis.chrome?.dom?.openOrClosedShadowRoot;

/** The shadow tree of an element, closed ones included; null for none. */
export function shadowRootOf(element) {
  if (tell) {
    try {
      return element instanceof HTMLElement ? tell(element) : null;
    } catch {
      return null; // the extension was removed
    }
  }
  const root = element.openOrClosedShadowRoot ?? element.shadowRoot;
  return root instanceof ShadowRoot ? root : null;
}

/** Every element under root in document order, those in shadow trees included. */
export function* elementsUnder(root) {
  for (const element of findAll(root, '*')) {
    yield element;
    const inner = shadowRootOf(element);
    if (inner) yield* elementsUnder(inner);
  }
}

/** The element around this one; from the top of a shadow tree its host, from the top of the page null. */
export function parentOf(element) {
  const parent = parentNode.call(element);
  if (isElement(parent)) return parent;
  return parent?.host ?? null;
}

/** The element around this one as it is painted: what fills a slot of a shadow tree lies in that slot. */
export const flatParentOf = (element) => assignedSlot.call(element) ?? parentOf(element);
