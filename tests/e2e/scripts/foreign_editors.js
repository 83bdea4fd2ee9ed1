// Editors that take keys in a field nobody sees.
function holds(text) {
  waitUntil(function () { return retrieveJSObject("editorText()") === text; }, "the editor holds '" + text + "'");
}

startBrowser(SITE + "/foreign/codemirror.html");
typeText("{tagName='DIV' class?='CodeMirror *'}", "var x = 1;");
holds("var x = 1;");
typeText(findObject("{tagName='TEXTAREA'}"), "<Ctrl+End> // one");
holds("var x = 1; // one");
var lines = "if (x) {\n  f(\"a\");\n}\n";
setText("{tagName='DIV' class?='CodeMirror *'}", lines);
holds(lines);

startBrowser(SITE + "/foreign/monaco.html");
typeText("{tagName='DIV' class?='view-lines*'}", "first\nsecond");
holds("first\nsecond");
typeText("{tagName='DIV' class?='view-lines*'}", "<Ctrl+A><Delete>third");
holds("third");
setText("{tagName='DIV' class?='view-lines*'}", lines);
holds(lines);
