var picture = findObject("{tagName='IMG' id='leaf-picture'}");
test.compare(picture.property("alt"), "A leaf");
test.compare(picture.width, 20);
