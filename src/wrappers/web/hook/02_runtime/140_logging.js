// Gives: log lines and debug lines by whatever the embedding offers; no error of theirs reaches the page.
// Needs: runtime/natives, runtime/transport, browsers.

// For what concerns whoever debugs the page itself.
function __corvex__logInPage(text) {
  try {
    console.log(text);
  } catch (e) {
    // A page without a console, or with one of its own making.
  }
}

// Undefined where there is none.
function __corvex__logTarget() {
  try {
    if (__corvex__isQWebViewBrowser()) {
      return window.top.__corvex__qwebkitEventLoggerBridge;
    }
    if (__corvex__usesEventLoggerBridge()) {
      return __corvex__eventLoggerBridge;
    }
    return window.console;
  } catch (e) {
    return undefined;
  }
}

var __corvex__log__window = null;

function __corvex__openLogWindow() {
  var open;
  try {
    open = window.__corvex__reallyOpen || window.open;
  } catch (e) {
    open = window.open;
  }
  return __corvex__natives.apply(open, window, ["javascript:document.write('<body></body>')"]);
}

function __corvex__logToWindow(s) {
  if (!__corvex__log__window) {
    __corvex__log__window = __corvex__openLogWindow();
  }
  __corvex__log__window.document.body.innerHTML += s + "<br>";
}

var __corvex__console = {
  log: function (s) {
    try {
      if (__corvex__isJavaSWTBrowser() && !__corvex__isQWebViewBrowser() && !__corvex__usesEventLoggerBridge()) {
        window.top.__corvex__swtfunction("log", s);
        return;
      }
      var target = __corvex__logTarget();
      if (target) {
        target.log(s);
      } else {
        __corvex__logToWindow(s);
      }
    } catch (e) {
      // Logging never disturbs the page.
    }
  }
};

function __corvex__log(s) {
  __corvex__console.log(s);
}

function __corvex__closeLog() {
  try {
    if (__corvex__log__window) {
      __corvex__log__window.close();
    }
  } catch (e) {
    // It went to another origin, and is none of ours any more.
  }
  __corvex__log__window = null;
}

// A line for the driver's log.
function __corvex__debug(s) {
  try {
    var bridge = __corvex__isQWebViewBrowser() && window.top.__corvex__qwebkitEventLoggerBridge;
    if (bridge) {
      bridge.logDebug(s);
    } else if (__corvex__isJavaSWTBrowser()) {
      window.top.__corvex__swtfunction("debug", s);
    } else if (s.length < 150) {
      __corvex__sendXMLHttpRequest(document, "debuglog=" + s, true);
    } else {
      __corvex__sendXMLHttpPost(document, "debuglog", s, true);
    }
  } catch (e) {
    // Debugging never disturbs the page.
  }
}

function __corvex__alert(s) {
  if (window.__corvex__webhook__debug) {
    __corvex__natives.apply(window.__corvex__origAlert || window.alert, window, [s]);
  }
}
