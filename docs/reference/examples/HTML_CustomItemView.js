openUrl("http://localhost:8000/widgets.html");
var cellar = findObject("{tagName='UL' id='cellar'}");
test.compare(cellar.className(), "HTML_CustomItemView");
