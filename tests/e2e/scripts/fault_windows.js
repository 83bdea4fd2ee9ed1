// Fifty windows, opened and closed.
startBrowser(SITE + "/windows.html");
for (var i = 0; i < 50; ++i) {
  setContext("windows.html");
  clickButton(element("BUTTON", "open"));
  waitForContextExists("popup.html");
  setContext("popup.html");
  closeWindow();
}
test.compare(windows().join(" "), "windows.html");
test.compare(where(), "opener");
