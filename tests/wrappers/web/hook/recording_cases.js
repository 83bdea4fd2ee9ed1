// Cases of what is recorded of an event, of the overlay, and of recorded touches.

const AT = 'style="position:absolute;left:40px;top:30px;margin:0;border:0"';
const PROPERTY_NAMES = { namegen__scheme: 0, namegen__singleprop: 1, namegen__hierarchical: 2 };

// Records what comes from now on. Objects are named by their ids, so that a line shows what else it holds.
function startRecording({ flags }, values) {
  flags(Object.assign({ recording: true, browsertabid: undefined }, values));
  window.__corvex__objectNameAndType__hooks.push((o) => o && o.id && { name: o.id, type: __corvex__typeOf(o) });
}

const here = () => "&context=" + escape(__corvex__contextOf(window));
// The messages of now without their heads, with "@" for the context of this page.
function takeSent({ sent }) {
  return sent.splice(0).map((line) => line.replace(/^(GET|POST) logeventN& ?/, "").replace(here(), "@"));
}

const press = (target, more) => Object.assign({
  type: "mousedown", target, clientX: 52, clientY: 37, altKey: false, ctrlKey: false, shiftKey: false, button: 0
}, more);
const key = (target, more) => press(target, Object.assign({ type: "keyup", clientX: undefined, clientY: undefined,
  button: undefined, keyCode: 65 }, more));

function lineOf(kit, event) {
  __corvex__handler(event);
  return takeSent(kit).join(" + ");
}

const PRESS = "event=mousedown&x=12&y=7&altKey=false&ctrlKey=false&shiftKey=false&button=0&keyCode=undefined";
const KEY = "event=keyup&x=NaN&y=NaN&altKey=false&ctrlKey=false&shiftKey=false&button=undefined&keyCode=65";
const CHANGE = "event=change&x=NaN&y=NaN&altKey=undefined&ctrlKey=undefined&shiftKey=undefined&button=undefined" +
  "&keyCode=undefined";
const change = (target) => ({ type: "change", target });

// What the page holds, the event on its element t, the line.
[
  ["<button id=t onclick='1'>", press, PRESS + "&clickHandler&object=t&type=submit@"],
  ["<button id=t>", (t) => press(t, { type: "click" }), PRESS.replace("mousedown", "click") + "&object=t&type=submit@"],
  ["<p id=t>", (t) => press(t, { altKey: true, ctrlKey: true, shiftKey: true, button: 2 }),
    PRESS.replace(/false/g, "true").replace("button=0", "button=2") + "&clickHandler&object=t&type=P@"],
  // Marked where it is the link's text that was pressed.
  ["<a id=t href='#'>x</a>", press, PRESS + "&clickHandler&object=t&type=A@"],
  ["<a id=t href='#'><b>x</b></a>", (t) => press(t.firstChild.firstChild), PRESS + "&object=t&type=A@"],
  ["<table><td id=t class=cMenuTD>", press, PRESS + "&clickHandler&object=t&type=TD@"],
  ["<table><td id=isc_t class=cMenuTD onclick='1'>", () => press(document.getElementById("isc_t")),
    PRESS + "&clickHandler&clickHandler&clickHandler&object=isc_t&type=TD@"],
  ["<input id=t value='a & b=\u20ac'>", key, KEY + "&value=a%20%26%20b%3D%u20AC&readonly=false&object=t&type=text@"],
  ["<input id=t readonly>", key, KEY + "&value=&readonly=true&object=t&type=text@"],
  ["<textarea id=t>a\nb</textarea>", key, KEY + "&value=a%0Ab&readonly=false&object=t&type=textarea@"],
  ["<input id=t type=password value=p>", key, KEY + "&value=p&readonly=false&object=t&type=password@"],
  ["<input id=t type=file readonly>", change, CHANGE + "&value=&readonly=false&object=t&type=file@"],
  ["<input id=t type=checkbox>", change, CHANGE + "&object=t&type=checkbox@"],
  ["<select id=t><option>a<option selected>b&amp;c", change, CHANGE + "&value=b%26c&object=t&type=select-one@"],
  ["<select id=t>", change, CHANGE + "&value=&object=t&type=select-one@"],
  ["<select id=t multiple><option selected>a,b<option>c<option selected>d", change,
    CHANGE + "&value=a%2Cb%3Bd%3B&object=t&type=select-multiple@"]
].forEach(([page, event, line]) => {
  test("the line of an event on " + page, { page: page.replace(/id=(isc_)?t/, "$& " + AT) }, (kit) => {
    startRecording(kit);
    const t = kit.el("t") || kit.el("isc_t");
    // The border and the padding of a cell belong to its table.
    const shift = t.tagName === "TD" ? __corvex__elementPos(t) : { x: 40, y: 30 };
    const made = event(t);
    Object.assign(made, made.clientX && { clientX: 12 + shift.x, clientY: 7 + shift.y });
    return lineOf(kit, made);
  }, line);
});

test("the Return that ends a composition is none, and what scripts make up changes no field", { page: "<input id=t>" },
  (kit) => {
    startRecording(kit);
    const t = kit.el("t");
    const types = () => takeSent(kit).map((line) => (/event=(\w+)[^]*keyCode=(\w+)/.exec(line) || ["", line]).slice(1).join(" "));
    const happen = (type, more) => __corvex__takeFieldEvent(Object.assign({ type, target: t, isTrusted: true }, more));
    happen("keydown", { keyCode: 229 });
    __corvex__handler(key(t, { keyCode: 13 }));
    happen("input", { isTrusted: false });
    happen("mousedown");
    const quiet = types();
    happen("input");
    happen("keydown", { keyCode: 13 });
    __corvex__handler(key(t, { keyCode: 13 }));
    return [quiet, types()];
    // The field and the key on their way out of the page.
  }, [[], ["kept POST logeventN&", "kept POST logeventN&", "keyup 13"]]);

test("without a hook an object has its generated name, which is escaped once", { page: "<button id=t name='x y'>b" },
  (kit) => {
    kit.flags(Object.assign({ recording: true, browsertabid: undefined }, PROPERTY_NAMES));
    const [, name, type] = /&object=(.*)&type=(.*)@/.exec(lineOf(kit, press(kit.el("t"))));
    return [name === __corvex__nameOf(kit.el("t")), name.indexOf("%7B"), type];
  }, [true, 0, "submit"]);

test("hooks of extensions: type of the event, item, a text in place of the value; one that fails counts for none", {
  page: "<input id=t " + AT + " class='w'>"
}, (kit) => {
  startRecording(kit, { browsertabid: "t1" });
  const fail = () => { throw new Error("extension"); };
  window.__corvex__itemTextForEvent__hooks.push(7, fail, (o, type) => o.id + " & " + type);
  window.__corvex__knownWidgets.push({ Event: "click", Class: "w" }, { Event: "click", Class: "w" });
  const event = press(kit.el("t"), { type: "click" });
  const lines = [lineOf(kit, event)];
  window.__corvex__eventType__hooks.push((o, e, type) => e.type === "click" && "chooseColor");
  window.__corvex__eventToStr__hooks.push(fail, (type, o, e, evType) => `&own=${type}-${o.id}-${e.type}-${evType}`);
  return lines.concat(lineOf(kit, event)).map((line) => line.replace(/&x.*?undefined/, ""));
}, ["event=click&itemText=t%20%26%20text&value=&readonly=false&clickHandler&object=t&type=text&tabId=t1@",
  "event=chooseColor&itemText=t%20%26%20text&own=text-t-click-chooseColor&object=t&type=text&tabId=t1@"]);

test("nothing is sent unless recording, and a touch platform sends keys alone", { page: "<input id=t><select id=s>" },
  (kit) => {
    const lines = () => [press(kit.el("t")), press(kit.el("t"), { type: "click" }), key(kit.el("t"))].map(
      (event) => Number(lineOf(kit, event) !== "")).join("");
    const seen = [lines()];
    startRecording(kit);
    seen.push(lines());
    kit.flags({ proxy: true, mobiledevice: true });
    seen.push(lines());
    return seen;
  }, ["000", "111", "001"]);

test("a long line goes by POST, as it is", { page: "<input id=t>" }, (kit) => {
  startRecording(kit);
  kit.el("t").value = "x&".repeat(100);
  __corvex__handler(key(kit.el("t")));
  const value = escape(kit.el("t").value);
  return [kit.sent.length, kit.sent[0].indexOf("POST logeventN& event=keyup"), kit.sent[0].indexOf(value) > 0];
}, [1, 0, true]);

test("the parts of Backbase widgets that others record", { page: "<div id=t><div id=s></div></div>" }, (kit) => {
  startRecording(kit);
  window.__corvex__eventObject__hooks.push(() => kit.el("t"));
  // Class of the object, class of the source, events that are recorded.
  return [["b-combobox-button", ""], ["b-combobox-button x", ""], ["x b-select-button", ""], ["x", "b-select-button"],
    ["b-select", ""], ["b-select", "b-option"], ["", "b-select-button"], ["x b-spinner-arrowup", ""],
    ["b-spinner-arrowdown", ""]].map(([own, inner]) => {
    kit.el("t").className = own;
    kit.el("s").className = inner;
    return ["mousedown", "click"].map((type) => Number(lineOf(kit, press(kit.el("s"), { type })) !== "")).join("");
  });
}, ["00", "11", "00", "00", "00", "11", "11", "10", "10"]);

test("applets and canvases with a hook of their own are recorded there", {
  page: "<canvas id=c class='corvex-qt-application-screen'></canvas><canvas id=d></canvas>"
}, (kit) => {
  startRecording(kit);
  const applet = document.createElement("applet");
  applet.id = "a";
  document.body.appendChild(applet);
  return [kit.el("c"), applet, kit.el("d")].map((o) => lineOf(kit, press(o)) !== "");
}, [false, false, true]);

test("the context is that of the document in which the object stands", { page: "<iframe id=f></iframe><select id=s>" },
  (kit) => {
    const w = kit.frame("f", "<select id=t></select><p id=p></p>");
    startRecording(kit);
    const contextOf = (event, d) => {
      __corvex__handler(event, d);
      return takeSent(kit)[0].replace(/^.*(@|&context=)/, "$1").replace(/.*FRAME/, "FRAME");
    };
    const inFrame = (id) => w.document.getElementById(id);
    // A listener of the wrong document speaks for it.
    const byWindow = () => {
      __corvex__logEventByWindow(press(inFrame("t")), window);
      return takeSent(kit)[0].replace(/.*FRAME/, "FRAME");
    };
    return [contextOf(press(inFrame("p")), w.document), contextOf(change(inFrame("t"))), contextOf(change(kit.el("s"))),
      byWindow()];
  }, ["FRAME1", "FRAME1", "@", "FRAME1"]);

test("an older Firefox waits with all but keys until its line is taken", { page: "<input id=t>" }, (kit) => {
  startRecording(kit, { mozilla: true });
  return [67, 68].map((version) => {
    __corvex.browsermajorversion = version;
    return ["mousedown", "click", "change", "keyup", "keydown"].map((type) => {
      __corvex__handler(key(kit.el("t"), { type }));
      return Number(kit.sent.pop().indexOf(" sync") > 0);
    }).join("");
  });
}, ["11100", "00000"]);

test("read-only fields of old Internet Explorer have an attribute that is true", {}, ({ flags }) => {
  const fields = [true, "true", "readonly", "", null, false].map((value) => ({ getAttribute: () => value }));
  const versions = (ie, version) => {
    flags({ ie });
    __corvex.browsermajorversion = version;
    return fields.map((field) => Number(__corvex__isReadOnly(field))).join("");
  };
  return [versions(true, 10), versions(true, 11), versions(false, 10)];
}, ["100000", "111101", "111101"]);

test("the selection of old Internet Explorer changes by the last event on it", { page: "<select id=s><option>a" },
  (kit) => {
    startRecording(kit);
    kit.set(document, "createEventObject", (e) => ({ target: e.target }));
    __corvex__onChangeHandler();
    const none = takeSent(kit).length;
    __corvex__handler(press(kit.el("s")));
    takeSent(kit);
    __corvex__onChangeHandler();
    return [none, takeSent(kit)[0].replace(/&x.*undefined/, ""), window.__corvex__lastSelectEventObject];
  }, [0, "event=mousedown&value=a&clickHandler&object=s&type=select-one@", null]);

test("a tap is one line, of the first of its touches", { page: "<p id=a " + AT + ">a</p>" }, (kit) => {
  startRecording(kit, { browsertabid: 3, cocoatouchwebview: true });
  const touches = [{ target: kit.el("a"), pageX: 52.4, pageY: 37.4 }, { target: kit.el("a"), pageX: 1, pageY: 1 }];
  const tap = (list) => ({ type: "touchend", target: kit.el("a"), altKey: false, ctrlKey: false, shiftKey: false, list,
    targetTouches: list, changedTouches: list });
  // Those channels lead out of the page.
  const lines = [];
  kit.flags({ eventLoggerBridge: { handleXMLHttpPayload: (text) => lines.push(text) } });
  __corvex__touchstart(tap(touches));
  __corvex__touchend(tap(touches.slice(0, 1)));
  const apart = lines.length;
  __corvex__touchend(tap(touches));
  return [apart, lines.map((line) => line.replace(/^logevent\d+&/, "").replace(unescape(here()), "@"))];
}, [0, [PRESS.replace("mousedown", "touchend") + "&clickHandler&object=a&type=P@&tabId=3"]]);

test("a page that replaces what lines are made with gets the same line", { page: "<input id=t value='a b'>" }, (kit) => {
  startRecording(kit);
  const before = lineOf(kit, key(kit.el("t")));
  const context = here();
  kit.set(Math, "round", () => -1);
  kit.set(Element.prototype, "getAttribute", () => "page");
  kit.set(String.prototype, "substring", () => "page");
  kit.set(window, "escape", () => "page");
  kit.el("t").dispatchEvent(Object.assign(new Event("keyup", { bubbles: true }), { altKey: false, ctrlKey: false,
    shiftKey: false, keyCode: 65 }));
  return [before, kit.sent.pop().replace("POST logeventN& ", "").replace(context, "@")];
}, [1, 2].map(() => KEY + "&value=a%20b&readonly=false&object=t&type=text@"));

// The overlay.

const combination = (target, more) => press(target, Object.assign({ type: "click", ctrlKey: true, altKey: true }, more));
const overlay = () => document.getElementById("__corvex__web__info__overlay");

test("a click with Ctrl and Alt opens the overlay and nothing else, until a press", {
  page: "<a id=t href='#x' " + AT + ">a</a>"
}, (kit) => {
  startRecording(kit, { enableObjectInfoOverlay: true });
  let prevented = 0;
  const click = combination(kit.el("t"), { preventDefault: () => ++prevented, offsetX: 5, offsetY: 6, returnValue: true });
  const seen = [__corvex__handler(click), prevented, click.returnValue, overlay().style.left, overlay().style.top,
    overlay().textContent, kit.timers[0].ms];
  kit.timers[0].f();
  const [path, name] = overlay().querySelectorAll("textarea");
  seen.push([path.name, path.rows, path.value === __corvex__qualifiedName(kit.el("t")), name.name, name.cols,
    name.value === unescape(__corvex__nameOf(kit.el("t")))]);
  seen.push(Array.from(overlay().querySelectorAll("*")).map((o) => o.tagName + o.getAttribute("__corvex__isinfo")).join(" "));
  // Nothing on it is recorded, and its button closes it.
  seen.push(__corvex__handler(key(name)), __corvex__handler(press(name)), overlay() !== null);
  seen.push(__corvex__handler(press(overlay().querySelector("button"))), overlay(), takeSent(kit).length);
  __corvex__handler(click);
  __corvex__handler(press(document.body));
  return seen.concat(overlay(), takeSent(kit).length);
}, [false, 1, false, "30px", "21px", "Calculating object name", 500,
  ["__corvex__info__domPath", 3, true, "__corvex__info__name", 25, true],
  "BUTTONtrue BRtrue FORMtrue LABELtrue TEXTAREAtrue BRtrue LABELtrue TEXTAREAtrue", true, true, true, true, null, 0,
  null, 1]);

test("what opens the overlay, by the keys, the button and the platform", { page: "<p id=t " + AT + ">a</p>" }, (kit) => {
  startRecording(kit);
  const opens = (more) => {
    __corvex__handler(combination(kit.el("t"), more));
    const shown = overlay();
    if (shown) {
      shown.remove();
    }
    return shown ? shown.style.left + " " + shown.style.top : "";
  };
  const seen = [opens()];
  kit.flags({ enableObjectInfoOverlay: true });
  seen.push(opens(), opens({ button: 1 }), opens({ button: 2 }), opens({ altKey: false }), opens({ type: "mouseup" }));
  kit.flags({ os: "MacOSX" });
  return seen.concat(opens(), opens({ ctrlKey: false, metaKey: true }));
}, ["", "77px 52px", "77px 52px", "", "", "", "", "77px 52px"]);

test("a name that holds markup is shown as text, also where the page forbids markup", {
  page: "<button id=t name='</textarea><img onerror=1>'>a</button>"
}, (kit) => {
  kit.flags(Object.assign({ enableObjectInfoOverlay: true }, PROPERTY_NAMES));
  const { set } = Object.getOwnPropertyDescriptor(Element.prototype, "innerHTML");
  Object.defineProperty(Element.prototype, "innerHTML", { configurable: true, set() { throw new Error("policy"); } });
  __corvex__handler(combination(kit.el("t")));
  kit.timers[0].f();
  Object.defineProperty(Element.prototype, "innerHTML", { configurable: true, set });
  return [overlay().querySelectorAll("img").length, overlay().querySelectorAll("textarea")[1].value.indexOf("<img") > 0];
}, [0, true]);
