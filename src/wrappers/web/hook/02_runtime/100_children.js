// Gives: the children of a node with reference, type and leaf name.
// Needs: runtime/nodes, runtime/typing, names/hierarchy, objectstore, dom.

function __corvex__childRecord(child, nameInLeaf) {
  return {
    reference: __corvex__idForObject(child),
    typeString: __corvex__typeOf(child),
    nameInLeaf: nameInLeaf
  };
}

window.top.__corvex.childObjectAndInfo = function (domnode) {
  var records = [];
  if (domnode.qx_Widget) {
    records.push({
      reference: __corvex__idForObject(domnode.qxWidget),
      typeString: "qx_Widget",
      nameInLeaf: "qx_Widget"
    });
  }
  var leafOf = __corvex__leafNamer();
  for (var child = __corvexDOMAPI.firstChild(domnode); child; child = __corvexDOMAPI.nextSibling(child)) {
    records.push(__corvex__childRecord(child, leafOf(child)));
  }
  var shadowRoot = __corvex__nodeReader.shadowRoot(domnode);
  if (shadowRoot) {
    records.push(__corvex__childRecord(shadowRoot, __corvex__uniqueNameInLeaf(shadowRoot)));
  }
  return records;
};
