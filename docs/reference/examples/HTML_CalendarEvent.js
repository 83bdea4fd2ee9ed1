openUrl("http://localhost:8000/widgets.html");
var tasting = findObject("{tagName='DIV' id='week'}").visibleEventAt(0);
test.compare(tasting.className(), "HTML_CalendarEvent");
