// Cases of clicks, keys, texts and selections that are made in the page.

const TYPES = ["mouseover", "mousedown", "mouseup", "click", "dblclick", "contextmenu", "mouseout", "keydown", "keypress",
  "keyup", "change", "input", "touchstart", "touchend"];

// The events of such types that reach the element from now on; names() takes them out.
function listen(element) {
  const events = [];
  TYPES.forEach((type) => element.addEventListener(type, (e) => events.push(e)));
  events.names = () => events.splice(0).map((e) => e.type).join();
  return events;
}
const CLICK = "mouseover,mousedown,click,mouseup,mouseout";

test("a click: order of events, default place, button, modifiers", {
  page: '<div style="height:300px"></div><button id="t" type="button" ' +
    'style="position:absolute;left:40px;top:30px;width:100px;height:50px">x</button>'
}, ({ el }) => {
  const events = listen(el("t"));
  __corvex__click(el("t"), true, false, true, 0, 0, 0);
  const [down, out] = [events[1], events[4]];
  const rect = el("t").getBoundingClientRect();
  return [events.names(), down.clientX - rect.left, down.clientY - rect.top, down.button,
    [down.ctrlKey, down.shiftKey, down.altKey, down.metaKey], [down.bubbles, down.cancelable, down.composed],
    out.relatedTarget === document.body, out.ctrlKey, document.activeElement === el("t")];
}, [CLICK, 5, 5, 0, [true, false, true, false], [true, true, true], true, false, true]);

test("a click counts from the page when it is scrolled", {
  page: '<div style="height:9000px"></div><p id="t" style="position:absolute;left:40px;top:700px;margin:0">x</p>'
}, ({ el }) => {
  const events = listen(el("t"));
  window.scrollTo(0, 600);
  __corvex__click(el("t"), false, false, false, 7, 9, 1);
  const rect = el("t").getBoundingClientRect();
  return [events[1].clientX - rect.left, events[1].clientY - rect.top];
}, [7, 9]);

test("right and middle clicks", { page: '<p id="t">x</p>' }, ({ el }) => [2, 4].map((button) => {
  const events = listen(el("t"));
  __corvex__click(el("t"), false, false, false, 1, 1, button);
  return events.slice(1).map((e) => e.type + e.button).join();
}), ["mousedown2,contextmenu2,mouseup2,mouseout0", "mousedown1,click1,mouseup1,mouseout0"]);

test("clicks on buttons and links, and the double click", { page: '<a id="t" href="#">x</a>' }, ({ el }) => {
  const events = listen(el("t"));
  el("t").onclick = () => false;
  __corvex__clickButton(el("t"), false, false, false, 0, 0, 1);
  const names = [events.names()];
  __corvex__clickLink(el("t"));
  names.push(events.names());
  __corvex__dblclick(el("t"), false, false, false, 3, 3);
  return names.concat(events.names());
}, ["mousedown,click,mouseup,mouseout", CLICK,
  "mouseover,mousedown,click,mouseup,mousedown,click,dblclick,mouseup,mouseout"]);

test("a synthetic click does what a click does", {
  page: '<form id="f"><input type="checkbox" id="c"><button id="b">go</button></form>'
}, ({ el }) => {
  let submits = 0;
  el("f").onsubmit = () => { ++submits; return false; };
  __corvex__click(el("c"), false, false, false, 0, 0, 1);
  __corvex__clickButton(el("b"), false, false, false, 0, 0, 1);
  return [el("c").checked, submits];
}, [true, 1]);

test("click hooks replace the click, with all or one of the arguments", { page: '<p id="t">x</p>' }, ({ el }) => {
  const events = listen(el("t"));
  const counts = [];
  Corvex.addClickHook(() => false);
  Corvex.addClickHook((...given) => counts.push(given.length) > 0);
  __corvex__click(el("t"), false, false, false, 1, 2, 1);
  __corvex__dblclick(el("t"), false, false, false, 1, 2);
  return [events.length, counts];
}, [0, [7, 1]]);

test("a click on an element of a frame, with a listener that throws and a MouseEvent of the page's own", {
  page: '<iframe id="f"></iframe>'
}, ({ frame, set }) => {
  const button = frame("f", "<button>x</button>").document.body.firstChild;
  const events = listen(button);
  button.addEventListener("mousedown", () => { throw new Error("page"); });
  button.ownerDocument.defaultView.onerror = window.onerror = () => true;
  set(window, "MouseEvent", () => { throw new Error("no"); });
  __corvex__click(button, false, false, false, 0, 0, 1);
  window.onerror = null;
  return [events.names(), button.ownerDocument.activeElement === button];
}, [CLICK, true]);

test("on touch platforms a prevented touch replaces the click", {
  // Firefox has no touch events on a desktop.
  only: "chromium",
  page: '<p id="t">x</p>'
}, ({ el, flags }) => {
  const events = listen(el("t"));
  flags({ emulateViaTouchEvents: () => true });
  __corvex__click(el("t"), false, false, false, 1, 1, 1);
  const touch = events[0].touches;
  const free = events.names();
  el("t").addEventListener("touchstart", (e) => e.preventDefault());
  __corvex__click(el("t"), false, false, false, 1, 1, 1);
  return [free, events.names(), touch.length, touch[0].target === el("t")];
}, ["touchstart,touchend," + CLICK, "touchstart,touchend", 1, true]);

test("typed text sends keys and writes nothing; setting a field changes it once", { page: '<input id="t">' }, ({ el }) => {
  const events = listen(el("t"));
  __corvex__typeText(el("t"), "ab");
  __corvex__typeText(el("t"), "");
  const typed = [events.names(), el("t").value];
  __corvex__setTextFieldValue(el("t"), "new");
  __corvex.selectAll(el("t"));
  const set = [el("t").value, events[0].bubbles, events[0].cancelable, events.names(), el("t").selectionEnd];
  try {
    return __corvex.selectAll({});
  } catch (e) {
    return [typed, set, e.message];
  }
}, [["keydown,keypress,keyup,keydown,keypress,keyup", ""], ["new", true, false, "change", 3],
  "Object does not support select or setSelectionRange function, cannot select content."]);

test("single selection by text, value and index; a text that no option has deselects and tells nobody", {
  page: '<select id="t"><option value="1">one<option value="2">two<option value="3">three</select>' +
    '<select id="l" size="3"><option selected>one<option>two</select>'
}, ({ el }) => {
  const events = listen(el("t"));
  const listEvents = listen(el("l"));
  const values = [["two", __corvex__selectOptionText], ["3", __corvex__selectOptionValue],
    ["0", __corvex__standardselectExtension.optionIndex]].map(([value, read]) => {
    __corvex__selectOption(el("t"), value, read);
    return el("t").value;
  });
  __corvex__selectSingleOption(el("l"), "nine");
  const index = el("l").selectedIndex;
  __corvex__selectSingleOption(el("l"), "two");
  // A list box gets a blank after its change.
  return [values, events.names(), index, el("l").value, listEvents.names()];
}, [["2", "3", "1"], "change,change,change", -1, "two", "change,keydown,keypress,keyup"]);

test("multiple selection: separators, one change, no match clears", {
  page: '<select id="t" multiple><option selected>a,b<option>c<option>d</select>'
}, ({ el }) => {
  const events = listen(el("t"));
  const selected = () => [__corvex__standardselectExtension.selectedTexts(el("t")), events.names()];
  __corvex__selectMultiOption(el("t"), "a,b|d|");
  const some = selected();
  __corvex__selectOptions(el("t"), ["x"], __corvex__selectOptionText);
  return [some, selected()];
}, [[["a,b", "d"], "change"], [[], "change"]]);

test("options of a select element", {
  page: '<select id="t" multiple><option value="v0" label="L0">a<option value="v1" selected>b' +
    '<option value="v2" label="L2" selected>c</select>'
}, ({ el }) => {
  const events = listen(el("t"));
  const ext = __corvex__standardselectExtension;
  const selected = ["Indexes", "Labels", "Texts", "Values"].map((what) => ext["selected" + what](el("t")));
  const has = [[["v2", "v0"], ext.optionValue], [["v0", "x"], ext.optionValue], [["1"], ext.optionIndex]].map(
    ([values, read]) => ext.hasItems(el("t"), values, read));
  ext.deselect(el("t"), ext.optionIndex, ["2", "0"]);
  return [selected, has, ext.selectedIndexes(el("t")), events.names()];
}, [[[1, 2], ["b", "L2"], ["b", "c"], ["v1", "v2"]], [true, false, true], [1], "change"]);

test("attributes never throw, scrolling ignores what cannot scroll", {
  page: '<p id="p" title="x"></p><div style="height:5000px"></div><p id="q"></p>'
}, ({ el }) => {
  __corvex__scrollToElement(el("q"), true);
  __corvex__scrollToElement(document, true);
  __corvex__scrollToElement(null);
  return [window.pageYOffset > 0, __corvex__getObjectAttribute(el("p"), "title"),
    __corvex__getObjectAttribute(document, "id") === undefined, __corvex__getObjectAttribute(null, "id") === undefined];
}, [true, "x", true, true]);
