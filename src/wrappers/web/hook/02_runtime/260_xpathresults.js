// Gives: __corvex__xpath__snapshotLength(sn), __corvex__xpath__snapshotItem(sn, i), for the results of XPath expressions.
// Needs: nothing.

// -1 for a result that is no set of nodes.
function __corvex__xpath__snapshotLength(sn) {
  try {
    return sn.nodeSetValue().length;
  } catch (e) {
    return -1;
  }
}

function __corvex__xpath__snapshotItem(sn, i) {
  try {
    return sn.nodeSetValue()[i];
  } catch (e) {
    return undefined;
  }
}
