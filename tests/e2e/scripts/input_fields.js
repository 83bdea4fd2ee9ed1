// @options --timeout 2
// Every kind of field takes its text, and what takes none says so.
startBrowser(SITE + "/input.html");

function value(id) {
  return retrieveJSObject("document.getElementById('" + id + "').value");
}

function input(id) {
  return element("INPUT", id);
}

var strange = "Grüße Жук 👍🏽 é\u0301";
typeText(input("t"), strange);
test.compare(value("t"), strange);
setText(input("t"), "<Return> as it is");
test.compare(value("t"), "<Return> as it is");
typeText(input("t"), "");
test.compare(value("t"), "");
typeText(input("max"), "abcdef");
test.compare(value("max"), "abc");
typeText(input("num"), "12.5");
test.compare(value("num"), "12.5");
verifyFails(function () { typeText(input("num"), "abc"); }, "it took nothing of the text");
typeText(input("pass"), "s3cret");
test.compare(value("pass"), "s3cret");
typeText(element("TEXTAREA", "area"), "one\ntwo<Return>three");
test.compare(value("area"), "one\ntwo\nthree");
setText(element("TEXTAREA", "area"), "four\nfive");
test.compare(value("area"), "four\nfive");
typeText(element("DIV", "edit"), "new");
test.compare(findObject(element("DIV", "edit")).innerText, "new");
setText(element("DIV", "edit"), "newer");
test.compare(findObject(element("DIV", "edit")).innerText, "newer");

var choices = { day: "2024-02-29", time: "13:45", color: "#ff8800", range: "7" };
if (BROWSER !== "firefox") {
  choices.month = "2024-02";
  choices.week = "2024-W09";
}
for (var id in choices) {
  retrieveJSObject("clearLog()");
  setText(input(id), choices[id]);
  test.compare(value(id), choices[id]);
  test.verify(/input .*change /.test(findObject(element("P", "log")).innerText), id + " tells of input and change");
}
verifyFails(function () { setText(input("day"), "tomorrow"); }, "it does not take the value 'tomorrow'; dates are");
test.compare(value("day"), "2024-02-29");

verifyFails(function () { typeText(input("ro"), "x"); }, "could not be given text within 2000 ms: it is read-only.");
verifyFails(function () { typeText(element("P", "plain"), "x"); }, "it takes no text.");
verifyFails(function () { typeText(input("deaf"), "x"); }, "it took nothing of the text.");

setChecked(input("keep"), true);
setChecked(input("keep"), true);
test.compare(findObject(input("keep")).checked, true);
setChecked(element("LABEL", "label"), false);
test.compare(findObject(input("keep")).checked, false);
setChecked(element("SPAN", "switch"), true);
test.compare(retrieveJSObject("document.getElementById('switch').getAttribute('aria-checked')"), "true");
verifyFails(function () { setChecked(input("stuck"), true); }, "a click left it as it was.");
verifyFails(function () { setChecked(element("P", "plain"), true); }, "it is no check box, radio button or switch.");

// The page's own road: events of the page, and nothing that only the browser has.
useInput("page");
retrieveJSObject("clearLog()");
setText(input("t"), "by the page");
test.compare(value("t"), "by the page");
test.verify(findObject(element("P", "log")).innerText.indexOf("untrusted") >= 0, "untrusted events");
verifyFails(function () { hover(element("P", "hot")); }, "hover needs the browser's own input");
verifyFails(function () { useInput("hand"); }, "useInput takes \"browser\" or \"page\", but got \"hand\".");
