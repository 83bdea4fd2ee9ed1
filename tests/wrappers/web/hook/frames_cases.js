// Cases of the hooking of frames, of what happens when frames and pages load and unload, and of the handlers of events.

const hookFrames = () => __corvex__hookFrames(window);
const fire = (element, type) => element.dispatchEvent(new (element.ownerDocument.defaultView.Event)(type, { bubbles: true }));

test("a frame gets its mark, its handlers and its dialogs, and so do its own frames", { page: '<iframe id="f"></iframe>' },
  ({ el, frame }) => {
    const calls = [];
    const w = frame("f", "<iframe></iframe>");
    window.__corvex__hookInFrame__hooks.push((f) => calls.push(f === el("f")));
    w.onload = native;
    function native() {}
    hookFrames();
    hookFrames();
    const inner = w.frames[0];
    return [[w, inner].map((one) => [one.document.__corvex__hooked__events, one.onload === __corvex__rehookFrames__load,
      one.onunload === __corvex__rehookFrames__unload, one.alert === __corvex__alert2]), w.old_onload === native, calls,
    el("f").onreadystatechange === __corvex__frameChanged];
  }, [[[true, true, true, true], [true, true, true, true]], true, [true, false], true]);

test("keys of a frame reach the document handler, those of the own document only the installer", {
  page: '<input id="o"><iframe id="f"></iframe>'
}, ({ el, frame, flags }) => {
  const seen = [];
  const select = frame("f", '<select id="i"></select>').document.body.firstChild;
  hookFrames();
  Corvex.addEventObjectHook((o) => { seen.push(o.id); return o; });
  fire(el("o"), "keydown");
  fire(select, "keydown");
  fire(el("o"), "keyup");
  flags({ recording: true });
  fire(select, "focus");
  return [seen, select.__corvex__onchange];
}, [["i", "o"], true]);

test("errors of extensions in a listener stay with us", { page: '<input id="o">' }, ({ el, set }) => {
  let errors = 0;
  set(window, "onerror", () => ++errors > 0);
  Corvex.addEventObjectHook(() => { throw new Error("extension"); });
  fire(el("o"), "keyup");
  return errors;
}, 0);

test("only the first load and the first unload chain the page handlers", {
  page: "<iframe></iframe><iframe></iframe>"
}, ({ flags, timers, sent }) => {
  const calls = [];
  flags({ rehookLoadLock: false, rehookUnLoadLock: false });
  [0, 1].forEach((i) => {
    const w = frames[i];
    w.onload = function (e) { calls.push("load" + i + (this === w) + e); };
    w.onunload = () => { calls.push("unload" + i); throw new Error("of the page"); };
  });
  hookFrames();
  [0, 1].forEach((i) => {
    frames[i].onload.call(frames[i], "e");
    frames[i].onunload.call(frames[i], "e");
  });
  return [calls, window.__corvex__framewin === window, timers.length, sent.length, frames[0].old_onload || null];
}, [["load0truee", "unload0"], true, 0, 0, null]);

test("a document that was written anew is hooked again", { page: "<iframe></iframe>" }, () => {
  const doc = frames[0].document;
  let count = 0;
  const press = () => {
    fire(doc.getElementById("p"), "keyup");
    return count;
  };
  hookFrames();
  Corvex.addEventObjectHook(() => { ++count; return document.body; });
  doc.open();
  doc.write('<p id="p"></p>');
  doc.close();
  const before = press();
  hookFrames();
  hookFrames();
  return [before, press()];
}, [0, 1]);

test("a foreign frame gets five retries in all, then a line and no more", {}, ({ set }) => {
  const lines = [];
  const frame = document.createElement("iframe");
  const ask = () => __corvex__isFrameAccessible(frame);
  set(console, "log", (line) => lines.push(line));
  frame.src = "http://h/x.html";
  Object.defineProperty(frame, "contentWindow", { value: { location: "x", get document() { throw new Error("no"); } } });
  const answers = [1, 2, 3, 4, 5, 6, 7].map(ask);
  const odd = ["many", 9].map((count) => {
    frame.retryCount = count;
    return [ask(), frame.retryCount];
  });
  return [answers, odd, lines.length, lines[0].replace(/frame: .* showing/, "frame: NAME showing")];
}, [[null, null, null, null, null, false, false], [[null, 4], [null, 4]], 2,
  "Not hooking up frame: NAME showing http://h/x.html\nError accessing document: Error: no"]);

test("a frame that opens up within its retries is hooked, afterwards not", { page: "<iframe></iframe><iframe></iframe>" },
  ({ set, timers }) => {
    const elements = document.querySelectorAll("iframe");
    const windows = [frames[0], frames[1]];
    const show = (i, w) => Object.defineProperty(elements[i], "contentWindow", { value: w, configurable: true });
    set(console, "log", () => {});
    [0, 1].forEach((i) => {
      show(i, { location: "x" });
      __corvex__hookInFrame(elements[i]);
    });
    const delays = timers.map((timer) => timer.ms);
    timers.shift().f();
    show(0, windows[0]);
    while (timers.length) {
      timers.shift().f();
    }
    show(1, windows[1]);
    __corvex__hookInFrame(elements[1]);
    return [delays, windows.map((w) => !!w.document.__corvex__hooked__events), elements[1].__corvex__unhookable];
  }, [[250, 250], [true, false], true]);

test("a faulty extension is named in the page's log, where it has one", { page: "<iframe></iframe>" }, ({ set }) => {
  const lines = [];
  set(console, "log", (line) => lines.push(line));
  window.__corvex__hookInFrame__hooks.push(() => { throw new Error("mine"); });
  hookFrames();
  console.log = null;
  hookFrames();
  return lines.map((line) => line.replace(/frame .* showing/, "frame NAME showing"));
}, ["Could not hook up frame NAME showing : Error: mine"]);

test("a popup gets its unload function, and one that went abroad stops nothing", { page: "<iframe></iframe>" },
  ({ flags, timers }) => {
    let calls = 0;
    const popup = { document: { body: { onunload: () => ++calls }, querySelectorAll: () => [] }, location: "http://h/p.html" };
    const state = [];
    [popup, { get document() { throw new Error("no"); } }, window].forEach((framewin) => {
      flags({ framewin });
      hookFrames();
      state.push([window.__corvex__popupcnt, window.__corvex__popups.length, window.__corvex__framewin === undefined]);
    });
    popup.onunload();
    popup.onunload();
    return [state, window.__corvex__popups[1] === popup, calls, timers[0].ms, frames[0].document.__corvex__hooked__events];
  }, [[[1, 2, true], [2, 3, true], [2, 3, true]], true, 1, 1000, true]);

// What old Internet Explorer gives.
const oldDocument = (body, attach) => ({ body, attachEvent: attach || (() => {}), querySelectorAll: () => [] });

test("a frame of old Internet Explorer is attached to, on its body, and only if it has a size", {}, ({ flags }) => {
  const own = () => {};
  flags({ ie: true });
  return ["", "0", "0px", "10%"].map((height) => {
    const names = [];
    const body = { onload: own };
    __corvex__hookInFrame({ height, contentWindow: { location: "x", document: oldDocument(body, (n) => names.push(n)) } });
    return [names.join(" "), body.onload === __corvex__rehookFrames__load, body.old_onload === own,
      body.onunload === __corvex__rehookFrames__unload].join();
  });
}, ["true,true,true", "false,false,false", "false,false,false", "true,true,true"].map(
  (installed) => "onkeyup onmousedown onclick ondblclick onkeydown onfocus onmousemove," + installed));

test("a frame without a body waits for one on old Internet Explorer", {}, ({ flags }) => {
  const ticks = [];
  let stopped = 0;
  const doc = oldDocument();
  flags({ ie: true });
  __corvex__natives.setInterval = (f, ms) => { ticks.push(f); return ms; };
  __corvex__natives.clearInterval = (timer) => { stopped = timer; };
  __corvex__hookInFrame({ contentWindow: { location: "x", document: doc } });
  __corvex__addWindowForLazyHook({ document: {} });
  const waiting = [ticks.length];
  const tick = () => {
    ticks[0]();
    waiting.push(window.__corvex__lazyHookWindows.length);
  };
  tick();
  doc.body = {};
  tick();
  window.__corvex__lazyHookWindows.length = 0;
  waiting.push(stopped);
  tick();
  return [waiting, doc.body.onload === __corvex__rehookFrames__load, stopped, window.__corvex__lazyHookTimer];
}, [[1, 2, 1, 0, 0], true, 100, null]);

test("a frame that changes its state gets its dialogs", {}, ({ sent }) => {
  const w = { location: "http://h/x.html" };
  __corvex__frameChanged({ type: "readystatechange", target: { contentWindow: w, readyState: "interactive" } });
  __corvex__frameChanged();
  return [w.alert === __corvex__alert2, sent];
}, [true, []]);

const leave = () => __corvex__topLevelUnloadHandler({ type: "unload", target: document });
const withoutPlace = (lines) => lines.map((line) => line.replace(/location=.*/, "location="));

test("the unload of the page: the wait ends, the page handler runs once, both messages go", {}, ({ flags, set, sent }) => {
  const wait = { startAgain: true, request: { abort: () => sent.push("abort " + wait.startAgain) } };
  flags({ asyncWaitRequest: wait });
  set(window, "old_onunload", function (e) { sent.push("page " + e.type + (this === window)); });
  leave();
  flags({ no_unload: true });
  leave();
  return withoutPlace(sent);
}, ["kept GET eventHandlerN&name=BodyUnloaded&location=", "abort false", "page unloadtrue",
  "kept GET logeventN&logeventN&event=unload&object=[Window]", "kept GET eventHandlerN&name=BodyUnloaded&location=",
  "abort false"]);

test("in proxy mode the page waits for its unload message, where the browser lets it", {}, (kit) => {
  kit.flags({ proxy: true, asyncWaitRequest: {} });
  leave();
  kit.failing = true;
  leave();
  kit.failing = false;
  __corvex__debug("x");
  return withoutPlace(kit.sent);
}, ["kept GET eventHandlerN&name=BodyUnloaded&location=", "GET logeventN&logeventN&event=unload&object=[Window] sync",
  "kept GET eventHandlerN&name=BodyUnloaded&location=", "kept GET logeventN&logeventN&event=unload&object=[Window]",
  "GET debuglog=x"]);

test("a page handler that fails at unload does not cost the message, and the unload handler comes back", {},
  ({ flags, set, sent }) => {
    flags({ asyncWaitRequest: {} });
    set(window, "old_onunload", () => { throw new Error("of the page"); });
    set(window, "onunload", () => {});
    __corvex__installUnload();
    try {
      return __corvex__logEvent({ type: "unload", target: document });
    } catch (e) {
      return [e.message, sent, window.old_onunload === undefined, window.onunload === __corvex__topLevelUnloadHandler];
    }
  }, ["of the page", ["GET logeventN&logeventN&event=unload&object=[Window]"], true, true]);

test("embedded browsers report no unloaded body, and an unreadable window is a line in the page's log", {},
  ({ flags, set, sent }) => {
    const lines = [];
    set(console, "log", (line) => lines.push(line));
    __corvex__triggerUnloadEventHandler({ get location() { throw new Error("gone"); } });
    flags({ javafxwebview: true });
    __corvex__triggerUnloadEventHandler(window);
    return [lines, sent];
  }, [["Ooops: gone"], []]);

test("only a recording puts change listeners, and only on selections and files", {
  page: '<select id="a"></select><select id="b" multiple></select><input id="c" type="file"><input id="d">' +
    '<form id="e"><input name="type"></form>'
}, ({ el, flags }) => {
  const marks = () => "abcde".replace(/./g, (id) => {
    __corvex__install__handler({ type: "focus", target: el(id) });
    return Number(el(id).__corvex__onchange === true);
  });
  const before = marks();
  flags({ recording: true });
  const attached = [];
  ["select-one", "file"].forEach((type) => {
    const srcElement = { type, attachEvent: (name, listener) => attached.push(name + " " + typeof listener) };
    __corvex__install__handler({ type: "focus", srcElement });
    __corvex__install__handler({ type: "focus", srcElement });
  });
  __corvex__install__handler();
  return [before, marks(), attached];
}, ["00000", "11100", ["onchange function", "onchange function"]]);

test("handlers leave the current context as it was and mark what was pressed", {
  page: '<iframe id="f"></iframe><p id="p">x</p>'
}, ({ el, frame, flags }) => {
  const ctxwin = frame("f");
  flags({ ctxwin });
  __corvex__sendMouseEvent(el("p"), "mousedown", false, false, false, 1, 1, 1);
  return [window.__corvex__ctxwin === ctxwin, el("p").__corvex__onclick, __corvex__handler({})];
}, [true, true, true]);

test("the pointer is followed only while picking, and reported once it settled", { page: '<p id="a">a</p><p id="b">b</p>' },
  ({ el, flags, timers, sent }) => {
    let cleared = 0;
    const move = (id) => __corvex__mousemove({ type: "mousemove", target: el(id) });
    __corvex__natives.clearTimeout = () => ++cleared;
    move("a");
    flags({ pickObject: true, selectedObject: null });
    ["a", "a", "b"].forEach(move);
    timers[1].f();
    return [timers.map((timer) => timer.ms), cleared, sent.length,
      /^GET highlighteWidget&info=-?\d+,-?\d+,\d+,\d+,.*&N$/.test(sent[0])];
  }, [[50, 50], 1, 1, true]);

test("a pick swallows press and click, and ends a moment later", { page: '<p><b id="b">x</b></p>' },
  ({ el, flags, timers, sent }) => {
    let stopped = 0;
    const stop = () => ++stopped;
    const e = { type: "mousedown", target: el("b").firstChild, stopPropagation: stop, preventDefault: stop };
    flags({ pickObject: true, browsertabid: "t1" });
    const answer = [__corvex__logEvent(e, window), stopped, e.cancelBubble, sent.length,
      /event=pickedObject&object=.*&tabId=t1$/.test(sent[0]), timers[0].ms];
    timers[0].f();
    return answer.concat(window.__corvex__pickObject, __corvex__logEvent({ type: "mouseup", target: document.body }, window));
  }, [false, 2, true, 1, true, 50, false, true]);

test("a touch counts where it ends on the object that it began on", { page: '<p id="a">a</p><p id="b">b</p>' },
  ({ el, flags, sent }) => {
    const [a, b] = [{ target: el("a") }, { target: el("b") }];
    const touch = (touches) => ({ preventDefault() {}, stopPropagation() {}, targetTouches: touches, changedTouches: touches });
    const ends = (touches) => [__corvex__touchend(touch(touches)), sent.length].join();
    flags({ pickObject: true });
    __corvex.lastTouches = null;
    return [ends([a]), __corvex__touchstart(touch([a])), ends([b]), ends([a, a]), ends([a]), __corvex.lastTouches,
      __corvex__touchstart(), __corvex__touchend()];
  }, ["true,0", false, "true,0", "true,0", "false,1", null, true, true]);
