var button = findObject("{tagName='INPUT' id='send'}");
test.compare(button.value, "Order");
button.setValue("Order now");
test.compare(button.value, "Order now");
