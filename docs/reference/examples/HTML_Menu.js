openUrl("http://localhost:8000/widgets.html");
var menu = findObject("{tagName='DIV' id='file-menu'}");
test.compare(menu.numItems, 2);
test.compare(menu.itemAt(1).innerText, "Open");
