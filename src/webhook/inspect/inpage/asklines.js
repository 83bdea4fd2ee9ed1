// Gives: what a question answers for each of some objects, a line each: pages replace what JSON needs. What follows "!"
// is an error. Needs: the hook script.
__corvex__quietly(function () {
  // How many elements of the page the name fits; -1 where it is not counted: a name below a container is looked for there
  // only, and a path of names or a name with an occurrence fits one at most.
  function hits(name) {
    return name.charAt(0) !== "{" || /container=| occurrence=/.test(name) ? -1 : __corvex__hitsInPage(name).length;
  }
  var questions = {
    name: function (object) {
      return escape(__corvex__nameOf(object));
    },
    // The name that the first action on the object would be recorded with, its own window being the current context, and
    // how many that fits.
    nameAndHits: function (object) {
      __corvex__windowState.ctxwin = (__corvex__nodeReader.ownerDocument(object) || object).defaultView;
      var name = String(__corvex__nameOf(object));
      return escape(name) + " " + hits(unescape(name));
    },
    // How far from the corner of the page's image the image of a document begins that a frame shows.
    frameOffset: function (doc) {
      var x = 0;
      var y = 0;
      var ratio = __corvex__imagePixelRatio();
      for (var win = doc.defaultView; win && win !== window.top && win.frameElement; win = win.parent) {
        var frame = win.frameElement;
        var rect = window.top.__corvex.getElementRectangleInDocument(frame, 1);
        x += rect.x + Math.round(((frame.clientLeft || 0) - win.pageXOffset) * ratio);
        y += rect.y + Math.round(((frame.clientTop || 0) - win.pageYOffset) * ratio);
      }
      return x + "," + y;
    },
    hasChildren: function (object) {
      return !!(object.qx_Widget || __corvexDOMAPI.firstChild(object) || __corvex__nodeReader.shadowRoot(object));
    }
  };
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
