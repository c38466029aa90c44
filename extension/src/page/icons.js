import { ghostOver } from './covered.js';
import { boxOf, isConnected, parentOf, matches } from './dom.js';
import { SIZE, createHost, createIcon, isOwnHost, isUntouched } from './icon.js';
import { isVisible, readingOnce } from './visible.js';

const MOST_ICONS = 60;
const SMALLEST = { width: 60, height: 16 };
const MARGIN = 8;
// What the page itself has at the end of a field, such as the eye that shows the password, is stepped around.
const MOST_STEPS = 3;
const LAYER = 'dialog, [popover]';

/**
 * The crystals in the fields of a document. open(kind, box, place) is called for a real click on one; box is the field's
 * in the window, place where the click was. mark: as in createHost.
 */
export function createIcons({ title, open, mark }) {
  const entries = new Map(); // field → {kind, icon, host}
  const hosts = new Map(); // element of a layer → {host, root}
  const boxes = new IntersectionObserver(place);
  const sizes = new ResizeObserver(refresh);

  // What lies in the top layer covers everything outside of it, so its icons live within.
  function layerOf(field) {
    for (let node = field; node; node = parentOf(node)) if (matches(node, LAYER)) return node;
    return document.documentElement;
  }

  function hostFor(field) {
    const layer = layerOf(field);
    if (!hosts.has(layer)) hosts.set(layer, createHost(mark));
    const found = hosts.get(layer);
    if (found.host.parentNode !== layer) layer.append(found.host);
    return found;
  }

  function topAt(field, x, y) {
    const stack = field.getRootNode().elementsFromPoint(x, y);
    return stack.find((element) => !isOwnHost(element));
  }

  const belongs = (element, field) =>
    element === field || [...(field.labels ?? [])].some((label) => label.contains(element) && !label.contains(field));

  /** Where the icon has room in the field: {left, top} in the window; undefined for nowhere. */
  function roomIn(field, box) {
    const isRightToLeft = getComputedStyle(field).direction === 'rtl';
    const top = box.top + (box.height - SIZE) / 2;
    let left = isRightToLeft ? box.left + MARGIN : box.right - MARGIN - SIZE;
    for (let step = 0; step < MOST_STEPS; step += 1) {
      if (left < box.left || left + SIZE > box.right) return undefined;
      const above = topAt(field, left + SIZE / 2, top + SIZE / 2);
      if (!above) return undefined;
      if (belongs(above, field)) return { left, top };
      const other = boxOf(above);
      if (other.width > box.width / 2) return undefined;
      left = isRightToLeft ? other.right + MARGIN : other.left - MARGIN - SIZE;
    }
    return undefined;
  }

  // Runs when the browser has just laid the page out: reading boxes costs nothing then.
  function place(changes) {
    const latest = new Map(changes.map((change) => [change.target, change]));
    const moves = readingOnce(() => [...latest.values()].map(moveFor));
    for (const move of moves) move();
  }

  function moveFor({ target: field, isIntersecting, boundingClientRect: box }) {
    const entry = entries.get(field);
    if (!entry) return () => {};
    const isThere = isIntersecting && box.width >= SMALLEST.width && box.height >= SMALLEST.height;
    const room = isThere && isVisible(field) ? roomIn(field, box) : undefined;
    if (!room) return () => entry.icon?.hide();
    return () => show(field, entry, room);
  }

  function show(field, entry, room) {
    const { host, root } = hostFor(field);
    entry.icon ??= create(field, entry);
    if (entry.icon.element.parentNode !== root) root.append(entry.icon.element);
    entry.host = host;
    const origin = boxOf(host);
    entry.icon.show(room.left - origin.left, room.top - origin.top);
  }

  function create(field, entry) {
    const icon = createIcon(title);
    // The field keeps the keyboard.
    icon.element.addEventListener('mousedown', (event) => event.preventDefault());
    icon.element.addEventListener('click', (event) => {
      event.stopPropagation();
      if (event.isTrusted && isHonest(field, entry, event)) open(entry.kind, boxOf(field), event);
    });
    return icon;
  }

  // The user sees what he clicks on: field and icon are visible and nothing lies over them, not even what lets clicks through.
  function isHonest(field, { host }, { clientX, clientY }) {
    const box = boxOf(field);
    const isInside = clientX >= box.left && clientX <= box.right && clientY >= box.top && clientY <= box.bottom;
    const above = document.elementsFromPoint(clientX, clientY)[0];
    return (
      isInside && isUntouched(host) && isVisible(field) && (isOwnHost(above) || host.getRootNode() !== document) &&
      belongs(topAt(field, clientX, clientY), field) && !ghostOver(field, clientX, clientY)
    );
  }

  /** Asks the browser anew where the fields are; it answers when it lays out the page the next time. */
  function refresh() {
    for (const field of entries.keys()) {
      boxes.unobserve(field);
      if (field.isConnected) boxes.observe(field);
      else remove(field);
    }
    for (const [layer, { host }] of hosts) {
      if (isConnected(layer)) continue;
      host.remove();
      hosts.delete(layer);
    }
  }

  function remove(field) {
    sizes.unobserve(field);
    entries.get(field).icon?.element.remove();
    entries.delete(field);
  }

  return {
    add(field, kind) {
      if (entries.has(field) || entries.size >= MOST_ICONS) return;
      entries.set(field, { kind });
      boxes.observe(field);
      sizes.observe(field);
    },
    refresh,
    isEmpty: () => entries.size === 0,
    stop() {
      boxes.disconnect();
      sizes.disconnect();
      for (const { host } of hosts.values()) host.remove();
      entries.clear();
    },
  };
}
