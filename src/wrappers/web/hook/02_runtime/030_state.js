// Gives: what the script remembers of windows, dialogs and recording, and the arrays that extensions fill with hooks.
// Needs: runtime/natives, matching.

// What the script remembers of one concern, as initial() makes it; reset() makes it so again. Each field is also the
// window's variable of that name after "__corvex__", by which the driver and extensions know it.
function __corvex__makeState(initial) {
  var state = {};

  function expose(field) {
    Object.defineProperty(window, "__corvex__" + field, {
      configurable: true,
      enumerable: true,
      get: function () {
        return state[field];
      },
      set: function (value) {
        state[field] = value;
      }
    });
  }

  function forEachField(act) {
    var values = initial();
    for (var field in values) {
      if (__corvex__natives.has(values, field)) {
        act(field, values[field]);
      }
    }
  }

  forEachField(expose);
  state.reset = function () {
    forEachField(function (field, value) {
      state[field] = value;
    });
  };
  state.reset();
  return state;
}

var __corvex__windowState = __corvex__makeState(function () {
  return {
    // The script's window, the current context, the one that was selected by name, and the name last asked for.
    topWindow: window,
    ctxwin: window,
    explicitContext: undefined,
    ctxwin_str: "",
    // Further top-level windows; the index of the newest.
    windows: [],
    wcnt: -1,
    // The window whose frames the next sweep hooks; the windows that came so, from 1; the index of the newest.
    framewin: undefined,
    popups: [],
    popupcnt: 0,
    rehookLoadLock: false,
    rehookUnLoadLock: false,
    lazyHookWindows: [],
    lazyHookTimer: null,
    isPageLeaving: false
  };
});

// The texts of the last dialog of each kind.
var __corvex__dialogState = __corvex__makeState(function () {
  return { lastAlertMessage: "", lastConfirmMessage: "", lastPromptMessage: "", lastPromptDefaultValue: "" };
});

var __corvex__recordingState = __corvex__makeState(function () {
  return {
    lastSelectEvent: null,
    lastSelectEventObject: null,
    // Of the pointer, while picking: the object that is under it, and the timer that tells of it.
    selectedObject: undefined,
    mouseElement: null,
    hoverTimer: null
  };
});

window.__corvex__eventObject__hooks = [];
window.__corvex__pickableObjectHooks = [];
window.__corvex__typeOf__hooks = [];
window.__corvex__eventToStr__hooks = [];
window.__corvex__matchObject__hooks = [];
// By property, lists of the factories that are for it alone.
window.__corvex__factoriesOfProperties = {};
window.__corvex__propertyMatcherFactories = [
  function (propName, propValue, objectName) {
    return new window.top.__corvex.StandardPropertyMatcher(propName, propValue, objectName);
  }
];
window.__corvex__click__hooks = [];
window.__corvex__hookInFrame__hooks = [];
window.__corvex__selectSingleOption__hooks = [];
window.__corvex__eventType__hooks = [];
window.__corvex__objectNameAndType__hooks = [];
window.__corvex__itemTextForEvent__hooks = [];
window.__corvex__nameOf__hooks = [];
window.__corvex__knownWidgets = [];

// Filled by the extension of a toolkit: records, and the field of a record that holds its class name.
window.__corvex__backbase__descriptors = [];
window.__corvex__backbase__className = "className";

// Known to extensions, and not used here.
window.__corvex__objects = [];
window.__corvex__bgcolors = [];
window.__corvex__lastSelected = undefined;
