// Gives: while the page is recorded, over which objects the pointer went to what is pressed, where that was not to be seen
// before: menus open so. Needs: the hook script.
(function () {
  // So long after the last press or key the page stands still, mostly.
  var restMs = 200;
  // What the pointer entered since, and what was to be seen before.
  var trail = [];
  var seen = null;
  var longestTrail = 50;
  var mostElements = 20000;
  var restingAt = 0;
  var isWaiting = false;
  var Elements = __corvex__nativeFunction(window.WeakSet);
  var add = Elements && __corvex__natives.unbound(Elements.prototype.add);
  var has = Elements && __corvex__natives.unbound(Elements.prototype.has);
  var isShown = __corvex__nativeFunction(window.Element.prototype.checkVisibility);

  function isSeen(element) {
    var box = __corvex__askNode.Element.getBoundingClientRect(element);
    return box.width > 0 && box.height > 0 && box.right > 0 &&
      __corvex__natives.apply(isShown, element, [{ opacityProperty: true, visibilityProperty: true }]);
  }

  function look() {
    var all = document.getElementsByTagName("*");
    trail = [];
    seen = all.length <= mostElements ? new Elements() : null;
    for (var i = 0; seen && i < all.length; ++i) {
      if (isSeen(all[i])) {
        add(seen, all[i]);
      }
    }
  }

  function lookWhenResting() {
    var rest = restingAt - __corvex__natives.milliseconds();
    if (rest > 0) {
      __corvex__later(lookWhenResting, rest);
      return;
    }
    isWaiting = false;
    look();
  }

  // What comes now is made by the press or the key.
  function lookSoon() {
    seen = null;
    restingAt = __corvex__natives.milliseconds() + restMs;
    if (!isWaiting) {
      isWaiting = true;
      __corvex__later(lookWhenResting, restMs);
    }
  }

  function noteEntered(e) {
    if (trail.length < longestTrail) {
      trail[trail.length] = __corvex__srcElement(e);
    }
  }

  function contains(ancestor, node) {
    while (node && node !== ancestor) {
      node = __corvex__nodeReader.parentNode(node);
    }
    return !!node;
  }

  // What opened in an object is part of its text now, and will not be at first.
  function nameBefore(object, pressed) {
    var name = __corvex__nameOf(object);
    var isTold = name.indexOf("nnerText") !== -1 && contains(object, pressed);
    return isTold ? escape(__corvex__qualifiedName(object)) : name;
  }

  function tell(e, object, pressed) {
    __corvex__sendLogEventData(e, "event=hover&object=" + nameBefore(object, pressed) + "&context=" +
      __corvex__contextOfForUrl(__corvex__currentContext(object)) + __corvex__tabIdLogEventParameter(), true);
  }

  function isWholePage(element) {
    return element === document.body || element === document.documentElement;
  }

  // The last object that was there before, and of what opened then those beside which the next level stands.
  function tellHovers(e, pressed) {
    var last = trail.length - 1;
    while (last >= 0 && !has(seen, trail[last])) {
      --last;
    }
    var told = null;
    for (var i = last; i >= 0 && i < trail.length; ++i) {
      var object = __corvex__eventObject(trail[i]);
      var isOpener = i === last || contains(__corvex__nodeReader.parentNode(object), pressed);
      if (isOpener && object !== told && !isWholePage(object) && !contains(pressed, object)) {
        tell(e, object, pressed);
        told = object;
      }
    }
  }

  function notePress(e) {
    var source = __corvex__srcElement(e);
    if (seen && !has(seen, source) && !__corvex__isInfoDiv(source) && !window.__corvex__pickObject) {
      tellHovers(e, __corvex__eventObject(source));
    }
    lookSoon();
  }

  if (!Elements || !isShown) {
    return;
  }
  var rows = [["mouseover", noteEntered], ["mousedown", notePress], ["keydown", lookSoon], ["load", lookSoon]];
  for (var i = 0; i < rows.length; ++i) {
    window.addEventListener(rows[i][0], __corvex__quiet(rows[i][1]), true);
  }
}());
