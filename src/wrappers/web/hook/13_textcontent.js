// Gives: window.top.__corvex.getTextContent, the text that a reader takes as this element's own.
// Needs: runtime/natives, runtime/nodes, simplifiedtext.

window.top.__corvex.getTextContent = (function () {
  var textTags = {
    A: true, ADDRESS: true, BLOCKQUOTE: true, BUTTON: true, CAPTION: true, H1: true, H2: true, H3: true, H4: true,
    H5: true, H6: true, LABEL: true, OPTION: true, P: true, PRE: true, Q: true, SUMMARY: true, TEXTAREA: true,
    TITLE: true
  };

  function upperTagName(node) {
    return String(__corvex__nodeReader.tagName(node) || "").toUpperCase();
  }

  function isElement(node) {
    return __corvex__nodeReader.nodeType(node) === 1;
  }

  function hasFirstChildTextNodeOfMultipleChildren(element) {
    var children = __corvex__nodeReader.childNodes(element);
    for (var i = 0; i < children.length; ++i) {
      if (isElement(children[i])) {
        return false;
      }
      if (/\S/.test(children[i].nodeValue || "")) {
        return true;
      }
    }
    return false;
  }

  function shouldHaveTextContent(element) {
    if (!element || !__corvex__nodeReader.tagName(element)) {
      return false;
    }
    if (__corvex__natives.has(textTags, upperTagName(element))) {
      return true;
    }
    if (!hasFirstChildTextNodeOfMultipleChildren(element)) {
      return false;
    }
    // The parent holds the text already.
    var parent = __corvex__nodeReader.parentNode(element);
    return !(parent && __corvex__nodeReader.tagName(parent) && upperTagName(parent) !== "BODY" &&
             shouldHaveTextContent(parent));
  }

  function assembleTextContent(element) {
    var parts = [];
    var children = __corvex__nodeReader.childNodes(element);
    for (var i = 0; i < children.length; ++i) {
      var child = children[i];
      var tagName = upperTagName(child);
      if (!isElement(child)) {
        parts.push(window.top.__corvex.simplifyText(child.nodeValue));
      } else if (tagName === "BR") {
        parts.push("\n");
      } else if (tagName === "SELECT" || tagName === "TEXTAREA") {
        parts.push(assembleTextContent(child));
      }
    }
    return parts.join(" ");
  }

  return function (element) {
    return shouldHaveTextContent(element) ? assembleTextContent(element) : "";
  };
})();
