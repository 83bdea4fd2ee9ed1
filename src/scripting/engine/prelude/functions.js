// Gives test scripts their global functions. Which there are is up to the bridge.
(function (bridge, global) {
  function list(values) {
    return Array.prototype.slice.call(values);
  }

  function stack() {
    return new Error().stack;
  }

  function install(name, run) {
    var parts = name.split(".");
    var holder = global;
    while (parts.length > 1) {
      var part = parts.shift();
      holder[part] = holder[part] || {};
      holder = holder[part];
    }
    holder[parts[0]] = run;
  }

  bridge.functionNames().forEach(function (name) {
    install(name, function () {
      var result = bridge.callFunction(name, list(arguments));
      if (bridge.hasNews()) {
        bridge.tellNews(stack());
      }
      return result;
    });
  });

  bridge.checkNames().forEach(function (name) {
    install(name, function () {
      return bridge.callCheck(name, list(arguments), stack());
    });
  });

  install("source", function (path) {
    var outcome = bridge.source(String(path), stack());
    if (outcome.failed) {
      throw outcome.error;
    }
  });
})
