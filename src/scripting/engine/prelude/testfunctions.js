// Gives the bridge what it needs to run the functions that a script defines: their names, and how one is called.
(function (bridge, global) {
  var ownNames = Object.getOwnPropertyNames;

  bridge.setRunner(
    function names() {
      var found = [];
      var all = ownNames(global);
      for (var i = 0; i < all.length; ++i) {
        if (typeof global[all[i]] === "function") {
          found[found.length] = all[i];
        }
      }
      return found;
    },
    function run(name) {
      try {
        global[name]();
      } catch (error) {
        return { failed: true, error: error };
      }
      return { failed: false };
    }
  );
})
