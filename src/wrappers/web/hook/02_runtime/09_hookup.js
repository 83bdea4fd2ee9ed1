// Gives: whether the page is hooked, access to frames, and what a window or a control gets when it is reached.
// Needs: the state globals, contexts, the document handler, qualified names.

// The test for an injector before it evaluates the script: a second evaluation would double every listener.
function __corvex__isHooked() {
  var top = window.top;
  return top.__corvex__handler !== undefined && top.__corvex !== undefined &&
         top.__corvex__installed__hook === true && top.__corvex__findObject !== undefined;
}

// A context that was selected before its window existed comes to life here.
function __corvex__hookupWindow(w) {
  try {
    if (window.__corvex__ctxwin && __corvex__contextOf(w) == window.__corvex__ctxwin_str) {
      window.__corvex__ctxwin = w;
    }
  } catch (e) {
    // A window of another origin stays as it is.
  }
}

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

// True, false, or null when the caller should ask again later. Every caller spends the same retries.
function __corvex__isFrameAccessible(frm) {
  var MAX_RETRY_COUNT = 5;
  var errors = __corvex__frameAccessErrors(frm);
  if (!errors) {
    return true;
  }
  var count = frm.retryCount;
  if (typeof count != "number" || Math.floor(count) !== count || count > MAX_RETRY_COUNT) {
    frm.retryCount = MAX_RETRY_COUNT;
  }
  if (frm.retryCount > 0) {
    frm.retryCount -= 1;
    return null;
  }
  var message = "Not hooking up frame: " + __corvex__qualifiedName(frm) + " showing " + frm.src;
  if (errors.location) {
    message += "\nError accessing location: " + errors.location;
  }
  if (errors.document) {
    message += "\nError accessing document: " + errors.document;
  }
  console.log(message);
  return false;
}

function __corvex__addChangeListener(control) {
  if (control.addEventListener) {
    control.addEventListener("change", function (e) {
      __corvex__handler(e, this);
    }, true);
  } else if (control.type == "file") {
    control.attachEvent("onchange", function () {
      __corvex__handler(undefined, control);
    });
  } else {
    control.attachEvent("onchange", __corvex__onChangeHandler);
  }
  control.__corvex__onchange = true;
}

// A selection or file element gets its change listener at its first use while a recording runs.
function __corvex__install__handler(e) {
  if (!e || !window.__corvex__recording) {
    return;
  }
  var source = __corvex__srcElement(e);
  if (!source || typeof source.type != "string" || source.__corvex__onchange) {
    return;
  }
  if (source.type.indexOf("select") === 0 || source.type == "file") {
    __corvex__addChangeListener(source);
  }
}

// All name and search code reads innerText, and gets the same text on every browser.
function __corvex__setupInnerTextFunctions(w) {
  try {
    var prototype = w.HTMLElement.prototype;
    Object.defineProperty(prototype, "innerText", {
      configurable: true,
      enumerable: true,
      get: function () {
        return window.__corvex__innerText(this);
      },
      set: function (text) {
        this.textContent = text;
      }
    });
  } catch (e) {
    // The browser keeps its own.
  }
}
