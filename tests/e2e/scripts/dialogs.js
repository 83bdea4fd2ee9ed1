// Each kind of dialog, answered, cancelled, answered with nothing.
startBrowser(SITE + "/dialogs.html");
function ask(id) { clickButton(element("BUTTON", id)); }

test.compare(lastAlertText() + lastConfirmText() + lastPromptText() + lastPromptDefault(), "");
ask("alert");
closeAlert();
waitForText("P", "answer", "shown");
test.compare(lastAlertText(), "It's a \"text\" & more");

ask("confirm");
closeConfirm(true);
waitForText("P", "answer", "true");
ask("confirm");
closeConfirm(false);
waitForText("P", "answer", "false");
test.compare(lastConfirmText(), "Sure?");

ask("prompt");
closePrompt("Grace & \"Co\" + 100% \\ Ü\u20ac");
waitForText("P", "answer", "'Grace & \"Co\" + 100% \\ Ü\u20ac'");
ask("prompt");
closePrompt("");
waitForText("P", "answer", "''");
ask("prompt");
closePrompt(null);
waitForText("P", "answer", "null");
test.compare(lastPromptText(), "Your name?");
test.compare(lastPromptDefault(), "Ada");

ask("two");
closeConfirm(true);
closeConfirm(false);
waitForText("P", "answer", "true false");
