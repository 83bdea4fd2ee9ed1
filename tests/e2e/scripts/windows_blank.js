// Windows that open empty and are filled by their opener, and one that is redirected.
startBrowser(SITE + "/windows.html");
clickButton(element("BUTTON", "blank"));
waitForContextExists("about:blank");
setContext("about:blank");
waitForText("P", "where", "made by its opener");

setContext("windows.html");
clickButton(element("BUTTON", "close"));
waitUntil(function () { return windows().length === 1; }, "the opener closed it");

clickButton(element("BUTTON", "written"));
waitUntil(function () { return windows().length === 2; }, "the second one is there");
setContext(windows()[1]);
waitForText("P", "where", "made by its opener");

setContext("windows.html");
clickButton(element("BUTTON", "redirected"));
waitForContextExists("plain.html");
setContext("plain.html");
test.compare(where(), "plain at 127.0.0.1");
