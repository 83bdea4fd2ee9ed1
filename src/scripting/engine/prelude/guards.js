// Turns recursion without end into script errors where it would end the program: the engine counts the calls of script
// functions, but not how deep its own functions go into a value. Each step that these take now passes through a script
// function.
(function (bridge, global) {
  function replace(holder, name, value) {
    Object.defineProperty(holder, name, { value: value, writable: true, configurable: true });
  }

  function isObject(value) {
    return value !== null && (typeof value === "object" || typeof value === "function");
  }

  // Arrays as texts. One that holds itself is an empty text there, as in browsers.
  ["join", "toLocaleString"].forEach(function (name) {
    var native = Array.prototype[name];
    var running = [];
    replace(Array.prototype, name, function () {
      for (var i = 0; i < running.length; ++i) {
        if (running[i] === this) {
          return "";
        }
      }
      running.push(this);
      try {
        return Reflect.apply(native, this, arguments);
      } finally {
        running.pop();
      }
    });
  });

  // A generator that hands over to one of its own kind.
  var generator = Object.getPrototypeOf(function* () {}).prototype;
  ["next", "return", "throw"].forEach(function (name) {
    var native = generator[name];
    replace(generator, name, function () {
      return Reflect.apply(native, this, arguments);
    });
  });

  // A proxy of a proxy, or one that is its target's prototype. The traps are those functions that Reflect has.
  var NativeProxy = global.Proxy;
  var reflected = Object.getOwnPropertyNames(Reflect).filter(function (name) {
    return typeof Reflect[name] === "function";
  });

  function counted(handler) {
    if (!isObject(handler)) {
      throw new TypeError("A proxy needs a handler, as in new Proxy(target, handler).");
    }
    var traps = {};
    reflected.forEach(function (name) {
      var native = Reflect[name];
      traps[name] = function () {
        var trap = handler[name];
        return typeof trap === "function" ? Reflect.apply(trap, handler, arguments) : native.apply(Reflect, arguments);
      };
    });
    return traps;
  }

  function GuardedProxy(target, handler) {
    if (!(this instanceof GuardedProxy)) {
      throw new TypeError("A proxy needs new, as in new Proxy(target, handler).");
    }
    return new NativeProxy(target, counted(handler));
  }
  replace(GuardedProxy, "revocable", function (target, handler) {
    return NativeProxy.revocable(target, counted(handler));
  });
  replace(global, "Proxy", GuardedProxy);
})
