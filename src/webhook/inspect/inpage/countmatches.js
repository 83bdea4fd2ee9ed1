// Gives: how many elements of the page each of some names fits, as numbers with blanks between. Needs: the hook script.
__corvex__whilePageStays(function () {
  var names = [/*%1*/];
  var counts = "";
  for (var i = 0; i < names.length; ++i) {
    counts += (i ? " " : "") + __corvex__hitsInPage(names[i]).length;
  }
  return counts;
});
