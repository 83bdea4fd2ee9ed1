// Gives: what a question answers for each of some objects, a line each: pages replace what JSON needs. What follows "!"
// is an error. Needs: the hook script.
__corvex__withBuiltIns(function () {
  // Of an element, and as long as what is shown of them.
  var mostAttributes = 50;
  var longestValue = 600;
  // How many elements of the page the name fits; -1 where it is not counted: a name below a container is looked for there
  // only, and a path of names or a name with an occurrence fits one at most.
  function hits(name) {
    var map = name.charAt(0) === "{" ? __corvex__propertyMap(name) : undefined;
    var isCounted = map && !__corvex__mapEntry(map, "container") && __corvex__occurrenceOf(map) === "";
    return isCounted ? __corvex__hitsInPage(name).length : -1;
  }
  function pair(name, value) {
    return "&" + escape(name) + "=" + escape(String(value).substring(0, longestValue));
  }
  // What the element was given, and what a field holds now; but no password.
  function attributesOf(object) {
    var list = __corvex__nodeReader.nodeType(object) === 1 ? __corvex__askNode.Element.getAttributeNames(object) : [];
    var isSecret = __corvex__attributeOf(object, "type") === "password";
    var tagName = __corvex__nodeReader.tagName(object);
    var isField = (tagName === "INPUT" || tagName === "SELECT" || tagName === "TEXTAREA") && !isSecret;
    var text = isField && typeof object.value === "string" ? pair("value", object.value) : "";
    if (isField && typeof object.checked === "boolean") {
      text += pair("checked", object.checked);
    }
    for (var i = 0; i < list.length && i < mostAttributes; ++i) {
      if (!/^(id|title|value|checked|style)$|^on/i.test(list[i])) {
        text += pair(list[i], __corvex__attributeOf(object, list[i]));
      }
    }
    return text;
  }
  var questions = {
    name: function (object) {
      return escape(__corvex__nameOf(object));
    },
    // The name that the first action on the object would be recorded with, its own window being the current context; how
    // many that fits; and the object's attributes.
    nameAndHits: function (object) {
      __corvex__windowState.ctxwin = (__corvex__nodeReader.ownerDocument(object) || object).defaultView;
      var name = String(__corvex__nameOf(object));
      return escape(name) + " " + hits(unescape(name)) + " " + attributesOf(object);
    },
    // How far from the corner of the page's image the image of a document begins that a frame shows; nothing where the
    // frame is not shown.
    frameOffset: function (doc) {
      var x = 0;
      var y = 0;
      var ratio = __corvex__imagePixelRatio();
      for (var win = doc.defaultView; win && win !== window.top && win.frameElement; win = win.parent) {
        var frame = win.frameElement;
        var rect = window.top.__corvex.getElementRectangleInDocument(frame, 1);
        if (rect.width < 0) {
          return "";
        }
        var style = getComputedStyle(frame);
        x += rect.x + Math.round(((frame.clientLeft || 0) + parseFloat(style.paddingLeft) - win.pageXOffset) * ratio);
        y += rect.y + Math.round(((frame.clientTop || 0) + parseFloat(style.paddingTop) - win.pageYOffset) * ratio);
      }
      return x + "," + y;
    },
    hasChildren: function (object) {
      return !!(object.qx_Widget || __corvexDOMAPI.firstChild(object) || __corvex__nodeReader.shadowRoot(object));
    }
  };
  return __corvex__quietly(function () {
    var lines = "";
    function add(object) {
      try {
        lines += questions["%1"](object()) + "\n";
      } catch (e) {
        lines += "!" + escape(e) + "\n";
      }
    }
    /*%2*/
    return lines;
  });
}, true)();
