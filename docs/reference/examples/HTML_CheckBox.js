var box = findObject("{tagName='INPUT' id='wrapped' type='checkbox'}");
test.compare(box.checked, false);
box.setChecked(true);
test.compare(box.checked, true);
