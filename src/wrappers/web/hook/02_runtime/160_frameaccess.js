// Gives: whether a frame can be read; one of another origin is given up after its retries.
// Needs: runtime/logging, names/hierarchy.

// Null where the frame can be read; else the errors of the two reads, empty where a read gave just nothing.
function __corvex__frameAccessErrors(frm) {
  var texts = { location: "", document: "" };
  try {
    if (frm.contentWindow.location) {
      try {
        if (frm.contentWindow.document) {
          return null;
        }
      } catch (e) {
        texts.document = String(e);
      }
    }
  } catch (e) {
    texts.location = String(e);
  }
  return texts;
}

function __corvex__frameDescription(frm) {
  return __corvex__qualifiedName(frm) + " showing " + frm.src;
}

// True, false, or null when the caller should ask again later. Every caller spends the same retries.
function __corvex__isFrameAccessible(frm) {
  var MAX_RETRY_COUNT = 5;
  var errors = __corvex__frameAccessErrors(frm);
  if (!errors) {
    return true;
  }
  var count = frm.retryCount;
  if (typeof count !== "number" || Math.floor(count) !== count || count > MAX_RETRY_COUNT) {
    frm.retryCount = MAX_RETRY_COUNT;
  }
  if (frm.retryCount > 0) {
    frm.retryCount -= 1;
    return null;
  }
  var message = "Not hooking up frame: " + __corvex__frameDescription(frm);
  if (errors.location) {
    message += "\nError accessing location: " + errors.location;
  }
  if (errors.document) {
    message += "\nError accessing document: " + errors.document;
  }
  __corvex__logInPage(message);
  return false;
}
