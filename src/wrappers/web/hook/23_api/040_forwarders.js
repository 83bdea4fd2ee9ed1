// Gives: the functions of Corvex that forward to functions of the hook script, under names that stay.
// Needs: runtime/text, runtime/eventobject, names/properties, names/unique, names/entry, visibility, matching,
//   input/mouse, input/click, input/selection, api/multioption, api/objectname.

Corvex.hasClassName = function (o, cls) {
  if (!o || !o.className) {
    return false;
  }
  return __corvex__listContains(o.className, cls);
};

Corvex.cleanString = function (s) {
  return __corvex__clean(s);
};

Corvex.nameOf = function (o, noHooks) {
  return noHooks === true ? __corvex__propertyNameOf(o) : __corvex__nameOf(o);
};

Corvex.getElementsByClassName = function (context, className, tagName) {
  return __corvex__getElementsByClassName(context, className, tagName);
};

Corvex.getElementByClassName = function (context, className, tagName) {
  return __corvex__getElementByClassName(context, className, tagName);
};

Corvex.propertiesToName = function (o, props) {
  return __corvex__propsToNameStr(o, props);
};

Corvex.uniquifyName = function (n, o, ignore) {
  return __corvex__uniquifyName(n, o, ignore);
};

Corvex.unifyName = Corvex.uniquifyName;

Corvex.matchProperty = function (prop, value) {
  return __corvex__propMatches(prop, value);
};

Corvex.doubleClick = function (o, ctrl, shift, alt, x, y) {
  return __corvex__dblclick(o, ctrl, shift, alt, x, y);
};

Corvex.mouseClick = function (o, ctrl, shift, alt, x, y, button) {
  return __corvex__click(o, ctrl, shift, alt, x, y, button);
};

Corvex.clickButton = function (o) {
  return __corvex__clickButton(o);
};

Corvex.addUnmatchedProperty = function (objName, propName) {
  return __corvex__addUnmatchedProperty(objName, propName);
};

Corvex.getEventSourceElement = function (ev) {
  return __corvex__srcElement(ev);
};

Corvex.createMultiOptionString = function (option_array) {
  return __corvex__createMultiSelectOptionStr(option_array);
};

Corvex.splitMultiOptionString = function (optionstring) {
  return __corvex__createTextArrayFromMultiOptionString(optionstring);
};

Corvex.getSelectedOptionTexts = function (select_element) {
  return __corvex__getSelectedOptionTexts(select_element);
};

Corvex.addVisibility = function (objNameString, element) {
  return __corvex__addVisibility(objNameString, element);
};

Corvex.isElementVisible = function (element) {
  return __corvex__isVisible(element);
};

Corvex.escapePropertyValue = function (propValue) {
  return __corvex__escapeCharactersInPropertyValue(propValue);
};

Corvex.arrayIndexOf = function (arrayToCheck, element) {
  if (arrayToCheck.indexOf) {
    return arrayToCheck.indexOf(element);
  }
  for (var i = 0; i < arrayToCheck.length; ++i) {
    if (arrayToCheck[i] === element) {
      return i;
    }
  }
  return -1;
};
