// Gives: the entry points of a click, which pick between mouse and touch.
// Needs: touch, input/mouse, input/touch.

function __corvex__emulateTouchAndClick(o, ctrl, shift, alt, x, y, btn, clickFn) {
  // Listeners that prevented the default replace the click; else the mouse follows, as in a browser.
  if (window.top.__corvex__emulateViaTouchEvents() && !__corvex__clickViaTouchEvents(o, ctrl, shift, alt, x, y)) {
    return;
  }
  clickFn(o, ctrl, shift, alt, x, y, btn);
}

function __corvex__click(o, ctrl, shift, alt, x, y, button) {
  __corvex__emulateTouchAndClick(o, ctrl, shift, alt, x, y, button, __corvex__clickViaDOM2Events);
}

function __corvex__clickButton(o, ctrl, shift, alt, x, y, btn) {
  __corvex__emulateTouchAndClick(o, ctrl, shift, alt, x, y, btn, __corvex__clickButtonViaDOM2Events);
}

function __corvex__clickLink(l) {
  __corvex__emulateTouchAndClick(l, false, false, false, 0, 0, 0, __corvex__clickLinkViaDOM2Events);
}
