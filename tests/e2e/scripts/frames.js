// Frames by name, id, number and context, and lookups that cross them.
startBrowser(SITE + "/frames.html");

test.compare(contextNames().join(" "), "frames.html frames.html.FRAME1 frames.html.FRAME2 " +
  "frames.html.FRAME2.FRAME1 frames.html.FRAME3");
test.compare(windows().join(" "), "frames.html");
test.compare(where(), "top");

var paths = { "left": "left", "right": "nest", "right.inner": "inner", "right.FRAME1": "inner", "FRAME2.inner": "inner",
  "FRAME3": "third" };
for (var path in paths) {
  setFrameContext(path);
  test.compare(where(), paths[path], path);
}
verifyFails(function () { setFrameContext("right.nowhere"); }, "There is no frame 'right.nowhere' in the current page.");
verifyFails(function () { setContext("frames.html.FRAME7"); }, "There is no context 'frames.html.FRAME7'. There are: ");
test.verify(hasContext("frames.html.FRAME2.FRAME1"), "the nested frame is a context");
test.verify(!hasContext("frames.html.FRAME4"), "a frame that is not there is none");
test.compare(where(), "third", "failed selections change nothing");

setContext("frames.html.FRAME2.FRAME1");
test.compare(where(), "inner");
typeText("{tagName='INPUT' name='field'}", "deep");
clickButton(element("BUTTON", "count"));
waitForText("BUTTON", "count", "1");

setContext("frames.html");
test.compare(where(), "top");
var left = findObject("{tagName='P' id='where' innerText='left'}");
test.compare(left.innerText, "left", "a lookup that starts in the top document goes on in its frames");
setContext("frames.html");
test.compare(findObject("{tagName='INPUT' name='field' value='deep'}").value, "deep");
test.compare(findObject("{tagName='P' id='where' context='frames.html.FRAME3'}").innerText, "third");
verifyFails(function () { findObject("{tagName='P' id='where' context='frames.html.FRAME9'}"); }, "not found");
