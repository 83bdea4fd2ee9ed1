// Gives scripts a JSON that turns endless values into script errors, where the engine's own would end the program.
// Texts are read and quoted by the engine's.
(function () {
  // As deep as JSON.parse reads.
  var MOST_LEVELS = 1024;
  var native = { parse: JSON.parse, stringify: JSON.stringify };

  function isObject(value) {
    return value !== null && typeof value === "object";
  }

  function unboxed(value) {
    var isBox = value instanceof Number || value instanceof String || value instanceof Boolean;
    return isBox ? value.valueOf() : value;
  }

  // The value of a property as it is to be written.
  function asked(holder, key, replacer) {
    var value = holder[key];
    if (isObject(value) && typeof value.toJSON === "function") {
      value = value.toJSON(key);
    }
    return unboxed(replacer ? replacer.call(holder, key, value) : value);
  }

  function plainText(value) {
    if (typeof value === "number") {
      return isFinite(value) ? String(value) : "null";
    }
    return typeof value === "function" || typeof value === "symbol" ? undefined : native.stringify(value);
  }

  function framed(parts, isArray, indent, level) {
    var open = isArray ? "[" : "{";
    var close = isArray ? "]" : "}";
    if (!indent || parts.length === 0) {
      return open + parts.join(",") + close;
    }
    var begin = "\n" + indent.repeat(level);
    return open + begin + indent + parts.join("," + begin + indent) + begin + close;
  }

  // The text of a property. All that is inside of it is written by this function, so that one call is one level.
  function written(holder, key, form, around) {
    var value = asked(holder, key, form.replacer);
    if (!isObject(value)) {
      return plainText(value);
    }
    if (around.indexOf(value) >= 0) {
      throw new TypeError("JSON.stringify: the value holds itself.");
    }
    if (around.push(value) > MOST_LEVELS) {
      throw new RangeError("JSON.stringify: the value has more than " + MOST_LEVELS + " levels.");
    }
    var isArray = Array.isArray(value);
    var keys = isArray ? null : form.keys || Object.keys(value);
    var parts = [];
    for (var i = 0; i < (isArray ? value : keys).length; ++i) {
      var text = written(value, isArray ? String(i) : keys[i], form, around);
      if (isArray) {
        parts.push(text === undefined ? "null" : text);
      } else if (text !== undefined) {
        parts.push(native.stringify(keys[i]) + (form.indent ? ": " : ":") + text);
      }
    }
    around.pop();
    return framed(parts, isArray, form.indent, around.length);
  }

  function indentOf(space) {
    var plain = unboxed(space);
    return typeof plain === "number" ? " ".repeat(Math.max(0, Math.min(10, plain))) : String(plain || "").slice(0, 10);
  }

  function keysOf(replacer) {
    if (!Array.isArray(replacer)) {
      return null;
    }
    return replacer.map(unboxed).map(String).filter(function (key, i, all) {
      return all.indexOf(key) === i;
    });
  }

  function stringify(value, replacer, space) {
    var form = {
      replacer: typeof replacer === "function" ? replacer : null,
      keys: keysOf(replacer),
      indent: indentOf(space)
    };
    return written({ "": value }, "", form, []);
  }

  function revived(holder, key, reviver) {
    var value = holder[key];
    if (isObject(value)) {
      var keys = Object.keys(value);
      for (var i = 0; i < keys.length; ++i) {
        var result = revived(value, keys[i], reviver);
        if (result === undefined) {
          delete value[keys[i]];
        } else {
          Object.defineProperty(value, keys[i],
            { value: result, writable: true, enumerable: true, configurable: true });
        }
      }
    }
    return reviver.call(holder, key, value);
  }

  function parse(text, reviver) {
    var value = native.parse(text);
    return typeof reviver === "function" ? revived({ "": value }, "", reviver) : value;
  }

  Object.defineProperty(JSON, "stringify", { value: stringify });
  Object.defineProperty(JSON, "parse", { value: parse });
})
