var style = findObject("{tagName='P' id='price'}").style();
test.compare(style.value("margin-top"), "7px");
