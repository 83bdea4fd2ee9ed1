// Cases of the platforms on which input is replayed as touches, each with the engine that it has.

const BRIDGE = { screenX: () => 300, screenY: () => 200 };
const PLATFORMS = {
  cocoatouch: { cocoatouchwebview: true, eventLoggerBridge: BRIDGE },
  android: { androidwebview: true, qwebkitEventLoggerBridge: BRIDGE },
  "proxy on a mobile device": { proxy: true, mobiledevice: true },
  proxy: { proxy: true },
  "mobile device": { mobiledevice: true },
  "other view": { qwebview: true, qwebkitEventLoggerBridge: BRIDGE }
};
const PAGE = '<p id="t" style="position:absolute;left:40px;top:30px;width:90px;height:50px;margin:0">x</p>';

// What reaches the element from now on; a type among `prevented` has its default prevented there.
function listen(element, prevented) {
  const types = [];
  ["touchstart", "touchend", "mouseover", "mousedown", "mouseup", "click", "mouseout"].forEach((type) => {
    element.addEventListener(type, (e) => {
      types.push(type);
      if (prevented && prevented.indexOf(type) >= 0) {
        e.preventDefault();
      }
    });
  });
  return types;
}

// An engine whose touch events are initialised. What each was given is kept.
function initialisedTouches(set) {
  const { createEvent } = document;
  const given = [];
  set(window, "Touch", function (values) { Object.assign(this, values); });
  set(document, "createEvent", (kind) => {
    if (kind !== "TouchEvent") {
      return createEvent.call(document, kind);
    }
    const event = createEvent.call(document, "Event");
    event.initTouchEvent = (...args) => {
      given.push(args);
      event.initEvent(...args.slice(0, 3));
    };
    return event;
  });
  return given;
}

// An engine whose touch events are constructed.
function constructedTouches(set) {
  const given = [];
  set(window, "Touch", function (values) { Object.assign(this, values); });
  set(window, "TouchEvent", function (type, values) {
    given.push(values);
    return new Event(type, values);
  });
  set(document, "createEvent", () => { throw new Error("no such kind"); });
  return given;
}

test("platforms that replay touches, and record them", {}, ({ flags }) => Object.keys(PLATFORMS).filter((name) => {
  Object.keys(PLATFORMS).forEach((other) => Object.keys(PLATFORMS[other]).forEach((flag) => flags({ [flag]: false })));
  flags(PLATFORMS[name]);
  const replays = window.top.__corvex__emulateViaTouchEvents();
  if (replays !== __corvex__recordTouchEvents()) {
    throw new Error(name + " records other than it replays");
  }
  return replays;
}), ["cocoatouch", "android", "proxy on a mobile device"]);

["cocoatouch", "android", "proxy on a mobile device"].forEach((platform) => {
  test("what a touch event is initialised with: " + platform, { page: PAGE }, ({ el, flags, set }) => {
    const given = initialisedTouches(set);
    flags(PLATFORMS[platform]);
    __corvex__click(el("t"), true, true, false, 3, 4, 1);
    const [start, end] = given;
    const lists = start.slice(13, 16);
    return [start.slice(0, 3), end[0], start[3] === window, start.slice(4, 13),
      lists.every((list) => list === lists[0] && list.length === 1), start.slice(16)];
  }, [["touchstart", true, true], "touchend", true, [1, 0, 0, 0, 0, true, false, true, false], true,
    platform === "android" ? [] : [1, 0]]);
});

test("what a touch event is constructed with, where nothing initialises one", { page: PAGE }, ({ el, flags, set }) => {
  const given = constructedTouches(set);
  const types = listen(el("t"));
  flags(PLATFORMS.cocoatouch);
  const again = __corvex__clickViaTouchEvents(el("t"), false, false, false, 1, 1);
  const { touches, targetTouches, changedTouches, bubbles, cancelable, composed } = given[0];
  return [types, again, [touches, targetTouches, changedTouches].map((list) => list.length + "" + (list[0] === touches[0])),
    bubbles, cancelable, composed];
}, [["touchstart", "touchend"], true, ["1true", "1true", "1true"], true, true, true]);

test("where a touch is: in the element, the page and on the screen", {
  page: PAGE + '<div style="height:9000px"></div>'
}, ({ el, flags, set }) => {
  const given = constructedTouches(set);
  flags(PLATFORMS.cocoatouch);
  [["mozInnerScreenX", 300], ["mozInnerScreenY", 200]].forEach(([name, value]) => {
    set(window, name, value);
    Object.defineProperty(window, name, { configurable: true, value });
  });
  const pointAt = (x, y) => {
    __corvex__clickViaTouchEvents(el("t"), false, false, false, x, y);
    const p = given.pop().touches[0];
    return [p.clientX, p.clientY, p.pageX, p.pageY, p.screenX, p.screenY, p.identifier, p.target === el("t")];
  };
  const shown = [pointAt(3, 4), pointAt(undefined, undefined), pointAt(0, 0)];
  window.scrollTo(0, 600);
  // What is out of view counts as just outside of it, and as at the screen's corner.
  return shown.concat([pointAt(3, 4)]);
}, [[43, 34, 43, 34, 343, 234, 0, true], [40, 30, 40, 30, 340, 230, 0, true], [40, 30, 40, 30, 340, 230, 0, true],
  [43, -597, 43, 3, 3, 4, 0, true]]);

test("a touch whose default is prevented, at its start or end, replaces the click", { page: PAGE }, ({ el, flags, set }) => {
  const given = [constructedTouches, initialisedTouches];
  flags(PLATFORMS.cocoatouch);
  return given.map((engine) => [[], ["touchstart"], ["touchend"]].map((prevented) => {
    engine(set);
    el("t").outerHTML = PAGE;
    const types = listen(el("t"), prevented);
    __corvex__click(el("t"), false, false, false, 1, 1, 1);
    return types.length;
  }));
}, [[7, 2, 2], [7, 2, 2]]);

test("the mouse follows each kind of touch as it does alone", { page: PAGE }, ({ el, flags, set }) => {
  constructedTouches(set);
  flags(PLATFORMS.android);
  const types = listen(el("t"));
  const clicks = [
    () => __corvex__click(el("t"), false, false, false, 1, 1, 1),
    () => __corvex__clickButton(el("t"), false, false, false, 1, 1, 1),
    () => __corvex__clickLink(el("t"))
  ];
  return clicks.map((click) => {
    click();
    return types.splice(0).join();
  });
}, ["mouseover,mousedown,click,mouseup,mouseout", "mousedown,click,mouseup,mouseout",
  "mouseover,mousedown,click,mouseup,mouseout"].map((mouse) => "touchstart,touchend," + mouse));
