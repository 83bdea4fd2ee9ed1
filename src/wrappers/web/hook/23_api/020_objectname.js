// Gives: Corvex, the public object for extensions, with the classes of a parsed name.
// Needs: runtime/natives, names/properties.

var Corvex = {};

Corvex.RegExPropertyValue = function (regexString) {
  this.regex = regexString;
};

Corvex.WildCardPropertyValue = function (wildCardString) {
  this.wildcard = wildCardString;
};

Corvex.ObjectName = function () {
  this.properties = {};
};

Corvex.ObjectName.prototype.addProperty = function (propName, propValue) {
  this.properties[propName] = propValue;
};

Corvex.ObjectName.prototype.removeProperty = function (propName) {
  delete this.properties[propName];
};

Corvex.ObjectName.prototype.getPropertyValue = function (propName) {
  return this.properties[propName];
};

Corvex.ObjectName.prototype.getPropertyNames = function () {
  if (Object.keys) {
    return Object.keys(this.properties);
  }
  var names = [];
  for (var name in this.properties) {
    if (__corvex__natives.has(this.properties, name)) {
      names.push(name);
    }
  }
  return names;
};

Corvex.ObjectName.prototype.toString = function () {
  function quoted(operator, text) {
    return operator + "'" + __corvex__escapeCharactersInPropertyValue(text) + "'";
  }
  function valueText(value) {
    if (value instanceof Corvex.RegExPropertyValue) {
      return quoted("~=", value.regex);
    }
    if (value instanceof Corvex.WildCardPropertyValue) {
      return quoted("?=", value.wildcard);
    }
    return value instanceof Corvex.ObjectName ? "=" + value.toString() : quoted("=", value);
  }

  var parts = [];
  var names = this.getPropertyNames();
  for (var i = 0; i < names.length; ++i) {
    var value = this.properties[names[i]];
    if (value) {
      parts.push(names[i] + valueText(value));
    }
  }
  return "{" + parts.join(" ") + "}";
};
