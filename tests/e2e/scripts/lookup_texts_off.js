// @settings HookNewWindows=false
// @settings [Extensions]
// @settings elementtext=false
// Without its extension script, texts are those of the browser.
startBrowser(SITE + "/texts.html");
var counts = ["LOG IN", "Log in"].map(function (text) {
  return findAllObjects("{tagName='BUTTON' innerText='" + text + "'}").length;
});
test.compare(counts.join(), BROWSER === "firefox" ? "0,1" : "1,0");
