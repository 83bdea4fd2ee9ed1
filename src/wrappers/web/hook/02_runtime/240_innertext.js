// Gives: innerText where the browser's own is not taken; __corvex__shownText, the text as the browser shows it.
// Needs: runtime/natives.

function __corvex__innerTextProperty(w) {
  return Object.getOwnPropertyDescriptor(w.HTMLElement.prototype, "innerText") || {};
}

// The browser's own innerText, whatever elements get for it later; undefined for what has none.
var __corvex__shownText = (function () {
  var kept = __corvex__nativeFunction(__corvex__innerTextProperty(window).get);
  var read = kept && __corvex__natives.unbound(kept);
  return function (o) {
    try {
      return read ? read(o) : undefined;
    } catch (e) {
      // No element of HTML.
      return undefined;
    }
  };
})();

window.__corvex__innerText = function (elem) {
  return elem.textContent;
};

function __corvex__innerTextGetter() {
  return window.__corvex__innerText(this);
}

// Whether innerText is the browser's in this window, or ours in its place: a page may give it a meaning of its own.
function __corvex__isInnerTextKnown(w) {
  var get = __corvex__innerTextProperty(w).get;
  return get === __corvex__innerTextGetter || !!__corvex__nativeFunction(get);
}

function __corvex__setupInnerTextFunctions(w) {
  try {
    Object.defineProperty(w.HTMLElement.prototype, "innerText", {
      configurable: true,
      enumerable: true,
      get: __corvex__innerTextGetter,
      set: function (text) {
        this.textContent = text;
      }
    });
  } catch (e) {
    // The browser keeps its own.
  }
}
