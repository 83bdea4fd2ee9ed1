// Gives scripts the classes that are used without an object, by their names: HTML_Event.ShiftModifier,
// CssColor.fromRgb(1, 2, 3).
(function (bridge, global) {
  bridge.classNames().forEach(function (className) {
    var cls = {};
    bridge.staticMethods(className).forEach(function (name) {
      cls[name] = function () {
        return bridge.callStatic(className, name, Array.prototype.slice.call(arguments));
      };
    });
    Object.assign(cls, bridge.enumItems(className));
    global[className] = Object.freeze(cls);
  });
})
