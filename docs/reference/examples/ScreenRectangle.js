var place = findObject("{tagName='DIV' id='pad'}").boundingClientRect;
test.compare([place.x, place.y, place.width, place.height], [600, 40, 120, 60]);
