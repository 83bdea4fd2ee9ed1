openUrl("http://localhost:8000/widgets.html");
var item = findObject("{tagName='DIV' innerText='Open'}");
test.compare(item.className(), "HTML_MenuItem");
