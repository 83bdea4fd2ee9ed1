// A frame of another origin is given up, and neither it nor one whose server never answers disturbs anything.
startBrowser(SITE + "/stranger.html");
test.compare(where(), "top", "nobody waits for them");
waitForObject("{tagName='P' id='where' innerText='own'}");
setContext("stranger.html");
waitForText("P", "state", "given up, tried, tried");

var start = Date.now();
for (var i = 0; i < 20; ++i) {
  setContext("stranger.html");
  exists("{tagName='P' id='where' innerText='own'}");
  verifyFails(function () { findObject("{tagName='P' id='where' innerText='stranger'}"); }, "not found");
}
// 250 ms for each of its retries, if a lookup waited for them.
test.verify(Date.now() - start < 20000, "no lookup waits for the other frames");
test.compare(contextNames().join(" "), "stranger.html stranger.html.FRAME2 stranger.html.FRAME3",
  "the one that waits is still empty");
verifyFails(function () { setContext("stranger.html.FRAME1"); }, "There is no context 'stranger.html.FRAME1'.");
setContext("stranger.html");
verifyFails(function () { setFrameContext("FRAME1.inner"); }, "The frame 'FRAME1' shows a page of another origin, ");
test.compare(where(), "top", "and changes nothing");
setFrameContext("own");
test.compare(where(), "own");
