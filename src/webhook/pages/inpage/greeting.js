// Gives: whether the document is hooked; then it knows its tab and its number. Needs: nothing.
(function () {
  if (!(typeof __corvex__isHooked === "function" && __corvex__isHooked())) {
    return false;
  }
  window.__corvex__browsertabid = "%1";
  window.__corvex.documentNumber = Number("%2");
  return true;
}());
