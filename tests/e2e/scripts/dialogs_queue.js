// @settings UseSessionStorageForEvents=true
// The dialogs of pages that keep their messages to themselves: the browser's protocol answers them.
startBrowser(SITE + "/dialogs.html");
clickButton(element("BUTTON", "alert"));
closeAlert();
waitForText("P", "answer", "shown");
clickButton(element("BUTTON", "confirm"));
closeConfirm(true);
waitForText("P", "answer", "true");
clickButton(element("BUTTON", "prompt"));
closePrompt("queued");
waitForText("P", "answer", "'queued'");
test.compare(lastConfirmText() + lastPromptDefault(), "Sure?Ada");
