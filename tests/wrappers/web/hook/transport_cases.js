// Cases of the ways by which messages leave the page, of log lines, of the session queue and of the long poll.

test("the destination is the webhook, or in proxy mode a path of the own origin", {}, ({ flags }) => {
  const plain = __corvex__XMLHttpRequestDestination();
  flags({ proxy: true });
  return [plain, __corvex__XMLHttpRequestDestination().replace(location.origin, "")];
}, ["http://127.0.0.1:8000", "/__corvex_webhook__/127.0.0.1%3A8000"]);

test("a message without a body takes the first channel that there is", {}, (kit) => {
  const run = kit.channels();
  const send = () => run(() => __corvex__sendXMLHttpRequest(document, "logevent1&a=%41", true));
  const lines = [send()];
  [{ ie: true }, { swtfunction: kit.swt }, { wkwebview: true }, { qwebview: true },
    { qwebkitEventLoggerBridge: undefined }].forEach((values) => {
    kit.flags(values);
    lines.push(send());
  });
  __corvex.useSessionStorageForEvents = true;
  __corvex__getSessionStorageEvents();
  return lines.concat(send(), __corvex__getSessionStorageEvents());
}, ["GET logevent1&a=%41 -> request", "post __corvex__message: logevent1&a=%41* -> empty",
  "swt logEvent logevent1&a=%41 -> nothing", "apple.handleXMLHttpPayload logevent1&a=A -> nothing",
  "qt.doLogEvent logevent1&a=%41 -> nothing", " -> nothing",
  " -> empty", { payload: "logevent1&a=%41" }]);

test("a message with a body: its channels differ", {}, (kit) => {
  const run = kit.channels();
  const send = (head, body) => run(() => __corvex__sendXMLHttpPost(document, head, body, true));
  const both = () => [send("logevent1&", "a=%41"), send("debuglog", "text")];
  const lines = [both()];
  kit.flags({ ie: true });
  lines.push(send("logevent1&", "a=%41"));
  kit.flags({ ie: false });
  [{ swtfunction: kit.swt }, { cocoawebview: true }, { qwebview: true }].forEach((values) => {
    kit.flags(values);
    lines.push(both());
  });
  __corvex.useSessionStorageForEvents = true;
  __corvex__getSessionStorageEvents();
  return lines.concat(send("logevent1&", "a=%41"), __corvex__getSessionStorageEvents());
}, [["POST logevent1& a=%41 -> request", "POST debuglog text -> request"], "post __corvex__message: logevent1&a=%41* -> empty",
  ["swt logEvent logevent1&a=%41 + POST logevent1& a=%41 -> request", "POST debuglog text -> request"],
  ["apple.handleXMLHttpPayload logevent1&a=%41 -> nothing", "apple.handleXMLHttpPayload debuglog=text -> nothing"],
  ["qt.doLogEvent logevent1&a=%41 -> nothing", " -> nothing"], " -> empty", { url: "logevent1&", payload: "a=%41" }]);

test("debug lines and log lines find their channel", {}, (kit) => {
  const run = kit.channels();
  return [{}, { swtfunction: kit.swt }, { wkwebview: true }, { qwebview: true }, { qwebkitEventLoggerBridge: {} }].map(
    (values) => {
      kit.flags(values);
      return [run(() => __corvex__debug("d")), run(() => __corvex__log("l"))].map((line) => line.replace(" -> nothing", ""));
    });
}, [["GET debuglog=d", "console l"], ["swt debug d", "swt log l"], ["swt debug d", "apple.log l"], ["qt.logDebug d", "qt.log l"],
  ["", ""]]);

test("a page without a console gets one log window", {}, ({ flags, set }) => {
  const opened = [];
  const w = { document: { body: { innerHTML: "" } }, close: () => opened.push("closed") };
  set(window, "console", undefined);
  flags({ reallyOpen: (url) => { opened.push(/^javascript:.*<body><\/body>/.test(url)); return w; } });
  __corvex__log("a");
  __corvex__console.log("b");
  __corvex__closeLog();
  __corvex__closeLog();
  return [opened, w.document.body.innerHTML, __corvex__log__window];
}, [[true, "closed"], "a<br>b<br>", null]);

test("120 characters of an event and 149 of a debug line go in the address", {}, ({ sent }) => {
  const text = (length) => "x".repeat(length);
  __corvex__sendLogEventData(null, text(120), true);
  __corvex__sendLogEventData(null, text(121), false);
  __corvex__debug(text(149));
  __corvex__debug(text(150));
  return sent.map((line) => line.replace(/x+/, (all) => all.length));
}, ["GET logeventN&120", "POST logeventN& sync 121", "GET debuglog=149", "POST debuglog 150"]);

test("without a mode the page does not wait, unless it is told to", {}, ({ flags, sent }) => {
  [true, false, undefined].forEach((asynclog) => {
    flags({ asynclog });
    __corvex__sendXMLHttpRequest(document, "m");
  });
  return sent;
}, ["GET m", "GET m sync", "GET m"]);

test("requests of old Internet Explorer, whose waits need a reply", {}, (kit) => {
  const made = [];
  kit.flags({ ie: true, origConfirm: () => "native" });
  kit.set(window, "ActiveXObject", function (name) {
    made.push(name);
    return new kit.Request();
  });
  kit.replies = { waitForConfirm: "true" };
  const answer = __corvex__sendXMLHttpRequest(document, "waitForConfirm1", false).responseText;
  window.ActiveXObject = null;
  kit.set(window.top, "postMessage", () => {});
  return [answer, __corvex__sendXMLHttpRequest(document, "waitForConfirm1", false) === undefined, confirm("?"), made, kit.sent];
}, ["true", true, "native", ["MSXML2.XMLHTTP.3.0"], ["GET waitForConfirm1 sync"]]);

test("the queue keeps order and signs, whatever the page does to its texts", {}, ({ set, sent, stamps }) => {
  const text = "a\"\\\n\u2028\ud83d\ude00\ud800";
  __corvex.useSessionStorageForEvents = true;
  __corvex__getSessionStorageEvents();
  set(Array.prototype, "toJSON", () => "bad");
  set(String.prototype, "toJSON", () => "bad");
  __corvex__sendXMLHttpRequest(document, text);
  __corvex__sendLogEventData(null, "y".repeat(129));
  const answer = confirm("?");
  const queue = __corvex__getSessionStorageEvents();
  delete Array.prototype.toJSON;
  delete String.prototype.toJSON;
  const rest = sessionStorage.getItem("eventStorage");
  sessionStorage.removeItem("eventStorage");
  return [queue[0].payload === text, queue.length, stamps(queue[1].url), queue[1].payload.length, stamps(queue[3].payload),
    answer, sent.length, rest, __corvex__getSessionStorageEvents()];
}, [true, 4, "logeventN&", 129, "waitForConfirmN", false, 0, "[]", []]);

test("a corrupt queue is left as it is", {}, () => {
  sessionStorage.setItem("eventStorage", "{");
  try {
    return __corvex__addObjectToEventStorage({ payload: "x" });
  } catch (e) {
    return [e.name, sessionStorage.getItem("eventStorage")];
  } finally {
    sessionStorage.removeItem("eventStorage");
  }
}, ["SyntaxError", "{"]);

test("the long poll waits again before it runs what came", {}, ({ flags, sent }) => {
  const wait = { request: null, startAgain: true };
  const log = [];
  const answer = (status, responseText, readyState, event) => {
    const request = Object.assign(wait.request, { status, responseText, readyState });
    request.onreadystatechange(event ? { target: request } : undefined);
    log.push([sent.length, wait.request === request, window.__corvex__seen === wait.request]);
  };
  flags({ asyncWaitRequest: wait, seen: undefined });
  __corvex__asyncWaitForWebhookMsg();
  answer(0, "", 3, true);
  answer(200, "window.__corvex__seen = window.__corvex__asyncWaitRequest.request;", 4, true);
  answer(500, "window.__corvex__seen = 5", 4, false);
  answer(200, "throw new Error('of the code')", 4, true);
  wait.startAgain = false;
  answer(0, "", 4, true);
  return [log, wait.request, /GET .*__corvex__waitForEval__\/$/.test(sent[0])];
}, [[[1, true, false], [2, false, true], [3, false, false], [4, false, false], [4, false, false]], null, true]);

test("requests and timers do not live on what the page makes of theirs", {}, (kit) => {
  let own = 0;
  const open = XMLHttpRequest.prototype.open;
  kit.useNetwork();
  kit.set(XMLHttpRequest.prototype, "open", () => ++own);
  ["XMLHttpRequest", "Date", "setTimeout"].forEach((name) => kit.set(window, name, function () { ++own; }));
  __corvex__later(() => {}, 0);
  return [__corvex__natives.createRequest().open === open, /^logevent\d{13}&$/.test(__corvex__getLogEventUrl()), own];
}, [true, true, 0]);
