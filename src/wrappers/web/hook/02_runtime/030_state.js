// Gives: the state globals, the hook arrays that extensions fill, and the script-level variables.
// Needs: nothing; the standard matcher is looked up when the first name is searched.

window.__corvex__windows = [];
window.__corvex__wcnt = -1;
window.__corvex__ctxwin = window;
window.__corvex__ctxwin_str = "";
window.__corvex__framewin = undefined;
window.__corvex__popupcnt = 0;
window.__corvex__popups = [];
window.__corvex__knownWidgets = [];
window.__corvex__lastAlertMessage = "";
window.__corvex__lastConfirmMessage = "";
window.__corvex__lastPromptMessage = "";
window.__corvex__lastPromptDefaultValue = "";
// Global because it has to be aborted before the page unloads: else it could receive code meant for the next page.
window.__corvex__asyncWaitRequest = { request: null, startAgain: true };
window.__corvex__objects = [];
window.__corvex__bgcolors = [];
window.__corvex__lastSelected = undefined;
window.__corvex__innerText = function (elem) {
  return elem.textContent;
};

window.__corvex__eventObject__hooks = [];
window.__corvex__pickableObjectHooks = [];
window.__corvex__typeOf__hooks = [];
window.__corvex__eventToStr__hooks = [];
window.__corvex__matchObject__hooks = [];
window.__corvex__propertyMatcherFactories = [
  function (propName, propValue, objectName) {
    return new window.top.__corvex.StandardPropertyMatcher(propName, propValue, objectName);
  }
];
window.__corvex__click__hooks = [];
window.__corvex__hookInFrame__hooks = [];
window.__corvex__selectSingleOption__hooks = [];
window.__corvex__eventType__hooks = [];
window.__corvex__objectNameAndType__hooks = [];
window.__corvex__itemTextForEvent__hooks = [];

// Filled by the extension of a toolkit: records, and the field of a record that holds its class name.
window.__corvex__backbase__descriptors = [];
window.__corvex__backbase__className = "className";

var __corvex__topWindow = null;
var __corvex__log__window = null;
var __corvex__rehookLoadLock = false;
var __corvex__rehookUnLoadLock = false;
var __corvex__isPageLeaving = false;
var __corvex__lazyHookWindows = [];
var __corvex__lazyHookTimer = null;
var __corvex__lastSelectEvent = null;
var __corvex__lastSelectEventObject = null;
var __corvex__mouseElement = null;
var __corvex__hoverTimer = null;
var __corvex__seps = ",;|-+*!/,";
