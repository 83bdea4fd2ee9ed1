var medium = findObject("{tagName='SELECT' id='size'}").optionAt(1);
test.compare([medium.text, medium.value, medium.index], ["Medium", "m", 1]);
test.compare([medium.selected, medium.defaultSelected], [false, false]);
medium.setText("Middle");
medium.setValue("mid");
test.compare([medium.text, medium.value], ["Middle", "mid"]);
