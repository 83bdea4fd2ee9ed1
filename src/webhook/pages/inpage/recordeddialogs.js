// Gives: while the page is recorded, that a prompt was cancelled: the message of its answer says the same of an empty
// one, and so would what the page gets. Needs: the hook script.
(function () {
  var callStored = __corvex__callStored;
  var recordDialog = __corvex__recordDialog;
  var isCancelled = false;

  __corvex__callStored = function (self, name, args) {
    var result = callStored(self, name, args);
    isCancelled = name === "__corvex__origPrompt" && result === null;
    if (isCancelled) {
      __corvex__sendQuietly(__corvex__getLogEventUrl("event=promptCancelled"), true);
    }
    return result;
  };

  __corvex__recordDialog = function (show, messageOf) {
    var result = recordDialog(show, messageOf);
    return isCancelled ? null : result;
  };
}());
