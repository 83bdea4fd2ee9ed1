// Gives: __corvex__standardselectExtension, what the options of a select element are and which are selected.
// Needs: __corvex__sendChangeEvent.

window.__corvex__standardselectExtension = (function () {
  function optionIndex(option) {
    return option.index;
  }

  function optionLabel(option) {
    return option.label;
  }

  function optionText(option) {
    return option.text;
  }

  function optionValue(option) {
    return option.value;
  }

  // What the accessor tells of each selected option, in the order of the options.
  function selectedBy(accessor) {
    return function (select) {
      var answers = [];
      for (var i = 0; i < select.options.length; ++i) {
        if (select.options[i].selected) {
          answers.push(accessor(select.options[i]));
        }
      }
      return answers;
    };
  }

  function contains(values, value) {
    for (var i = 0; i < values.length; ++i) {
      if (values[i] == value) { // eslint-disable-line eqeqeq -- values arrive as texts, indexes are numbers
        return true;
      }
    }
    return false;
  }

  // Whether each of the values is what the accessor tells of some option.
  function hasItems(select, values, accessor) {
    var available = [];
    var i;
    for (i = 0; i < select.options.length; ++i) {
      available.push(accessor(select.options[i]));
    }
    for (i = 0; i < values.length; ++i) {
      if (!contains(available, values[i])) {
        return false;
      }
    }
    return true;
  }

  // The page sees one change, however many options were cleared.
  function deselect(select, accessor, items) {
    for (var i = 0; i < select.options.length; ++i) {
      var option = select.options[i];
      if (option.selected && contains(items, accessor(option))) {
        option.selected = false;
      }
    }
    __corvex__sendChangeEvent(select);
  }

  return {
    selectedIndexes: selectedBy(optionIndex),
    selectedLabels: selectedBy(optionLabel),
    selectedTexts: selectedBy(optionText),
    selectedValues: selectedBy(optionValue),
    hasItems: hasItems,
    deselect: deselect,
    optionIndex: optionIndex,
    optionText: optionText,
    optionValue: optionValue
  };
})();
