// Cases of positions and rectangles: in the page, in the view, on the screen, in an image of the page.

const box = (id, left, top, width, height, inner) => `<div id="${id}" style="position:absolute;left:${left}px;top:${top}px;` +
  `width:${width}px;height:${height}px">${inner || ""}</div>`;

test("element positions walk the offset parents and count table borders", {
  page: '<div style="position:absolute;left:30px;top:20px;border:3px solid"><table border="4" cellspacing="0" ' +
    'style="position:absolute;left:10px;top:5px"><tr><td id="t" style="padding:0">x</td></tr></table></div>' +
    '<table frame="box" id="u" style="position:absolute;left:7px;top:8px"></table>'
}, ({ el }) => {
  const position = __corvex__elementPos(el("t"));
  for (let o = el("t"); o; o = o.offsetParent) {
    position.x -= o.offsetLeft;
    position.y -= o.offsetTop;
  }
  return [position, __corvex__elementPos(el("u")), __corvex__elementPos(null)];
}, [{ x: 4, y: 4 }, { x: 8, y: 9 }, { x: 0, y: 0 }]);

test("client rectangles are cut at the near sides of the view", { page: box("a", -30, -100, 50, 40) + box("b", 10, 20, 5, 6) },
  ({ el }) => [__corvex__getClientBoundingRect(el("a")), __corvex__getClientBoundingRect(el("a"), false),
    __corvex__getClientBoundingRect(el("b")), __corvex__getClientBoundingRect(document)].map(__corvex__getRectAsString),
  ["0,-1,20,-1", "-30,-100,50,40", "10,20,5,6", "0,0,0,0"]);

test("a wrapped link reports its first line", {
  page: '<div style="position:absolute;width:60px;font:16px/20px monospace"><a id="a" href="#">first second third</a></div>'
}, ({ el }) => {
  const all = el("a").getBoundingClientRect();
  const reported = __corvex__getClientBoundingRect(el("a"));
  return [reported.height < all.height, reported.y === all.top];
}, [true, true]);

const inView = (element, w) => {
  const view = __corvex__getViewportScreenPosition(document, window);
  const rect = __corvex__getScreenRectAsObject(element);
  const ratio = (w || window).devicePixelRatio;
  return [rect.x - view.x, rect.y - view.y, rect.width, rect.height].map((field) => field / ratio);
};

test("screen rectangles are clipped at the far sides, and invalid beyond", {
  page: box("a", 100, 110, 5000, 6000) + box("b", 6000, 0, 5, 5) + box("c", 5, 5, 0, 5)
}, ({ el }) => [inView(el("a")).join() === [100, 110, innerWidth - 100, innerHeight - 110].join(),
  __corvex__getScreenRect(el("b")), __corvex__getScreenRect(el("c"))], [true, "-1,-1,-1,-1", "-1,-1,-1,-1"]);

test("screen rectangles scale with the device pixel ratio", { page: box("a", 10, 20, 30, 5000) }, ({ el }) => {
  const own = Object.getOwnPropertyDescriptor(window, "devicePixelRatio");
  Object.defineProperty(window, "devicePixelRatio", { value: 2, configurable: true });
  try {
    return inView(el("a"), { devicePixelRatio: 1 }).join() === [20, 40, 60, 2 * (innerHeight - 20)].join();
  } finally {
    Object.defineProperty(window, "devicePixelRatio", own);
  }
}, true);

test("a frame adds its place and border to screen rectangles", {
  page: '<iframe id="f" style="position:absolute;left:40px;top:50px;border:7px solid;border-top-width:9px;padding:0"></iframe>'
}, ({ frame }) => {
  const w = frame("f", box("p", 3, 4, 10, 11));
  return [inView(w.document.body.firstChild), __corvex__framePositionInView(window), __corvex__getFrameOffset(w)];
}, [[50, 63, 10, 11], { x: 0, y: 0 }, { x: 40, y: 50 }]);

test("stable rectangles do not follow the scroll position", {
  page: '<div style="height:5000px"></div>' + box("p", 10, 600, 20, 30)
}, ({ el }) => {
  const before = __corvex.getElementRectAsObject(el("p"));
  window.scrollTo(0, 500);
  const after = __corvex.getElementRectAsObject(el("p"));
  return [__corvex__getPageOffset(), before.x === after.x, before.y === after.y, before.width, before.height,
    before.y - (screenY + outerHeight - innerHeight)];
}, [[0, 500], true, true, 20, 30, 600]);

test("document rectangles: scrolled out of a clipping parent is invalid", {
  page: '<div id="c" style="position:absolute;left:50px;top:60px;width:100px;height:100px;overflow:auto">' +
    '<div id="a" style="height:40px"></div><div id="b" style="height:30px"></div><div style="height:900px"></div></div>'
}, ({ el }) => {
  const rect = (id, zoom) => {
    const made = __corvex.getElementRectangleInDocument(el(id), zoom);
    return made.x === -1 ? "invalid" : [made.x, made.y, made.height].map((field) => field / devicePixelRatio).join();
  };
  const rects = [rect("a", 1), rect("a", 2)];
  el("c").scrollTop = 40;
  rects.push(rect("a", 1), rect("b", 1));
  el("c").style.position = "static";
  el("c").style.overflow = "visible";
  return rects.concat(rect("a", 1) !== "invalid");
}, ["50,60,40", "100,120,80", "invalid", "50,100,30", true]);

test("the document is as large as what it shows, also where elements are named width and height", {
  page: box("a", 0, 0, 3000, 4000) + '<img name="height"><img name="width">'
}, () => __corvex.getDocumentSize(), { width: 3000, height: 4000 });

test("where the view starts, as each embedding tells it", {
  // Firefox tells itself where its view is, which comes before every embedding.
  only: "chromium",
  page: '<iframe id="f" style="position:absolute;left:40px;top:50px;border:5px solid;padding:0"></iframe>'
}, ({ frame, flags }) => {
  const w = frame("f", box("p", 3, 4, 10, 6));
  const bridge = { screenX: () => 100, screenY: () => 200, zoomScale: () => 2 };
  const look = () => __corvex__getViewportScreenPosition(w.document, w);
  const answers = [];
  flags({ eventLoggerBridge: bridge, qwebkitEventLoggerBridge: bridge });
  [["qwebview", true], ["javafxwebview", true], ["swtfunction", (what) => (what === "screenX" ? 7 : 8)],
    ["cocoawebview", true]].forEach(([name, value]) => {
    flags({ [name]: value });
    answers.push(Object.values(look()).join());
    if (name === "cocoawebview") {
      answers.push(__corvex__getScreenRect(w.document.body.firstChild));
    }
    flags({ [name]: undefined });
  });
  w.mozInnerScreenX = 11;
  w.mozInnerScreenY = 12;
  return answers.concat(Object.values(look()).join());
}, ["145,255", "140,250", "52,63", "100,200", "106,208,20,12", "11,12"]);

test("an element of an image has no offsets, and is clicked and measured where it is", {
  page: '<div style="height:3000px"></div><svg style="position:absolute;left:20px;top:1000px" width="50" height="50">' +
    '<rect id="r" x="10" y="10" width="30" height="20"></rect></svg>'
}, ({ el }) => {
  const places = [];
  window.scrollTo(0, 900);
  el("r").addEventListener("click", (e) => places.push(e.clientX, e.clientY));
  __corvex__click(el("r"), false, false, false, 0, 0, 0);
  const stable = __corvex.getElementRectAsObject(el("r"));
  const rect = __corvex__getRectAsString(__corvex.getElementRectangleInDocument(el("r"), 1));
  window.scrollTo(0, 0);
  return [places, rect, stable.width, stable.height, stable.y === __corvex.getElementRectAsObject(el("r")).y];
}, [[35, 115], "30,1010,30,20", 30, 20, true]);
