// Cases of the event models of browsers other than the tests run in, and of native clicks. Each page gets what the model
// is known by.

const PAGE = '<form id="t" style="position:absolute;left:40px;top:30px;margin:0"><input id="i"></form>';

// What happens at the element from now on: events with the buttons that they were given, of which browsers show not all,
// and native calls; take() gives it.
function watch({ el, set }) {
  const deeds = [];
  const element = el("t");
  const { initMouseEvent } = MouseEvent.prototype;
  set(MouseEvent.prototype, "initMouseEvent", function (...args) {
    this.given = args[13];
    return initMouseEvent.apply(this, args);
  });
  ["mouseover", "mousedown", "mouseup", "click", "dblclick", "contextmenu", "mouseout"].forEach((type) => {
    element.addEventListener(type, (e) => deeds.push(type + e.given));
  });
  ["click", "submit", "focus"].forEach((name) => { element[name] = () => deeds.push(name + "()"); });
  return () => deeds.splice(0).join();
}

// The element's document makes events, and the element fires them. Gives what was fired, each [name, event].
function oldModel({ el, set }) {
  const fired = [];
  set(document, "createEventObject", () => ({ old: true }));
  el("t").fireEvent = (name, event) => fired.push([name, event]);
  return fired;
}

const BY_HOOK = ({ flags }) => {
  flags({ ie: true });
  top.__corvex__useIE8AndOlderEventDispatchingOverride__hooks.push(() => { throw new Error("page"); }, () => 1);
};
const BY_DOCUMENT = ({ set }) => set(document, "createEvent", undefined);
const BY_ERROR = ({ set }) => {
  set(document, "createEvent", undefined);
  Object.defineProperty(document, "createEvent", { configurable: true, get() { throw new Error("denied"); } });
};

test("when the old event model is used", { page: PAGE }, (kit) => {
  const hooks = top.__corvex__useIE8AndOlderEventDispatchingOverride__hooks;
  const asked = [];
  const uses = () => __corvex__useIE8AndOlderEventDispatching(kit.el("t"));
  const seen = [uses()];
  hooks.push((o) => { asked.push(o === kit.el("t")); return false; }, () => "yes");
  // The hooks count in Internet Explorer alone.
  seen.push(uses(), asked.length);
  kit.flags({ ie: true });
  seen.push(uses(), asked.splice(0));
  hooks.pop();
  return seen.concat(uses());
}, [false, false, 0, true, [true], false]);

[BY_HOOK, BY_DOCUMENT, BY_ERROR].forEach((setUp, i) => {
  test("mouse events of the old model, found way " + i, { page: PAGE }, (kit) => {
    const fired = oldModel(kit);
    setUp(kit);
    kit.flags({ ie: true });
    const o = kit.el("t");
    const from = (target) => (target === o ? "it" : target === document.body ? "body" : target);
    __corvex__sendMouseEvent(o, "mousedown", true, false, true, 3, 4, 4);
    __corvex__sendMouseEvent(o, "mouseover", false, true, false, 0, 0, 2);
    __corvex__sendMouseOut(o);
    return fired.map(([name, e]) => [name, e.clientX - o.offsetLeft, e.clientY - o.offsetTop, e.button, e.ctrlKey,
      e.shiftKey, e.altKey, from(e.fromElement), from(e.toElement)]);
  }, [["onmousedown", 3, 4, 4, true, null, true, null, null], ["onmouseover", 5, 5, 2, null, true, null, "body", "it"],
    ["onmouseout", 5, 5, 1, null, null, null, "it", "body"]]);
});

test("keys, changes and context menus of the old model", { page: PAGE }, (kit) => {
  const fired = oldModel(kit);
  BY_DOCUMENT(kit);
  const o = kit.el("t");
  __corvex__openContextMenu(o, true, true, true, 3, 4);
  __corvex__typeText(o, "a");
  __corvex__sendChangeEvent(o);
  const seen = fired.map(([name, e]) => [name, e.keyCode, e.type, e.clientX]);
  // Errors of keys reach the caller, those of changes do not.
  o.fireEvent = () => { throw new Error("fired"); };
  __corvex__sendChangeEvent(o);
  try {
    __corvex__sendKeyEvent(o, "keydown", "a");
  } catch (e) {
    seen.push(e.message);
  }
  return seen;
}, [["oncontextmenu", null, null, null], ["onkeydown", 97, null, null], ["onkeypress", 97, null, null],
  ["onkeyup", 97, null, null], ["onchange", null, "change", null], "fired"]);

test("buttons of the models", { page: PAGE }, (kit) => [{}, { ie: true, ie__version: 8 }, { ie: true, ie__version: 9 },
  { ie: true, ie__version: undefined }].map((flags) => {
  kit.flags(flags);
  return [1, 2, 4, 0].map((button) => {
    let seen;
    kit.el("t").onmousedown = (e) => { seen = e.button; };
    __corvex__sendMouseEvent(kit.el("t"), "mousedown", false, false, false, 1, 1, button);
    return seen;
  }).join("");
}), ["0210", "1241", "0210", "1241"]);

test("a button that is given as text", { page: PAGE }, (kit) => {
  const take = watch(kit);
  return ["2", "4"].map((button) => {
    __corvex__click(kit.el("t"), false, false, false, 1, 1, button);
    return take();
  });
}, ["focus(),mouseover2,mousedown2,contextmenu2,mouseup2,mouseout0",
  "focus(),mouseover1,mousedown1,click1,mouseup1,mouseout0"]);

// What each browser does for a click, a right click, a button, a link and a double click.
const ACTIONS = [
  (o) => __corvex__click(o, false, false, false, 1, 1, 1),
  (o) => __corvex__click(o, false, false, false, 1, 1, 2),
  (o) => __corvex__clickButton(o, false, false, false, 1, 1, 1),
  (o) => __corvex__clickLink(o),
  (o) => __corvex__dblclick(o, false, false, false, 1, 1)
];
const RIGHT = "focus(),mouseover2,mousedown2,contextmenu2,mouseup2,mouseout0";
const around = (click) => "mouseover0,mousedown0," + click + ",mouseup0,mouseout0";
const twice = (click) => "mouseover0,mousedown0," + click + ",mouseup0,mousedown0," + click + ",dblclick0,mouseup0,mouseout0";
const plain = (button) => ["focus()," + around("click0"), RIGHT, "focus(),mousedown0," + button + "mouseup0,mouseout0",
  around("click0"), twice("click0")];
const IE = { ie: true, ie__version: 11 };

[
  ["others", {}, [], plain("click0,")],
  ["Safari", { safari: true }, [], plain("submit(),")],
  ["Safari without submit", { safari: true }, ["submit"], plain("click(),")],
  ["Safari with neither", { safari: true }, ["submit", "click"], plain("")],
  ["Safari through a proxy", { safariproxy: true }, [], plain("submit(),")],
  ["Internet Explorer", IE, [], ["focus()," + around("click()"), RIGHT, "focus(),mousedown0,submit(),mouseup0,mouseout0",
    around("click()"), twice("click()")]],
  // A link without a native click ends its sequence; the error is nobody's.
  ["Internet Explorer without click", IE, ["click"], ["focus()," + around("click0"), RIGHT,
    "focus(),mousedown0,submit(),mouseup0,mouseout0", "mouseover0,mousedown0", twice("click0")]],
  ["what takes no focus", {}, ["focus"], plain("click0,").map((deeds) => deeds.replace("focus(),", ""))]
].forEach(([browser, flags, missing, expected]) => {
  test("clicks in " + browser, { page: PAGE }, (kit) => {
    const take = watch(kit);
    missing.forEach((name) => { kit.el("t")[name] = undefined; });
    kit.flags(flags);
    return ACTIONS.map((action) => {
      action(kit.el("t"));
      return take();
    });
  }, expected);
});

test("a submit that fails ends the sequence of a button", { page: PAGE }, (kit) => {
  const take = watch(kit);
  kit.el("t").submit = () => { throw new Error("page"); };
  kit.flags({ safari: true });
  ACTIONS[2](kit.el("t"));
  return take();
}, "focus(),mousedown0");

test("text input in embedded Apple views", { page: PAGE }, ({ el, flags, set }) => {
  const { createEvent } = document;
  const seen = [];
  ["keydown", "keypress", "keyup", "textInput"].forEach((type) => el("i").addEventListener(type, () => seen.push(type)));
  const typed = (text) => {
    __corvex__typeText(el("i"), text);
    return seen.splice(0).join();
  };
  const makes = (textEvent) => set(document, "createEvent", (kind) =>
    (kind === "TextEvent" ? textEvent() : createEvent.call(document, kind)));
  const given = [];
  makes(() => {
    const event = createEvent.call(document, "Event");
    event.initTextEvent = (...args) => {
      given.push(args);
      event.initEvent(...args.slice(0, 3));
    };
    return event;
  });
  const results = ["none", "cocoawebview", "cocoatouchwebview", "wkwebview"].map((view) => {
    flags({ cocoawebview: false, cocoatouchwebview: false, [view]: true });
    return typed("a");
  });
  makes(() => { throw new Error("no such kind"); });
  return results.concat(typed("bc"), given[0]);
}, ["keydown,keypress,keyup", "keydown,keypress,textInput,keyup", "keydown,keypress,textInput,keyup",
  "keydown,keypress,textInput,keyup", "keydown,keypress,keyup,keydown,keypress,keyup", "textInput", true, true, null, "a"]);

test("keys carry the code of their character, also where no constructor makes them", { page: PAGE }, ({ el, set }) => {
  const given = [];
  const original = KeyboardEvent.prototype.initKeyboardEvent;
  set(KeyboardEvent.prototype, "initKeyboardEvent", function (...args) {
    given.push([args[0], args[1], args[2], args[3] === window].concat(args.slice(4)));
    return original.apply(this, args);
  });
  let composed;
  el("i").onkeydown = (e) => { composed = composed || e.composed; };
  __corvex__sendKeyEvent(null, "keydown", "a");
  __corvex__sendKeyEvent(el("i"), "keydown", "\u00e9");
  set(window, "KeyboardEvent", () => { throw new Error("no"); });
  __corvex__sendKeyEvent(el("i"), "keydown", "a");
  return [given, composed];
}, [[233, 97].map((code) => ["keydown", true, true, true, false, false, false, false, 0, code]), true]);

test("selection hooks replace a single selection, the first that says so ends the list", {
  page: '<select id="t"><option>a<option>b</select>'
}, ({ el }) => {
  const asked = [];
  __corvex__selectSingleOption__hooks.push(() => asked.push("first") > 1, (e, value) => {
    asked.push(e === el("t"), value);
    return true;
  }, () => asked.push("never"));
  __corvex__selectSingleOption(el("t"), "b");
  const replaced = [asked.splice(0), el("t").value];
  __corvex__selectMultiOption(el("t"), "b");
  return replaced.concat(asked.length, el("t").value);
}, [["first", true, "b"], "a", 0, "b"]);

test("how browsers are told to scroll", { page: '<p id="t">x</p>' }, ({ el, flags, set }) => [
  [{ mozilla: true }, 35], [{ mozilla: true }, 36], [{ googlechrome: true }, 60], [{ googlechrome: true }, 61], [{}, 99]
].map(([browser, version]) => {
  const given = [];
  el("t").scrollIntoView = (argument) => given.push(argument === Object(argument) ?
    argument.block + " " + argument.behavior : argument);
  flags(Object.assign({ mozilla: false, googlechrome: false }, browser));
  set(__corvex, "browsermajorversion", version);
  [true, false].forEach((top) => __corvex__scrollToElement(el("t"), top));
  return given;
}), [[true, false], ["start instant", "end instant"], [true, false], ["start instant", "end instant"], [true, false]]);

test("fields that select by a range, and objects with attributes of their own", {}, () => {
  const ranges = [];
  __corvex.selectAll({ value: "four", setSelectionRange: (from, to) => ranges.push(from, to) });
  const own = { getAttribute: (name) => "own " + name };
  const broken = { getAttribute() { throw new Error("page"); } };
  return [ranges, __corvex__getObjectAttribute(own, "id"), __corvex__getObjectAttribute(broken, "id") === undefined];
}, [[0, 4], "own id", true]);

test("errors of hooks reach the caller, and nothing was done", { page: PAGE + "<select id='s'><option>a</select>" }, (kit) => {
  const take = watch(kit);
  const fail = () => { throw new Error("hook"); };
  Corvex.addClickHook(fail);
  __corvex__selectSingleOption__hooks.push(fail);
  return [() => ACTIONS[0](kit.el("t")), () => ACTIONS[4](kit.el("t")),
    () => __corvex__selectSingleOption(kit.el("s"), "b")].map((action) => {
    try {
      action();
    } catch (e) {
      return e.message + take() + kit.el("s").value;
    }
    return "no error";
  });
}, ["hooka", "hooka", "hooka"]);
