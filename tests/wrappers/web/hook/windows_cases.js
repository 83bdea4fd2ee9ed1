// Cases of the replaced open and dialogs, and of further top-level windows.

const native = () => {};
// A window as the hook sees one.
const fakeWindow = (more) => Object.assign(
  { location: "http://h/x.html", document: { addEventListener: native }, open: native, alert: native, prompt: native,
    confirm: native }, more);
const hooked = (w) => {
  __corvex__hookupWindow(w);
  return ["open", "alert", "prompt", "confirm"].filter((name) => w[name] !== native).join();
};

test("open and the dialogs are replaced once, and the native ones kept", { page: '<iframe id="f"></iframe>' }, ({ frame }) => {
  const w = frame("f");
  const natives = [w.open, w.alert, w.prompt, w.confirm];
  __corvex__hookupWindow(w);
  __corvex__hookupWindow(w);
  return [[w.__corvex__reallyOpen, w.__corvex__origAlert, w.__corvex__origPrompt, w.__corvex__origConfirm].every(
    (f, i) => f === natives[i]), w.open === __corvex__open, w.alert === __corvex__alert2, w.prompt === __corvex__prompt,
  w.confirm === __corvex__confirm];
}, [true, true, true, true, true]);

test("without a word on new windows a window is done once", {}, ({ flags }) => {
  const w = fakeWindow();
  flags({ newwindowhook: undefined });
  const replaced = [hooked(w), w.__corvex__hooked__alertAndCo];
  w.alert = native;
  replaced.push(hooked(w));
  flags({ newwindowhook: true });
  return replaced.concat(hooked(fakeWindow()));
}, ["open,alert,prompt,confirm", true, "open,prompt,confirm", "alert,prompt,confirm"]);

test("open stays native where the browser side watches windows", {}, ({ flags }) => [
  { improvedTabAndWindowSupport: true, microsoftedge: true }, { edge: true }, { improvedTabAndWindowSupport: false }
].map((values) => {
  flags(values);
  return hooked(fakeWindow()).indexOf("open") !== -1;
}), [true, false, true]);

test("embedded views keep their dialogs, unless they are to be silent", {}, ({ flags }) => [
  { qwebview: true }, { suppress__webdialogs: true }
].map((values) => {
  const w = fakeWindow();
  flags(values);
  return [hooked(w), w.__corvex__origAlert === native];
}), [["open", true], ["open,alert,prompt,confirm", true]]);

test("a page that wraps the replacements still reaches the native dialog, once", {}, ({ flags, set, sent }) => {
  const shown = [];
  const wrap = (mark) => {
    const inner = window.alert;
    window.alert = (text) => inner(text + mark);
  };
  flags({ chromiumbased: true, origAlert: (text) => shown.push(text), olderFunctions: undefined });
  set(window, "alert", __corvex__alert2);
  wrap("!");
  alert("a");
  __corvex__hookupWindow(window);
  alert("b");
  wrap("?");
  __corvex__hookupWindow(window);
  alert("c");
  window.alert.call({}, "d");
  return [shown, sent.length];
}, [["a!", "b!", "c?!", "d?!"], 4]);

const lastTexts = () => [__corvex__lastAlertText(), __corvex__lastConfirmText(), __corvex__lastPromptText()];

test("dialogs are swallowed, their texts kept, and the answers waited for", {}, (kit) => {
  kit.replies = { waitForConfirm: "true", "waitForPrompt&": "__corvex__promptResult: a b" };
  return [[alert("one") === undefined, confirm("two"), prompt("three", "four")], lastTexts(), __corvex__lastPromptDefault(),
    kit.sent];
}, [[true, true, "a b"], ["one", "two", "three"], "four", ["GET eventHandler&N&name=AlertOpened",
  "GET eventHandlerN&name=ConfirmOpened", "GET waitForConfirmN sync", "GET eventHandlerN&name=PromptOpened",
  "GET waitForPrompt&N sync"]]);

test("any other answer than the agreed ones refuses", {}, (kit) => {
  const confirmed = ["true", "TRUE", "", undefined].map((waitForConfirm) => {
    kit.replies = { waitForConfirm };
    return confirm("?");
  });
  const typed = ["__corvex__promptCancelled", "__corvex__promptResult: ", "__corvex__promptResult:x",
    " __corvex__promptResult: x", "", undefined].map((waitForPrompt) => {
    kit.replies = { waitForPrompt };
    return prompt("?");
  });
  kit.failing = true;
  return [confirmed, typed, confirm("?"), prompt("?"), __corvex__lastPromptDefault()];
}, [[true, false, false, false], [null, "", null, null, null, null], false, null, ""]);

test("native dialogs open where the driver can answer them", {}, ({ flags, sent }) => {
  let shown = 0;
  flags({ origAlert: () => ++shown, origConfirm: () => ++shown > 0, origPrompt: () => (++shown, "p") });
  const rows = [{ microsoftedge: 1 }, { chromiumbased: 1 }, { safari: 1 }, { safari: 1, safari__version: 11 },
    { safari: 1, safari__version: 12 }, { mozilla: 1 }].map((values) => {
    shown = 0;
    flags({ lastAlertMessage: "-", lastConfirmMessage: "-", lastPromptMessage: "-" });
    flags(values);
    const answers = [alert("m"), confirm("m"), prompt("m")];
    flags({ microsoftedge: 0, chromiumbased: 0, safari: 0, safari__version: undefined });
    return [shown, answers[1], answers[2]].concat(lastTexts()).join();
  });
  return [rows, sent.filter((line) => /waitFor/.test(line)).length];
}, [["3,true,p,-,-,-", "3,true,p,m,m,m", "3,true,p,-,-,m", "0,false,,m,m,m", "3,true,p,-,-,m", "0,false,,m,m,m"], 4]);

test("recorded dialogs are native, and their answers reported", {}, ({ flags, sent }) => {
  flags({ recording: true, origAlert: () => sent.push("alert"), origConfirm: () => sent.push("confirm") === 0,
    origPrompt: (text, def) => (sent.push("prompt " + def), text) });
  return [alert("m") === undefined, confirm("m"), prompt("a&b", "d"), prompt(null),
    sent.map((line) => line.replace("GET logeventN&event=", "told "))];
}, [true, false, "a&b", "", ["alert", "told alert", "confirm", "told confirm&ret=false", "prompt d", "told prompt&ret=a&b",
  "prompt ", "told prompt&ret="]]);

test("on Windows the native dialogs are framed for the recorder, but not on a modern Firefox", {}, ({ flags, sent }) => {
  flags({ recording: true, os: "Windows", origAlert: () => 0 });
  return [{}, { mozilla: true, version: 64 }, { version: 63 }].map((values) => {
    flags(values);
    __corvex.browsermajorversion = values.version;
    alert("m");
    return sent.splice(0).map((line) => line.replace("GET logeventN&event=", "")).join();
  });
}, ["disableFallbackWrapper,alert,enableFallbackWrapper", "alert", "disableFallbackWrapper,alert,enableFallbackWrapper"]);

test("while inspecting, dialogs are native and silent", {}, ({ flags, sent }) => {
  __corvex.isInspecting = true;
  flags({ origConfirm: () => true });
  return [confirm("m"), sent];
}, [true, []]);

test("an alert that cannot be announced shows why", {}, (kit) => {
  const shown = [];
  kit.failing = true;
  kit.flags({ origAlert: (text) => shown.push(text) });
  alert("m");
  kit.flags({ webhook__debug: true });
  kit.failing = false;
  alert("n");
  __corvex__alert("o");
  return [shown, kit.sent, __corvex__lastAlertText()];
}, [["refused", "o"], [], "n"]);

test("open passes on as many arguments as it got", {}, ({ flags, sent, timers }) => {
  flags({ reallyOpen: (...given) => { sent.push(given.length); return null; } });
  [["u"], ["u", "n"], ["u", "n", "f"], ["u", "n", "f", true], ["u", "", "f"], ["u", "n", "", false], []].forEach(
    (given) => __corvex__open.apply(window, given));
  return [sent, timers.length];
}, [[1, 2, 3, 4, 3, 2, 1], 0]);

test("a new window is announced in its own context, hooked, and its frames later", {}, (kit) => {
  const w = fakeWindow();
  const during = [];
  kit.flags({ reallyOpen: () => w });
  kit.Request.prototype.send = function () {
    during.push(this.line.join(" "), window.__corvex__ctxwin === w);
  };
  return [__corvex__open.call(window, "u") === w, during, window.__corvex__ctxwin === window,
    window.__corvex__windows[0] === w, window.__corvex__framewin === w, w.alert === __corvex__alert2,
    kit.timers.map((timer) => timer.ms)];
}, [true, ["GET eventHandlerN&name=WindowOpened", true], true, true, true, true, [2000]]);

test("open that comes back with the own window or a frame registers nothing", { page: '<iframe id="f"></iframe>' },
  ({ frame, flags, timers, sent }) => {
    [window, frame("f")].forEach((w) => {
      flags({ reallyOpen: () => w });
      __corvex__open.call(window, "#");
    });
    return [window.__corvex__windows.length, timers.length, sent.length];
  }, [0, 0, 2]);

test("a blank window is waited for, a foreign one given up, a closed one forgotten", {}, ({ flags, timers }) => {
  const w = fakeWindow({ location: "about:blank" });
  const counts = [];
  const hook = (action) => {
    action();
    counts.push(timers.length + "/" + window.__corvex__windows.length);
  };
  hook(() => __corvex__hookInWindow({ get location() { throw new Error("no"); } }));
  flags({ mozilla: true });
  hook(() => __corvex__hookInWindow(w));
  hook(() => timers[0].f());
  w.location = "http://h/x.html";
  hook(() => timers[1].f());
  hook(() => __corvex__hookInWindow(w));
  flags({ mozilla: false });
  hook(() => __corvex__hookInWindow(fakeWindow({ location: "about:blank" })));
  hook(() => __corvex__hookInWindow({ location: "http://h/y.html" }));
  hook(() => __corvex__hookInWindow({ location: "http://h/y.html", closed: true }));
  return [counts, timers[0].ms];
}, [["0/0", "1/0", "2/0", "2/1", "2/1", "2/2", "3/2", "3/2"], 1000]);

test("the handlers of a window speak for it", { page: '<select id="s"></select>' }, ({ el, flags }) => {
  const doc = { addEventListener: native };
  flags({ recording: true });
  __corvex__hookInWindow(fakeWindow({ document: doc }));
  const answer = doc.onclick({ type: "click", target: el("s") });
  doc.onclick({ type: "click", get target() { throw new Error("gone"); } });
  return [answer === undefined, el("s").__corvex__onchange, window.__corvex__ctxwin === window, Object.keys(doc).join()];
}, [true, true, true, "addEventListener,onkeyup,onmousedown,ondblclick,onclick"]);

test("old windows get the assignable handlers, which speak for the newest", { page: '<select id="s"></select>' },
  ({ el, flags, sent }) => {
    const attached = [];
    const [a, b] = [1, 2].map(() => fakeWindow({ document: { attachEvent: (name) => attached.push(name) } }));
    flags({ recording: true });
    __corvex__hookInWindow(a);
    __corvex__hookInWindow(b);
    a.location = { href: "http://h/x.html", toString: () => "http://h/x.html" };
    b.event = { type: "mousedown", srcElement: el("s") };
    a.document.onmousedown();
    a.onunload();
    const recorded = sent.filter((line) => /event=mousedown.*&context=x\.html%3C2%3E$/.test(line)).length;
    return [el("s").__corvex__onchange, attached, recorded, sent.filter((line) => line.indexOf("logevent") < 0)];
  }, [true, ["onmousemove", "onmousemove"], 2,
    ["GET eventHandlerN&name=BodyUnloaded&location=http%3A//h/x.html&context=x.html"]]);
