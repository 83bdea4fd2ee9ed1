// @settings ImprovedTabAndWindowSupport=false
// @options --timeout 5
// A dialog of a window that the page itself carries.
startBrowser(SITE + "/windows.html");
clickButton(element("BUTTON", "open"));
waitForContextExists("popup.html");
setContext("popup.html");
waitForObject(element("BUTTON", "alert"));
clickButton(element("BUTTON", "alert"));
closeAlert();
waitForText("P", "where", "alerted");
