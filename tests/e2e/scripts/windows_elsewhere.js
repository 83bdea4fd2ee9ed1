// Windows of another origin, dialogs in two windows, and a redirect into a new window.
startBrowser(SITE + "/windows.html");
clickButton(element("BUTTON", "stranger"));
waitForContextExists("popup.html");
setContext("popup.html");
test.compare(where(), "stranger");
clickButton(element("BUTTON", "alert"));
closeAlert();
waitForText("P", "where", "alerted");
test.compare(lastAlertText(), "from the popup");

setContext("windows.html");
clickButton(element("BUTTON", "redirected"));
waitForContextExists("plain.html");
setContext("plain.html");
test.compare(where(), "plain at 127.0.0.1");
test.compare(windows().join(" "), "windows.html popup.html plain.html");

setContext("windows.html");
test.compare(where(), "opener");
findObject("{tagName='P' id='where' innerText='alerted'}");
startBrowser(SITE + "/windows.html");
test.compare(windows().join(" "), "windows.html", "a new browser has no windows of the old one");
