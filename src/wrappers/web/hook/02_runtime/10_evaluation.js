// Gives: what happens in the page at the moment of evaluation.
// Needs: everything of the runtime; it is its last file.

if (window.__corvex__mozilla) {
  __corvex__setupInnerTextFunctions(window);
}

(function () {
  var listeners = [
    ["keyup", __corvex__handler],
    ["mousedown", __corvex__handler],
    ["click", __corvex__handler],
    ["dblclick", __corvex__handler],
    ["keydown", __corvex__install__handler],
    ["focus", __corvex__install__handler]
  ];
  for (var i = 0; i < listeners.length; ++i) {
    if (document.addEventListener) {
      document.addEventListener(listeners[i][0], listeners[i][1], true);
    } else {
      document.attachEvent("on" + listeners[i][0], listeners[i][1]);
    }
  }
})();

__corvex__topWindow = window;
__corvex__hookupWindow(window);

window.__corvex__installed__hook = true;
