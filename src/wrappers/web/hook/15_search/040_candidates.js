// Gives: where a search looks: the document that a name's context selects, the elements of its tag or form.
// Needs: runtime/natives, runtime/nodes, runtime/contexts, matching, search/name, input/objects.

// The controls of a form, also where a control named "elements" hides the property.
function __corvex__formControls(form) {
  var list = form.elements;
  if (list && !list.nodeType && typeof list.length === "number") {
    return list;
  }
  return __corvex__natives.apply(Object.getOwnPropertyDescriptor(HTMLFormElement.prototype, "elements").get, form, []);
}

function __corvex__findFormInContainer(container, formName) {
  var forms = __corvex__elementsByTag(container, "FORM");
  for (var i = 0; i < forms.length; ++i) {
    if (__corvex__getObjectAttribute(forms[i], "name") === formName) {
      return forms[i];
    }
  }
  return undefined;
}

// The container to search in; undefined if the name asks for a context that does not exist and that is an error.
function __corvex__effectiveContainer(container, map, nm) {
  var context = __corvex__mapEntry(map, "context");
  if (!context || !context.value) {
    return container;
  }
  if (__corvex__hasContext(context.value)) {
    return __corvex__findContext2(context.value).document;
  }
  if (window.top.__corvex__throwErrorForUnknownContextName) {
    __corvex__addUnmatchedProperty(nm, "context");
    return undefined;
  }
  return container;
}

function __corvex__controlsOfForm(container, formName, tagName) {
  var found = [];
  var form = formName ? __corvex__findFormInContainer(container, formName) : undefined;
  if (form) {
    var controls = __corvex__formControls(form);
    for (var i = 0; i < controls.length; ++i) {
      if (controls[i].tagName === tagName) {
        found.push(controls[i]);
      }
    }
  }
  return found;
}

function __corvex__candidates(container, map) {
  var tagName = map.tagName.value;
  var controls = __corvex__controlsOfForm(container, __corvex__exactText(__corvex__mapEntry(map, "form")), tagName);
  return controls.length ? controls : __corvex__elementsByTag(container, tagName);
}

// The candidates with those of the container's own shadow root after them, where the object model shows it too.
function __corvex__withShadowCandidates(candidates, container, tagName) {
  var shadowRoot = __corvex__nodeReader.shadowRoot(container);
  if (!shadowRoot) {
    return candidates;
  }
  var all = [];
  var inShadow = __corvex__elementsByTag(shadowRoot, tagName);
  for (var i = 0; i < candidates.length; ++i) {
    all.push(candidates[i]);
  }
  for (i = 0; i < inShadow.length; ++i) {
    all.push(inShadow[i]);
  }
  return all;
}
