(function () {
  // Such pages answer questions while their scripts stand still, but their timers stand still, too.
  var corvex = window.__corvex;
  if (!corvex) {
    return false;
  }
  if (corvex.scriptsWait === undefined) {
    corvex.scriptsWait = true;
    __corvex__later(function () {
      corvex.scriptsWait = false;
    }, 0);
  }
  var isWaiting = corvex.scriptsWait;
  if (!isWaiting) {
    delete corvex.scriptsWait;
  }
  return isWaiting;
})();
