// Gives: a name's text as a map of values, the matchers for it, the number of matches to skip.
// Needs: runtime/state, names/parse, matching, api/objectname.

var __corvex__searchOnlyProperties = { tagName: 1, occurrence: 1, occurance: 1, form: 1, context: 1 };

function __corvex__compiled(regex, propName) {
  try {
    return new RegExp(regex);
  } catch (e) {
    throw new Error("the regular expression of '" + propName + "' does not compile: " + e.message);
  }
}

function __corvex__propValueOf(value, propName) {
  if (value instanceof Corvex.RegExPropertyValue) {
    return new __corvex__PropValue(__corvex__compiled(value.regex, propName), PropertyValue_RegExp);
  }
  if (value instanceof Corvex.WildCardPropertyValue) {
    return new __corvex__PropValue(
      __corvex__compiled(__corvex__wildcardToRegExp(value.wildcard), propName), PropertyValue_Wildcard);
  }
  if (value instanceof Corvex.ObjectName) {
    return new __corvex__PropValue(value.toString(), PropertyValue_StrictMatch);
  }
  return new __corvex__PropValue(value, PropertyValue_StrictMatch);
}

// Property name to __corvex__PropValue in the order of the name; undefined if nm is no name.
function __corvex__propertyMap(nm) {
  var objectName = window.top.__corvex.parseMultiPropertyName(nm);
  if (!objectName) {
    return undefined;
  }
  var map = {};
  var names = objectName.getPropertyNames();
  for (var i = 0; i < names.length; ++i) {
    map[names[i]] = __corvex__propValueOf(objectName.getPropertyValue(names[i]), names[i]);
  }
  return map;
}

// The entry of a map; undefined also for names that every object has, such as "constructor".
function __corvex__mapEntry(map, name) {
  return map[name] instanceof __corvex__PropValue ? map[name] : undefined;
}

function __corvex__exactText(entry) {
  return entry && entry.modifiers === PropertyValue_StrictMatch ? entry.value : "";
}

// Empty if the name does not say which of its hits is meant.
function __corvex__occurrenceOf(map) {
  return __corvex__exactText(
    __corvex__mapEntry(map, "occurrence") || __corvex__mapEntry(map, "occurance"));
}

function __corvex__matchesToSkip(map) {
  var text = __corvex__occurrenceOf(map);
  return text === "" ? 0 : Number(text) - 1;
}

function __corvex__matcherFor(propName, propValue, nm) {
  var factories = window.top.__corvex__propertyMatcherFactories;
  for (var i = 0; i < factories.length; ++i) {
    var matcher = factories[i](propName, propValue, nm);
    if (matcher) {
      return matcher;
    }
  }
  return undefined;
}

function __corvex__matchersFor(map, nm) {
  var matchers = [];
  for (var name in map) {
    if (map[name] instanceof __corvex__PropValue && __corvex__searchOnlyProperties[name] !== 1) {
      var matcher = __corvex__matcherFor(name, map[name], nm);
      if (matcher) {
        matchers.push(matcher);
      }
    }
  }
  return matchers;
}
