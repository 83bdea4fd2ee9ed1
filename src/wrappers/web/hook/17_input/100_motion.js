// Gives: __corvex__motion, whether an element moves by itself.
// Needs: runtime/natives, runtime/nodes, input/hittarget.

var __corvex__motion = (function () {
  var animationsOf = __corvex__nativeFunction(window.Document && Document.prototype.getAnimations);
  var frameMs = 17;
  // After that the page is one for which the browser draws no frames.
  var framelessMs = 300;
  var looked = { object: null, rect: "", since: 0, frame: 0 };

  function animationOf(o) {
    var doc = __corvex__nodeReader.ownerDocument(o);
    var animations = animationsOf ? animationsOf.call(doc) : [];
    for (var i = 0; i < animations.length; ++i) {
      var effect = animations[i].effect;
      if (animations[i].playState === "running" && effect && effect.target &&
          __corvex__hitTarget.isWithin(o, effect.target)) {
        return animations[i];
      }
    }
    return null;
  }

  // In its first moments an animation has moved nothing yet.
  function isBeginning(o) {
    var animation = animationOf(o);
    return !!animation && (animation.pending || !(animation.currentTime > 3 * frameMs));
  }

  // What moves by itself does it by an animation of the browser, or by styles that the page writes.
  function mayMove(o) {
    if (animationOf(o)) {
      return true;
    }
    for (var e = o; e && e.nodeType !== 9; e = __corvex__hitTarget.parentOf(e)) {
      var style = e.style;
      if (style && (style.transform || style.left || style.top || style.right || style.bottom || style.height)) {
        return true;
      }
    }
    return false;
  }

  function rectText(o) {
    var box = __corvex__askNode.Element.getBoundingClientRect(o);
    return [box.left, box.top, box.width, box.height].join(" ");
  }

  // Changes with each frame; a busy browser may draw none for a while.
  function frameTime(o) {
    var timeline = __corvex__nodeReader.ownerDocument(o).timeline;
    return timeline ? timeline.currentTime : __corvex__natives.milliseconds();
  }

  // It stands still when a look at least a frame ago saw it in the same place.
  function isMoving(o) {
    var rect = rectText(o);
    var now = __corvex__natives.milliseconds();
    if (looked.object !== o || looked.rect !== rect) {
      looked = { object: o, rect: rect, since: now, frame: frameTime(o) };
      return mayMove(o);
    }
    var isSeen = now - looked.since >= frameMs && frameTime(o) !== looked.frame && !isBeginning(o);
    return !isSeen && now - looked.since < framelessMs && mayMove(o);
  }

  return {
    isMoving: isMoving,
    isAnimated: function (o) {
      return !!animationOf(o);
    },
    // What moved it since the last look was nothing of its own.
    forgive: function (o) {
      looked.rect = rectText(o);
    }
  };
})();
