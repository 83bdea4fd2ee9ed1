// The console of a page, and its uncaught errors.
// @exit 0 Uncaught error of a page at
startBrowser(SITE + "/console.html");
var lines = waitFor(function () {
  var messages = consoleMessages();
  return messages.length >= 3 && messages;
});
test.verify(Array.isArray(lines));
test.compare(lines.map(function (m) { return m.level + ": " + m.text; }),
  ["info: first 1 true null undefined 1.5", "warn: careful array object", "error: TypeError: seen"]);
test.compare([lines[0].url, lines[0].line, lines[0].uncaught], [SITE + "/console.html", 6, false]);
clickButton(element("BUTTON", "throw"));
lines = waitFor(function () {
  var uncaught = consoleMessages().filter(function (m) { return m.uncaught; });
  return uncaught.length >= 2 && uncaught;
});
test.compare(lines.map(function (m) { return m.text; }).sort(), ["Error: boom", "RangeError: far"]);
var boom = lines.filter(function (m) { return m.text === "Error: boom"; })[0];
test.compare([boom.url, boom.line, boom.level], [SITE + "/console.html", 10, "error"]);
openUrl(SITE + "/next.html");
test.compare(consoleMessages().length, 5, "messages of earlier pages of the window stay");
