// New windows and tabs are watched from outside: each has its own context names.
startBrowser(SITE + "/windows.html");
test.compare(windows().join(" "), "windows.html");

mouseClick(element("A", "link"));
waitForContextExists("popup.html");
test.compare(where(), "opener", "a new tab does not take the context");
setContext("popup.html");
test.compare(where(), "link");
typeText("{tagName='INPUT' name='field'}", "typed");
test.compare(findObject("{tagName='INPUT' name='field'}").value, "typed");

setContext("windows.html");
mouseClick(element("BUTTON", "mark"));
test.compare(where(), "marked", "a click in the background has its effect when it returns");
clickButton(element("BUTTON", "open"));
waitForContextExists("popup.html<2>");
test.compare(windows().join(" "), "windows.html popup.html popup.html<2>", "oldest first");
setContext("popup.html<2>.FRAME1");
waitForText("P", "where", "inPopup");

setContext("popup.html");
clickButton(element("BUTTON", "closeMe"));
waitUntil(function () { return windows().length === 2; }, "a page closed itself");
setContext("popup.html");
test.compare(where(), "open", "the second one got the name of the first");
closeWindow();
test.compare(windows().join(" "), "windows.html");
test.compare(where(), "marked", "the context is the window that is left");
closeWindow();
verifyFails(function () { windows(); }, "The browser window is closed.");
