// @options --timeout 5
// The dialogs of several windows.
startBrowser(SITE + "/windows.html");
var ALERT = "The window 'popup.html' shows a dialog (alert: 'from the popup'). Answer it with closeAlert.";

clickButton(element("BUTTON", "stranger"));
waitForContextExists("popup.html");
setContext("popup.html");
test.compare(where(), "stranger", "a window of another origin");
clickButton(element("BUTTON", "alert"));
pause(0.5);
setContext("windows.html");
test.compare(where(), "opener", "other windows go on");
test.compare(windows().join(" "), "windows.html popup.html", "the one that waits is listed");
verifyFails(function () { closeConfirm(true, 100); }, ALERT);
setContext("popup.html");
closeWindow();
test.compare(windows().join(" "), "windows.html");

clickButton(element("BUTTON", "open"));
waitForContextExists("popup.html");
setContext("popup.html");
clickButton(element("BUTTON", "alert"));
pause(0.5);
// Pages that opened one another share a process. Chromium holds it as a whole.
var start = Date.now();
setContext("windows.html");
test.compare(windows().join(" "), "windows.html popup.html");
test.verify(Date.now() - start < 1500, "what needs no page does not wait for one");
var sentence = failureOf(where);
test.compare(sentence, BROWSER === "firefox" ? "" : "Error: " + ALERT);
// A name with a context depends on the window of that context only, whichever is the current one.
var OWN = ALERT.replace("window 'popup.html'", "page");
var inPopup = "{tagName='P' id='where' context='popup.html'}";
[exists, findAllObjects, findObject, waitForObject].forEach(function (call) {
  verifyFails(function () { call(inPopup); }, OWN);
});
verifyFails(function () { findObject("{tagName='P' container={tagName='BODY' context='popup.html.FRAME1'}}"); }, OWN);
verifyFails(function () { findObject("DOCUMENT[popup|html].HTML1"); }, OWN);
setContext("popup.html");
verifyFails(where, "The page shows a dialog");
sentence = failureOf(function () { findObject("{tagName='P' id='where' context='windows.html'}"); });
test.compare(sentence, BROWSER === "firefox" ? "" : "Error: " + ALERT);
test.compare(windows().join(" "), "windows.html popup.html");
closeAlert();
test.compare(lastAlertText(), "from the popup");
setContext("popup.html");
waitForText("P", "where", "alerted");
setContext("windows.html");
test.compare(where(), "opener");
