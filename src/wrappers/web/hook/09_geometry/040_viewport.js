// Gives: where the view starts on the screen, how large it is, and the device pixel ratio.
// Needs: browsers, geometry/frameoffset.

// Scales in place. A record without width and height scales only its position.
function __corvex__applyDevicePixelRatio(rectOrPos, win) {
  if (!__corvex__needToApplyDevicePixelRatio(win) || !win.devicePixelRatio) {
    return;
  }
  rectOrPos.x *= win.devicePixelRatio;
  rectOrPos.y *= win.devicePixelRatio;
  if (rectOrPos.width && rectOrPos.height) {
    rectOrPos.width *= win.devicePixelRatio;
    rectOrPos.height *= win.devicePixelRatio;
  }
}

function __corvex__scaledPosition(pos, win) {
  __corvex__applyDevicePixelRatio(pos, win);
  return pos;
}

function __corvex__addPosition(pos, other) {
  return { x: pos.x + other.x, y: pos.y + other.y };
}

function __corvex__edgeViewPosition(win) {
  var hasBorder = screen.availWidth - win.innerWidth !== 0 ? 1 : 0;
  var windowBorder = (win.outerWidth - win.innerWidth) / 2 * hasBorder;
  // The window's height can exceed the available height.
  var outerHeight = Math.min(screen.availHeight, win.outerHeight);
  return { x: win.screenLeft + windowBorder, y: win.screenTop + outerHeight - win.innerHeight - windowBorder };
}

function __corvex__viewPositionFromOuterSize(win) {
  var top = win.top;
  if (window.top.__corvex__safari && window.__corvex__os === "MacOSX") {
    // The inner sizes shrink with the page zoom.
    var zoomFactor = top.outerWidth / top.innerWidth;
    return { x: top.screenX, y: top.screenY + top.outerHeight - top.innerHeight * zoomFactor };
  }
  // Left and right border are taken as equal. A status bar below the view shifts y.
  var borderWidth = (top.outerWidth - top.innerWidth) / 2;
  return { x: top.screenX + borderWidth, y: top.screenY + top.outerHeight - top.innerHeight - borderWidth };
}

// The first row that applies decides.
var __corvex__viewportPositionRows = [
  {
    applies: function (win) {
      return win.mozInnerScreenX !== undefined;
    },
    position: function (win) {
      return __corvex__scaledPosition({ x: win.mozInnerScreenX, y: win.mozInnerScreenY }, win);
    }
  },
  {
    applies: function (win) {
      return win.__corvex__microsoftedge;
    },
    position: function (win) {
      var view = __corvex__edgeViewPosition(win);
      return __corvex__scaledPosition(__corvex__addPosition(view, __corvex__framePositionInView(win)), win);
    }
  },
  {
    applies: __corvex__usesEventLoggerBridge,
    position: function () {
      var bridge = window.__corvex__eventLoggerBridge;
      return { x: bridge.screenX(), y: bridge.screenY() };
    }
  },
  {
    applies: function () {
      return __corvex__isJavaFXWebViewBrowser() || __corvex__isAndroidWebViewBrowser();
    },
    position: function (win) {
      var bridge = window.__corvex__qwebkitEventLoggerBridge;
      var frameOffset = __corvex__scaledPosition(__corvex__getFrameOffset(win), win);
      return __corvex__addPosition({ x: bridge.screenX(), y: bridge.screenY() }, frameOffset);
    }
  },
  {
    applies: __corvex__isQWebViewBrowser,
    position: function (win) {
      var bridge = window.top.__corvex__qwebkitEventLoggerBridge;
      var view = { x: bridge.screenX(), y: bridge.screenY() };
      return __corvex__addPosition(view, __corvex__framePositionInView(win));
    }
  },
  {
    applies: __corvex__isJavaSWTBrowser,
    position: function (win) {
      var channel = window.top.__corvex__swtfunction;
      var view = { x: channel("screenX"), y: channel("screenY") };
      return __corvex__addPosition(view, __corvex__framePositionInView(win));
    }
  },
  {
    applies: function (win) {
      return win.outerWidth && !win.top.__corvex__ie;
    },
    position: function (win) {
      var view = __corvex__viewPositionFromOuterSize(win);
      return __corvex__scaledPosition(__corvex__addPosition(view, __corvex__framePositionInView(win)), win);
    }
  },
  {
    applies: function (win) {
      return win.top.__corvex__ie || (win.dialogArguments && win.dialogArguments.top.__corvex__ie);
    },
    position: function (win) {
      var top = win.top;
      var view = { x: win.screenLeft, y: win.screenTop };
      if (top.corvexScreenLeft && top.corvexScreenTop) {
        view = __corvex__addPosition({ x: top.corvexScreenLeft, y: top.corvexScreenTop },
          __corvex__framePositionInView(win));
      }
      return __corvex__scaledPosition(view, win);
    }
  }
];

function __corvex__getViewportScreenPosition(doc, win) {
  for (var i = 0; i < __corvex__viewportPositionRows.length; ++i) {
    if (__corvex__viewportPositionRows[i].applies(win)) {
      return __corvex__viewportPositionRows[i].position(win);
    }
  }
  return { x: 0, y: 0 };
}

// The top window's size also for an element in a frame: clipping is against the browser's view.
window.top.__corvex.getViewPortSize = function (elemDoc, win) {
  if (win.top.innerWidth !== undefined) {
    return { x: win.top.innerWidth, y: win.top.innerHeight };
  }
  var root = elemDoc.documentElement;
  if (root && root.clientWidth) {
    return { x: root.clientWidth, y: root.clientHeight };
  }
  return { x: elemDoc.body.clientWidth, y: elemDoc.body.clientHeight };
};

window.top.__corvex.getViewportBounds = function (elemDoc, win) {
  var position = __corvex__getViewportScreenPosition(elemDoc, win);
  var size = window.top.__corvex.getViewPortSize(elemDoc, win);
  return { x: position.x, y: position.y, width: size.x, height: size.y };
};
