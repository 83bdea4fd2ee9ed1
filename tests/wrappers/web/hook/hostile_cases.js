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
    '<img name="querySelectorAll"><form id="h"><input name="getAttribute"></form><form id="g" title="t"></form><iframe id="w"></iframe>'
}, ({ el, frame }) => {
  frame("w", '<b id="in"></b>');
  return ["{tagName='INPUT' name='user'}", "{tagName='FORM' title='t'}", "{tagName='FORM' id='h' data-x='y'}", "{tagName='B'}"].map(
    idOf).concat(__corvex__findObjectByProps(el("f"), "{tagName='INPUT' name='user'}").id);
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
