// Gives test scripts the functions that wait for what the script itself tells: an answer of one of its functions, a value
// that it compares, an address. The bridge repeats an attempt until it has found what it looks for.
(function (bridge, global) {
  function list(values) {
    return Array.prototype.slice.call(values);
  }

  function call(name, values) {
    return bridge.callFunction(name, values);
  }

  // What an attempt saw: `value`, and whether it is what is waited for; or the error that it ended with.
  function wait(name, values, look) {
    return bridge.wait(name, values, function () {
      try {
        return look();
      } catch (e) {
        return { error: e };
      }
    });
  }

  function need(holds, sentence) {
    if (!holds) {
      throw new Error(sentence);
    }
  }

  function valueAt(path, object) {
    return path.split(".").reduce(function (value, property) {
      return value[property];
    }, object);
  }

  // The wildcards * and ? of a text stand for any characters, and for any one.
  function patternOf(text) {
    var plain = text.replace(/[.+^${}()|[\]\\]/g, "\\$&");
    return new RegExp("^" + plain.replace(/\*/g, "[^]*").replace(/\?/g, "[^]") + "$");
  }

  global.waitFor = function (condition) {
    bridge.checkWait("waitFor", list(arguments));
    need(typeof condition === "function", "waitFor needs a function, as in waitFor(function () { return done; }).");
    return wait("waitFor", list(arguments), function () {
      var value = condition();
      return { found: Boolean(value), value: value };
    });
  };

  global.waitForValue = function (name, property, expected) {
    var isName = typeof name === "string";
    bridge.checkWait("waitForValue", list(arguments));
    need(typeof property === "string" && property !== "",
      "waitForValue needs the name of a property, such as \"value\" or \"css.color\".");
    need(isName || name !== null && typeof name === "object", "waitForValue needs an object or its name.");
    if (isName) {
      // Names that can never be found are an error without any waiting.
      call("exists", [name]);
    }
    return wait("waitForValue", list(arguments), function () {
      var value = valueAt(property, isName ? call("findObject", [name]) : name);
      return { found: bridge.areEqual(value, expected), value: value };
    });
  };

  if (bridge.functionNames().indexOf("currentUrl") >= 0) {
    global.waitForUrl = function (pattern) {
      bridge.checkWait("waitForUrl", list(arguments));
      var isText = typeof pattern === "string" && pattern !== "";
      need(isText || pattern instanceof RegExp,
        "waitForUrl needs a text with wildcards, such as \"*/basket?\", or a regular expression.");
      // Without a window there is nothing to wait for.
      call("currentUrl", []);
      var wanted = isText ? patternOf(pattern) : new RegExp(pattern.source, pattern.flags.replace(/[gy]/g, ""));
      return wait("waitForUrl", list(arguments), function () {
        var url = call("currentUrl", []);
        return { found: wanted.test(url), value: url };
      });
    };
  }
})
