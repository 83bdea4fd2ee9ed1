// Gives: safety from what a page made of the language to the functions that the driver calls.
// Needs: runtime/builtins.

// Functions in which listeners of the page run are not among them: there the language is to be as the page made it. The
// script itself calls these functions as they were, where it stands in a block.
(function () {
  function guard(owner, names) {
    var list = names.split(" ");
    for (var i = 0; i < list.length; ++i) {
      owner[list[i]] = __corvex__withBuiltIns(owner[list[i]], true);
    }
  }

  guard(window, "__corvex__findObject __corvex__findObjectByProps __corvex__findObjectByHeuristic __corvex__childAt " +
    "__corvex__nameOf __corvex__isVisible __corvex__propertyNameOf __corvex__qualifiedName __corvex__uniqueNameInLeaf");
  guard(window, "__corvex__contextOf __corvex__contextList __corvex__currentContext __corvex__hasContext " +
    "__corvex__setContext __corvex__hasFrameContext __corvex__setFrameContext __corvex__documentOfContext " +
    "__corvex__findTargetWindow");
  guard(window, "__corvex__getScreenRectAsObject __corvex__getScreenRect __corvex__getRectAsString " +
    "__corvex__convertJSDateToDateTimeString __corvex__hookFramesOfAllWindows __corvex__addObjectToEventStorage " +
    "__corvex__getSessionStorageEvents __corvex__queueText");
  guard(window, "__corvex__actionPoint __corvex__pressPoint __corvex__coverName __corvex__typingKind " +
    "__corvex__focusedField __corvex__typingState __corvex__checkedState");
  guard(window.top.__corvex, "getAllFrames childObjectAndInfo objectTreeInformation readPropertiesFromObjects " +
    "getPropertyValue simplifyText getSimplifiedInnerText getTextContent getSelectedText getDocumentSize " +
    "getElementRectangleInDocument parseMultiPropertyName faultOfName explainFailedSearch findAllObjects");
})();
