var options = findObject("{tagName='SELECT' id='size'}").options();
test.compare(options.length, 3);
test.compare(options.at(2).text, "Large");
