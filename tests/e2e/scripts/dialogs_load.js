// @options --timeout 10
// Dialogs that open while a page loads, in the page, in a frame, in a new window: each waits for its answer.
function answerAll() {
  var sentence = "The page shows a dialog (alert: 'While parsing'). Answer it with closeAlert.";
  waitUntil(function () { return failureOf(function () { exists("{tagName='P'}"); }) === "Error: " + sentence; }, sentence);
  closeAlert();
  closePrompt("Grace");
  closeConfirm(true);
  closeConfirm(false);
  test.compare(textOf("P", "answer"), "Grace false");
  test.verify(exists("{tagName='P' id='answer' context='loading.html.FRAME1' innerText='true'}"), "the frame was told");
}

startBrowser(SITE + "/loading.html");
test.compare(contextNames().join(" "), "loading.html", "a page that waits is a window");
answerAll();

startBrowser(SITE + "/windows.html");
clickButton(element("BUTTON", "loading"));
waitForContextExists("loading.html");
setContext("loading.html");
answerAll();

startBrowser(SITE + "/held.html");
closeAlert();
test.compare(textOf("P", "end"), "end", "a lookup waits for the rest of the page");
verifyFails(function () { closeAlert(200); }, "No alert opened within 200 ms.");
