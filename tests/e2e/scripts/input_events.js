// The page sees of clicks and keys what a person's would show it, the same in both browsers.
startBrowser(SITE + "/input.html");

function events(action) {
  retrieveJSObject("clearLog()");
  action();
  return findObject(element("P", "log")).innerText;
}

var pressed = "pointerdown b;mousedown b;";
var released = "pointerup b;mouseup b;";
test.compare(retrieveJSObject("document.hasFocus()"), true);
test.compare(events(function () { clickButton(element("BUTTON", "b")); }), pressed + "focus b;" + released + "click b");
test.compare(events(function () { doubleClick(element("BUTTON", "b")); }),
  pressed + released + "click b;" + pressed + released + "click b;dblclick b");
test.compare(events(function () { mouseClick(element("BUTTON", "b"), 3, 3, HTML_Event.Shift + HTML_Event.Control); }),
  "keydown b Shift/ShiftLeft/16 +s;keydown b Control/ControlLeft/17 +cs;" +
  (pressed + released + "click b;").replace(/ b;/g, " b +cs;") +
  "keyup b Control/ControlLeft/17 +s;keyup b Shift/ShiftLeft/16");
var menu = events(function () { openContextMenu(element("BUTTON", "b")); });
test.compare(menu.split(";").sort().join(";"), "auxclick b;contextmenu b;mousedown b;mouseup b;pointerdown b;pointerup b");

// Typed: the whole text goes, keys come one by one.
test.compare(events(function () { typeText(element("INPUT", "t"), "aB"); }).replace(/^.*click t;/, ""),
  "keydown t a/KeyA/65;keypress t a/KeyA/97;input t;keyup t a/KeyA/65;keydown t Shift/ShiftLeft/16 +s;" +
  "keydown t B/KeyB/66 +s;keypress t B/KeyB/66 +s;input t;keyup t B/KeyB/66 +s;keyup t Shift/ShiftLeft/16");
test.compare(findObject(element("INPUT", "t")).value, "aB");
test.compare(events(function () { pressKeys("<Tab>"); }),
  "keydown t Tab/Tab/9;change t;blur t;focus max;keyup max Tab/Tab/9");
typeText(element("INPUT", "t"), "<End>c<Left><Left><Backspace>");
test.compare(findObject(element("INPUT", "t")).value, "Bc");
typeText(element("INPUT", "t"), "<Ctrl+A>x<y><b>");
test.compare(findObject(element("INPUT", "t")).value, "x<y><b>", "other brackets are text");

// The pointer alone.
hover(element("P", "hot"));
waitForObject(element("P", "tip"));
mouseWheel(element("DIV", "box"), 0, 120);
waitUntil(function () { return retrieveJSObject("document.getElementById('box').scrollTop") > 0; }, "the box scrolls");
var dragged = events(function () { dragTo(element("SPAN", "from"), element("SPAN", "to")); });
test.verify(/^pointerdown from;mousedown from;(.*;)?pointerup to;mouseup to/.test(dragged), dragged);
test.compare(events(function () {
  mouseDown(element("SPAN", "from"), 2, 3);
  mouseMove(element("SPAN", "to"));
  mouseUp(element("SPAN", "to"), 5, 5);
}).replace(/;click .*$/, ""), "pointerdown from;mousedown from;pointerup to;mouseup to");

dragTo(element("SPAN", "item"), element("SPAN", "basket"));
waitForText("SPAN", "basket", "an item");

// In a frame with border and padding.
setFrameContext("frame");
clickButton(element("BUTTON", "inner"));
waitUntil(function () { return textOf("P", "log").indexOf("inner clicked") >= 0; }, "the frame's button is clicked");

// Neither a focus that left the page nor a button that was held over its end is in the way of the next click.
startBrowser(SITE + "/input.html");
setFocus(element("BUTTON", "b"));
pressKeys("<Shift+Tab><Shift+Tab><Shift+Tab>");
clickButton(element("BUTTON", "b"));
test.compare(retrieveJSObject("document.hasFocus()"), true);
mouseDown(element("BUTTON", "b"));
reload();
test.verify(/click b$/.test(events(function () { clickButton(element("BUTTON", "b")); })), "a whole click");
