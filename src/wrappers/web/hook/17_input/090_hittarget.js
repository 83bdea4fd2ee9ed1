// Gives: __corvex__hitTarget: what is met at a point of an element's view, and whether that is the element's own.
// Needs: runtime/natives, runtime/nodes.

var __corvex__hitTarget = (function () {
  var controls = { A: 1, BUTTON: 1, INPUT: 1, SELECT: 1, SUMMARY: 1, TEXTAREA: 1 };
  var ofDocument = __corvex__nativeFunction(window.Document && Document.prototype.elementFromPoint);
  var ofShadowRoot = __corvex__nativeFunction(window.ShadowRoot && ShadowRoot.prototype.elementFromPoint) || ofDocument;

  function elementFromPoint(root, x, y) {
    var ask = root.host ? ofShadowRoot : ofDocument;
    return ask ? ask.call(root, x, y) : root.elementFromPoint(x, y);
  }

  function parentOf(node) {
    var parent = node.assignedSlot || __corvex__nodeReader.parentNode(node);
    return parent || (__corvex__isShadowRoot(node) ? node.host : null);
  }

  function isWithin(node, ancestor) {
    for (; node; node = parentOf(node)) {
      if (node === ancestor) {
        return true;
      }
    }
    return false;
  }

  // The deepest, through shadow trees; null outside of the view.
  function at(doc, x, y) {
    var hit = elementFromPoint(doc, x, y);
    for (var root = hit && __corvex__nodeReader.shadowRoot(hit); root; root = __corvex__nodeReader.shadowRoot(hit)) {
      var inner = elementFromPoint(root, x, y);
      if (!inner || inner === hit) {
        break;
      }
      hit = inner;
    }
    return hit;
  }

  function isLabelOf(node, o) {
    for (; node && node.nodeType === 1; node = parentOf(node)) {
      if (__corvex__nodeReader.tagName(node) === "LABEL") {
        return node.control === o;
      }
    }
    return false;
  }

  function letsPointersThrough(o) {
    try {
      return __corvex__nodeReader.ownerDocument(o).defaultView.getComputedStyle(o).pointerEvents === "none";
    } catch (e) {
      return false;
    }
  }

  function isPartOfOther(o, hit) {
    return controls[__corvex__nodeReader.tagName(o)] !== 1 && isWithin(o, hit) && letsPointersThrough(o);
  }

  // A click there reaches it: on what it holds, on its label, and on what holds it if it lets clicks through. A control
  // that does so takes none.
  function isOwn(hit, o) {
    return !!hit && (isWithin(hit, o) || isLabelOf(hit, o) || isPartOfOther(o, hit));
  }

  return { at: at, isOwn: isOwn, isWithin: isWithin, parentOf: parentOf };
})();
