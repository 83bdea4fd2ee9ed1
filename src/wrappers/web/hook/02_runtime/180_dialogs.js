// Gives: the replacements of alert, confirm and prompt.
// Needs: runtime/natives, runtime/builtins, runtime/state, runtime/transport, runtime/override, browsers.

function __corvex__doEventHandlerAsync() {
  return true;
}

function __corvex__isDialogRecorded() {
  return !!(window.__corvex__recording || window.top.__corvex.isInspecting);
}

// On Windows the native dialogs would be recorded a second time, by the recorder of native windows.
function __corvex__needsFallbackMessages() {
  return !!window.__corvex__recording && window.top.__corvex__os === "Windows" &&
         (!window.top.__corvex__mozilla || window.top.__corvex.browsermajorversion < 64);
}

// Whether the driver can answer the browser's own dialogs.
function __corvex__opensNativeDialogs() {
  return !!(window.top.__corvex__ie || window.top.__corvex__microsoftedge || window.top.__corvex__chromiumbased ||
            __corvex__isSafariUsingWebDriver());
}

// show: opens the native dialog and returns what the page gets. messageOf: the record of that result.
function __corvex__recordDialog(show, messageOf) {
  if (__corvex__needsFallbackMessages()) {
    __corvex__sendQuietly(__corvex__getLogEventUrl("event=disableFallbackWrapper"));
  }
  var result = show();
  if (window.__corvex__recording) {
    __corvex__sendQuietly(__corvex__getLogEventUrl(messageOf(result)), true);
    if (__corvex__needsFallbackMessages()) {
      __corvex__sendQuietly(__corvex__getLogEventUrl("event=enableFallbackWrapper"));
    }
  }
  return result;
}

function __corvex__announceDialog(name) {
  __corvex__sendQuietly("eventHandler" + __corvex__natives.milliseconds() + "&name=" + name,
    __corvex__doEventHandlerAsync());
}

// Stops the page until the driver answered; the empty text where no answer comes.
function __corvex__waitForAnswer(keyword) {
  try {
    var reply = __corvex__sendXMLHttpRequest(document, keyword + __corvex__natives.milliseconds(), false);
    return (reply && reply.responseText) || "";
  } catch (e) {
    return "";
  }
}

// The text that a native dialog would show.
function __corvex__dialogText(args) {
  return args.length ? "" + args[0] : "";
}

// Whoever set dialogTextKept learns of each text.
function __corvex__keepDialogText(field, text) {
  __corvex__dialogState[field] = text;
  var tell = window.top.__corvex.dialogTextKept;
  if (tell) {
    tell(field, text);
  }
}

function __corvex__announceAlert(self) {
  try {
    if (!window.__corvex__webhook__debug) {
      __corvex__sendXMLHttpRequest(document, "eventHandler&" + __corvex__natives.milliseconds() + "&name=AlertOpened",
        true);
    }
  } catch (e) {
    __corvex__callStored(self, "__corvex__origAlert", [e.message]);
  }
}

function __corvex__alert2(msg) {
  var self = this;
  var args = arguments;
  var show = function () {
    __corvex__callStored(self, "__corvex__origAlert", args);
  };
  if (__corvex__isInsideStored("__corvex__origAlert")) {
    show();
  } else if (__corvex__isDialogRecorded()) {
    __corvex__recordDialog(show, function () {
      return "event=alert";
    });
  } else {
    __corvex__announceAlert(self);
    var isNative = __corvex__opensNativeDialogs();
    if (!isNative || window.top.__corvex__chromiumbased) {
      __corvex__keepDialogText("lastAlertMessage", __corvex__dialogText(args));
    }
    if (isNative) {
      show();
    }
  }
}

function __corvex__confirm(msg) {
  var self = this;
  var args = arguments;
  var show = function () {
    return __corvex__callStored(self, "__corvex__origConfirm", args);
  };
  if (__corvex__isInsideStored("__corvex__origConfirm")) {
    return show();
  }
  if (__corvex__isDialogRecorded()) {
    return __corvex__recordDialog(show, function (result) {
      return "event=confirm&ret=" + result;
    });
  }
  __corvex__announceDialog("ConfirmOpened");
  var isNative = __corvex__opensNativeDialogs();
  if (!isNative || window.top.__corvex__chromiumbased) {
    __corvex__keepDialogText("lastConfirmMessage", __corvex__dialogText(args));
  }
  if (isNative) {
    return __corvex__callStored(window.top, "__corvex__origConfirm", args);
  }
  return __corvex__waitForAnswer("waitForConfirm") === "true";
}

var __corvex__promptAnswer = __corvex__withBuiltIns(function () {
  var head = "__corvex__promptResult: ";
  var reply = __corvex__waitForAnswer("waitForPrompt&");
  return reply.indexOf(head) === 0 ? reply.substring(head.length) : null;
});

function __corvex__prompt(msg, def) {
  var self = this;
  var args = [msg, def === undefined ? "" : def];
  var show = function () {
    return __corvex__callStored(self, "__corvex__origPrompt", args);
  };
  if (__corvex__isInsideStored("__corvex__origPrompt")) {
    return show();
  }
  if (__corvex__isDialogRecorded()) {
    return __corvex__recordDialog(function () {
      return show() || "";
    }, function (result) {
      return "event=prompt&ret=" + result;
    });
  }
  __corvex__announceDialog("PromptOpened");
  var isNative = __corvex__opensNativeDialogs();
  if (!isNative || window.top.__corvex__chromiumbased || __corvex__isSafariUsingWebDriver()) {
    __corvex__keepDialogText("lastPromptMessage", __corvex__dialogText(arguments));
    __corvex__keepDialogText("lastPromptDefaultValue", "" + args[1]);
  }
  return isNative ? __corvex__callStored(window.top, "__corvex__origPrompt", args) : __corvex__promptAnswer();
}
