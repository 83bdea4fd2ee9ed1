// Gives: window.top.__corvex.parseMultiPropertyName, which reads the text of a multi-property name.
// Needs: window.top.__corvex; when called, Corvex.ObjectName and its value classes.

window.top.__corvex.parseMultiPropertyName = function (nameStr) {
  var propName, propValue, depth, inner;
  var modifier = "=";
  var state = "Start";
  var objectName = new Corvex.ObjectName();
  var len = nameStr.length;

  function wrappedValue() {
    if (modifier === "~") {
      return new Corvex.RegExPropertyValue(propValue);
    }
    if (modifier === "?") {
      return new Corvex.WildCardPropertyValue(propValue);
    }
    return propValue;
  }

  for (var i = 0; i < len; ++i) {
    var ch = nameStr.charAt(i);
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
          if (nameStr.charAt(i) !== "=") {
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
        } else if (ch === "{") {
          depth = 1;
          propValue = ch;
          state = "PropValueObject";
        } else {
          return undefined;
        }
        break;
      case "PropValueString":
        if (ch === "'") {
          objectName.addProperty(propName, wrappedValue());
          state = "Separator";
        } else if (ch === "\\") {
          ++i;
          propValue += nameStr.charAt(i);
        } else {
          propValue += ch;
        }
        break;
      case "PropValueObject":
        propValue += ch;
        if (ch === "{" && nameStr.charAt(i - 1) !== "\\") {
          ++depth;
        } else if (ch === "}" && nameStr.charAt(i - 1) !== "\\") {
          --depth;
          if (depth === 0) {
            inner = window.top.__corvex.parseMultiPropertyName(propValue);
            if (inner) {
              objectName.addProperty(propName, inner);
            }
            state = "Separator";
          }
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
};
