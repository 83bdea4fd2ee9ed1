// A window whose dialog is open can be closed.
startBrowser(SITE + "/windows.html");
clickButton(element("BUTTON", "open"));
waitForContextExists("popup.html");
setContext("popup.html");
waitForObject(element("BUTTON", "alert"));
clickButton(element("BUTTON", "alert"));
failureOf(function () { pause(0.5); });
closeWindow();
test.compare(windows().join(" "), "windows.html");
