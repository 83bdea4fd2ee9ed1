// Gives: what pages replace and the runtime must not lose: __corvex__natives (requests, timers, clock), functions, maps.
// Needs: nothing; it is evaluated before the page's own scripts.

var __corvex__natives = (function () {
  var Request = window.XMLHttpRequest;
  var prototype = (Request && Request.prototype) || {};
  var open = prototype.open;
  var send = prototype.send;
  var startFetch = window.fetch;
  var Clock = window.Date;
  var startTimeout = window.setTimeout;
  var stopTimeout = window.clearTimeout;
  var startInterval = window.setInterval;
  var stopInterval = window.clearInterval;
  return {
    Request: Request,
    createRequest: function () {
      var request = new __corvex__natives.Request();
      // Wrapped methods would tell the page of requests that are not its own.
      if (__corvex__natives.Request === Request && open && send && request.overrideMimeType) {
        request.open = open;
        request.send = send;
        // A reply of no stated type would be parsed as a document, and its faults be reported to the page.
        request.overrideMimeType("text/plain");
      }
      return request;
    },
    // Sends what outlives the page. False where the browser cannot.
    sendAndForget: function (method, url, body) {
      if (!startFetch) {
        return false;
      }
      var options = { method: method, keepalive: true, credentials: "omit" };
      if (body !== null) {
        options.body = body;
      }
      // A rejection that nobody takes would be reported to the page.
      startFetch(url, options).then(undefined, __corvex__quiet(function () {
        __corvex__tellNotSent(url, body);
      }));
      return true;
    },
    milliseconds: function () {
      return new Clock().getTime();
    },
    setTimeout: function (action, delay) {
      return startTimeout(action, delay);
    },
    clearTimeout: function (timer) {
      stopTimeout(timer);
    },
    setInterval: function (action, delay) {
      return startInterval(action, delay);
    },
    clearInterval: function (timer) {
      stopInterval(timer);
    }
  };
})();

// A function of the browser to be kept, as it is now: a page may replace it later. null where it did so before.
function __corvex__nativeFunction(f) {
  var isNative = typeof f == "function" && Function.prototype.toString.call(f).indexOf("[native code]") != -1;
  return isNative ? f : null;
}

// A map whose keys may be objects, also where a page replaces Map or its methods; null where there is none to trust.
var __corvex__createMap = (function () {
  var NativeMap = __corvex__nativeFunction(window.Map);
  var get = NativeMap && NativeMap.prototype.get;
  var set = NativeMap && NativeMap.prototype.set;
  return function () {
    if (!NativeMap) {
      return null;
    }
    var map = new NativeMap();
    map.get = get;
    map.set = set;
    return map;
  };
})();

// What the browser calls from outside has no caller of ours to catch an error: the page would see it as its own.
function __corvex__quiet(action) {
  return function () {
    try {
      return action.apply(this, arguments);
    } catch (e) {
      return undefined;
    }
  };
}

function __corvex__later(action, delay) {
  __corvex__natives.setTimeout(__corvex__quiet(action), delay);
}
