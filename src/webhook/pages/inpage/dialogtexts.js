// Gives: the text of a dialog in a message of its own, before the page stands still to wait for its answer.
// Needs: the hook script.

(function () {
  function announce(variable, kind) {
    var text = window[variable];
    Object.defineProperty(window, variable, {
      configurable: true,
      get: function () {
        return text;
      },
      set: function (value) {
        text = value;
        __corvex__sendQuietly("eventHandler" + __corvex__natives.milliseconds() + "&name=DialogText&kind=" + kind +
          "&text=" + escape(value), true);
      }
    });
  }
  announce("__corvex__lastAlertMessage", "alert");
  announce("__corvex__lastConfirmMessage", "confirm");
  announce("__corvex__lastPromptMessage", "prompt");
  announce("__corvex__lastPromptDefaultValue", "default");
}());
