// Gives: the text of a dialog in a message of its own, before the page stands still to wait for its answer.
// Needs: the hook script.

window.__corvex.dialogTextKept = function (field, text) {
  var kinds = {
    lastAlertMessage: "alert",
    lastConfirmMessage: "confirm",
    lastPromptMessage: "prompt",
    lastPromptDefaultValue: "default"
  };
  __corvex__sendQuietly("eventHandler" + __corvex__natives.milliseconds() + "&name=DialogText&kind=" + kinds[field] +
    "&text=" + escape(text), true);
};
