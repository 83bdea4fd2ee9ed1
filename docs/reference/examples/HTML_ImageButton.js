var button = findObject("{tagName='INPUT' id='picture-button'}");
test.compare(button.className(), "HTML_ImageButton");
clickButton(button);
test.compare(pageTitle(), "Basket");
