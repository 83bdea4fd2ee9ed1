// Gives: an item of the local storage after an equals sign; an empty text where there is none.
// Needs: nothing; the name is put in as a string literal.
(function () {
  var item = window.Storage.prototype.getItem.call(window.localStorage, [/*%1*/][0]);
  return item === null ? "" : "=" + item;
}())
