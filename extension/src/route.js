// A field's opid says where the field is, so that a background script that was started anew can reach it:
// tab, frame, the document's own token, and the field's number in the document.
const OPID = /^(\d{1,10}):(\d{1,16}):(([0-9a-f]{32}):\d{1,10})$/;

export function routedOpid({ tabId, frameId }, opid) {
  return `${tabId}:${frameId}:${opid}`;
}

/** {tabId, frameId, token, opid within its document}, or undefined for what routedOpid never made. */
export function parseOpid(text) {
  const parts = OPID.exec(text);
  return parts ? { tabId: Number(parts[1]), frameId: Number(parts[2]), opid: parts[3], token: parts[4] } : undefined;
}
