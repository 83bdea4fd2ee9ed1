// Gives: single and multiple selection of options.
// Needs: runtime/builtins, runtime/state, input/mouseevents, input/keys.

function __corvex__selectOptionText(opt) {
  return opt.text;
}

function __corvex__selectOptionValue(opt) {
  return opt.value;
}

// Deselects up to the match, which it selects: its index, or -1.
function __corvex__markOption(e, value, getValueFromOptionFunc) {
  for (var i = 0; i < e.options.length; ++i) {
    var option = e.options[i];
    option.selected = false;
    if (getValueFromOptionFunc(option) == value) { // eslint-disable-line eqeqeq -- indexes arrive as text
      option.selected = true;
      return i;
    }
  }
  return -1;
}

// Without a match the options are deselected and no event is sent.
function __corvex__selectOption(e, value, getValueFromOptionFunc) {
  var hooks = __corvex__selectSingleOption__hooks;
  for (var i = 0; i < hooks.length; ++i) {
    if (hooks[i](e, value)) {
      return;
    }
  }
  var index = __corvex__markOption(e, value, getValueFromOptionFunc);
  if (index === -1) {
    return;
  }
  e.selectedIndex = index;
  __corvex__sendChangeEvent(e);
  try {
    // A list box, not a drop-down.
    if (e.size) {
      __corvex__typeText(e, " ");
    }
  } catch (ex) {
    // The selection stands.
  }
}

function __corvex__selectSingleOption(e, text) {
  __corvex__selectOption(e, text, __corvex__selectOptionText);
}

function __corvex__selectOptions(e, values, getValueFromOptionFunc) {
  for (var i = 0; i < e.options.length; ++i) {
    var option = e.options[i];
    option.selected = false;
    for (var j = 0; j < values.length && !option.selected; ++j) {
      option.selected = getValueFromOptionFunc(option) == values[j]; // eslint-disable-line eqeqeq -- as above
    }
  }
  __corvex__sendChangeEvent(e);
}

var __corvex__seps = ",;|-+*!/,";

// The last character tells the separator, where it is one.
var __corvex__createTextArrayFromMultiOptionString = __corvex__withBuiltIns(function (text) {
  var separator = text.charAt(text.length - 1);
  if (separator !== "" && __corvex__seps.indexOf(separator) !== -1) {
    return text.substring(0, text.length - 1).split(separator);
  }
  return text.split(",");
});

function __corvex__selectMultiOption(e, text) {
  var values = __corvex__createTextArrayFromMultiOptionString(text);
  __corvex__selectOptions(e, values, __corvex__selectOptionText);
}
