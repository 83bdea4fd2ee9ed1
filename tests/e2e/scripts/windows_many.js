// Ten windows at a time, closed in any order.
startBrowser(SITE + "/windows.html");
for (var i = 1; i <= 10; ++i) {
  setContext("windows.html");
  clickButton(element("BUTTON", "open"));
  waitForContextExists(i === 1 ? "popup.html" : "popup.html<" + i + ">");
}
test.compare(windows().length, 11);
for (i = 10; i >= 1; --i) {
  setContext(i % 2 || i === 10 ? "popup.html" : "popup.html<2>");
  test.compare(where(), "open");
  closeWindow();
}
test.compare(windows().join(" "), "windows.html");
setContext("windows.html");
test.compare(where(), "opener");
