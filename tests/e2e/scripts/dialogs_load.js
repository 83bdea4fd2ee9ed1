// @options --timeout 5
// A dialog that opens while the page loads. startBrowser may tell of it; the page goes on when it is answered.
var sentence = failureOf(function () { startBrowser(SITE + "/loadalert.html"); });
test.verify(sentence === "" || sentence.indexOf("Go on?") >= 0, "startBrowser: " + sentence);
closeConfirm(true);
waitForText("P", "answer", "true");
test.compare(lastConfirmText(), "Go on?");
