// Gives: __corvex__natives: what pages replace and the hook script must not lose: calls, requests, timers, the clock.
// Needs: runtime/builtins, runtime/transport.

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
  var queueTask = window.queueMicrotask;
  // A bound call looks nothing up when it is called.
  var unbound = Function.prototype.bind.bind(Function.prototype.call);
  var timeOf = unbound(Clock.prototype.getTime);
  return {
    // A function for f.call( self, ... ), which gets self as its first argument.
    unbound: unbound,
    // As f.apply( self, args ).
    apply: unbound(Function.prototype.apply),
    has: unbound(Object.prototype.hasOwnProperty),
    // "[object Array]" and the like.
    classOf: unbound(Object.prototype.toString),
    charCodeAt: unbound(String.prototype.charCodeAt),
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
    // Calls action as soon as the running script is done, or at once where the browser cannot.
    whenDone: function (action) {
      if (queueTask) {
        queueTask(action);
      } else {
        action();
      }
    },
    milliseconds: function () {
      return timeOf(new Clock());
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
var __corvex__nativeFunction = (function () {
  var textOf = __corvex__natives.unbound(Function.prototype.toString);
  return function (f) {
    return typeof f === "function" && textOf(f).indexOf("[native code]") !== -1 ? f : null;
  };
})();

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
