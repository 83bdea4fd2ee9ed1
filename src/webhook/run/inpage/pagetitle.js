// Gives: the title of the document, also where the page has hidden it after an element of that name.
// Needs: nothing.
(function () {
  var own = Object.getOwnPropertyDescriptor(Document.prototype, "title");
  return String(own && own.get ? own.get.call(document) : document.title);
}())
