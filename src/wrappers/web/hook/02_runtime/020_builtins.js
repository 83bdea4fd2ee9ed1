// Gives: __corvex__withBuiltIns, __corvex__quiet, __corvex__later: calls safe from what a page made of the language.
// Needs: runtime/natives.

// Code of ours that runs for the driver lives on these. Others it reaches by __corvex__natives or not at all.
var __corvex__withBuiltIns = (function () {
  var apply = __corvex__natives.apply;
  var has = __corvex__natives.has;
  var define = Object.defineProperty;
  var describe = Object.getOwnPropertyDescriptor;
  var create = Object.create;
  var rows = [
    ["", window, "Array Date Error JSON Map Math Number Object RegExp Set String WeakMap escape isNaN parseFloat " +
      "parseInt unescape"],
    ["Array.prototype", Array.prototype, "concat indexOf join lastIndexOf map pop push reverse shift slice some sort " +
      "splice unshift"],
    ["Date.prototype", Date.prototype, "getDate getFullYear getHours getMinutes getMonth getTime"],
    ["Function.prototype", Function.prototype, "apply bind call toString"],
    ["JSON", window.JSON, "parse stringify"],
    ["Map.prototype", window.Map && Map.prototype, "get has set"],
    ["Math", Math, "abs ceil floor max min round"],
    ["Number.prototype", Number.prototype, "toString"],
    ["Object", Object, "create defineProperty getOwnPropertyDescriptor keys"],
    ["Object.prototype", Object.prototype, "hasOwnProperty toString"],
    ["RegExp.prototype", RegExp.prototype, "exec test"],
    ["Set.prototype", window.Set && Set.prototype, "add has"],
    ["String.prototype", String.prototype, "charAt charCodeAt concat indexOf lastIndexOf match replace search slice " +
      "split substring toLowerCase toString toUpperCase trim"]
  ];
  var slots = [];
  var isInside = false;
  // What the page gets back when the driver's text is done.
  var borrowed = [];

  function addSlot(owner, name, text) {
    if (owner && typeof owner[name] !== "undefined") {
      slots.push({ owner: owner, name: name, value: owner[name], text: text });
    }
  }
  for (var i = 0; i < rows.length; ++i) {
    var names = rows[i][2].split(" ");
    for (var k = 0; k < names.length; ++k) {
      addSlot(rows[i][1], names[k], (rows[i][0] ? rows[i][0] + "." : "") + names[k]);
    }
  }
  // What replace, split and match of a text go through.
  if (typeof Symbol === "function" && Symbol.replace) {
    addSlot(RegExp.prototype, Symbol.replace, "RegExp.prototype[Symbol.replace]");
    addSlot(RegExp.prototype, Symbol.split, "RegExp.prototype[Symbol.split]");
    addSlot(RegExp.prototype, Symbol.match, "RegExp.prototype[Symbol.match]");
  }

  function isReplaced(slot) {
    try {
      return slot.owner[slot.name] !== slot.value;
    } catch (e) {
      return true;
    }
  }

  // The fields of a property, without a prototype to which the page may have added what makes no sense here.
  function bare(property) {
    var made = create(null);
    for (var field in property) {
      if (has(property, field)) {
        made[field] = property[field];
      }
    }
    return made;
  }

  function put(owner, name, value) {
    try {
      define(owner, name, bare({ configurable: true, writable: true, value: value }));
    } catch (e) {
      // It may be writable all the same.
      owner[name] = value;
    }
    return owner[name] === value;
  }

  // The page's own, as a list of slot and property, while the browser's stand in their places; null if there are none.
  // kept.text becomes the name of what cannot be put back.
  function putBack(kept) {
    var replaced = null;
    for (var s = 0; s < slots.length; ++s) {
      if (!isReplaced(slots[s])) {
        continue;
      }
      var property = describe(slots[s].owner, slots[s].name);
      var own = { slot: slots[s], property: property && bare(property) };
      if (put(slots[s].owner, slots[s].name, slots[s].value)) {
        replaced = replaced || [];
        replaced[replaced.length] = own;
      } else {
        kept.text = kept.text || slots[s].text;
      }
    }
    return replaced;
  }

  function giveBack(replaced) {
    for (var r = 0; r < replaced.length; ++r) {
      var slot = replaced[r].slot;
      if (!replaced[r].property) {
        delete slot.owner[slot.name];
      } else {
        define(slot.owner, slot.name, replaced[r].property);
      }
    }
  }

  // What a page keeps may do as well: it is to blame only for what fails.
  function callWith(kept, action, self, args) {
    try {
      return apply(action, self, args);
    } catch (e) {
      throw !kept.text ? e : new Error("The page has replaced " + kept.text +
        " and keeps it from being put back, so that its objects cannot be reached. " + e.message);
    }
  }

  function giveAllBack() {
    var replaced = borrowed;
    borrowed = [];
    giveBack(replaced);
  }

  function giveBackSoon(replaced) {
    if (borrowed.length === 0) {
      __corvex__natives.whenDone(giveAllBack);
    }
    for (var b = 0; b < replaced.length; ++b) {
      borrowed[borrowed.length] = replaced[b];
    }
  }

  // isQuestion: the driver calls it, and the text that it evaluates goes on with the answer: the browser's own stay until
  // that text is done.
  return function (action, isQuestion) {
    return function () {
      if (isInside) {
        // What stands there now is the browser's, which engines know to be quick.
        return action.apply(this, arguments);
      }
      var kept = { text: "" };
      var replaced = putBack(kept);
      isInside = true;
      try {
        return callWith(kept, action, this, arguments);
      } finally {
        isInside = false;
        if (replaced) {
          (isQuestion ? giveBackSoon : giveBack)(replaced);
        }
      }
    };
  };
})();

// What the browser calls from outside has no caller of ours to catch an error: the page would see it as its own.
function __corvex__quiet(action) {
  var guarded = __corvex__withBuiltIns(action);
  return function () {
    try {
      return __corvex__natives.apply(guarded, this, arguments);
    } catch (e) {
      return undefined;
    }
  };
}

function __corvex__later(action, delay) {
  __corvex__natives.setTimeout(__corvex__quiet(action), delay);
}
