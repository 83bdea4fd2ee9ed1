// Content-Security-Policy: default-src 'self'.
startBrowser(SITE + "/self/dialogs.html");
clickButton(element("BUTTON", "alert"));
closeAlert();
waitForText("P", "answer", "shown");
test.compare(lastAlertText(), "It's a \"text\" & more");
clickButton(element("BUTTON", "confirm"));
closeConfirm(true);
waitForText("P", "answer", "true");
clickButton(element("BUTTON", "prompt"));
closePrompt("strict");
waitForText("P", "answer", "'strict'");
test.compare(lastPromptDefault(), "Ada");
test.compare(contextNames().join(" "), "dialogs.html");
