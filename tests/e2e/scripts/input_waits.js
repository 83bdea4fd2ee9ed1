// @options --timeout 2
// Before it acts, a function waits for what a person would wait for; and says what is in the way.
startBrowser(SITE + "/input.html");

function log() {
  return findObject(element("P", "log")).innerText;
}

mouseClick(element("BUTTON", "below"));
test.verify(log().indexOf("click below") >= 0, "scrolled into view");
mouseClick(element("BUTTON", "b"));
test.verify(log().indexOf("click b") >= 0, "out of the bar's way");

retrieveJSObject("cover(true)");
verifyFails(function () { mouseClick(element("BUTTON", "b")); }, "could not be clicked within 2000 ms: it is covered by " +
  "'{");
verifyFails(function () { typeText(element("INPUT", "t"), "x"); }, "it is covered by '");
retrieveJSObject("setTimeout(function () { cover(false); }, 300); clearLog()");
mouseClick(element("BUTTON", "b"));
test.compare(log().split("click b").length, 2, "one click, once the cover is gone");

// What comes between the look and the press gets nothing of it.
retrieveJSObject("clearLog(); document.addEventListener('mousemove', function once() {" +
  "document.removeEventListener('mousemove', once, true); cover(true); setTimeout(function () { cover(false); }, 200); }, true)");
mouseClick(element("BUTTON", "b"));
test.compare(log().replace(/focus b;|blur \w+;/g, ""), "pointerdown b;mousedown b;pointerup b;mouseup b;click b");

// A field with the focus whose surroundings only just open.
retrieveJSObject("var opening = document.createElement('div'); opening.innerHTML = '<input id=opened>'; " +
  "opening.style.overflow = 'hidden'; document.body.prepend(opening); " +
  "opening.animate([{ height: '0' }, { height: '40px' }], 400); document.getElementById('opened').focus()");
typeText(element("INPUT", "opened"), "日本 日本");
test.compare(findObject(element("INPUT", "opened")).value, "日本 日本");
retrieveJSObject("opening.remove()");

retrieveJSObject("slide(); clearLog()");
mouseClick(element("BUTTON", "b"));
test.compare(retrieveJSObject("document.getElementById('b').getAnimations().length"), 0, "it waited for the animation");

verifyFails(function () { mouseClick(element("BUTTON", "b"), 3, 500); }, "the position is outside of it.");

retrieveJSObject("document.getElementById('b').disabled = true");
verifyFails(function () { mouseClick(findObject(element("BUTTON", "b"))); }, "it is disabled.");
retrieveJSObject("setTimeout(function () { document.getElementById('b').disabled = false; }, 200)");
mouseClick(element("BUTTON", "b"));
retrieveJSObject("document.getElementById('b').style.display = 'none'");
verifyFails(function () { mouseClick(findObject(element("BUTTON", "b"))); }, "it is hidden, or has no size.");
var gone = findObject(element("BUTTON", "below"));
retrieveJSObject("document.getElementById('below').remove()");
verifyFails(function () { mouseClick(gone); }, "it is no longer in the page.");

useStrictNames(true);
verifyFails(function () { mouseClick("{tagName='BUTTON' class='twin'}"); }, "fits 2 objects, so that none was clicked.");
mouseClick("{tagName='BUTTON' class='twin' occurrence='2'}");
useStrictNames(false);
mouseClick("{tagName='BUTTON' class='twin'}");
