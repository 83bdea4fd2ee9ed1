// The dialogs of a frame.
startBrowser(SITE + "/dialogframe.html");
waitUntil(function () { return exists(element("BUTTON", "two")); }, "the frame is there");
// Frames are found and hooked once in a second.
pause(1.5);
clickButton(element("BUTTON", "confirm"));
closeConfirm(true);
waitForText("P", "answer", "true");
clickButton(element("BUTTON", "alert"));
closeAlert();
waitForText("P", "answer", "shown");
clickButton(element("BUTTON", "prompt"));
closePrompt("in a frame");
waitForText("P", "answer", "'in a frame'");
test.compare(lastPromptText(), "Your name?");
