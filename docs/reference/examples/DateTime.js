openUrl("http://localhost:8000/widgets.html");
var date = findObject("{tagName='DIV' id='delivery'}").date;
test.compare([date.year, date.month, date.day], [2024, 12, 31]);
test.compare([date.hours, date.minutes], [23, 59]);
