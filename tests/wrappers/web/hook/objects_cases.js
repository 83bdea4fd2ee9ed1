// Cases of references, types and trees of objects, of what an event belongs to, and of cleaned texts.

const STORE = "__corvex__globalObjectRefStore";
const place = (object) => Number(/^top\.__corvex__globalObjectRefStore\[(\d+)\]$/.exec(__corvex__idForObject(object))[1]);

test("the page counts as hooked, and not without the search", {}, () => {
  const hooked = __corvex__isHooked();
  window.__corvex__findObject = undefined;
  return [hooked, __corvex__isHooked()];
}, [true, false]);

test("an object keeps its reference, whatever others do to the store", {}, ({ flags }) => {
  const [a, b, c] = [{}, {}, {}];
  flags({ globalObjectRefStore: [c] });
  const places = [place(a), place(c), place(a)];
  top[STORE].push(b, b);
  places.push(place(b));
  top[STORE][1] = c;
  places.push(place(a), place(a), place(c), __corvex__objectOfReference(__corvex__idForObject(a)) === a);
  top[STORE].length = 0;
  return places.concat(place(b));
}, [1, 0, 1, 2, 4, 4, 0, true, 0]);

test("an entry of the store that cannot be read hides no other", {}, ({ flags }) => {
  const [a, b, c] = [{}, {}, {}];
  const store = [a, {}, b];
  Object.defineProperty(store, 1, { get: () => { throw new Error("closed"); } });
  flags({ globalObjectRefStore: store });
  const places = [place(b), place(c), place(a)];
  Object.defineProperty(store, 0, { get: () => { throw new Error("closed"); } });
  return places.concat(place(a), place(c), place(a));
}, [2, 3, 0, 4, 3, 4]);

test("ten thousand references do not take a walk each, nor live on what the page makes of Map", {}, ({ flags, set }) => {
  let reads = 0;
  const store = [];
  flags({ globalObjectRefStore: new Proxy(store, {
    get: (target, key) => { reads += /^\d+$/.test(String(key)); return target[key]; }
  }) });
  set(window, "Map", null);
  for (let i = 0; i < 10000; ++i) {
    __corvex__idForObject({});
  }
  return [store.length, reads < 100000];
}, [10000, true]);

test("types of elements, and of what is none", {
  page: '<input><button></button><select></select><select multiple></select><a type="text/html"></a><a></a>' +
    '<p id="p">text<!--c--></p><div id="h"></div><svg><text>x</text><g></g></svg>'
}, ({ el }) => {
  const elements = Array.from(document.body.querySelectorAll("input,button,select,a,text,g"));
  return [elements, [null, 0, window, { alert: 1 }, document, el("p").firstChild, el("p").lastChild,
    el("h").attachShadow({ mode: "open" }), document.createDocumentFragment(), {}]].map(
    (list) => list.map(__corvex__typeOf).join(" "));
}, ["text submit select-one select-multiple text/html A SVG_Text g",
  "[unknown] [unknown] window window DOCUMENT [unknown_type] [unknown_type] ShadowRoot [unknown_type] [unknown_type]"]);

test("a shadow root of a frame is one, and a window that refuses every question is a window", {
  page: '<iframe id="f"></iframe>'
}, ({ frame }) => [
  __corvex__typeOf(frame("f", "<div></div>").document.body.firstChild.attachShadow({ mode: "open" })),
  __corvex__typeOf({ get alert() { throw new Error("blocked"); } })
], ["ShadowRoot", "window"]);

test("type hooks: priority, then order, faulty ones passed over, never asked of a window", { page: '<p id="p"></p>' },
  ({ el }) => {
    const asked = [];
    const hook = (type) => (o) => { asked.push(o); return type; };
    const types = [];
    const add = (type, prio) => {
      Corvex.addTypeOfHookWithPriority(hook(type), prio);
      types.push(__corvex__typeOf(el("p")));
    };
    Corvex.addTypeOfHookWithPriority(() => { throw new Error("x"); }, 200);
    add("low", -5);
    add("", 300);
    Corvex.addTypeOfHook(hook("one"));
    add("two", 100);
    add("three", 101);
    return [types, __corvex__typeOf(window), asked.indexOf(window)];
  }, [["low", "low", "one", "three"], "window", -1]);

test("a press inside a widget belongs to the widget", {
  page: '<a href="#x" id="a"><b><span id="s1">x</span></b></a><button id="b" type="submit"><i id="s2">x</i></button>' +
    '<div id="c" onclick="0"><p id="s3">x</p></div><div id="isc_1"><span id="s4">x</span></div>' +
    '<a id="n"><span id="s5">x</span></a><div onclick="0" style="visibility:hidden">' +
    '<span id="s6" style="visibility:visible">x</span></div><label for="a" id="l1"><span>x</span></label>' +
    '<label for="none" id="l2">y</label>'
}, ({ el }) => ["s1", "s2", "s3", "s4", "s5", "s6", "l1", "l2"].map((id) => __corvex__eventObject(el(id)).id).join(),
"a,b,c,isc_1,s5,s6,a,l2");

test("an element without handlers is marked once it was pressed", {
  page: '<div><span id="s">x</span></div><div id="h" onclick="0"></div><select><option id="o">x</option></select>'
}, ({ el }) => ["s", "h", "o"].map((id) => {
  __corvex__eventObject(el(id));
  return el(id).__corvex__onclick === true;
}), [true, false, false]);

test("registered widgets end the climb, before ids and links, and after handlers", {
  page: '<div class="w x" id="outer"><a href="#" class="x w" id="isc_a"><span id="s">x</span></a></div>' +
    '<div class="w" style="display:none" id="hidden"><span id="t">x</span></div>'
}, ({ el }) => {
  window.__corvex__knownWidgets.push(() => {});
  Corvex.registerWidget({ Class: "w", Event: "click" });
  return ["s", "t"].map((id) => __corvex__eventObject(el(id)).id);
}, ["isc_a", "hidden"]);

test("event object hooks come first, event type hooks replace the name", {
  page: '<a href="#"><span id="s">x</span></a>'
}, ({ el }) => {
  Corvex.addEventObjectHook(() => null);
  Corvex.addEventObjectHook((o) => o === el("s") && document.body);
  Corvex.addEventTypeHook((o, e, type) => type === "a" && "chosen");
  return [__corvex__eventObject(el("s")) === document.body].concat(
    ["a", "b"].map((type) => __corvex__eventType(el("s"), { type: "click" }, type)));
}, [true, "chosen", "click"]);

test("the source of an event inside a shadow tree is the inner element", { page: '<div id="h"></div>' }, ({ el }) => {
  const root = el("h").attachShadow({ mode: "open" });
  const seen = [__corvex__srcElement(null) === undefined, __corvex__srcElement({ srcElement: 5 })];
  root.innerHTML = '<p id="in"></p>';
  const look = (e) => seen.push(__corvex__srcElement(e).id, e.target.id);
  document.addEventListener("x", look, { capture: true, once: true });
  root.firstChild.dispatchEvent(new CustomEvent("x", { bubbles: true, composed: true }));
  return seen;
}, [true, 5, "in", "h"]);

test("cleaned texts", {}, () => ["", "  ", " \t ", "a\u00a0b", "a\r\n\n b", "a\t\tb", "a\u2011b\u2013c", " x  y ", "a\n \nb",
  7, null].map(__corvex__clean), ["", "", " ", "a b", "a b", "a b", "a-b-c", "x y", "a b", "7", null]);

test("class lists, also of what is no text", { page: '<p id="p" class="one  two"></p><p class="two"></p>' }, ({ el }) => {
  const likeText = { length: 3, charAt: (i) => "a b".charAt(i) };
  return [__corvex__listContains(el("p").className, "two"), __corvex__listContains("twofold", "two"),
    __corvex__listContains({ baseVal: "a b" }, "b"), __corvex__listContains(likeText, "a"),
    __corvex__listContains(likeText, "b"), Corvex.hasClassName(null, "two"),
    Corvex.getElementByClassName(document.body, "two", "p") === el("p"),
    Corvex.getElementsByClassName(document.body, "two", "*").length];
}, [true, false, true, true, false, false, true, 2]);

test("traversal with and without the node filter", { page: '<div id="d">a<p></p>b<q></q>c</div>' }, ({ el, flags }) => {
  const look = () => [__corvexDOMAPI.numChildren(el("d")), __corvexDOMAPI.firstChild(el("d")), __corvexDOMAPI.lastChild(el("d")),
    __corvexDOMAPI.nextSibling(el("d").children[0]), __corvexDOMAPI.previousSibling(el("d").children[1])].map(
    (answer) => answer.nodeName || answer).join();
  const plain = look();
  flags({ filter__non__element__nodes: true });
  return [plain, look(), __corvexDOMAPI.firstChild(undefined) === undefined, __corvexDOMAPI.nextSibling(el("d").children[1])];
}, ["5,#text,#text,#text,#text", "2,P,Q,Q,P", true, null]);

const shape = (records) => records.map((record) => [record.nameInLeaf, record.typeString].concat(shape(record.children)));

test("the whole tree of an element, shadow tree included, as the child lists give it", {
  page: '<div id="d">t<p title="x"><b></b></p><ul><li></li><li><i></i></li></ul></div>'
}, ({ el }) => {
  el("d").querySelector("p").attachShadow({ mode: "open" }).innerHTML = "<u></u>";
  const flat = (records) => JSON.stringify(records.map((record) => [record.reference, record.typeString, record.nameInLeaf]));
  const same = (records, node) => flat(records) === flat(__corvex.childObjectAndInfo(node)) &&
    records.every((record) => same(record.children, __corvex__objectOfReference(record.reference)));
  const tree = __corvex.objectTreeInformation(el("d"));
  return [shape(tree), same(tree, el("d"))];
}, [[["NODE1", "[unknown_type]"], ["P1", "P", ["B1", "B"], ["SHADOW_ROOT", "ShadowRoot", ["U1", "U"]]],
  ["UL1", "UL", ["LI1", "LI"], ["LI2", "LI", ["I1", "I"]]]], true]);

test("a tree lists a toolkit's widget first, and one that does not exist without what is below", {
  page: '<div id="d"><p></p></div><div id="e"></div>'
}, ({ el }) => {
  const p = el("d").firstChild;
  el("d").qx_Widget = el("e").qx_Widget = true;
  el("d").qxWidget = { firstChild: p };
  el("d").classname = p.classname = "qx.ui.Widget";
  return ["d", "e"].map((id) => shape(__corvex.objectTreeInformation(el(id))));
}, [[["qx_Widget", "qx_Widget", ["qx_Widget", "P"]], ["qx_Widget", "P"]], [["qx_Widget", "qx_Widget"]]]);

test("the properties of many objects in one answer; a getter that throws ends it", {
  page: '<input id="a" value="1"><input id="b" type="checkbox">'
}, ({ el, set }) => {
  const fails = { value: () => { throw new Error("not asked"); } };
  const asked = [{ object: el("a"), propertyGetters: { value: () => el("a").value, none: () => undefined } },
    { object: null, propertyGetters: fails }, { object: el("b"), propertyGetters: { checked: () => el("b").checked } }];
  set(Object.prototype, "fromPage", 1);
  const read = __corvex.readPropertiesFromObjects(asked);
  asked[1].object = el("a");
  try {
    return __corvex.readPropertiesFromObjects(asked);
  } catch (e) {
    return [read[__corvex__idForObject(el("a"))], read[__corvex__idForObject(el("b"))], Object.keys(read).length, e.message];
  }
}, [{ value: "1" }, { checked: false }, 2, "not asked"]);

test("visibility asks for display of all parents, and for visibility of the element", {
  page: '<div style="display:none"><p id="a"></p></div><div style="visibility:hidden"><p id="b"></p>' +
    '<p id="c" style="visibility:visible"></p></div><p id="d" style="width:0;height:0"></p>'
}, ({ el }) => [el("a"), el("b"), el("c"), el("d"), null, document, document.createElement("p")].map(__corvex__isVisible),
[false, false, true, true, true, true, true]);

test("what tells whether an object can take input, in one answer", {
  page: '<input id="a" disabled><p id="b" style="display:none"></p><form id="c"><input name="tagName"></form>'
}, ({ el }) => [el("a"), el("b"), el("c"), document.documentElement, null, {}].map(__corvex__readiness),
["ready INPUT true true", "ready P false ", "", "ready HTML true ", "ready  true ", "ready  true "]);

test("computed styles and pixel values", { page: '<p id="p" style="margin-left:12px"></p>' }, ({ el }) => {
  const style = new __corvex__styleInfo(el("p"));
  return [style.styleProperty("marginLeft"), style.styleProperty() === undefined,
    new __corvex__styleInfo(null).styleProperty("x") === undefined, ["12px", "1.9px", "1em", null].map(__corvex__cssToPx)];
}, ["12px", true, true, [12, 1, "1em", null]]);

test("focus through shadow roots and frames", {
  page: '<div id="h"></div><iframe id="f"></iframe><input id="i">'
}, ({ el, frame }) => {
  el("h").attachShadow({ mode: "open" }).innerHTML = "<input><input>";
  const root = el("h").shadowRoot;
  const inputs = [root.firstChild, frame("f", "<input>").document.body.firstChild, el("i")];
  return inputs.map((input) => {
    input.focus();
    return inputs.concat(el("h"), root.lastChild).map((one) => Number(__corvex.hasFocus(one))).join("");
  });
}, ["10010", "01000", "00100"]);

test("selected text in either direction", { page: '<input id="i" value="abcdef">' }, ({ el }) => {
  const texts = ["forward", "backward", "none"].map((direction) => {
    el("i").setSelectionRange(1, 3, direction);
    return __corvex.getSelectedText(el("i"));
  });
  try {
    return __corvex.getSelectedText({ selectionDirection: "up", value: "" });
  } catch (e) {
    return texts.concat(e.message);
  }
}, ["bc", "bc", "bc", "Unknown selection direction: up"]);

test("text content is what an element says itself", {
  page: 'own text of the body<p id="a">a<b>b</b>c</p><div id="b"><i>x</i></div><p id="c">y<span id="d">z</span></p>' +
    '<div id="e">one<br>two</div>' +
    '<div id="g"> <!-- --> <b>x</b>t</div><section id="s">own<div id="t">in</div></section>'
}, ({ el }) => ["a", "b", "c", "d", "e", "g", "s", "t"].map((id) => __corvex.getTextContent(el(id))).concat(
  __corvex.getTextContent(null), __corvex.simplifyText("  a\r\n b  "), __corvex.simplifyText(null)),
["a c", "", "y", "", "one \n two", "", "own", "", "", "a b", null]);

test("flags and what follows from them", {}, ({ flags }) => {
  const answers = [];
  const add = (values, predicates) => {
    flags(values);
    answers.push(predicates.map((predicate) => !!predicate(window)));
    flags(Object.fromEntries(Object.keys(values).map((name) => [name, undefined])));
  };
  add({ safari: 1 }, [__corvex__isSafariUsingWebDriver]);
  add({ safari: 1, safari__version: 11 }, [__corvex__isSafariUsingWebDriver]);
  add({ wkwebview: 7 }, [__corvex__isEmbeddedAppleWebkitBrowser, __corvex__usesEventLoggerBridge,
    __corvex__isEmbeddedIntoHookableToolkit, __corvex__needToApplyDevicePixelRatio]);
  add({ mobiledevice: 1 }, [__corvex__emulateViaTouchEvents, __corvex__needToApplyDevicePixelRatio]);
  add({ mobiledevice: 1, proxy: 1 }, [__corvex__emulateViaTouchEvents, __corvex__recordTouchEvents]);
  return answers.concat(__corvex__needToApplyDevicePixelRatio({}), __corvex__needToApplyDevicePixelRatio(null));
}, [[true], [false], [true, true, true, false], [false, true], [true, true], false, false]);

test("dates as text for the driver, also those of a frame", { page: '<iframe id="f"></iframe>' }, ({ frame }) => [
  new Date(2021, 0, 5, 7, 9), new (frame("f").Date)(2020, 11, 31, 23, 59), "2020"
].map(__corvex__convertJSDateToDateTimeString), ["2021,1,5,7,9", "2020,12,31,23,59", null]);
