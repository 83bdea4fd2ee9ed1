// Cases of context names, of the way from a name or a node to its window, and of frames by the names that pages give.

test("a context is the last path element of the location; an unreadable window has the empty name", {}, () => [
  "http://h/a/b.html", "http://h/a/b.html?q=/x/y#f", "http://h/a/b.html#f;g", "http://h/a/b.html;j=1?x", "http://h/",
  "http://h/a/?q", "http://h/a/;s=1", "data:text/html,<p>/x", "about:blank", "http://h/a%20b.html", "http://h", ""
].map((location) => ({ location })).concat(null, { closed: true, location: "http://h/x" },
  { get location() { throw new Error("no"); } }).map((w) => __corvex__contextOf(w, true)),
["b.html", "b.html", "b.html", "b.html", "index.html", "", "", "top", "about:blank", "a%20b.html", "h", "", "", "", ""]);

test("frames count through the whole document, nested ones by level", {
  page: '<div><iframe id="a"></iframe></div><iframe id="b"></iframe>'
}, ({ el, frame }) => {
  const inner = frame("b", "<p><iframe></iframe></p><iframe></iframe>").frames[1];
  const base = __corvex__contextOf(window);
  const before = [__corvex__contextOf(inner) === base + ".FRAME2.FRAME2",
    __corvex__findContext2(base + ".FRAME2.FRAME2") === inner, __corvex__hasContext(base + ".FRAME2.FRAME3")];
  document.body.insertBefore(document.createElement("iframe"), document.body.firstChild);
  return before.concat(__corvex__contextOf(inner) === base + ".FRAME3.FRAME2",
    __corvex__frameInWindow(el("b"), window), __corvex__frameInWindow(document.body, window));
}, [true, true, false, true, 3, 0]);

test("a frame whose parent hides its element has the number 0", {}, () => __corvex__contextOf(
  { parent: { document, location: "http://h/p.html" }, frameElement: null, location: "http://h/f.html" }, true), "p.html.FRAME0");

test("windows with the same page are numbered in the order of hooking, closed ones are no contexts", {}, ({ flags }) => {
  const location = "http://h/list.html";
  const [a, b, closed, blank, stranger] = [{ location }, { location }, { location, closed: true },
    { location: "http://h/?" }, { location }];
  const same = { location: String(window.location) };
  flags({ windows: [a, closed, b, blank, same] });
  return [[a, b, closed, blank, stranger].map((w) => __corvex__contextOf(w)), __corvex__contextList().length,
    __corvex__findContext2("list.html<2>") === b, __corvex__contextList()[0] === window, __corvex__contextOfForUrl(b),
    __corvex__contextOf(same) === __corvex__contextOf(window) + "<2>"];
}, [["list.html", "list.html<2>", "", "", "list.html<2>"], 4, true, true, "list.html%3C2%3E", true]);

test("a node leads to its window, a text to the own one", { page: '<p id="p">x</p><iframe id="f"></iframe>' },
  ({ el, frame }) => {
    const inner = frame("f", "<iframe></iframe>").frames[0];
    return [__corvex__currentContext(inner.document.body) === inner, __corvex__currentContext(inner.document) === inner,
      __corvex__currentContext(el("p").firstChild) === window, __corvex__currentContext() === window,
      __corvex__findDocument(window, inner.document) === inner, __corvex__findDocument(inner, document) === undefined];
  }, [true, true, true, true, true, true]);

test("a context that does not exist yet comes to life when its window is hooked", {}, () => {
  const w = { location: "http://h/late.html", document };
  const steps = [__corvex__setContext("late.html"), window.__corvex__ctxwin_str, window.__corvex__ctxwin === window,
    window.__corvex__explicitContext === undefined];
  __corvex__hookupWindow(w);
  steps.push(window.__corvex__ctxwin === w);
  window.__corvex__windows.push(w);
  return steps.concat(__corvex__setContext("late.html"), window.__corvex__explicitContext === w);
}, [false, "late.html", true, true, true, true, true]);

test("ids outrank names of frames, and names outrank numbers", {
  page: '<iframe name="FRAME2"></iframe><iframe name="two"></iframe><iframe name="x" id="y"></iframe><iframe name="y"></iframe>' +
    '<p id="two"></p>'
}, () => {
  const frames = Array.from(document.querySelectorAll("iframe"));
  return ["FRAME2", "y", "two", "FRAME1", "xFRAME4y", "FRAME0", "FRAME9", "none"].map(
    (name) => frames.indexOf(__corvex__findFrame(document, name)));
}, [0, 2, 1, 0, 3, -1, -1, -1]);

test("a frame path is walked from the own document", { page: '<iframe id="f" name="outer"></iframe>' }, ({ frame }) => {
  const outer = frame("f", '<iframe name="inner"></iframe>');
  const select = (path) => [__corvex__setFrameContext(path), [window, outer, outer.frames[0]].indexOf(window.__corvex__ctxwin)];
  return [["outer.inner", "none.inner"].map(__corvex__hasFrameContext), ["outer.FRAME1", "FRAME1", "outer.none"].map(select),
    window.__corvex__ctxwin_str];
}, [[true, false], [[true, 2], [true, 1], [false, 1]], ""]);

test("the document of a name: bars for dots, unknown names by the flag", { page: '<iframe id="f"></iframe>' },
  ({ frame, flags }) => {
    const w = frame("f");
    const name = __corvex__contextOf(w).replace(/\./g, "|");
    const documents = [undefined, document, w.document];
    const of = () => [name, "", "no|html"].map((text) => documents.indexOf(__corvex__documentOfContext(text)));
    const lenient = of();
    flags({ throwErrorForUnknownContextName: true });
    return [lenient, of()];
  }, [[2, 1, 1], [2, 1, 0]]);

test("the target of a link: keywords, frames anywhere, else its own window", {
  page: '<iframe id="f" name="outer"></iframe>'
}, ({ frame, set }) => {
  set(window, "open", (url, target) => url + "," + target);
  const outer = frame("f", '<a></a><iframe id="deep"></iframe>');
  const link = outer.document.body.firstChild;
  return ["", "_top", "_parent", "_self", "_blank", "deep", "outer", "elsewhere", "toString"].map((target) => {
    link.target = target;
    const w = __corvex__findTargetWindow(link);
    return typeof w === "string" ? w : ["top", "own", "deep"][[window, outer, outer.frames[0]].indexOf(w)];
  }).concat(__corvex__findFrameRecursive(null, "x"), __corvex__findFrameRecursive(document, "FRAME7"));
}, ["own", "top", "top", "own", ",_blank", "deep", "own", "own", "own", null, null]);
