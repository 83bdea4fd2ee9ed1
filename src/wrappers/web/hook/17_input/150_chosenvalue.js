// Gives: __corvex__chooseValue: a date, a colour and so on, as a choice by hand gives it to a field.
// Needs: runtime/builtins, runtime/nodes.

// Sets the value of a field that has no text to type, as a choice by hand does. "" or "unknown" for what it does not take.
var __corvex__chooseValue = (function () {
  var setter = null;
  try {
    setter = Object.getOwnPropertyDescriptor(window.HTMLInputElement.prototype, "value").set;
  } catch (e) {
    // An engine that keeps it on the elements themselves.
  }

  function tell(o, name) {
    var event = __corvex__nodeReader.ownerDocument(o).createEvent("Event");
    event.initEvent(name, true, false);
    o.dispatchEvent(event);
  }

  // Browsers write a value in a form of their own.
  var isTaken = __corvex__withBuiltIns(function (o, value) {
    var isNumber = o.type === "range" && value !== "" && !isNaN(Number(value));
    return o.value === value || (o.type === "color" && o.value === value.toLowerCase()) ||
      (isNumber && Number(o.value) === Number(value)) || (o.value !== "" && value.indexOf(o.value) === 0);
  });

  return function (o, value) {
    o.focus();
    var before = o.value;
    // Frameworks put accessors of their own on the element, which must not see this.
    if (setter) {
      setter.call(o, value);
    } else {
      o.value = value;
    }
    if (!isTaken(o, value)) {
      if (setter) {
        setter.call(o, before);
      }
      return "unknown";
    }
    tell(o, "input");
    tell(o, "change");
    return "";
  };
})();
