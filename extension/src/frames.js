// What the program may send. Anything that does not have exactly these types is ignored.
const isObject = (value) => typeof value === 'object' && value !== null && !Array.isArray(value);
const isText = (value) => typeof value === 'string';
const isName = (value) => isText(value) && value !== '';
const isFlag = (value) => typeof value === 'boolean';
const isCount = (value) => Number.isSafeInteger(value) && value >= 0;
const isTime = (value) => isText(value) && /^\d{1,19}$/.test(value);
const oneOf = (...words) => (value) => words.includes(value);
const optional = (check) => (value) => value === undefined || check(value);

const isElement = (value) =>
  isObject(value) && isName(value.opid) && isText(value.gpmid) && isText(value.value);
const isElementList = (value) => Array.isArray(value) && value.length > 0 && value.every(isElement);

const REQUEST = {
  reason: isName,
  itemid: optional(isText),
  timestamp: optional(isTime),
  url: optional(isText),
};

const PAYLOADS = {
  getDocumentData: { ...REQUEST, openmode: oneOf('currentNoReload', 'current', 'newtab', 'window') },
  findLoginPage: { ...REQUEST, url: isName, openmode: optional(isText) },
  fillForm: {
    formUid: isName,
    elements: isElementList,
    reason: optional(isText),
    submit: optional(isFlag),
  },
  state: {
    request_id: optional(isText),
    refused: optional(oneOf('version', 'approval')),
    locked: optional(isFlag),
    safe: optional(isText),
    url: optional(isText),
    logins: optional(isCount),
  },
};

function parseObject(text) {
  try {
    const value = JSON.parse(text);
    return isObject(value) ? value : undefined;
  } catch {
    return undefined;
  }
}

/** The program's frame as {action, payload}, or undefined when it is not one that this extension knows. */
export function parseFrame(text) {
  const frame = isText(text) ? parseObject(text) : undefined;
  if (!frame) return undefined;
  const { action, payload } = frame;
  if (action === 'hello') return isName(frame.callerId) ? { action } : undefined;
  if (!Object.hasOwn(PAYLOADS, action) || !isObject(payload)) return undefined;
  const wrong = Object.entries(PAYLOADS[action]).some(([key, check]) => !check(payload[key]));
  return wrong ? undefined : { action, payload };
}
