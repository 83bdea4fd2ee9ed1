// @options --timeout 2
// A call that a dialog blocks fails within its time, and names the dialog and its text.
startBrowser(SITE + "/dialogs.html");
clickButton(element("BUTTON", "confirm"));
pause(0.5);
var start = Date.now();
[
  function () { findObject(element("P", "answer")); },
  function () { waitForObject(element("P", "answer")); },
  function () { exists(element("P", "answer")); },
  function () { closeAlert(300); }
].forEach(function (call) {
  var sentence = failureOf(call);
  test.verify(sentence.indexOf("confirm") >= 0 && sentence.indexOf("Sure?") >= 0, sentence);
});
test.verify(Date.now() - start < 12000, "each within its time");
contextNames();
hasContext("dialogs.html");
closeConfirm(false);
waitForText("P", "answer", "false");
verifyFails(function () { closeAlert(200); }, "No alert opened within 200 ms.");
verifyFails(function () { closeConfirm(true, 200); }, "No confirm opened within 200 ms.");
verifyFails(function () { closePrompt(null, 200); }, "No prompt opened within 200 ms.");
test.verify(exists(element("P", "answer")), "the page goes on");
