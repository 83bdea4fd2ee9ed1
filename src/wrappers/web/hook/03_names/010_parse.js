// Gives: window.top.__corvex.parseMultiPropertyName, which reads the text of a multi-property name.
// Needs: api/objectname.

window.top.__corvex.parseMultiPropertyName = (function () {
  var MOST_CHARACTERS = 1000000;
  var MOST_LEVELS = 100;

  // For each brace that opens, the place of the one that closes it. A nested name is read up to there, so that all braces
  // count but those after a backslash, in quotes too.
  function bracePairs(text) {
    var pairs = [];
    var open = [];
    for (var i = text.indexOf("{"); i < text.length; ++i) {
      var ch = text.charAt(i);
      if ((ch === "{" || ch === "}") && text.charAt(i - 1) !== "\\") {
        if (ch === "{") {
          open.push(i);
        } else if (open.length) {
          pairs[open.pop()] = i;
        }
      }
    }
    return pairs;
  }

  function wrappedValue(modifier, value) {
    if (modifier === "~") {
      return new Corvex.RegExPropertyValue(value);
    }
    return modifier === "?" ? new Corvex.WildCardPropertyValue(value) : value;
  }

  // Reads the name from begin to end; pairs are those of the whole text.
  function read(text, begin, end, pairs, level) {
    var propName, propValue, modifier, inner;
    var state = "Start";
    var objectName = new Corvex.ObjectName();
    if (level > MOST_LEVELS) {
      throw new Error("it holds names in more than " + MOST_LEVELS + " levels");
    }

    for (var i = begin; i < end; ++i) {
      var ch = text.charAt(i);
      switch (state) {
        case "Start":
          if (ch !== "{") {
            return undefined;
          }
          propName = "";
          state = "PropName";
          break;
        case "PropName":
          if (ch === "?" || ch === "~") {
            ++i;
            if (i >= end || text.charAt(i) !== "=") {
              return undefined;
            }
            modifier = ch;
            state = "PropValue";
          } else if (ch === "=") {
            modifier = ch;
            state = "PropValue";
          } else if (ch === " " || ch === "\t") {
            return undefined;
          } else {
            propName += ch;
          }
          break;
        case "PropValue":
          if (ch === "'") {
            propValue = "";
            state = "PropValueString";
          } else if (ch !== "{") {
            return undefined;
          } else if (pairs[i] === undefined) {
            return objectName;
          } else {
            inner = read(text, i, pairs[i] + 1, pairs, level + 1);
            if (inner) {
              objectName.addProperty(propName, inner);
            }
            i = pairs[i];
            state = "Separator";
          }
          break;
        case "PropValueString":
          if (ch === "'") {
            objectName.addProperty(propName, wrappedValue(modifier, propValue));
            state = "Separator";
          } else if (ch === "\\") {
            ++i;
            propValue += i < end ? text.charAt(i) : "";
          } else {
            propValue += ch;
          }
          break;
        case "Separator":
          if (ch !== " " && ch !== "\t" && ch !== "}") {
            propName = ch;
            state = "PropName";
          }
          break;
      }
    }
    return objectName;
  }

  return function (nameStr) {
    if (nameStr.length > MOST_CHARACTERS) {
      throw new Error("it has " + nameStr.length + " characters, and " + MOST_CHARACTERS + " are read at most");
    }
    // Most names nest nothing.
    var nests = nameStr.indexOf("{", 1) !== -1;
    return read(nameStr, 0, nameStr.length, nests ? bracePairs(nameStr) : [], 1);
  };
})();
