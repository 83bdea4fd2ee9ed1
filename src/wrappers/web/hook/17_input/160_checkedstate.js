// Gives: __corvex__checkedState: "true", "false" or "mixed" of a check box, a radio button or a switch, else "".
// Needs: runtime/nodes.

function __corvex__checkedState(o) {
  var control = o && __corvex__nodeReader.tagName(o) === "LABEL" && o.control ? o.control : o;
  if (!control) {
    return "";
  }
  if (__corvex__nodeReader.tagName(control) === "INPUT") {
    var type = String(control.type).toLowerCase();
    var isBox = type === "checkbox" || type === "radio";
    return !isBox ? "" : control.indeterminate ? "mixed" : String(control.checked);
  }
  return String(__corvex__attributeOf(control, "aria-checked") || "");
}
