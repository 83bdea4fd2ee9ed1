// Gives test scripts their global functions and the objects of the object model.
// Needs the native bridge; answers the two functions by which it passes objects.
(function (bridge, global) {
  var HANDLE = Symbol("handle");
  var prototypes = [];

  function list(values) {
    return Array.prototype.slice.call(values);
  }

  function stack() {
    return new Error().stack;
  }

  var base = {
    toString: function () {
      return bridge.textOf(this[HANDLE]);
    },
    toJSON: function () {
      return bridge.textOf(this[HANDLE]);
    },
    // An object with such a member would count as a promise.
    then: undefined
  };

  function addMethod(prototype, name) {
    Object.defineProperty(prototype, name, {
      value: function () {
        return bridge.callMethod(this && this[HANDLE], name, list(arguments));
      }
    });
  }

  function addProperty(prototype, name) {
    Object.defineProperty(prototype, name, {
      enumerable: true,
      get: function () {
        return bridge.readProperty(this[HANDLE], name);
      }
    });
  }

  function prototypeOf(classNumber) {
    if (classNumber < 0) {
      return base;
    }
    if (!prototypes[classNumber]) {
      var description = bridge.describeClass(classNumber);
      var prototype = Object.create(prototypeOf(description.superClass));
      prototypes[classNumber] = prototype;
      description.methods.forEach(function (name) {
        addMethod(prototype, name);
      });
      description.properties.forEach(function (name) {
        addProperty(prototype, name);
      });
    }
    return prototypes[classNumber];
  }

  var traps = {
    get: function (target, key, receiver) {
      if (key in target) {
        return Reflect.get(target, key, receiver);
      }
      return typeof key === "symbol" ? undefined : bridge.unknownMember(target[HANDLE], key);
    },
    set: function (target, key, value) {
      bridge.writeProperty(target[HANDLE], String(key), value);
      return true;
    },
    defineProperty: function (target, key) {
      return bridge.unknownMember(target[HANDLE], String(key));
    },
    deleteProperty: function () {
      return false;
    }
  };

  function wrap(handle) {
    var target = Object.create(prototypeOf(handle.classNumber));
    Object.defineProperty(target, HANDLE, { value: handle });
    return new Proxy(target, traps);
  }

  function handleOf(object) {
    return object[HANDLE];
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
      return bridge.callFunction(name, list(arguments));
    });
  });

  install("sameObject", function (a, b) {
    return bridge.areEqual(a, b);
  });
  install("test.verify", function (condition, message) {
    return bridge.verify(!!condition, message, stack());
  });
  install("test.compare", function (actual, expected, message) {
    return bridge.compare(actual, expected, message, stack());
  });
  install("test.log", function () {
    bridge.log(list(arguments).map(String).join(" "));
  });
  install("source", function (path) {
    var outcome = bridge.source(String(path), stack());
    if (outcome.failed) {
      throw outcome.error;
    }
  });

  return { wrap: wrap, handleOf: handleOf };
})
