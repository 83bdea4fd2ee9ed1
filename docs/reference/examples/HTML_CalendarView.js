openUrl("http://localhost:8000/widgets.html");
var week = findObject("{tagName='DIV' id='week'}");
test.compare(week.numVisibleEvents(), 1);
test.compare(week.visibleEventAt(0).innerText, "Tasting");
