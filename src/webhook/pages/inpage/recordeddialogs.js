// Gives: while the page is recorded, that a prompt was cancelled: the message of its answer says the same of an empty one.
// Needs: the hook script.
(function () {
  var callStored = __corvex__callStored;

  __corvex__callStored = function (self, name, args) {
    var result = callStored(self, name, args);
    if (name === "__corvex__origPrompt" && result === null) {
      __corvex__sendQuietly(__corvex__getLogEventUrl("event=promptCancelled"), true);
    }
    return result;
  };
}());
