// Gives: while the page is recorded, the keys that are no text and of which nothing else tells: those that the page acts
// on. Needs: the hook script.
(function () {
  // So long after a key what changes in the page is its doing.
  var effectMs = 400;
  var longestChain = 30;
  // Keys from the last press or text on that changed nothing yet: they may have moved the focus for the next one.
  var chain = "";
  var chainLength = 0;
  // The key that may have an effect yet: its event, the element that had the focus, the watcher of its document.
  var last = null;
  // What the browser does with these is no act in the page, or is recorded as one of its own, such as a reload.
  var browserKeys =
    /^<(((Ctrl|Shift)\+)?F5|F6|F11|F12|(Ctrl|Meta)\+(Shift\+)?[A-Z0-9]|(Alt|Meta)\+(Left|Right|Home))>$/;
  var Observer = __corvex__nativeFunction(window.MutationObserver);
  var names = {
    Tab: "Tab", Escape: "Esc", Enter: "Return", " ": "Space", ArrowUp: "Up", ArrowDown: "Down", ArrowLeft: "Left",
    ArrowRight: "Right", Home: "Home", End: "End", PageUp: "PageUp", PageDown: "PageDown", Delete: "Delete",
    Backspace: "Backspace"
  };

  function isTyping(node) {
    return !!__corvex__kindOfField(node) || __corvex__nodeReader.tagName(node) === "SELECT";
  }

  // Of what other elements do by themselves at a click, clicks tell.
  function isControl(node) {
    for (; node; node = __corvex__nodeReader.parentNode(node)) {
      if (/^(A|BUTTON|INPUT|LABEL|SELECT|TEXTAREA)$/.test(__corvex__nodeReader.tagName(node))) {
        return true;
      }
    }
    return false;
  }

  // As pressKeys takes it; empty for what is text, or no key of its own.
  function nameOf(e, source) {
    var key = String(e.key);
    var isFunctionKey = /^F\d\d?$/.test(key);
    var isCharacter = key.length === 1 && key !== " ";
    var isHeld = e.ctrlKey || e.altKey || e.metaKey;
    var plain = isFunctionKey ? key : isCharacter ? key.toUpperCase() : "";
    var name = __corvex__natives.has(names, key) ? names[key] : plain;
    var isLeftOut = isTyping(source) ? name !== "Tab" && name !== "Esc" && !isFunctionKey :
      isCharacter && (isHeld || e.isComposing) && !/^[a-z0-9]$/i.test(key);
    if (!name || isLeftOut || e.isComposing || (e.getModifierState && e.getModifierState("AltGraph"))) {
      return "";
    }
    if (isCharacter && !isHeld) {
      return key;
    }
    return "<" + (e.ctrlKey ? "Ctrl+" : "") + (e.altKey ? "Alt+" : "") + (e.metaKey ? "Meta+" : "") +
      (e.shiftKey ? "Shift+" : "") + name + ">";
  }

  function focused(doc) {
    var element = doc.activeElement;
    for (var inner = element; inner;) {
      var shadowRoot = __corvex__nodeReader.shadowRoot(inner);
      inner = shadowRoot && shadowRoot.activeElement;
      element = inner || element;
    }
    return element;
  }

  function restart() {
    chain = "";
    chainLength = 0;
  }

  function send() {
    var object = __corvex__eventObject(last.source);
    __corvex__sendLogEventData(last.event, "event=keys&keys=" + escape(chain) + "&object=" +
      __corvex__nameOf(object) + "&context=" + __corvex__contextOfForUrl(__corvex__currentContext(object)) +
      __corvex__tabIdLogEventParameter(), true);
    restart();
  }

  // Called at the next thing that a person does, at the latest.
  function decide(isLeaving) {
    if (!last) {
      return;
    }
    var isStepInField = last.name.indexOf("Tab>") !== -1 && isTyping(last.source) && focused(last.doc) === last.focused;
    var isBrowsers = browserKeys.test(last.name) && !last.event.defaultPrevented;
    if (isStepInField || isBrowsers) {
      chain = last.chainBefore;
    } else if (isLeaving || last.isFollowed || last.watcher.takeRecords().length || last.event.defaultPrevented) {
      send();
    }
    last.watcher.disconnect();
    last = null;
  }

  function forget() {
    if (last) {
      last.watcher.disconnect();
    }
    last = null;
    restart();
  }

  function watch(key) {
    key.watcher = new Observer(__corvex__quiet(function () {
      key.isFollowed = true;
      key.watcher.disconnect();
    }));
    key.watcher.observe(key.doc, { attributes: true, characterData: true, childList: true, subtree: true });
    __corvex__later(function () {
      if (last === key) {
        decide(false);
      }
    }, effectMs);
  }

  function noteKey(e) {
    var source = __corvex__srcElement(e);
    decide(false);
    if (!e.isTrusted || window.__corvex__pickObject || __corvex__isInfoDiv(source)) {
      return;
    }
    var name = nameOf(e, source);
    if (!name) {
      return;
    }
    if (++chainLength > longestChain) {
      restart();
    }
    var doc = __corvex__nodeReader.ownerDocument(source) || document;
    last = { event: e, source: source, doc: doc, name: name, chainBefore: chain, focused: focused(doc) };
    chain += name;
    watch(last);
  }

  function notePress() {
    decide(false);
    restart();
  }

  // Clicks that keys make have no place in a row of clicks.
  function noteClick(e) {
    if (e.isTrusted && e.detail === 0 && isControl(__corvex__srcElement(e))) {
      forget();
    }
  }

  // Fields of text tell of their change once more when the focus leaves them.
  function noteContent(e) {
    var isLeft = e.type === "change" && __corvex__kindOfField(__corvex__srcElement(e)) === "text";
    if (e.isTrusted && !isLeft) {
      forget();
    }
  }

  function noteLeaving() {
    __corvex__tellBeforeLeaving(function () {
      decide(true);
    });
  }

  var rows = [["keydown", noteKey], ["mousedown", notePress], ["click", noteClick], ["input", noteContent],
    ["change", noteContent], ["pagehide", noteLeaving]];
  for (var i = 0; Observer && i < rows.length; ++i) {
    window.addEventListener(rows[i][0], __corvex__quiet(rows[i][1]), true);
  }
}());
