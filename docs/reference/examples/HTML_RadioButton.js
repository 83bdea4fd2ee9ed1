var bag = findObject("{tagName='INPUT' id='bag' type='radio'}");
test.compare(bag.checked, false);
bag.setChecked(true);
test.compare(findObject("{tagName='INPUT' id='leaf' type='radio'}").checked, false);
