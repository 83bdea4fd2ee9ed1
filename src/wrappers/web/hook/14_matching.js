// Gives: __corvex__matchObject and its parts: does an element have a property's value?; the standard matcher.
// Needs: runtime/natives, runtime/state, runtime/nodes, runtime/text, runtime/transport, names/properties,
//   properties/path, simplifiedtext, visibility, search/kept, api/forwarders.

var PropertyValue_StrictMatch = 0;
var PropertyValue_RegExp = 1;
var PropertyValue_Wildcard = 2;

// What __corvex__clean changes.
var __corvex__uncleanText = /[\u00a0\n\r\t\u2011\u2013]| {2}|^ | $/;

function __corvex__PropValue(value, modifiers) {
  this.value = value;
  this.modifiers = modifiers;
}

window.top.__corvex.StandardPropertyMatcher = function (propName, propValue, objectName) {
  this.propName = propName;
  this.propValue = propValue;
  this.objectName = objectName;
};

window.top.__corvex.StandardPropertyMatcher.prototype.matchObject = function (o) {
  return __corvex__matchObject(o, this.propName, this.propValue, this.objectName);
};

// What has been reported since the last __corvex__findObject: records of name and prop.
window.top.__corvex.sentUnmatchedProperties = [];

// The one way out for reports: property undefined says that the name was found.
function __corvex__reportUnmatchedProperty(objname, property) {
  var text = property === undefined ? "removeUnmatchedProperties" : "addUnmatchedProperty";
  var url = "event=" + text + "&name=" + escape(objname);
  try {
    __corvex__sendLogEventData(undefined, property === undefined ? url : url + "&property=" + escape(property), true);
  } catch (e) {
    // The search goes on without its report.
  }
}

function __corvex__reportsProperties() {
  return !window.__corvex__recording && !window.__corvex__pickObject;
}

// Whether a failure of this property of this name is told to the driver; it is told once. The flags stand last: asking
// a window for what it does not have is dear.
function __corvex__wouldReport(objname, property) {
  var sent = __corvex.sentUnmatchedProperties;
  for (var i = 0; i < sent.length; ++i) {
    if (sent[i].prop === property && sent[i].name === objname) {
      return false;
    }
  }
  return __corvex__reportsProperties();
}

function __corvex__addUnmatchedProperty(objname, property) {
  if (__corvex__wouldReport(objname, property)) {
    __corvex.sentUnmatchedProperties.push({ name: objname, prop: property });
    __corvex__reportUnmatchedProperty(objname, property);
  }
}

function __corvex__removeUnmatchedProperties(objname) {
  if (__corvex__reportsProperties()) {
    __corvex__reportUnmatchedProperty(objname);
  }
}

function __corvex__wildcardToRegExp(s) {
  var self = __corvex__wildcardToRegExp;
  if (!self.special) {
    self.special = /[/.+|()[\]{}\\$]/g;
  }
  return "^" + s.replace(self.special, "\\$&").replace(/\*/g, ".*").replace(/\?/g, ".") + "$";
}

function __corvex__propMatches(prop, s, clean) {
  switch (prop.modifiers) {
    case PropertyValue_StrictMatch:
      // eslint-disable-next-line eqeqeq -- numbers match their digits
      return (clean ? __corvex__clean(prop.value) : prop.value) == s;
    case PropertyValue_RegExp:
    case PropertyValue_Wildcard:
      return prop.value.test(s);
  }
  return undefined;
}

// Whether cleaning an exact value changes it. Asked again only when the value was replaced.
function __corvex__isUncleanValue(value) {
  if (value.testedValue !== value.value) {
    value.testedValue = value.value;
    value.unclean = __corvex__uncleanText.test(value.value);
  }
  return value.unclean;
}

// Whether a value that was read from an element matches: as it is, cleaned, or with both sides cleaned. The search asks
// this for thousands of elements, so nothing is cleaned that is clean.
function __corvex__readValueMatches(value, read) {
  if (__corvex__propMatches(value, read)) {
    return true;
  }
  var isClean = typeof read === "string" && !__corvex__uncleanText.test(read);
  var cleaned = isClean ? read : __corvex__clean(read);
  if (cleaned !== read && __corvex__propMatches(value, cleaned)) {
    return true;
  }
  return value.modifiers === PropertyValue_StrictMatch && __corvex__isUncleanValue(value) &&
    __corvex__propMatches(value, cleaned, true);
}

function __corvex__matchesPlainOrCleaned(value, read) {
  return __corvex__propMatches(value, read) || __corvex__propMatches(value, __corvex__clean(read));
}

function __corvex__wantsTrue(value) {
  if (value.modifiers !== PropertyValue_StrictMatch) {
    throw new Error("it is true or false, which is compared with no pattern");
  }
  return value.value === "true" || value.value.toLowerCase() === "true";
}

var __corvex__propertyTests = {
  id: function (o, value) {
    return __corvex__propMatches(value, __corvex__idHelper(__corvex__nodeReader.id(o)));
  },
  img_alt: function (o, value) {
    return __corvex__matchesPlainOrCleaned(value, o.alt);
  },
  img_src: function (o, value) {
    return __corvex__matchesPlainOrCleaned(value, o.src);
  },
  className: function (o, value) {
    return Corvex.hasClassName(o, value.value);
  },
  visible: function (o, value) {
    return __corvex__wantsTrue(value) === !!__corvex__kept(__corvex__isVisible, o);
  },
  simplifiedInnerText: function (o, value) {
    return __corvex__propMatches(value, __corvex__kept(window.top.__corvex.getSimplifiedInnerText, o));
  }
};

function __corvex__otherPropertyMatches(o, prop, value) {
  var current = o[prop];
  if (typeof current === "boolean") {
    return __corvex__wantsTrue(value) ? current : !current;
  }
  if (__corvex__readValueMatches(value, current)) {
    return true;
  }
  var attribute = __corvex__attributeOf(o, prop);
  if (attribute !== current && __corvex__readValueMatches(value, attribute)) {
    return true;
  }
  return prop.indexOf(".") !== -1 && __corvex__readValueMatches(value, __corvex__valueAtPath(o, prop));
}

// As if there were no factories for the property alone.
function __corvex__plainTestOfProperty(prop, value) {
  if (__corvex__natives.has(__corvex__propertyTests, prop)) {
    var test = __corvex__propertyTests[prop];
    return function (o) {
      return test(o, value);
    };
  }
  return function (o) {
    return __corvex__otherPropertyMatches(o, prop, value);
  };
}

function __corvex__matcherOfProperty(prop, value, name) {
  var factoriesOf = window.__corvex__factoriesOfProperties;
  var factories = __corvex__natives.has(factoriesOf, prop) ? factoriesOf[prop] : [];
  var matcher;
  for (var i = 0; i < factories.length && !matcher; ++i) {
    matcher = factories[i](prop, value, name);
  }
  return matcher;
}

// A function that tells whether an element has this value of this property.
function __corvex__testOfProperty(prop, value, name) {
  var matcher = __corvex__matcherOfProperty(prop, value, name);
  return !matcher ? __corvex__plainTestOfProperty(prop, value) : function (o) {
    return matcher.matchObject(o);
  };
}

function __corvex__matchObject(o, prop, value, name) {
  var hooks = window.__corvex__matchObject__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    var accepted = hooks[i](o, prop, value, name);
    if (accepted) {
      return accepted;
    }
  }
  var matches = __corvex__testOfProperty(prop, value, name)(o);
  if (!matches) {
    __corvex__addUnmatchedProperty(name, prop);
  }
  return matches;
}
