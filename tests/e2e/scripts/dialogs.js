// Answers of every kind, and what the last dialogs said.
startBrowser(SITE + "/dialogs.html");
function ask(id) { clickButton(element("BUTTON", id)); }

test.compare(lastAlertText() + lastConfirmText() + lastPromptText() + lastPromptDefault(), "");
ask("alert");
closeAlert();
test.compare(textOf("P", "answer"), "shown", "the page has gone on when an answer returns");
test.compare(lastAlertText(), "It's a \"text\" & more");

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
