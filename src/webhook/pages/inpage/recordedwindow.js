// Gives: the message of a page that closes its window itself, and listeners for the document that takes the place of a
// window's first blank one. Needs: the hook script.
(function () {
  var close = __corvex__nativeFunction(window.close);
  var first = document;

  function tell() {
    __corvex__sendLogEventData(0, "event=windowCloses" + __corvex__tabIdLogEventParameter() + "&context=" +
      __corvex__contextOfForUrl(window), false);
  }
  if (close) {
    window.close = function () {
      __corvex__quiet(tell)();
      return __corvex__natives.apply(close, window, []);
    };
  }

  // The window and the script stay, while the listeners go with the document.
  function listenToNext(attempts) {
    if (document !== first) {
      __corvex__hookFramesOfAllWindows();
      // Only the blank one had no way to the driver but the queue.
      if (window.__corvex__port && /^https?:/.test(location.protocol)) {
        window.__corvex.useSessionStorageForEvents = false;
      }
    } else if (attempts > 0) {
      __corvex__later(function () {
        listenToNext(attempts - 1);
      }, 20);
    }
  }
  listenToNext(100);
})();
