openUrl("http://localhost:8000/widgets.html");
var delivery = findObject("{tagName='DIV' id='delivery'}");
test.compare(delivery.date.year, 2024);
delivery.setDate(new Date(2025, 0, 2, 12, 30));
test.compare([delivery.date.month, delivery.date.day], [1, 2]);
var later = delivery.date;
delivery.date = new Date(2024, 0, 1);
delivery.date = later;
test.compare(delivery.date.year, 2025);
