// Gives: __corvex__typingCheck: whether the field with the focus took what was typed.
// Needs: runtime/natives, runtime/builtins, runtime/nodes, input/typingtarget.

var __corvex__typingCheck = (function () {
  var prototype = window.EventTarget && window.EventTarget.prototype;
  var add = __corvex__nativeFunction(prototype && prototype.addEventListener);
  var remove = __corvex__nativeFunction(prototype && prototype.removeEventListener);
  var field = null;
  var before = "";
  var inputs = 0;

  function textOf(o) {
    return String(__corvex__typingKind(o) === "editor" ? o.textContent : o.value);
  }

  var count = __corvex__quiet(function () {
    ++inputs;
  });

  return {
    begin: function () {
      field = __corvex__activeElement();
      before = textOf(field);
      inputs = 0;
      if (add) {
        add.call(__corvex__nodeReader.ownerDocument(field).defaultView, "input", count, true);
      }
    },
    // Whether the field took anything of a text; true where the page replaced or changed it.
    end: function () {
      if (!field) {
        return true;
      }
      var w = __corvex__nodeReader.ownerDocument(field).defaultView;
      if (remove && w) {
        remove.call(w, "input", count, true);
      }
      // A field for numbers may show the letters that it does not take.
      var isWithoutNumber = field.isConnected && field.type === "number" && field.value === "";
      var took = !isWithoutNumber && (inputs > 0 || !field.isConnected || textOf(field) !== before);
      field = null;
      return took;
    }
  };
})();
