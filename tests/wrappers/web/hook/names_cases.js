// Cases of the names that elements get, of hierarchical names, and of the public functions around names.

function useScheme(kit, scheme) {
  kit.flags({ namegen__scheme: scheme || "properties", namegen__singleprop: "single", namegen__hierarchical: "hierarchical" });
}
const nameOf = (element, noUnify) => unescape(__corvex__nameOf(element, noUnify));
const namesOf = (kit, ids) => {
  useScheme(kit);
  return ids.map((id) => nameOf(kit.el(id)));
};

test("a text field, the second of its kind, the first that is hidden, and one without a count", {
  page: '<input id="a" type="text"><input id="b" type="text"><input id="c" type="text" style="display:none">'
}, (kit) => namesOf(kit, ["a", "b", "c"]).concat(nameOf(kit.el("b"), true)), [
  "{visible='true' tagName='INPUT' type='text'}", "{visible='true' tagName='INPUT' type='text' occurrence='2'}",
  "{visible='false' tagName='INPUT' type='text'}", "{visible='true' tagName='INPUT' type='text'}"
]);

test("a control in a form, by the id of the form or else its name; buttons by value or text", {
  page: '<form id="f" name="g"><input id="a" name="u"></form><form name="h"><input id="b" name="v">' +
    '<input id="c" type="image" name="w"></form><input id="d" type="submit" value=" Go  on ">' +
    '<button id="e" value="v"> Press\n me </button>'
}, (kit) => namesOf(kit, ["a", "b", "c", "d", "e"]), [
  "{visible='true' tagName='INPUT' name='u' type='text' form='f'}",
  "{visible='true' tagName='INPUT' name='v' type='text' form='h'}",
  "{visible='true' tagName='INPUT' name='w' type='image'}",
  "{visible='true' tagName='INPUT' type='submit' value=' Go on '}",
  "{visible='true' tagName='BUTTON' type='submit' simplifiedInnerText='Press me'}"
]);

test("what stands in a link is the link, but for controls and images", {
  page: '<a id="l" href="#">Text <span id="s">more</span><input id="i" type="text" name="q"><img id="m" alt="pic"></a>'
}, (kit) => namesOf(kit, ["l", "s", "i", "m"]), [
  "{visible='true' tagName='A' simplifiedInnerText='Text more'}",
  "{visible='true' tagName='A' simplifiedInnerText='Text more'}",
  "{visible='true' tagName='INPUT' name='q' type='text'}", "{visible='true' tagName='IMG' img_alt='pic'}"
]);

test("a link that shows only an image, and one that shows nothing", {
  page: '<a id="a" href="#"><img src="http://h.invalid/p/pic.png"></a><a id="b" href="#">' +
    '<img src="http://h.invalid/x.png" alt=" Al  t " name="nm"></a><a id="c" href="#"></a>'
}, (kit) => namesOf(kit, ["a", "b", "c"]), [
  "{visible='true' tagName='A' img_src?='*pic.png'}", "{visible='true' tagName='A' img_name='nm' img_alt='Al t'}",
  "DOCUMENT.HTML1.BODY1.A3"
]);

test("by name or title, by text, and by place", {
  page: '<h2 id="a" title="T">x</h2><div id="b">  some\n text </div><div id="c"></div><img id="d"><p id="e">par</p>'
}, (kit) => namesOf(kit, ["a", "b", "c", "d", "e"]), [
  "{visible='true' tagName='H2' title='T'}", "{visible='true' tagName='DIV' simplifiedInnerText='some text'}",
  "DOCUMENT.HTML1.BODY1.DIV2", "DOCUMENT.HTML1.BODY1.IMG1", "DOCUMENT.HTML1.BODY1.P1"
]);

test("ids without generated parts, when they are asked for", {
  page: '<p id="jbg_12_main_ctrl07_user"></p><img id="pic">'
}, (kit) => {
  __corvex.includeIdPropertyInGeneratedNames = true;
  return namesOf(kit, ["jbg_12_main_ctrl07_user", "pic"]);
}, ["{visible='true' tagName='P' id='mainuser'}", "{visible='true' tagName='IMG' id='pic'}"]);

test("every element of a page is found by its own name, whatever its texts hold", {
  page: '<form name="f"><input name="a"><input name="a"><input type="radio" value="1"><input type="radio" value="2">' +
    '<select></select></form><ul><li>x</li><li>x</li><li>y</li></ul><a href="#">go</a><a href="#">go</a>' +
    '<button>b</button><button>b</button><label>x</label><h2 title="it\'s \\ 100%41 &amp; &lt;b&gt; *?"></h2>'
}, (kit) => {
  useScheme(kit);
  return Array.from(document.body.querySelectorAll("input,select,li,a,button,label,h2")).filter(
    (element) => __corvex__findObject(nameOf(element)) !== element).length;
}, 0);

test("in a shadow tree with the hosts around it", { page: '<div id="h" title="host"></div>' }, (kit) => {
  useScheme(kit);
  const outer = kit.el("h").attachShadow({ mode: "open" });
  outer.innerHTML = "<section></section>";
  const inner = outer.firstChild.attachShadow({ mode: "open" });
  inner.innerHTML = "<input name=q><i></i>";
  return [nameOf(inner.firstChild), nameOf(inner.lastChild)];
}, [
  "{container={container={visible='true' tagName='DIV' title='host'} visible='true' tagName='SECTION'} " +
    "visible='true' tagName='INPUT' name='q' type='text'}",
  "DOCUMENT.HTML1.BODY1.DIV1.SHADOW_ROOT.SECTION1.SHADOW_ROOT.I1"
]);

test("an element of a frame carries the context, unless that is selected", { page: '<iframe id="f"></iframe>' }, (kit) => {
  useScheme(kit);
  const w = kit.frame("f", '<input name="q"><p></p>');
  const context = __corvex__contextOf(w);
  const name = (element) => nameOf(element).replace(context, "CTX").replace(context.replace(/\./g, "|"), "CTX");
  const names = [name(w.document.body.firstChild), name(w.document.body.lastChild)];
  __corvex__setContext(context);
  return names.concat(name(w.document.body.firstChild));
}, [
  "{context='CTX' visible='true' tagName='INPUT' name='q' type='text'}", "DOCUMENT[CTX].HTML1.BODY1.P1",
  "{visible='true' tagName='INPUT' name='q' type='text'}"
]);

test("the window, a hook, and the two other schemes", {
  page: '<p id="a" title="t">x</p><a id="l" href="#"><b></b></a>'
}, (kit) => {
  useScheme(kit);
  const names = [null, window].map((o) => nameOf(o));
  window.__corvex__nameOf__hooks.push((element) => element.id === "a" && escape("{own name}"));
  names.push(nameOf(kit.el("a")));
  ["hierarchical", "single"].forEach((scheme) => {
    useScheme(kit, scheme);
    names.push(nameOf(kit.el("a")));
  });
  return names.concat(nameOf(document.querySelector("b")), nameOf(document.body));
}, ["[Window]", "[Window]", "{own name}", "DOCUMENT.HTML1.BODY1.P1", "a", "l", "[Window]"]);

test("leaves count what has the same tag name, and the child list gives the same, the shadow root last", {
  page: '<div id="h"><p></p>text<b></b><!-- c -->more<p></p><node></node></div>'
}, ({ el }) => {
  const leaves = Array.from(el("h").childNodes).map(__corvex__uniqueNameInLeaf);
  el("h").attachShadow({ mode: "open" });
  return [leaves, __corvex.childObjectAndInfo(el("h")).map((record) => record.nameInLeaf).join() === leaves + ",SHADOW_ROOT"];
}, [["P1", "NODE1", "B1", "NODE2", "NODE3", "P2", "NODE1"], true]);

test("what is put around and into a name by the public functions", { page: '<p id="a" title="t"></p>' }, (kit) => {
  useScheme(kit);
  Corvex.addNameOfHook(() => "own");
  const o = kit.el("a");
  return [Corvex.nameOf(o), unescape(Corvex.nameOf(o, true)), Corvex.propertiesToName(o, ["tagName", "title", "none"]),
    Corvex.addVisibility("{a}", o), Corvex.unifyName("plain", o)];
}, ["own", "{visible='true' tagName='P' title='t'}", "tagName='P' title='t' ", "{visible='true' a}", "plain"]);

test("a parsed name: falsy values are left out, a replaced value keeps its place, a removed one goes", {}, () => {
  const name = new Corvex.ObjectName();
  [["a", "1"], ["b", ""], ["c", new Corvex.WildCardPropertyValue("x'*")], ["d", "4"], ["a", "2"]].forEach(
    ([property, value]) => name.addProperty(property, value));
  name.removeProperty("d");
  return [name.toString(), name.getPropertyNames(), name.getPropertyValue("d") === undefined];
}, ["{a='2' c?='x\\'*'}", ["a", "b", "c"], true]);

test("several options as one text, with the first free separator", {
  page: '<select id="s" multiple><option selected>a</option><option>b</option><option selected>c,d</option></select>'
}, ({ el }) => [
  [["a", "b"], ["a,b", "c;d"], [",;|-+*!/"], Corvex.getSelectedOptionTexts(el("s"))].map(Corvex.createMultiOptionString),
  ["a|b|", "a,b", "a|b", ","].map(Corvex.splitMultiOptionString)
], [["a,b,", "a,b|c;d|", ",;|-+*!/,", "a;c,d;"], [["a", "b"], ["a", "b"], ["a|b"], [""]]]);

test("texts for a recorded tab, menu and date", { page: '<p id="a" title="t"></p>' }, (kit) => {
  useScheme(kit);
  const name = escape(Corvex.nameOf(kit.el("a")));
  return [Corvex.createClickTabInformation(kit.el("a"), "T &1"), Corvex.createClickItemInformationForMenuItem(kit.el("a"),
    " Open  it "), Corvex.createChooseDateInformation(new Date(2024, 0, 5))].map((text) => text.replace(name, "NAME"));
}, ["&tabTitle=T%20%261&tabWidgetName=NAME", "&menuname=NAME&menuitemtext=Open%20it",
  "&selectedYear=2024&selectedMonth=1&selectedDay=5"]);

test("look-up in lists that have no function for it, and hooks that are added once", {}, () => {
  const hooks = top.__corvex__useIE8AndOlderEventDispatchingOverride__hooks;
  const hook = () => false;
  const before = hooks.length;
  Corvex.addOverrideHookForUseIE8EventDispatching(hook);
  Corvex.addOverrideHookForUseIE8EventDispatching(hook);
  return [Corvex.arrayIndexOf({ length: 2, 0: "a", 1: "b" }, "b"), Corvex.arrayIndexOf({ length: 0 }, "b"),
    hooks.length - before];
}, [1, -1, 1]);

test("colours: the unknown give null, and the support libraries leave no globals", {}, () => [
  ["red", "rgba(10%,0,0,.5)", "nocolour", "constructor", "", undefined].map(__corvex__parseCSSColor),
  [typeof module, typeof exports, typeof require, typeof kCSSColorTable]
], [[[255, 0, 0, 1], [26, 0, 0, 0.5], null, null, null, null], ["undefined", "undefined", "undefined", "undefined"]]);

test("a name is read up to a length and a depth, and says so beyond", {}, () => {
  const nested = (levels) => "{a=".repeat(levels - 1) + "{tagName='P'}" + "}".repeat(levels - 1);
  const long = (length) => "{tagName='" + "x".repeat(length - 12) + "'}";
  const innermost = (name) => {
    const inner = name.getPropertyValue("a");
    return inner ? innermost(inner) : name.toString();
  };
  return [nested(100), nested(101), nested(20000), long(1000000), long(1000001), "{a=" + "{".repeat(200000)].map((text) => {
    const fault = __corvex.faultOfName(text);
    return fault ? fault.fault : innermost(__corvex.parseMultiPropertyName(text)).length;
  });
}, [13, "it holds names in more than 100 levels", "it holds names in more than 100 levels", 1000000,
  "it has 1000001 characters, and 1000000 are read at most", 2]);
