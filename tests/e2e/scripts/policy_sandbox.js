// Content-Security-Policy: sandbox allow-scripts allow-same-origin. No browser shows a dialog there.
startBrowser(SITE + "/sandbox/dialogs.html");
test.compare(contextNames().join(" "), "dialogs.html");
clickButton(element("BUTTON", "confirm"));
waitForText("P", "answer", "false");
clickButton(element("BUTTON", "alert"));
waitForText("P", "answer", "shown");
startBrowser(SITE + "/sandbox/frames.html");
setContext("frames.html.FRAME2.FRAME1");
test.compare(where(), "inner");
