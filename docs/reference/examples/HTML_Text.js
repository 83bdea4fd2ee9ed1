var field = findObject("{tagName='INPUT' id='name' type='text'}");
typeText(field, "Ada");
test.compare(field.value, "Ada");
