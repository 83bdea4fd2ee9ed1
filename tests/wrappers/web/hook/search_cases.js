// Cases of the search by properties, the search for plain words, and the search at a point.

const found = (name) => {
  const element = __corvex__findObject(name);
  return element ? element.id || element.tagName : null;
};
const below = (container, names) => names.map((name) => {
  const element = __corvex__findObjectByProps(container, name);
  return element ? element.id : null;
});

test("occurrence counts from one; 0, a text and a pattern count as one", {
  page: '<input id="a" name="q"><input id="b" name="q"><input id="c" name="q">'
}, () => ["", " occurrence='1'", " occurrence='2'", " occurance='3'", " occurrence='0'", " occurrence='x'",
  " occurrence~='3'", " occurrence='4'"].map((occurrence) => found("{tagName='INPUT' name='q'" + occurrence + "}")),
["a", "a", "b", "c", "a", "a", "a", null]);

test("a form is found by its name attribute; a wrong, unknown or empty one does not hinder", {
  page: '<form id="f1" name="one"><input name="elements"><input name="name"><input id="a" name="q"></form>' +
    '<form id="f2" name="two"><input id="c" name="q"></form><select id="s"></select>'
}, () => ["tagName='INPUT' name='q' form='two'", "tagName='INPUT' name='q' form='one'", "tagName='INPUT' name='q' form='f2'",
  "tagName='INPUT' name='q' form~='two'", "tagName='SELECT' form='one'"].map((name) => found("{" + name + "}")),
["c", "a", "a", "a", "s"]);

test("no tagName, a pattern as tagName, and no name at all find nothing; the direct caller is told", {
  page: '<p id="a" title="t"></p>'
}, () => {
  const names = ["{title='t'}", "{tagName?='P*' title='t'}", "{tagName~='P' title='t'}", "{title}"].map(found);
  try {
    return below(document, ["{title='t'}"]);
  } catch (e) {
    return names.concat(e.message);
  }
}, [null, null, null, null, "The name {title='t'} has no tagName; add one, the search needs it."]);

test("below an element, its own shadow root comes last", {
  page: '<div id="h"><b id="x" title="t"></b></div><b id="y" title="t"></b>'
}, ({ el }) => {
  el("h").attachShadow({ mode: "open" }).innerHTML = '<b id="s" title="t"></b><p><i id="i"></i></p>';
  return below(el("h"), ["{tagName='B' title='t'}", "{tagName='B' title='t' occurrence='2'}", "{tagName='I'}",
    "{tagName='B' occurrence='3'}"]).concat(found("{tagName='I'}"));
}, ["x", "s", "i", null, null]);

test("below a shadow root", { page: '<div id="h"></div><a title="out"></a>' }, ({ el }) => {
  const root = el("h").attachShadow({ mode: "open" });
  root.innerHTML = '<form name="f"><input id="i"></form><a id="l"><img alt="p"></a>';
  return below(root, ["{tagName='INPUT' form='f'}", "{tagName='A' img_alt='p'}", "{tagName='A' title='out'}"]);
}, ["i", "l", null]);

test("an image link is found by its image, whichever of its images that is", {
  page: '<a id="l0">text</a><a id="l1"><img alt="Other" src="a.png"><img alt="Second"></a>' +
    '<a id="l2"><img id="i2" name="n2" alt=" Save  it " src="dir/save.png"></a>' +
    '<a id="l3"><img alt="Save it" src="x/save.png"></a><img id="free" alt="C">'
}, () => ["alt='Save it'", "src?='*save.png'", "id='i2'", "name='n2'", "alt='Save it' occurrence='2'", "id='nope'",
  "alt='Second'", "alt='C'"].map((image) => found("{tagName='A' img_" + image + "}")),
["l2", "l2", "l2", "l2", "l3", null, "l1", "free"]);

test("a factory is asked before the standard matcher, the latest first", { page: '<p id="a"></p><p id="b"></p>' }, () => {
  const log = [];
  const isB = { matchObject: (o) => o.id === "b" };
  Corvex.addPropertyMatcherFactory((name) => log.push("1" + name) > 0 && name === "own" && isB);
  Corvex.addPropertyMatcherFactory((name) => log.push("2" + name) === 0);
  return [found("{tagName='P' own='x'}"), log];
}, ["b", ["2own", "1own"]]);

test("an error of a hook ends the search of its document alone", {
  page: '<p title="t"></p><iframe id="f"></iframe>'
}, ({ frame }) => {
  frame("f", '<p id="in" title="t"></p>');
  Corvex.addMatchObjectHook((o) => {
    if (o.ownerDocument === document) {
      throw new Error("x");
    }
  });
  return found("{tagName='P' title='t'}");
}, "in");

test("properties with the names of built-in members, and a text with quotes", {
  page: '<p id="a" length="3" constructor="c"></p><p></p><div id="d">  Say\n <b>"it\'s"</b> \\ </div>'
}, () => ["{tagName='P' length='3'}", "{tagName='P' constructor='c'}",
  "{tagName='DIV' simplifiedInnerText='Say \"it\\'s\" \\\\'}"].map(found), ["a", "a", "d"]);

test("the current context wins, and a hit moves it", {
  page: '<iframe id="f"></iframe><p id="outer" title="t"></p>'
}, ({ frame }) => {
  frame("f", '<p id="inner" title="t"></p><p id="only" title="u"></p>');
  return ["t", "u", "t", "zz"].map((title) => [found("{tagName='P' title='" + title + "'}"), window.__corvex__ctxwin === window]);
}, [["outer", true], ["only", false], ["inner", false], [null, false]]);

test("a frame comes before those in it, and before those after it", {
  page: '<iframe id="f"></iframe><iframe id="g"></iframe>'
}, ({ frame }) => {
  frame("g", '<p id="last"></p>');
  const w = frame("f", '<iframe id="n"></iframe><p id="first"></p>');
  w.frames[0].document.body.innerHTML = '<p id="nested"></p>';
  const ids = [found("{tagName='P'}")];
  w.document.getElementById("first").remove();
  window.__corvex__ctxwin = window;
  return ids.concat(found("{tagName='P'}"), __corvex.findAllObjects("{tagName='P'}").length);
}, ["first", "nested", 2]);

test("a context overrides the container; an unknown one fails only when asked to", {
  page: '<iframe id="f"></iframe><p id="outer"></p>'
}, ({ frame, flags }) => {
  const context = __corvex__contextOf(frame("f", '<p id="inner"></p>'));
  const names = [context, "nowhere"].map((name) => "{context='" + name + "' tagName='P'}");
  const lenient = below(document, names);
  flags({ throwErrorForUnknownContextName: true });
  return lenient.concat(below(document, names));
}, ["inner", "outer", "inner", null]);

test("a name among many like it in other documents takes a few searches", { page: '<iframe id="f"></iframe>' },
  ({ frame }) => {
    const text = '<b title="t"></b>'.repeat(200);
    const name = "{tagName='B' title='t'}";
    let asked = 0;
    document.body.insertAdjacentHTML("beforeend", text);
    const inner = frame("f", text + text);
    const all = inner.document.querySelectorAll("b");
    __corvex__matchObject__hooks.push(() => { ++asked; });
    const names = [all[9], all[299]].map((element) => {
      window.__corvex__ctxwin = window;
      return __corvex__uniquifyName(name, element);
    });
    return [names, window.__corvex__ctxwin === inner, asked < 5000];
  }, [["{tagName='B' title='t'}", "{tagName='B' title='t' occurrence='300'}"], true, true]);

test("a search in vain asks each document once, an extension's matchers as often as it comes by", {
  page: '<p id="p" title="t">x</p>'
}, ({ el }) => {
  let asked = 0;
  let reads = 0;
  Object.defineProperty(el("p"), "mark", { get: () => { ++reads; return "no"; } });
  found("{tagName='P' mark='x'}");
  Corvex.addPropertyMatcherFactory((name) => name === "own" && { matchObject: () => { ++asked; return false; } });
  found("{tagName='P' own='x'}");
  return [reads, asked];
}, [1, 2]);

test("while the page stays, an element is asked once, and afterwards anew", { page: '<p id="p">x</p>' }, ({ el }) => {
  const finds = () => found("{visible='true' tagName='P' simplifiedInnerText='x'}") === "p";
  const kept = __corvex__whilePageStays(() => {
    const first = finds();
    el("p").textContent = "y";
    return [first, __corvex__whilePageStays(finds), finds()];
  });
  try {
    __corvex__whilePageStays(() => { throw new Error("x"); });
  } catch (e) {
    return kept.concat(finds());
  }
}, [true, true, true, false]);

test("a quiet search of many elements gives what a single one gives, whatever the values are", {
  page: '<form name="fo"><input id="f1" name="q" value=" two  words "></form><input id="f2" name="q" value="two words">' +
    '<input id="f3" name="07" value="7"><li id="l1" value="7">7</li><p id="p1" name=" q ">q</p><p id="p2" title="q">q</p>' +
    '<p id="p3">two  words</p><p id="p4">two words</p><p id="p5"></p><a id="a1"><img id="i1" name="q"></a><a id="a2">q</a>'
}, ({ el }) => {
  el("p5").name = 7;
  el("p2").name = true;
  const texts = ["q", " q ", "two words", " two  words ", "7", "07", "true", "", "__proto__", "no"];
  const names = ["INPUT", "LI", "P", "A"].flatMap((tag) => ["name", "value", "simplifiedInnerText", "id", "img_name"]
    .flatMap((prop) => texts.flatMap((text) => [`{tagName='${tag}' ${prop}='${text}'}`,
      `{tagName='${tag}' form='fo' ${prop}='${text}'}`, `{tagName='${tag}' ${prop}='${text}' title='q'}`])));
  const hitsOf = (name) => __corvex__hitsInPage(name).map((hit) => hit.id).join();
  const single = names.map(hitsOf);
  const quiet = __corvex__quietly(() => names.map(hitsOf));
  return [names.filter((name, i) => single[i] !== quiet[i]), single.filter((hits) => hits).length > 20];
}, [[], true]);

test("plain words: link, id, name, label or button, DIV, in this order", {
  page: '<div id="d">w</div><button type="button" id="bt">w</button><input id="in" name="w"><p id="w">p</p>' +
    '<a href="#" id="l">w</a>'
}, ({ el }) => ["l", "w", "in", "bt", "d"].map((id) => {
  const word = found("w");
  el(id).remove();
  return word;
}).concat(found("w")), ["l", "w", "in", "bt", "d", null]);

test("plain words: labels lead to controls, a lost label ends the scan, buttons have values, outer DIVs come first", {
  page: '<label for="c">Name</label><input id="c"><label for="gone">Lost</label>' +
    '<input type="button" id="b" value="Lost"><div id="d">Lost</div><input type="button" id="g" value="Go  on">' +
    '<div id="o"><div id="i">deep</div></div><a id="n">no href</a>'
}, () => ["Name", "Lost", "Go  on", "Go on", "deep", "no href"].map(found), ["c", "d", "g", null, "o", null]);

test("plain words: found in a frame, which becomes the context", { page: '<iframe id="f"></iframe>' }, ({ frame }) => {
  const w = frame("f", '<div id="x">words</div>');
  return [found("words"), window.__corvex__ctxwin === w];
}, ["x", true]);

const box = (id, left, top, width, height, inner, more) => `<div id="${id}" ${more || ""} style="position:absolute;` +
  `left:${left}px;top:${top}px;width:${width}px;height:${height}px">${inner || ""}</div>`;
const at = (x, y) => {
  const root = document.getElementById("r");
  const place = __corvex__getScreenRectAsObject(root);
  const element = __corvex__childAt(root, place.x + x, place.y + y);
  return element && element.id;
};

test("at a point: the deepest, the first in the document, edges included, nothing outside", {
  page: box("r", 0, 0, 200, 200, box("a", 0, 0, 50, 50, box("b", 10, 10, 10, 10)) + box("c", 40, 40, 50, 50))
}, () => [at(15, 15), at(45, 45), at(50, 50), at(60, 60), at(150, 150), at(250, 10)], ["b", "a", "a", "c", "r", null]);

test("at a point: a child larger than its parent is passed over, one without a size is entered", {
  page: box("r", 0, 0, 100, 100, box("z", 0, 0, 0, 0, box("in", 60, 60, 20, 20)) + box("big", 0, 0, 300, 20))
}, () => [at(70, 70), at(10, 10)], ["in", "r"]);

test("at a point: glass panes are looked through, by id and by class", {
  page: box("r", 0, 0, 9, 9, box("pane", 0, 0, 9, 9) + box("veil", 0, 0, 9, 9, "", 'class="my veil"') + box("c", 0, 0, 9, 9))
}, () => {
  const answers = [at(5, 5)];
  __corvex.addGlassPaneId("pane");
  answers.push(at(5, 5));
  __corvex.addGlassPaneClassName("my veil");
  return answers.concat(at(5, 5));
}, ["pane", "veil", "c"]);
