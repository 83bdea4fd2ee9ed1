// Gives: window.top.__corvex, the page-wide namespace object; changes nothing where it already is.
// Needs: nothing.

// It is evaluated before everything else.
if (!window.top.__corvex) {
  window.top.__corvex = {
    glassPaneIds: [],
    lastTouches: null,
    glassPaneClassNames: [],
    addGlassPaneId: function (id) {
      var ids = window.top.__corvex.glassPaneIds;
      if (ids.indexOf(id) === -1) {
        ids.push(id);
      }
    },
    addGlassPaneClassName: function (className) {
      var names = window.top.__corvex.glassPaneClassNames;
      if (names.indexOf(className) === -1) {
        names.push(className);
      }
    }
  };
}
