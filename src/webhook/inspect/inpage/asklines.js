// Gives: what a question answers for each of some objects, a line each: pages replace what JSON needs. What follows "!"
// is an error. Needs: the hook script.
__corvex__whilePageStays(function () {
  var questions = {
    name: function (object) {
      return escape(__corvex__nameOf(object));
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
