var field = findObject("{tagName='INPUT' id='name' type='text'}");
test.compare(field.type, "text");
field.focus();
test.verify(field.hasFocus);
field.setDisabled(true);
test.compare(field.disabled, true);
