// Gives: the ways by which a message of the page reaches the driver.
// Needs: runtime/natives, runtime/builtins, runtime/state, runtime/sessionqueue, browsers.

// The base URL, without a slash at its end.
function __corvex__XMLHttpRequestDestination() {
  var webhook = "127.0.0.1:" + window.__corvex__port;
  if (window.__corvex__proxy) {
    return location.protocol + "//" + location.host + "/__corvex_webhook__/" + escape(webhook);
  }
  return "http://" + webhook;
}

// A posted text gets no reply, which the two waits live on.
function __corvex__useIEPostMessage(payload) {
  return !!window.top.__corvex__ie && payload.indexOf("waitForConfirm") !== 0 &&
         payload.indexOf("waitForPrompt") !== 0;
}

function __corvex__postIEMessage(data) {
  window.top.postMessage("__corvex__message: " + data, "*");
  return { responseText: "" };
}

function __corvex__createRequest() {
  if (!window.__corvex__ie && __corvex__natives.Request) {
    return __corvex__natives.createRequest();
  }
  var ActiveX = window.ActiveXObject;
  return ActiveX ? new ActiveX("MSXML2.XMLHTTP.3.0") : undefined;
}

// Whoever set messageNotSent learns of a message that no driver took: its head and its body.
function __corvex__tellNotSent(url, body) {
  var tell = window.top.__corvex.messageNotSent;
  if (tell) {
    tell(url.substring(url.indexOf("/?") + 2), body || "");
  }
}

function __corvex__sendRequest(method, url, body, async) {
  var request = __corvex__createRequest();
  if (request) {
    if (async) {
      request.onloadend = __corvex__quiet(function () {
        if (request.status !== 200) {
          __corvex__tellNotSent(url, body);
        }
      });
    }
    request.open(method, url, async);
    request.send(body);
  }
  return request;
}

// Browsers drop the open requests of a page that goes away, and some refuse to let it wait.
function __corvex__sendWhileLeaving(method, url, body, async) {
  if (!async) {
    try {
      return __corvex__sendRequest(method, url, body, false);
    } catch (e) {
      // Refused.
    }
  }
  if (__corvex__natives.sendAndForget(method, url, body)) {
    return { responseText: "" };
  }
  return __corvex__sendRequest(method, url, body, true);
}

function __corvex__sendHttp(method, query, body, async) {
  var mode = async === undefined ? window.__corvex__asynclog : async;
  // An undefined mode would be a synchronous request.
  var isAsync = mode === undefined || !!mode;
  var url = __corvex__XMLHttpRequestDestination() + "/?" + query;
  var send = __corvex__windowState.isPageLeaving ? __corvex__sendWhileLeaving : __corvex__sendRequest;
  return send(method, url, body, isAsync);
}

// doc: not used. async: undefined for the default mode.
// Returns the request, or a record with its responseText; nothing where the channel cannot reply.
var __corvex__sendXMLHttpRequest = __corvex__withBuiltIns(function (doc, payload, async) {
  if (window.top.__corvex.useSessionStorageForEvents) {
    __corvex__addObjectToEventStorage({ payload: payload });
    return { responseText: "" };
  }
  if (__corvex__isQWebViewBrowser()) {
    var bridge = window.top.__corvex__qwebkitEventLoggerBridge;
    if (bridge) {
      bridge.doLogEvent(payload);
    }
    return undefined;
  }
  if (__corvex__usesEventLoggerBridge()) {
    __corvex__eventLoggerBridge.handleXMLHttpPayload(unescape(payload));
    return undefined;
  }
  if (__corvex__isJavaSWTBrowser()) {
    window.top.__corvex__swtfunction("logEvent", payload);
    return undefined;
  }
  if (__corvex__useIEPostMessage(payload)) {
    return __corvex__postIEMessage(payload);
  }
  return __corvex__sendHttp("GET", payload, null, async);
});

// The channels without a body get the text that a GET would have had, but they differ from the list above: on Qt WebKit
// only events pass, the event-logger bridge gets its text as it is, and a long event of Java SWT goes out twice.
var __corvex__sendXMLHttpPost = __corvex__withBuiltIns(function (doc, url, payload, async) {
  var isEvent = url.indexOf("logevent") !== -1;
  if (window.top.__corvex.useSessionStorageForEvents) {
    __corvex__addObjectToEventStorage({ url: url, payload: payload });
    return { responseText: "" };
  }
  if (__corvex__isQWebViewBrowser()) {
    var bridge = window.top.__corvex__qwebkitEventLoggerBridge;
    if (isEvent && bridge) {
      bridge.doLogEvent(url + payload);
    }
    return undefined;
  }
  if (__corvex__usesEventLoggerBridge()) {
    var separator = url.indexOf("debuglog") !== -1 ? "=" : "";
    __corvex__eventLoggerBridge.handleXMLHttpPayload(url + separator + payload);
    return undefined;
  }
  if (__corvex__isJavaSWTBrowser() && isEvent) {
    window.top.__corvex__swtfunction("logEvent", url + payload);
  }
  if (__corvex__useIEPostMessage(url)) {
    return __corvex__postIEMessage(url + payload);
  }
  return __corvex__sendHttp("POST", url, payload, async);
});

// For a sender that has no use for the reply and no way to help a failure.
function __corvex__sendQuietly(payload, async) {
  try {
    __corvex__sendXMLHttpRequest(document, payload, async);
  } catch (e) {
    // The message is lost.
  }
}

// Messages overtake each other: each has a later stamp than those before it, even in the same millisecond.
var __corvex__lastStamp = 0;

function __corvex__getLogEventUrl(data) {
  var now = __corvex__natives.milliseconds();
  __corvex__lastStamp = now > __corvex__lastStamp ? now : __corvex__lastStamp + 1;
  return "logevent" + __corvex__lastStamp + "&" + (data || "");
}

// ev: not used. data: the text after the head.
function __corvex__sendLogEventData(ev, data, async) {
  if (data.length > 120) {
    return __corvex__sendXMLHttpPost(document, __corvex__getLogEventUrl(), data, async);
  }
  return __corvex__sendXMLHttpRequest(document, __corvex__getLogEventUrl(data), async);
}
