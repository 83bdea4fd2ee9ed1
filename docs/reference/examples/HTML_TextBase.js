var field = findObject("{tagName='INPUT' id='name' type='text'}");
field.setValue("Ada");
waitForValue(field, "value", "Ada");
field.selectAll();
test.compare(field.selectedText, "Ada");
