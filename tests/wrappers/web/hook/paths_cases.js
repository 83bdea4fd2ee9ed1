// Cases of property paths: they are read as the language reads them, and nothing else is.

const read = (o, path) => {
  try {
    return __corvex__valueAtPath(o, path);
  } catch (e) {
    return "error: " + e.message;
  }
};

test("a path has the value that the language gives it", {
  page: '<div id="d" title=" a.b " class="x" data-a.b="1" style="color: red"><b lang="de">x</b></div>'
}, ({ el }) => {
  const d = el("d");
  Object.assign(d, { me: d, class: "cc", "odd key": { "it's": { x: 3 } }, $a_1: { "\u00e4": 2 }, list: [[10, 20]] });
  d.say = function (...given) { return { self: this === d, given }; };
  return ["style.color", "children[0].lang", " children [ 0 ] . lang ", "title.length", "class.length",
    "me['odd key']['it\\'s'].x", "children[0].firstChild.data.length", "title.trim().length",
    "title.replaceAll('a', 'bc').length", "getAttribute('data-a.b').length", "getAttribute(\"data-a.b\").length",
    "attributes['title'].value", "$a_1.\u00e4", "list[0][1].toFixed(1)", "list[0].indexOf(20).x",
    "say(1, -2.5, .5, 1e2, 0x1f).given.join('+')", "say('a\\n\\u00e9\\x41\\\"\\\nb', true, false, null).given.join()",
    "say().self.x", "constructor.name.length", "children.length.x", "ownerDocument.defaultView.document.title.length"
  ].map((path) => {
    const expected = Function("o", "return o." + path)(d);
    const value = read(d, path);
    return value === expected ? "" : path + " gives " + value + " and not " + expected;
  }).join("");
}, "");

test("what is no path is an error of the name, and runs nothing", { page: '<p id="p" title="t"></p>' }, ({ el }) => {
  window.__corvex__ran = 0;
  el("p").run = () => ++window.__corvex__ran;
  return ["title.x + run()", "title.x, run()", "title.x = run()", "x.y = 1", "title.x++", "!title.x", "run.x || run()",
    "x.new Date()",
    "title[run()].x", "title[x].y", "run(title).x", "run(run()).x", "run(...[1]).x", "title.x; run()", "title`x`.y",
    "run(`x`).y",
    "run(/x/).y", "x.y ? 1 : 2", "(run()).x", "title.", ".title", "title..x", "title[0.x", "run(1 2).x", "run(1,).x", "run('x).y",
    "run('\\u12').x", "title[].x", "title?.x", "run(010).x", "a.b//c", "run(function () {}).x", "run(undefined).x",
    "#a.b", "run(1n).x"
  ].map((path) => read(el("p"), path)).filter(
    (answer) => !/^error: '.*' is no path of properties: /.test(answer)).concat(window.__corvex__ran);
}, [0]);

test("a wrong path is told with its place, a value that is missing on the way by its name", {
  page: '<p id="p" title="t"></p>'
}, ({ el }) => ["title.x+1", "title.", "none.more", "offsetParent.none.more", "title.none()", "title.length().x", "title[",
  "run('x"].map((path) => read(el("p"), path)), [
  "error: 'title.x+1' is no path of properties: '+1' follows 'title.x'",
  "error: 'title.' is no path of properties: the name of a property is missing after 'title.'",
  "error: 'none' in the path 'none.more' is undefined", "error: 'none' in the path 'offsetParent.none.more' is undefined",
  "error: 'none' in the path 'title.none()' is undefined",
  "error: 'length' in the path 'title.length().x' is no function",
  "error: 'title[' is no path of properties: a text or a number is missing after 'title['",
  "error: 'run('x' is no path of properties: a text, a number, true, false or null is missing after 'run('"
]);

test("a path runs no text as code", { page: '<p id="p"></p><script id="s" type="none"></script><iframe id="f"></iframe>' },
  ({ el, frame }) => {
    frame("f");
    window.__corvex__ran = 0;
    const code = "('window.__corvex__ran = 1')";
    const html = "('beforeend', '<img onerror=window.__corvex__ran=1 src=x>').x";
    return ["constructor.constructor" + code + ".length", "constructor.constructor" + code + "()",
      "click.constructor" + code + "()", "click.call(null).x",
      "ownerDocument.defaultView.eval" + code, "ownerDocument.defaultView.setTimeout" + code + ".x",
      "ownerDocument.defaultView.frames[0].eval" + code, "ownerDocument.location.assign('javascript:window.__corvex__ran=1').x",
      "ownerDocument.location.replace('javascript:window.__corvex__ran=1').x",
      "ownerDocument.write('<script>window.__corvex__ran=1</script>').x", "insertAdjacentHTML" + html,
      "ownerDocument['write']" + code + ".x", "setAttribute('onclick', 'window.__corvex__ran=1').x",
      "ownerDocument.scripts[0].append" + code + ".x"
    ].map((path) => read(el("p"), path)).filter((answer) => !/^error: /.test(answer)).concat(
      window.__corvex__ran, el("p").outerHTML);
  }, [0, '<p id="p"></p>']);

test("length and depth of a path are bounded", {}, () => {
  const deep = {};
  deep.a = deep;
  return ["a".repeat(10001) + ".b", ".a".repeat(101).substring(1), ".a".repeat(100).substring(1)].map((path) => {
    const value = read(deep, path);
    return value === deep ? "read" : value.replace(/a[a.]{3,}/g, "...");
  });
}, ["error: '...' is no path of properties: it has 10003 characters, and 10000 are read at most",
  "error: '...' is no path of properties: it has more than 100 steps", "read"]);

test("a search for a name with a wrong path finds nothing, and says why", { page: '<p title="t"></p>' }, () => {
  const name = "{tagName='P' title.x+1='t'}";
  return [__corvex__findObject(name) === undefined, __corvex.explainFailedSearch(name).error];
}, [true, "'title.x+1' is no path of properties: '+1' follows 'title.x'"]);
