// Gives: what happens in the page at the moment of evaluation, and the test whether it happened.
// Needs: recording/capture, runtime/natives, runtime/builtins, runtime/longpoll, runtime/override, runtime/frames,
//   runtime/unload, runtime/listeners, runtime/innertext, search/documents.

// The test for an injector before it evaluates the script: a second evaluation would double every listener.
function __corvex__isHooked() {
  var top = window.top;
  return top.__corvex__handler !== undefined && top.__corvex !== undefined &&
         top.__corvex__installed__hook === true && top.__corvex__findObject !== undefined;
}

if (window.__corvex__mozilla) {
  __corvex__setupInnerTextFunctions(window);
}

__corvex__listenInOwnDocument();

window.old_onunload = window.onunload;
window.onunload = __corvex__topLevelUnloadHandler;

__corvex__hookupWindow(window);

__corvex__natives.setInterval(__corvex__quiet(__corvex__hookFramesOfAllWindows), 1000);
__corvex__natives.setInterval(__corvex__quiet(__corvex__installUnload), 1000);

window.__corvex__installed__hook = true;
if (window.__corvex__proxy) {
  __corvex__quiet(__corvex__asyncWaitForWebhookMsg)();
}
