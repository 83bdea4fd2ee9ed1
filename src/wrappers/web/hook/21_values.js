// Gives: top.__corvex__jsobjects, __corvex__retrieveJsObjectInfo(code), __corvex__jsObjectInfoOf(read).
// Needs: nothing.

top.__corvex__jsobjects = [];
top.__corvex__jsobjects_cnt = 0;

function __corvex__escape__dquote(str) {
  return str === undefined || str === null ? "" : String(str).replace(/"/g, "\\\"");
}

// The kind of a value: DOM nodes are objects like others here. Undefined for a kind that cannot be held.
function __corvex__jsTypeName(obj) {
  if (obj === null) {
    return "null";
  }
  var plain = { string: "String", number: "Number", boolean: "Boolean" }[typeof obj];
  if (plain) {
    return plain;
  }
  if (obj.nodeType) {
    return "Object";
  }
  var text = Object.prototype.toString.call(obj);
  return text === "[object Object]" || text === "[object Array]" || text === "[object RegExp]" ? "Object" : undefined;
}

// What the driver is told of the value that `read` gives: {"type", "object"} as JSON.
function __corvex__jsObjectInfoOf(read) {
  var json = window.top.__corvex.JSON || JSON;
  try {
    var value = read();
    if (value === undefined) {
      return json.stringify({ type: "void", object: "null" });
    }
    var name = __corvex__jsTypeName(value);
    switch (name) {
      case "Object":
        var index = top.__corvex__jsobjects_cnt++;
        top.__corvex__jsobjects[index] = value;
        return json.stringify({ type: "object", object: String(index) });
      case "String":
        return json.stringify({ type: "string", object: value });
      case "Number":
        // JSON does not know all numbers.
        return json.stringify({ type: "number", object: isFinite(value) ? value : String(value) });
      case "Boolean":
        return json.stringify({ type: "boolean", object: value });
      case "null":
        return json.stringify({ type: "null", object: "null" });
      default:
        throw new Error("Unsupported Javascript type: " + name + " for object: " + value);
    }
  } catch (e) {
    var thrown = Object(e);
    var exception = {};
    var fields = { message: "message", name: "name", file: "fileName", line: "lineNumber", stack: "stack" };
    for (var field in fields) {
      try {
        exception[field] = __corvex__escape__dquote(thrown[fields[field]]);
      } catch (unreadable) {
        exception[field] = "";
      }
    }
    if (thrown !== e) {
      exception.message = __corvex__escape__dquote(e);
    }
    return json.stringify({ type: "exception", object: exception });
  }
}

function __corvex__retrieveJsObjectInfo(code) {
  try {
    window.eval("0"); // eslint-disable-line no-eval -- whether the page allows it
  } catch (e) {
    return "[no eval]";
  }
  return __corvex__jsObjectInfoOf(function () {
    return window.eval(code); // eslint-disable-line no-eval -- it is there to run code of scripts
  });
}
