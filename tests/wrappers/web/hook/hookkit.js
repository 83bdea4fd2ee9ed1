// Gives: hookKit(test), which runs a test with requests, timers and flags of the hook script replaced, and puts back
// everything that the test set through it. The test gets the kit:
//   set(object, name, value), flag(name, value)   flag names without their prefix
//   sent      what went out, one line a request: method, message, "sync" where the page waited, body
//   timers    what was started: f, ms
//   replies   beginning of a message: text of its reply
//   failing   true: sending throws
//   stamps(text)   the text with its stamps as "N"
//   channels()     puts bridges of embedded views into the page; run(action) says what came out by which channel
// Needs: a hooked page.

window.hookKit = function (test) {
  var undos = [];
  var kit = { sent: [], timers: [], replies: {}, failing: false };

  kit.set = function (object, name, value) {
    var had = Object.prototype.hasOwnProperty.call(object, name);
    var old = object[name];
    object[name] = value;
    undos.push(function () {
      if (had || old !== undefined) {
        object[name] = old;
      } else {
        delete object[name];
      }
    });
  };
  kit.flag = function (name, value) {
    kit.set(window, "__corvex__" + name, value);
  };
  kit.stamps = function (text) {
    return text === undefined || text === null ? text : String(text).replace(/\d{13}/g, "N");
  };
  function messageOf(url) {
    return kit.stamps(url).replace(/^.*?\/\?/, "");
  }

  kit.Request = function () {};
  kit.Request.prototype = {
    open: function (method, url, async) {
      this.url = url;
      this.line = [method, messageOf(url)].concat(async ? [] : ["sync"]);
    },
    send: function (body) {
      if (kit.failing) {
        throw new Error("refused");
      }
      kit.sent.push(this.line.concat(body === null ? [] : [body]).join(" "));
      for (var beginning in kit.replies) {
        if (this.line[1].indexOf(beginning) === 0) {
          this.responseText = kit.replies[beginning];
        }
      }
    }
  };

  kit.channels = function () {
    var got = [];
    function bridge(name) {
      var made = {};
      ["doLogEvent", "handleXMLHttpPayload", "log", "logDebug"].forEach(function (operation) {
        made[operation] = function (text) {
          got.push(name + "." + operation + " " + kit.stamps(text));
        };
      });
      return made;
    }
    kit.flag("qwebkitEventLoggerBridge", bridge("qt"));
    kit.flag("eventLoggerBridge", bridge("apple"));
    kit.set(window, "postMessage", function (text, origin) {
      got.push("post " + kit.stamps(text) + origin);
    });
    kit.set(console, "log", function (text) {
      got.push("console " + text);
    });
    kit.swt = function (kind, text) {
      got.push("swt " + kind + " " + text);
    };
    return function (action) {
      kit.sent.length = 0;
      got.length = 0;
      var result = action();
      var shown = result === undefined ? "nothing" : result.responseText === "" ? "empty" : "request";
      return got.concat(kit.sent).join(" + ") + " -> " + shown;
    };
  };

  kit.set(__corvex__natives, "Request", kit.Request);
  kit.set(__corvex__natives, "setTimeout", function (f, ms) {
    kit.timers.push({ f: f, ms: ms });
    return kit.timers.length;
  });
  kit.set(__corvex__natives, "sendAndForget", function (method, url) {
    kit.sent.push("kept " + method + " " + messageOf(url));
    return true;
  });
  kit.set(window.top.__corvex, "useSessionStorageForEvents", false);
  ["ie", "mozilla", "safari", "googlechrome", "chromiumbased", "microsoftedge", "edge", "proxy", "recording",
    "newwindowhook", "improvedTabAndWindowSupport"].forEach(function (name) {
    kit.flag(name, false);
  });
  var state = { os: "Linux", port: 8000, asynclog: true, ctxwin: window, ctxwin_str: "", framewin: undefined, wcnt: -1,
    popupcnt: 0, windows: [], popups: [] };
  Object.keys(state).forEach(function (name) {
    kit.flag(name, state[name]);
  });

  try {
    return test(kit);
  } finally {
    while (undos.length) {
      undos.pop()();
    }
  }
};
