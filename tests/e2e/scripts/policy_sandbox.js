// Content-Security-Policy: sandbox allow-scripts allow-same-origin. No browser shows a dialog there; where the driver
// answers in the browser's place, it is asked all the same.
startBrowser(SITE + "/sandbox/dialogs.html");
test.compare(contextNames().join(" "), "dialogs.html");
clickButton(element("BUTTON", "confirm"));
if (BROWSER === "firefox") {
  closeConfirm(false);
}
waitForText("P", "answer", "false");
clickButton(element("BUTTON", "alert"));
waitForText("P", "answer", "shown");
startBrowser(SITE + "/sandbox/frames.html");
setContext("frames.html.FRAME2.FRAME1");
test.compare(where(), "inner");
typeText("{tagName='INPUT' name='field'}", "deep");
test.compare(findObject("{tagName='INPUT' name='field'}").value, "deep");
clickButton(element("BUTTON", "count"));
waitForText("BUTTON", "count", "1");
