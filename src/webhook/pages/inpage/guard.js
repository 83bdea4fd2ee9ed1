// Gives: the frame of an evaluation: the code gets JSON of our own, and runs only in the document with the number.
// Needs: nothing; a document that is not hooked has no number.
{
  let JSON = window.__corvex && window.__corvex.JSON || window.JSON;
  if (("" + (window.__corvex || {}).documentNumber) !== "%1") throw new Error("%2");
  /*%3*/
}
