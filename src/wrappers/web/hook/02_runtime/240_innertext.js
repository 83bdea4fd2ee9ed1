// Gives: innerText on every browser, with the same text on all of them.
// Needs: nothing.

window.__corvex__innerText = function (elem) {
  return elem.textContent;
};

function __corvex__setupInnerTextFunctions(w) {
  try {
    Object.defineProperty(w.HTMLElement.prototype, "innerText", {
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
