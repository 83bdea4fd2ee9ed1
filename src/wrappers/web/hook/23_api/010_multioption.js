// Gives: the texts of selected options, and __corvex__createMultiSelectOptionStr: several options as one text.
// Needs: input/selection.

// Joins texts with the first separator that none of them holds, which also ends the result and so tells the reader
// which one it is.
function __corvex__createMultiSelectOptionStr(options) {
  var last = __corvex__seps.length - 1;
  var used = options.join("");
  var sep = __corvex__seps.charAt(last);
  for (var i = 0; i < last; ++i) {
    if (used.indexOf(__corvex__seps.charAt(i)) === -1) {
      sep = __corvex__seps.charAt(i);
      break;
    }
  }
  return options.join(sep) + sep;
}

function __corvex__getSelectedOptionTexts(select) {
  var texts = [];
  for (var i = 0; i < select.options.length; ++i) {
    if (select.options[i].selected) {
      texts.push(select.options[i].text);
    }
  }
  return texts;
}

// The empty text while nothing is selected.
function __corvex__selectedOptionText(select) {
  var option = select.options[select.selectedIndex];
  return option ? option.text : "";
}
