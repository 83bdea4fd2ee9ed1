// Gives: the choice of an object with the pointer: what is under it, and what was pressed.
// Needs: recording/event, recording/payload, runtime/natives, runtime/builtins, runtime/state, runtime/nodes,
//   runtime/eventobject, runtime/transport, names/entry, geometry/screenrect, visibility.

// While it picks, the page never sees the event.
function __corvex__swallowEvent(e) {
  e.cancelBubble = true;
  if (e.stopPropagation) {
    e.stopPropagation();
  }
  if (e.preventDefault) {
    e.preventDefault();
  }
}

// url: the text to put the object behind.
function __corvex__logPickEvent(e, o, url) {
  var node = o;
  var nodeType = __corvex__nodeReader.nodeType(node);
  while (node && nodeType !== 1 && nodeType !== 9) {
    node = __corvex__nodeReader.parentNode(node);
    nodeType = node && __corvex__nodeReader.nodeType(node);
  }
  var text = url + "pickedObject&object=" + __corvex__nameOf(node) + __corvex__tabIdLogEventParameter();
  // So late that the click after a press is swallowed, too.
  __corvex__later(function () {
    window.__corvex__pickObject = false;
  }, 50);
  __corvex__sendLogEventData(e, text, true);
}

function __corvex__pickableObject(elem) {
  var hooks = top.__corvex__pickableObjectHooks || [];
  for (var i = 0; i < hooks.length; ++i) {
    try {
      var answer = __corvex__isFunction(hooks[i]) && hooks[i](elem);
      if (answer) {
        return answer;
      }
    } catch (e) {
      // No answer.
    }
  }
  var better = __corvex__findUsableParentElement(elem);
  return better && !__corvex__isDocumentNode(elem) && __corvex__isVisible(elem) ? better : elem;
}

// The name of the message is misspelled, and the driver knows it so.
function __corvex__hoverElement() {
  __corvex__recordingState.hoverTimer = null;
  try {
    var rect = __corvex__getScreenRect(__corvex__recordingState.mouseElement);
    __corvex__sendXMLHttpRequest(document, "highlighteWidget&info=" + rect + "," +
      __corvex__nameOf(__corvex__recordingState.mouseElement, true) + "&" + __corvex__natives.milliseconds(), true);
  } catch (e) {
    // The element is gone.
  }
}

function __corvex__mousemove(e) {
  if (!window.__corvex__pickObject) {
    return;
  }
  var source = __corvex__srcElement(__corvex__eventOfPointer(e));
  if (!source || __corvex__isHookedWasmCanvas(source)) {
    return;
  }
  var picked = __corvex__pickableObject(source);
  if (!picked || picked === __corvex__recordingState.selectedObject) {
    return;
  }
  __corvex__recordingState.selectedObject = picked;
  __corvex__recordingState.mouseElement = picked;
  // A pointer that crosses many objects fast causes one message.
  if (__corvex__recordingState.hoverTimer) {
    __corvex__natives.clearTimeout(__corvex__recordingState.hoverTimer);
  }
  __corvex__recordingState.hoverTimer = __corvex__natives.setTimeout(__corvex__quiet(__corvex__hoverElement), 50);
}
