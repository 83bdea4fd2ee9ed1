// Gives: while the page is recorded, what the driver needs to tell the moves that a person makes by the browser's own
// buttons and its address bar from those that the page makes: "leaving", where the page moves itself to another document,
// and "arrived" with the place in the history. Needs: the hook script.
(function () {
  var mover = "";
  var isTold = false;

  function send(text, withoutWaiting) {
    __corvex__sendLogEventData(undefined, "event=" + text, withoutWaiting);
  }

  function arrived(how, from) {
    var entry = navigation.currentEntry;
    var steps = from && from.index >= 0 && entry.index >= 0 ? entry.index - from.index : 0;
    send("arrived&how=" + how + "&who=" + mover + "&key=" + escape(entry.key) + "&steps=" + steps +
      "&first=" + (history.length === 1) + "&url=" + escape(location.href), true);
    mover = "";
  }

  function noteMove(e) {
    // A browser fires no event for an address that is typed, and none for its own reload.
    var isByPerson = e.userInitiated &&
      (e.navigationType === "traverse" || (e.hashChange && e.sourceElement === null));
    mover = isByPerson ? "person" : "page";
    if (!isByPerson && !e.destination.sameDocument && e.downloadRequest === null) {
      __corvex__tellFieldAtOnce();
      // Firefox would drop it with the page.
      send("leaving", false);
    }
  }

  function listen() {
    navigation.addEventListener("navigate", __corvex__quiet(noteMove));
    navigation.addEventListener("currententrychange", __corvex__quiet(function (e) {
      if (isTold && e.navigationType) {
        arrived(e.navigationType, e.from);
      }
    }));
    // A page that was kept as it was when it was left.
    window.addEventListener("pageshow", __corvex__quiet(function (e) {
      if (e.persisted) {
        mover = "";
        arrived("traverse", navigation.activation && navigation.activation.from);
      }
    }));
  }

  function tellFirst() {
    isTold = true;
    mover = "";
    var hows = { reload: "reload", back_forward: "traverse" };
    var entries = performance.getEntriesByType("navigation");
    arrived(entries.length && hows[entries[0].type] || "push", navigation.activation && navigation.activation.from);
  }

  // Where the browser does not tell, nothing is recorded of it.
  if (!window.navigation || /^(about|chrome-error):/.test(location.protocol)) {
    return;
  }
  __corvex__quiet(listen)();
  if (navigation.currentEntry) {
    __corvex__quiet(tellFirst)();
  } else {
    // Firefox knows the place in the history only later.
    document.addEventListener("DOMContentLoaded", __corvex__quiet(tellFirst));
  }
}());
