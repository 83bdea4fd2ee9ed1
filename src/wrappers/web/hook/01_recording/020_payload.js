// Gives: the line of text that a recorded event becomes: what happened, to which object, where and how.
// Needs: runtime/natives, runtime/state, runtime/nodes, runtime/text, runtime/typing, runtime/eventobject,
//   runtime/elementpos, names/entry, geometry/scroll, api/multioption, api/forwarders.

function __corvex__isFunction(obj) {
  return typeof obj === "function" || __corvex__natives.classOf(obj) === "[object Function]";
}

// The first truthy answer of ask( hook ); a hook that fails gives none.
function __corvex__answerOfHooks(hooks, ask) {
  for (var i = 0; hooks && i < hooks.length; ++i) {
    try {
      var answer = __corvex__isFunction(hooks[i]) && ask(hooks[i]);
      if (answer) {
        return answer;
      }
    } catch (e) {
      // A faulty extension must not cost the event.
    }
  }
  return undefined;
}

function __corvex__objectNameAndTypeOf(o) {
  var answer = __corvex__answerOfHooks(window.__corvex__objectNameAndType__hooks, function (hook) {
    var record = hook(o);
    return record && record.name && record.type && record;
  });
  return answer || { name: __corvex__nameOf(o), type: "" + __corvex__typeOf(o) };
}

function __corvex__getPageCoordsFromEvent(ev) {
  if (ev.type === "touchend") {
    var touch = ev.changedTouches[0];
    return { x: Math.round(touch.pageX), y: Math.round(touch.pageY) };
  }
  return { x: ev.clientX + __corvex__getPageOffsetX(), y: ev.clientY + __corvex__getPageOffsetY() };
}

// What an event lacks reads "undefined" here.
function __corvex__modifiersAndButtonForEvent(ev) {
  var isTouch = ev.type === "touchend";
  return "&altKey=" + ev.altKey + "&ctrlKey=" + ev.ctrlKey + "&shiftKey=" + ev.shiftKey +
    "&button=" + (isTouch ? "0" : ev.button) + "&keyCode=" + (isTouch ? "undefined" : ev.keyCode);
}

// e: not used; extensions pass it.
function __corvex__itemTextForEvent(e, eventObj, objectType) {
  var text = __corvex__answerOfHooks(window.top.__corvex__itemTextForEvent__hooks, function (hook) {
    return hook(eventObj, objectType);
  });
  return text ? "&itemText=" + escape(text) : "";
}

function __corvex__isReadOnly(o) {
  var attribute = __corvex__attributeOf(o, "readonly");
  if (window.top.__corvex__ie && window.top.__corvex.browsermajorversion < 11) {
    return attribute == true; // eslint-disable-line eqeqeq -- it has been seen as a text and as a number
  }
  return attribute !== null && attribute !== undefined;
}

var __corvex__typesWithText = ["url", "search", "number", "file", "password", "email", "tel"];

function __corvex__getInputFieldValue(objType, evObj) {
  if (objType.indexOf("text") === 0 || Corvex.arrayIndexOf(__corvex__typesWithText, objType) !== -1) {
    var isReadOnly = objType !== "file" && __corvex__isReadOnly(evObj);
    return "&value=" + escape(evObj.value) + "&readonly=" + isReadOnly;
  }
  if (objType === "select-one") {
    return "&value=" + escape(__corvex__selectedOptionText(evObj));
  }
  if (objType === "select-multiple") {
    return "&value=" + escape(__corvex__createMultiSelectOptionStr(__corvex__getSelectedOptionTexts(evObj)));
  }
  return "";
}

// Each of these tests that holds of a press, or of a touch for the first, adds one mark. The third stands for two
// toolkits, of which an object has one.
var __corvex__pressTests = [
  function (o, evType) {
    return (evType === "mousedown" || evType === "touchend") && !__corvex__isDocumentNode(o) &&
      !!(__corvex__nodeReader.onclick(o) || o.ondblclick || __corvex__nodeReader.onmousedown(o) || o.onmousepress ||
         o.__corvex__onclick || o.ontouchend);
  },
  function (o, evType) {
    return evType === "mousedown" && __corvex__nodeReader.tagName(o) === "TD" &&
      __corvex__attributeOf(o, "class") === "cMenuTD";
  },
  function (o, evType) {
    return evType === "mousedown" && (!!o.qx_Widget || String(__corvex__nodeReader.id(o)).indexOf("isc_") === 0);
  }
];

function __corvex__isHandledByWidget(evType, evObj) {
  var widgets = window.__corvex__knownWidgets;
  for (var i = 0; i < widgets.length; ++i) {
    if (typeof widgets[i] !== "function" && widgets[i].Event === evType &&
        __corvex__hasClass(evObj, widgets[i].Class)) {
      return true;
    }
  }
  return false;
}

// evType: that of the browser, whatever extensions made of it.
function __corvex__checkForClickHandling(evType, evObj) {
  var marks = "";
  if (!evObj) {
    return marks;
  }
  for (var i = 0; i < __corvex__pressTests.length; ++i) {
    if (__corvex__pressTests[i](evObj, evType)) {
      marks += "&clickHandler";
    }
  }
  return __corvex__isHandledByWidget(evType, evObj) ? marks + "&clickHandler" : marks;
}

// What happened to which object, as the driver reads it, without the window that it happened in. Undefined without an
// event. The name is escaped as it comes.
function __corvex__eventToStr(e, srcElem, eventObj) {
  if (!e) {
    return undefined;
  }
  var object = __corvex__objectNameAndTypeOf(eventObj);
  var evType = __corvex__eventType(eventObj, e, object.type);
  var origin = __corvex__elementPos(eventObj);
  var at = __corvex__getPageCoordsFromEvent(e);
  var text = evType + "&x=" + Math.round(at.x - origin.x) + "&y=" + Math.round(at.y - origin.y) +
    __corvex__modifiersAndButtonForEvent(e) + __corvex__itemTextForEvent(e, eventObj, object.type);
  var ofHook = __corvex__answerOfHooks(window.__corvex__eventToStr__hooks, function (hook) {
    return hook(object.type, eventObj, e, evType);
  });
  text += ofHook || __corvex__getInputFieldValue(object.type, eventObj) +
    __corvex__checkForClickHandling(e.type, eventObj);
  return text + "&object=" + object.name + "&type=" + object.type;
}

function __corvex__tabIdLogEventParameter() {
  var id = window.top.__corvex__browsertabid;
  return id ? "&tabId=" + id : "";
}
