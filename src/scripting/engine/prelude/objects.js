// Gives the bridge the two functions by which it passes objects of the object model: how to make a script object around
// a handle, and how to find the handle again.
(function (bridge) {
  var HANDLE = Symbol("handle");
  var prototypes = [];
  // Scripts get another one.
  var NativeProxy = Proxy;

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
        return bridge.callMethod(this && this[HANDLE], name, Array.prototype.slice.call(arguments));
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

  // Of a call the engine asks for the member first. When that fails it says that the member is no function, and puts our
  // sentence where it takes the object's text to be; so the sentence has to wait for the call.
  function missing(handle, name) {
    if (bridge.isCalled(name, new Error().stack)) {
      return function () {
        return bridge.unknownMember(handle, name);
      };
    }
    return bridge.unknownMember(handle, name);
  }

  var traps = {
    get: function (target, key, receiver) {
      if (key in target) {
        return Reflect.get(target, key, receiver);
      }
      return typeof key === "symbol" ? undefined : missing(target[HANDLE], key);
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

  bridge.setWrappers(
    function wrap(handle) {
      var target = Object.create(prototypeOf(handle.classNumber));
      Object.defineProperty(target, HANDLE, { value: handle });
      return new NativeProxy(target, traps);
    },
    function handleOf(object) {
      return object[HANDLE];
    }
  );
})
