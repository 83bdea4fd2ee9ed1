// Gives: the functions of Corvex with which an extension registers its hooks, and the list of toolkits.
// Needs: runtime/natives, runtime/state, input/mouseevents, api/objectname, api/forwarders.

Corvex.toolkitExtensions = [];
Corvex.toolkitExtensions.Backbase = { enabled: false };
Corvex.toolkitExtensions.Dojo = { enabled: true };
Corvex.toolkitExtensions.GWC = { enabled: true };
Corvex.toolkitExtensions.GWT = { enabled: true };
Corvex.toolkitExtensions.Infragistics = { enabled: true };
Corvex.toolkitExtensions.ITMILL = { enabled: true };
Corvex.toolkitExtensions.Kiwi = { enabled: true };
Corvex.toolkitExtensions.qooxdoo = { enabled: true };
Corvex.toolkitExtensions.SmartClient = { enabled: true };
Corvex.toolkitExtensions.Telerik = { enabled: true };
Corvex.toolkitExtensions.richfaces = { enabled: true };

Corvex.registerWidget = function (args) {
  window.__corvex__knownWidgets.push(args);
};

Corvex.addEventObjectHook = function (f) {
  window.__corvex__eventObject__hooks.push(f);
};

Corvex.addTypeOfHook = function (f) {
  Corvex.addTypeOfHookWithPriority(f, 100);
};

Corvex.addTypeOfHookWithPriority = function (f, prio) {
  window.__corvex__typeOf__hooks.push({ func: f, prio: prio });
};

Corvex.addNameOfHook = function (f) {
  window.__corvex__nameOf__hooks.push(f);
};

Corvex.addMatchObjectHook = function (f) {
  window.__corvex__matchObject__hooks.push(f);
};

// With a list of properties, f is asked for these alone, after all others: its matcher then takes the place of the standard
// test. Its answers depend on nothing but the page, so that a search may keep them, and ask in any order.
Corvex.addPropertyMatcherFactory = function (f, properties) {
  if (!properties) {
    window.top.__corvex__propertyMatcherFactories.unshift(f);
    return;
  }
  var factoriesOf = window.__corvex__factoriesOfProperties;
  for (var i = 0; i < properties.length; ++i) {
    var others = __corvex__natives.has(factoriesOf, properties[i]) ? factoriesOf[properties[i]] : [];
    factoriesOf[properties[i]] = [f].concat(others);
  }
};

Corvex.addClickHook = function (f) {
  window.__corvex__click__hooks.push(f);
};

Corvex.addEventToStringHook = function (f) {
  window.__corvex__eventToStr__hooks.push(f);
};

Corvex.addObjectNameAndTypeHook = function (f) {
  window.__corvex__objectNameAndType__hooks.push(f);
};

Corvex.addEventTypeHook = function (f) {
  window.__corvex__eventType__hooks.push(f);
};

Corvex.addItemTextForEventObjectHook = function (f) {
  window.__corvex__itemTextForEvent__hooks.push(f);
};

Corvex.addPickableObjectHook = function (hookFn) {
  top.__corvex__pickableObjectHooks.push(hookFn);
};

Corvex.addOverrideHookForUseIE8EventDispatching = function (hookFn) {
  var hooks = top.__corvex__useIE8AndOlderEventDispatchingOverride__hooks;
  if (Corvex.arrayIndexOf(hooks, hookFn) === -1) {
    hooks.push(hookFn);
  }
};
