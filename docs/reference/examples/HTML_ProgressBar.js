openUrl("http://localhost:8000/widgets.html");
var bar = findObject("{tagName='DIV' id='brewing'}");
test.compare([bar.minimum, bar.value, bar.maximum], [0, 30, 100]);
bar.setValue(70);
test.compare(bar.value, 70);
