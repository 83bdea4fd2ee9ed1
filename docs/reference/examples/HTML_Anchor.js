var link = findObject("{tagName='A' id='basket-link'}");
test.compare(link.className(), "HTML_Anchor");
test.compare(link.property("href"), "http://localhost:8000/basket.html");
mouseClick(link);
