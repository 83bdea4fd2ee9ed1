// Gives: window.top.__corvex.objectTreeInformation and readPropertiesFromObjects: a whole tree in one answer each.
// Needs: runtime/natives, runtime/children, objectstore.

window.top.__corvex.objectTreeInformation = function (domNode) {
  var records = window.top.__corvex.childObjectAndInfo(domNode);
  for (var i = 0; i < records.length; ++i) {
    var child = __corvex__objectOfReference(records[i].reference);
    // A toolkit may name a widget that does not exist.
    records[i].children = child ? window.top.__corvex.objectTreeInformation(child) : [];
  }
  return records;
};

// Of each member's object the answers of its propertyGetters, by the object's reference. A getter that throws ends it.
window.top.__corvex.readPropertiesFromObjects = function (objectinfolist) {
  var answers = {};
  for (var i = 0; i < objectinfolist.length; ++i) {
    var object = objectinfolist[i].object;
    var getters = objectinfolist[i].propertyGetters;
    if (object) {
      var values = {};
      for (var name in getters) {
        if (__corvex__natives.has(getters, name)) {
          values[name] = getters[name]();
        }
      }
      answers[__corvex__idForObject(object)] = values;
    }
  }
  return answers;
};
