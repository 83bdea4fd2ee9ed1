// Cases of pages that hide what is asked of them: fields of forms, names of elements, built-ins of the page's own.

const idOf = (name) => {
  const element = __corvex__findObject(name);
  return element ? element.getAttribute("id") : null;
};

test("a form with fields that hide its properties is still a form", {
  page: '<form id="f"><input name="alert"><input name="tagName"><input name="type"><input name="nodeType">' +
    '<input name="nodeName"><input name="parentNode"><input name="ownerDocument"><input name="nextSibling"></form>' +
    '<form id="g"></form>'
}, ({ el }) => [__corvex__typeOf(el("f")), __corvex__isDocumentNode(el("f")),
  __corvex__getDocumentForNode(el("f")) === document, __corvex__findUsableParentElement(el("f")) === el("f"),
  __corvex__isVisible(el("f")), __corvex__uniqueNameInLeaf(el("g")), __corvex__qualifiedName(document.forms[0].lastChild)],
["FORM", false, true, true, true, "FORM2", "DOCUMENT.HTML1.BODY1.FORM1.INPUT8"]);

test("a document with forms of such names is still a document", {
  page: '<form name="alert"></form><form name="nodeName"></form><form name="nodeType"></form>'
}, () => [__corvex__typeOf(document), !!__corvex__isDocumentNode(document), __corvex__currentContext(document) === window],
["DOCUMENT", true, true]);

test("a search passes elements that hide the functions it asks", {
  page: '<form id="f" name="getElementsByTagName"><input name="getElementsByTagName"><input id="u" name="user"></form>' +
    '<img name="querySelectorAll"><form id="h"><input name="getAttribute"></form><form id="g" title="t"></form>' +
    '<iframe id="w"></iframe>'
}, ({ el, frame }) => {
  frame("w", '<b id="in"></b>');
  const names = ["{tagName='INPUT' name='user'}", "{tagName='FORM' title='t'}", "{tagName='FORM' id='h' data-x='y'}",
    "{tagName='B'}"];
  return names.map(idOf).concat(__corvex__findObjectByProps(el("f"), names[0]).id);
}, ["u", "g", null, "in", "u"]);

test("elements named like functions of the document do not end a search", {
  page: '<form name="getElementById"></form><img name="getElementsByName"><img name="getElementsByTagName">' +
    '<img name="links"><label for="q">Query</label><input id="q" name="query"><a id="a" href="#">there</a>'
}, () => ["there", "a", "query", "Query"].map(idOf).concat(__corvex__eventObject(document.querySelector("label")).id,
  xpathDomEval('id("q")', document).nodeSetValue().length), ["a", "a", "q", "q", "q", 1]);

test("a form with fields named id, name and tagName keeps its name and its single property", {
  page: '<form id="login" name="one"><input name="id" value="5"><input name="tagName"><input name="user"></form>' +
    '<form name="two"><input name="id"><input name="name"></form>'
}, ({ flags }) => {
  const [one, two] = document.forms;
  __corvex.includeIdPropertyInGeneratedNames = true;
  const name = unescape(__corvex__propertyNameOf(one));
  const found = __corvex__findObject(name) === one;
  flags({ namegen__scheme: "s", namegen__singleprop: "s" });
  return [name, found, unescape(__corvex__propertyNameOf(one.lastChild)), __corvex__nameOf(one), __corvex__nameOf(two)];
}, ["{visible='true' tagName='FORM' name='one' id='login'}", true,
  "{visible='true' tagName='INPUT' name='user' type='text' form='login'}", "login", "two"]);

test("an element of the store is reached where the page forbids eval", { page: '<p id="p"></p>' }, ({ el, set }) => {
  const reference = __corvex__idForObject(el("p"));
  set(window, "eval", () => { throw new Error("forbidden"); });
  return [__corvex__objectOfReference(reference) === el("p"), __corvex.objectTreeInformation(document).length > 0];
}, [true, true]);

test("a name that toolkit scripts use for a variable of the page", { page: '<p id="p"></p>' }, ({ set }) => {
  set(window, "__corvex__node", null);
  return idOf("{tagName='P'}");
}, "p");

test("a page whose JSON and whose functions cannot be called sees no alert of ours, and is searched", {
  page: '<input id="i" name="user">'
}, ({ flags, set, stamps }) => {
  const shown = [];
  const { call, apply } = Function.prototype;
  flags({ origAlert: (text) => { shown[shown.length] = text; }, namegen__scheme: "p", namegen__singleprop: "s" });
  __corvex.useSessionStorageForEvents = true;
  __corvex__getSessionStorageEvents();
  set(JSON, "parse", () => { throw new Error("of the page"); });
  Function.prototype.call = Function.prototype.apply = () => { throw new Error("of the page"); };
  try {
    alert("m");
    shown[shown.length] = __corvex__findObject(unescape(__corvex__nameOf(document.body.firstChild))).id;
  } finally {
    Function.prototype.call = call;
    Function.prototype.apply = apply;
  }
  return [shown, stamps(__corvex__getSessionStorageEvents()[0].payload)];
}, [["i"], "eventHandler&N&name=AlertOpened"]);

// The answers of the actions while the functions of the language throw. Each action does without them.
const withoutBuiltIns = (() => {
  const { defineProperty, getOwnPropertyDescriptor, getOwnPropertyNames, getOwnPropertySymbols } = Object;
  const owners = [Array.prototype, String.prototype, Function.prototype, RegExp.prototype, Number.prototype, Date.prototype,
    Map.prototype, Set.prototype, Object.prototype, Object, Math, JSON, Array, String];
  const slots = owners.flatMap((owner) => getOwnPropertyNames(owner).concat(getOwnPropertySymbols(owner)).map(
    (name) => ({ owner, name }))).concat(["Array", "Map", "Number", "RegExp", "Set", "String", "escape", "isNaN", "parseFloat",
    "parseInt", "unescape"].map((name) => ({ owner: window, name }))).map(
    (slot) => Object.assign(slot, { property: getOwnPropertyDescriptor(slot.owner, slot.name) })).filter(
    ({ name, property }) => typeof property.value === "function" && property.configurable && name !== "constructor");
  const broken = { configurable: true, writable: true, value: () => { throw new Error("of the page"); } };
  return (actions) => {
    const answers = [];
    for (let i = 0; i < slots.length; ++i) {
      defineProperty(slots[i].owner, slots[i].name, broken);
    }
    for (let i = 0; i < actions.length; ++i) {
      try {
        answers[i] = actions[i]();
      } catch (e) {
        answers[i] = "error " + e.message;
      }
    }
    for (let i = 0; i < slots.length; ++i) {
      defineProperty(slots[i].owner, slots[i].name, slots[i].property);
    }
    return answers;
  };
})();

test("a page that breaks the language's own functions is searched, named, read, listed and pressed", {
  page: '<p id="p" title="A b" class="c"> some <b>text</b></p><iframe id="f"></iframe><input id="i">' +
    '<select id="s" multiple><option>a</option><option>b</option></select>'
}, ({ el, flags, frame, Request }) => {
  const [p, i, s, context] = [el("p"), el("i"), el("s"), __corvex__contextOf(frame("f"))];
  const names = "{visible='true' tagName='P' title='A b'}";
  const reference = __corvex__idForObject(p);
  let pressed = "";
  let sent = "";
  p.addEventListener("click", () => { pressed += "click "; });
  i.addEventListener("keydown", () => { pressed += "key "; });
  flags({ namegen__scheme: "p", namegen__singleprop: "s" });
  Request.prototype = { open: (method, url) => { sent = url; }, send: () => {} };
  return withoutBuiltIns([
    () => __corvex__findObject("{tagName='P' title?='A *' simplifiedInnerText='some text' className='c' style.color=''}").id,
    () => __corvex__findObject("some text") === undefined,
    () => __corvex__nameOf(p),
    () => __corvex__qualifiedName(p),
    () => __corvex__typeOf(p) + __corvex__isVisible(p),
    () => __corvex.getPropertyValue(p, "title") + __corvex.getSimplifiedInnerText(p) + __corvex.getTextContent(p),
    () => __corvex__idForObject(p) === reference,
    () => __corvex.objectTreeInformation(p)[1].nameInLeaf,
    () => xpathDomEval("count(//P[contains(@title, 'b')])", document).numberValue(),
    () => __corvex__hasContext(context) && __corvex__setContext(context),
    () => __corvex__getScreenRect(p) === "-1,-1,-1,-1",
    () => __corvex.explainFailedSearch("{tagName='P' title='no'}").missing[0],
    () => { __corvex__click(p, false, false, false, 0, 0, 1); return pressed; },
    () => { __corvex__typeText(i, "ab"); return pressed; },
    () => { __corvex__selectMultiOption(s, "a|b|"); return s.selectedOptions.length; },
    () => { __corvex__sendLogEventData(null, "event=x", true); return sent !== ""; },
    () => { __corvex__addObjectToEventStorage({ payload: "m" }); return __corvex__getSessionStorageEvents()[0].payload; }
  ]).map((answer) => (answer === escape(names) ? "NAME" : answer));
}, ["p", true, "NAME", "DOCUMENT.HTML1.BODY1.P1", "Ptrue", "A bsome textsome", true, "B1", 1, true, false, "title", "click ",
  "click key key ", 2, true, "m"]);

// The answers of the actions while the functions of nodes throw in these windows.
function withoutNodeFunctions(windows, actions) {
  const slots = windows.flatMap((w) => ["Node", "Element", "HTMLElement", "Document", "DocumentFragment"].flatMap(
    (type) => Object.entries(Object.getOwnPropertyDescriptors(w[type].prototype)).filter(
      ([name, { value }]) => typeof value === "function" && name !== "constructor").map(
      ([name, property]) => ({ owner: w[type].prototype, name, property }))));
  slots.forEach(({ owner, name }) => {
    owner[name] = () => { throw new Error("of the page"); };
  });
  try {
    return actions.map((action) => {
      try {
        return action();
      } catch (e) {
        return "error " + e.message;
      }
    });
  } finally {
    slots.forEach(({ owner, name, property }) => Object.defineProperty(owner, name, property));
  }
}

test("a page that breaks the functions of its nodes is searched, named and measured", {
  page: '<p id="p" title="t" data-x="y">some <b>text</b></p><form name="one"><input name="user"></form>' +
    '<a id="a" href="#"><img alt="in"></a><div id="h"></div><iframe id="f"></iframe><label for="q">Query</label>' +
    '<input id="q" name="query">'
}, ({ el, frame, flags }) => {
  const inFrame = frame("f", '<i id="in"></i>');
  const [p, link, root] = [el("p"), el("a"), el("h").attachShadow({ mode: "open" })];
  root.innerHTML = '<u id="u"></u>';
  const inShadow = root.firstChild;
  flags({ namegen__scheme: "p", namegen__singleprop: "s" });
  const record = (name) => __corvex.explainFailedSearch(name);
  const idOfRecord = (name) => __corvex__findObject(name).id;
  return withoutNodeFunctions([window, inFrame], [
    () => idOfRecord("{tagName='P' title='t' data-x='y'}"),
    () => idOfRecord("{tagName='I'}"),
    () => idOfRecord("{tagName='A' img_alt='in'}"),
    () => __corvex__findObject("{tagName='INPUT' form='one'}").name,
    () => idOfRecord("q") + idOfRecord("query") + idOfRecord("Query"),
    () => __corvex__findObjectByProps(root, "{tagName='U'}") === inShadow,
    () => __corvex.findAllObjects("{tagName='P'}").length,
    () => [record("{tagName='EM'}"), record("{tagName='P' title='no'}")].map(({ count, replaced }) => [count, replaced]),
    () => unescape(__corvex__propertyNameOf(link)),
    () => unescape(__corvex__propertyNameOf(inShadow, false, true)).indexOf("container={"),
    () => __corvex__nativeClientRect(p).width > 0,
    () => __corvex__getElementByClassName(document, "none", "P") === undefined
  ]);
}, ["p", "in", "a", "user", "qqq", true, 1, [[0, null], [1, null]], "{visible='true' tagName='A' img_alt='in'}",
  1, true, true]);

test("a document with a function of its own for its elements is searched all the same", { page: '<p id="p"></p>' },
  ({ set }) => {
    set(document, "getElementsByTagName", () => { throw new Error("of the page"); });
    return [idOf("{tagName='P'}"), __corvex.findAllObjects("{tagName='P'}").length];
  }, ["p", 1]);

test("a function of the page's own that fails where the browser's cannot be asked is told", { page: "<p></p>" }, () => {
  const fails = () => { throw new Error("of the page"); };
  const told = (container) => __corvex.explainFailedSearch("{tagName='P' id='x'}", container);
  return [told({ getElementsByTagName: fails }), told(document.body)];
}, [{ tag: "P", count: 0, missing: ["id"], frames: [], rivals: [], replaced: "getElementsByTagName" },
  { tag: "P", count: 1, missing: ["id"], frames: [], rivals: [] }]);

// The last one, since nothing puts this page right again.
test("a page that broke a function of the language for good is told so", { page: '<p title="t"></p>' }, () => {
  const value = () => { throw new Error("of the page"); };
  Object.defineProperty(String.prototype, "charAt", { value, configurable: false, writable: false });
  try {
    return __corvex__findObject("{tagName='P' title='t'}").id;
  } catch (e) {
    return e.message;
  }
}, "The page has replaced String.prototype.charAt and keeps it from being put back, so that its objects cannot be reached. " +
  "of the page");
