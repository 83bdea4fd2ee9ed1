// @settings ImprovedTabAndWindowSupport=false
// The page's own replacement of open carries the windows that it opens.
startBrowser(SITE + "/windows.html");
clickButton(element("BUTTON", "open"));
waitForContextExists("popup.html");
test.compare(windows().join(" "), "windows.html popup.html");
setContext("popup.html");
test.compare(where(), "open");
waitForContextExists("popup.html.FRAME1");
clickButton(element("BUTTON", "alert"));
closeAlert();
waitForText("P", "where", "alerted");
setContext("popup.html.FRAME1");
waitForText("P", "where", "inPopup");

setContext("windows.html");
test.compare(where(), "opener");
findObject("{tagName='BUTTON' id='closeMe'}");
test.compare(where(), "alerted", "a lookup goes on in the windows");
setContext("windows.html");
clickButton(element("BUTTON", "blank"));
pause(0.2);
test.compare(windows().join(" "), "windows.html popup.html", "an empty window has no name yet");

clickButton(element("BUTTON", "closeMe"));
waitUntil(function () { return !hasContext("popup.html"); }, "the window is gone");
setContext("windows.html");
test.compare(where(), "opener");
