openUrl("http://localhost:8000/widgets.html");
var oolong = findObject("{tagName='LI' innerText='Oolong'}");
test.compare(oolong.itemView().id, "cellar");
test.verify(sameObject(oolong.parentItem(0), "{tagName='LI' occurrence='1'}"));
