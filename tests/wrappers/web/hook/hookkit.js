// Gives: test( name, options, action, expected ), with which a file adds a case: action(kit) in a page with the body
// options.page is to give what equals expected as JSON. options.only: the one browser that the case is for.
// Needs: a hooked page.
//
// Each case starts with the state of the hook script as it is made, without the configuration's flags, and what it
// changes of the hook script, and through the kit, is put back. The kit:
//   el(id), frame(id, html)        an element; the window of a frame, with this body
//   flags(values)                  flags of the hook script, named without their prefix
//   set(object, name, value)
//   sent                           what went out, one line a request: method, message, "sync" where the page waited, body
//   timers                         what was started: f, ms
//   replies                        beginning of a message: text of its reply
//   failing                        true: sending throws
//   stamps(text)                   the text with its stamps as "N"
//   useNetwork()                   requests and timers become those of the browser again
//   channels()                     puts bridges of embedded views into the page; run(action) says what came out by which

window.hookCases = (() => {
  const cases = [];
  const STORE = "__corvex__globalObjectRefStore";

  const states = () => [__corvex__windowState, __corvex__dialogState, __corvex__recordingState];

  // A function that gives the wanted properties of an object back the values, and its lists the members, of now.
  function remember(object, wanted) {
    const names = () => Object.getOwnPropertyNames(object).filter(wanted);
    const saved = new Map(names().map((name) => {
      const property = Object.getOwnPropertyDescriptor(object, name);
      return [name, { property, members: name !== STORE && Array.isArray(property.value) && property.value.slice() }];
    }));
    return () => {
      names().filter((name) => !saved.has(name)).forEach((name) => delete object[name]);
      saved.forEach(({ property, members }, name) => {
        const now = Object.getOwnPropertyDescriptor(object, name);
        if (!now || now.configurable) {
          Object.defineProperty(object, name, property);
        } else if (now.value !== property.value) {
          object[name] = property.value;
        }
        if (members) {
          property.value.splice(0, property.value.length, ...members);
        }
      });
    };
  }

  function newKit(undos) {
    const kit = { sent: [], timers: [], replies: {}, failing: false };
    kit.el = (id) => document.getElementById(id);
    kit.frame = (id, html) => {
      const w = kit.el(id).contentWindow;
      w.document.body.innerHTML = html || "";
      return w;
    };
    kit.set = (object, name, value) => {
      undos.push(remember(object, (own) => own === name));
      object[name] = value;
    };
    kit.flags = (values) => {
      Object.keys(values).forEach((name) => { window["__corvex__" + name] = values[name]; });
    };
    kit.stamps = (text) => (text === undefined || text === null ? text : String(text).replace(/\d{13}/g, "N"));
    return kit;
  }

  function replaceNetwork(kit) {
    const { Request, setTimeout } = __corvex__natives;
    const messageOf = (url) => kit.stamps(url).replace(/^.*?\/\?/, "");
    kit.Request = function () {};
    kit.Request.prototype = {
      open(method, url, async) {
        this.url = url;
        this.line = [method, messageOf(url)].concat(async ? [] : ["sync"]);
      },
      send(body) {
        if (kit.failing) {
          throw new Error("refused");
        }
        kit.sent.push(this.line.concat(body === null ? [] : [body]).join(" "));
        Object.keys(kit.replies).filter((beginning) => this.line[1].indexOf(beginning) === 0).forEach((beginning) => {
          this.responseText = kit.replies[beginning];
        });
      }
    };
    Object.assign(__corvex__natives, {
      Request: kit.Request,
      setTimeout: (f, ms) => kit.timers.push({ f, ms }),
      whenDone: (action) => action(),
      sendAndForget: (method, url) => kit.sent.push("kept " + method + " " + messageOf(url)) > 0
    });
    kit.useNetwork = () => Object.assign(__corvex__natives, { Request, setTimeout });
  }

  function channels(kit) {
    const got = [];
    const bridge = (name) => Object.fromEntries(["doLogEvent", "handleXMLHttpPayload", "log", "logDebug"].map(
      (operation) => [operation, (text) => got.push(name + "." + operation + " " + kit.stamps(text))]));
    kit.flags({ qwebkitEventLoggerBridge: bridge("qt"), eventLoggerBridge: bridge("apple") });
    kit.set(window, "postMessage", (text, origin) => got.push("post " + kit.stamps(text) + origin));
    kit.set(console, "log", (text) => got.push("console " + text));
    kit.swt = (kind, text) => got.push("swt " + kind + " " + text);
    return (action) => {
      kit.sent.length = 0;
      got.length = 0;
      const result = action();
      const shown = result === undefined ? "nothing" : result.responseText === "" ? "empty" : "request";
      return got.concat(kit.sent).join(" + ") + " -> " + shown;
    };
  }

  function preparePage(kit, body) {
    ["filter__non__element__nodes", "throwErrorForUnknownContextName", "namegen__scheme", "namegen__singleprop",
      "namegen__hierarchical"].forEach((name) => delete window["__corvex__" + name]);
    delete __corvex.includeIdPropertyInGeneratedNames;
    delete __corvex.dialogTextKept;
    states().forEach((state) => state.reset());
    kit.flags({ ie: false, mozilla: false, safari: false, googlechrome: false, chromiumbased: false, microsoftedge: false,
      edge: false, proxy: false, recording: false, newwindowhook: false, improvedTabAndWindowSupport: false,
      os: "Linux", port: 8000, asynclog: true });
    __corvex.useSessionStorageForEvents = false;
    window.scrollTo(0, 0);
    document.body.innerHTML = body || "";
  }

  const inOrder = (key, value) => (value && typeof value === "object" && !Array.isArray(value) ?
    Object.fromEntries(Object.entries(value).sort((a, b) => (a[0] < b[0] ? -1 : 1))) : value);
  const textOf = (value) => JSON.stringify([value], inOrder);

  function resultOf(one) {
    const undos = [remember(window, (name) => /^__corvex__/.test(name))].concat(
      [__corvex, __corvex__natives].concat(states()).map((object) => remember(object, () => true)));
    try {
      const kit = newKit(undos);
      preparePage(kit, one.options.page);
      replaceNetwork(kit);
      kit.channels = () => channels(kit);
      return textOf(one.action(kit));
    } catch (e) {
      return "the error " + e + "\n" + e.stack;
    } finally {
      undos.reverse().forEach((undo) => undo());
    }
  }

  window.test = (name, options, action, expected) => cases.push({ name, options, action, expected });

  return {
    count: () => cases.length,
    // What is wrong with a case; an empty text where nothing is.
    run(i, browser) {
      const one = cases[i];
      const expected = textOf(one.expected);
      const result = one.options.only && one.options.only !== browser ? expected : resultOf(one);
      return result === expected ? "" : one.name + "\n  gives   " + result + "\n  and not " + expected;
    }
  };
})();
