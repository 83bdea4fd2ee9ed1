// Gives: the text of `this` as String() gives it. A template literal converts so, and no page can replace it; but it
// takes no symbol.
// Needs: nothing.
function textOfThis() {
  "use strict";
  return typeof this === "symbol" ? this.toString() : `${this}`;
}
