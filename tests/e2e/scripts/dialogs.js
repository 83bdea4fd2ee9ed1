// Answers of every kind, and what the last dialogs said.
startBrowser(SITE + "/dialogs.html");
function ask(id) { clickButton(element("BUTTON", id)); }

test.compare(lastAlertText() + lastConfirmText() + lastPromptText() + lastPromptDefault(), "");
ask("alert");
closeAlert();
test.compare(textOf("P", "answer"), "shown", "the page has gone on when an answer returns");
test.compare(lastAlertText(), "It's a \"text\" & more");

var button = findObject(element("BUTTON", "alert"));
var body = findObject("DOCUMENT.HTML1.BODY1");
ask("alert");
var SHOWN = "The page shows a dialog (alert: 'It's a \"text\" & more'). Answer it with closeAlert.";
waitUntil(function () { return failureOf(function () { exists("{tagName='P'}"); }) === "Error: " + SHOWN; }, "it is open");
verifyFails(function () { children(body); }, SHOWN);
verifyFails(function () { parent(button); }, SHOWN);
verifyFails(function () { objectName(button); }, SHOWN);
verifyFails(function () { sameObject(button, body); }, SHOWN);
closeAlert();
test.verify(sameObject(parent(button), body), "held objects are as good as before");

var texts = ["Grace & \"Co\" + 100% \\ Ü\u20ac", ""];
for (var i = 0; i < texts.length; ++i) {
  ask("prompt");
  closePrompt(texts[i]);
  test.compare(textOf("P", "answer"), "'" + texts[i] + "'");
}
test.compare(lastPromptText(), "Your name?");
test.compare(lastPromptDefault(), "Ada");

ask("two");
closeConfirm(true);
closeConfirm(false);
test.compare(textOf("P", "answer"), "true false");
test.compare(lastConfirmText(), "Second?");
