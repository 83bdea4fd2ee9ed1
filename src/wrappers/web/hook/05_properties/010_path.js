// Gives: __corvex__valueAtPath( o, path ): what o.path is for the language, where the path is such as style.color.
// Needs: runtime/natives.

// A path is the name of a property, and then ".name", "[literal]" or "(literal, ...)", as often as one likes.
var __corvex__stepsOfPath = (function () {
  var MOST_CHARACTERS = 10000;
  var MOST_STEPS = 100;
  var NAME = /^[A-Za-z_$\u0080-\uffff][\w$\u0080-\uffff]*/;
  var TEXT = /^"(?:[^"\\\r\n]|\\(?:\r\n|[^]))*"|^'(?:[^'\\\r\n]|\\(?:\r\n|[^]))*'/;
  var NUMBER = /^-?(?:0x[\da-f]+|(?:(?:0|[1-9]\d*)(?:\.\d*)?|\.\d+)(?:e[+-]?\d+)?)(?![\w$.])/i;
  var WORDS = { "true": true, "false": false, "null": null };
  var ESCAPES = { b: "\b", f: "\f", n: "\n", r: "\r", t: "\t", v: "\v", "0": "\0", "\n": "", "\r": "", "\r\n": "",
    "\u2028": "", "\u2029": "" };

  function shortened(text) {
    return text.length > 100 ? text.substring(0, 100) + "..." : text;
  }

  function Reader(path) {
    this.path = path;
    this.rest = path;
  }

  Reader.prototype.fail = function (why) {
    throw new Error("'" + shortened(this.path) + "' is no path of properties: " + why);
  };

  Reader.prototype.failHere = function (missing) {
    var before = this.path.substring(0, this.path.length - this.rest.length);
    this.fail(missing ? missing + " is missing after '" + shortened(before) + "'" :
      "'" + shortened(this.rest) + "' follows '" + shortened(before) + "'");
  };

  Reader.prototype.skipBlanks = function () {
    this.rest = this.rest.replace(/^\s+/, "");
  };

  // The text that the pattern finds at this place; null if there is none.
  Reader.prototype.take = function (pattern) {
    var match = pattern.exec(this.rest);
    if (!match) {
      return null;
    }
    this.rest = this.rest.substring(match[0].length);
    this.skipBlanks();
    return match[0];
  };

  Reader.prototype.accept = function (character) {
    if (this.rest.charAt(0) !== character) {
      return false;
    }
    this.rest = this.rest.substring(1);
    this.skipBlanks();
    return true;
  };

  Reader.prototype.name = function () {
    return this.take(NAME) || this.failHere("the name of a property");
  };

  Reader.prototype.unescaped = function (quoted) {
    var reader = this;
    var escape = /\\(u[\da-fA-F]{4}|x[\da-fA-F]{2}|\r\n|[^])/g;
    return quoted.substring(1, quoted.length - 1).replace(escape, function (all, c) {
      if (c.length > 2) {
        return String.fromCharCode(parseInt(c.substring(1), 16));
      }
      if (/^[ux1-9]$/.test(c)) {
        reader.fail("'" + all + "' stands for no character");
      }
      return __corvex__natives.has(ESCAPES, c) ? ESCAPES[c] : c;
    });
  };

  // A record of value; null if no literal stands here. words: whether true, false and null are literals.
  Reader.prototype.literal = function (words) {
    var text = this.take(TEXT);
    if (text !== null) {
      return { value: this.unescaped(text) };
    }
    text = this.take(NUMBER);
    if (text !== null) {
      return { value: text.charAt(0) === "-" ? -Number(text.substring(1)) : Number(text) };
    }
    text = words && NAME.exec(this.rest);
    if (text && __corvex__natives.has(WORDS, text[0])) {
      return { value: WORDS[this.take(NAME)] };
    }
    return null;
  };

  Reader.prototype.args = function () {
    var args = [];
    while (args.length || !this.accept(")")) {
      var literal = this.literal(true) || this.failHere("a text, a number, true, false or null");
      args.push(literal.value);
      if (this.accept(")")) {
        break;
      }
      if (!this.accept(",")) {
        this.failHere("a comma or the closing bracket");
      }
    }
    return args;
  };

  Reader.prototype.index = function () {
    var literal = this.literal(false) || this.failHere("a text or a number");
    if (!this.accept("]")) {
      this.failHere("the closing bracket");
    }
    return literal.value;
  };

  // A step is a record of name, or of args where it is a call.
  Reader.prototype.step = function () {
    if (this.accept(".")) {
      return { name: this.name() };
    }
    if (this.accept("[")) {
      return { name: this.index() };
    }
    return this.accept("(") ? { args: this.args() } : this.failHere();
  };

  function read(path) {
    var reader = new Reader(path);
    if (path.length > MOST_CHARACTERS) {
      reader.fail("it has " + path.length + " characters, and " + MOST_CHARACTERS + " are read at most");
    }
    reader.skipBlanks();
    var steps = [{ name: reader.name() }];
    while (reader.rest !== "") {
      if (steps.length === MOST_STEPS) {
        reader.fail("it has more than " + MOST_STEPS + " steps");
      }
      steps.push(reader.step());
    }
    return steps;
  }

  // A search asks for the same path at each element.
  var lastPath = "";
  var lastSteps = [];
  return function (path) {
    if (path !== lastPath) {
      lastSteps = read(path);
      lastPath = path;
    }
    return lastSteps;
  };
})();

// Why a path must not call this; empty where it may. A text that a page put into a name would run as code.
var __corvex__whyNotCalled = (function () {
  var takesCode = new RegExp("^(?:(?:append|create|exec|insert|parse|replace|set|write)[A-Z].*|after|append|assign|" +
    "before|eval|open|prepend|write|writeln)$");

  function isOfWindow(o) {
    try {
      return o.window === o || __corvex__natives.classOf(o) === "[object Location]";
    } catch (e) {
      return true;
    }
  }

  return function (self, name, args) {
    if (typeof self === "function" || isOfWindow(self)) {
      return "belongs to a " + (typeof self === "function" ? "function" : "window");
    }
    for (var i = 0; typeof self === "object" && i < args.length; ++i) {
      if (typeof args[i] === "string" && takesCode.test(name)) {
        return "is given a text, which it could run as code";
      }
    }
    return "";
  };
})();

function __corvex__valueAtPath(o, path) {
  var steps = __corvex__stepsOfPath(path);
  var value = o;
  var self, name;

  function fail(what) {
    throw new Error("'" + name + "' in the path '" + path + "' " + what);
  }

  for (var i = 0; i < steps.length; ++i) {
    if (i > 0 && (value === undefined || value === null)) {
      fail("is " + value);
    }
    if (!steps[i].args) {
      self = value;
      name = steps[i].name;
      value = value[name];
      continue;
    }
    var why = typeof value === "function" ? __corvex__whyNotCalled(self, name, steps[i].args) : "is no function";
    if (why) {
      fail(why);
    }
    value = __corvex__natives.apply(value, self, steps[i].args);
    self = undefined;
  }
  return value;
}
