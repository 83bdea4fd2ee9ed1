// Gives: __corvex.JSON, which writes the answers to the driver's questions as the browser's own JSON does, whatever the
// page makes of its own. Needs: to be evaluated before the page's own scripts.

window.__corvex.JSON = (function () {
  var stringify = JSON.stringify;
  var prototypes = [Object.prototype, Array.prototype];
  var describe = Object.getOwnPropertyDescriptor;
  var define = Object.defineProperty;

  // Lists and records would be written as a toJSON of the page says, so it is put aside for the one call.
  function putAside() {
    var saved = [];
    for (var i = 0; i < prototypes.length; ++i) {
      saved[i] = describe(prototypes[i], "toJSON");
      if (saved[i]) {
        delete prototypes[i].toJSON;
      }
    }
    return saved;
  }

  return {
    parse: JSON.parse,
    stringify: function (value) {
      var saved = putAside();
      try {
        return stringify(value);
      } finally {
        for (var i = 0; i < prototypes.length; ++i) {
          if (saved[i]) {
            define(prototypes[i], "toJSON", saved[i]);
          }
        }
      }
    }
  };
}());
