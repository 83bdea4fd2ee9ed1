// Gives: the replacing of a window's open and dialogs, and the way back to what stood there before.
// Needs: runtime/natives, runtime/builtins, runtime/state, runtime/contexts, runtime/dialogs, runtime/windows,
//   browsers, windows.

// By text: it holds across evaluations of the script and across windows, where identity does not. overrideName: the
// replacement, whose source text is looked for.
function __corvex__needToOverrideNativeFunction(nativeFunRef, overrideName) {
  return String(nativeFunRef).indexOf(String(overrideName)) === -1;
}

// A page's own function that wraps a replacement gets replaced, too. It leads back to the replacement, which then has
// to go on with what was stored before.
function __corvex__storeNativeFunction(w, nativeFnName, origStoreName) {
  if (w[origStoreName] && w[origStoreName] !== w[nativeFnName]) {
    var older = w.__corvex__olderFunctions || {};
    w.__corvex__olderFunctions = older;
    older[origStoreName] = (older[origStoreName] || []).concat([w[origStoreName]]);
  }
  w[origStoreName] = w[nativeFnName];
}

function __corvex__overrideNativeFunction(w, nativeFnName, overrideFnRef, origStoreName) {
  if (__corvex__needToOverrideNativeFunction(w[nativeFnName], overrideFnRef)) {
    __corvex__storeNativeFunction(w, nativeFnName, origStoreName);
    w[nativeFnName] = overrideFnRef;
  }
}

// Dialogs of embedded views can be automated as they are, so those stay. The stored functions exist in both cases, so
// that no caller has to test.
function __corvex__overrideNativeDialogFunction(w, nativeFnName, overrideFnRef, origStoreName) {
  if (__corvex__needToOverrideNativeFunction(w[nativeFnName], overrideFnRef)) {
    __corvex__storeNativeFunction(w, nativeFnName, origStoreName);
    if ((!__corvex__isEmbeddedIntoHookableToolkit() || window.top.__corvex__suppress__webdialogs) &&
        !window.top.__corvex.nativeDialogsKept) {
      w[nativeFnName] = overrideFnRef;
    }
  }
  return w[origStoreName];
}

// How many calls of each stored function are under way.
var __corvex__storedCalls = {};

function __corvex__isInsideStored(origStoreName) {
  return __corvex__storedCalls[origStoreName] > 0;
}

function __corvex__callStored(self, origStoreName, args) {
  // A replacement that the page calls as a plain function, or on an object of its own.
  var w = self && self[origStoreName] ? self : window;
  var depth = __corvex__storedCalls[origStoreName] || 0;
  var older = (w.__corvex__olderFunctions && w.__corvex__olderFunctions[origStoreName]) || [];
  var stored = depth === 0 || !older.length ? w[origStoreName] : older[depth < older.length ? older.length - depth : 0];
  __corvex__storedCalls[origStoreName] = depth + 1;
  try {
    return __corvex__natives.apply(stored, w, args);
  } finally {
    __corvex__storedCalls[origStoreName] = depth;
  }
}

var __corvex__hookupWindow = __corvex__withBuiltIns(function (w) {
  try {
    // A context that was selected before its window existed comes to life here.
    if (__corvex__windowState.ctxwin && __corvex__contextOf(w) === __corvex__windowState.ctxwin_str) {
      __corvex__windowState.ctxwin = w;
    }
    if (window.__corvex__newwindowhook === undefined) {
      if (w.__corvex__hooked__alertAndCo) {
        return;
      }
      w.__corvex__hooked__alertAndCo = true;
    }
    if (!window.__corvex__newwindowhook && !__corvex__browserHookHandlesWindows()) {
      __corvex__overrideNativeFunction(w, "open", __corvex__open, "__corvex__reallyOpen");
    }
    __corvex__overrideNativeDialogFunction(w, "alert", __corvex__alert2, "__corvex__origAlert");
    __corvex__overrideNativeDialogFunction(w, "prompt", __corvex__prompt, "__corvex__origPrompt");
    __corvex__overrideNativeDialogFunction(w, "confirm", __corvex__confirm, "__corvex__origConfirm");
  } catch (e) {
    // A window of another origin stays as it is.
  }
});
