// Gives: the type text of a page object, by which its wrapper class is chosen.
// Needs: runtime/state, runtime/nodes.

// The highest priority wins; among equal priorities the first hook to answer.
function __corvex__typeFromHooks(o) {
  var hooks = window.__corvex__typeOf__hooks;
  var type = null;
  var prio = -1;
  for (var i = 0; i < hooks.length; ++i) {
    try {
      var answer = hooks[i].func(o);
      if (answer && (!type || prio < hooks[i].prio)) {
        type = answer;
        prio = hooks[i].prio;
      }
    } catch (e) {
      // A faulty extension must not disturb the run.
    }
  }
  return type;
}

// A form with a field named "alert" is no window, and a document with such a form neither.
function __corvex__isWindow(o) {
  try {
    return !!o.alert && (o.window === o || typeof __corvex__nodeReader.nodeType(o) !== "number");
  } catch (e) {
    // A window of another origin refuses the question.
    return true;
  }
}

function __corvex__typeOf(o) {
  if (!o) {
    return "[unknown]";
  }
  if (__corvex__isWindow(o)) {
    return "window";
  }
  var type = __corvex__typeFromHooks(o);
  if (type) {
    return type;
  }
  if (typeof o.type === "string" && o.type !== "") {
    return o.type;
  }
  if (__corvex__isShadowRoot(o)) {
    return "ShadowRoot";
  }
  if (__corvex__nodeReader.nodeName(o) === "#document") {
    return "DOCUMENT";
  }
  var tagName = __corvex__nodeReader.tagName(o);
  // Else text of an SVG image would be taken for a text input.
  if (tagName === "text") {
    return "SVG_Text";
  }
  return tagName || "[unknown_type]";
}
