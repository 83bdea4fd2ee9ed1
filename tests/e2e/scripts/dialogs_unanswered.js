// @options --timeout 4
// A dialog waits for its answer. Calls that need no page go on, and those that it blocks say so within their time.
startBrowser(SITE + "/dialogs.html");

function look(kind, sentence, close, answered) {
  var answer = findObject(element("P", "answer"));
  clickButton(element("BUTTON", kind));
  pause(0.5);
  var start = Date.now();
  [
    function () { findObject(element("P", "answer")); },
    function () { waitForObject(element("P", "answer")); },
    function () { exists(element("P", "answer")); },
    function () { return answer.innerText; },
    function () { setFrameContext("FRAME1"); },
    function () { kind === "alert" ? closeConfirm(true, 100) : closeAlert(100); }
  ].forEach(function (call) { verifyFails(call, "The page shows a dialog " + sentence); });
  test.compare(windows().join(" "), "dialogs.html");
  setContext("dialogs.html");
  test.verify(Date.now() - start < 3000, "none of them waits for the page");
  close();
  waitForText("P", "answer", answered);
  verifyFails(function () { close(); }, "No " + kind + " opened within 200 ms.");
}

look("alert", "(alert: 'It's a \"text\" & more'). Answer it with closeAlert.",
  function () { closeAlert(200); }, "shown");
look("confirm", "(confirm: 'Sure?'). Answer it with closeConfirm.",
  function () { closeConfirm(false, 200); }, "false");
look("prompt", "(prompt: 'Your name?'). Answer it with closePrompt.",
  function () { closePrompt(null, 200); }, "null");
clickButton(element("BUTTON", "confirm"));
pause(0.3);
