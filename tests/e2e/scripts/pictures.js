// A picture of an object is compared with one that was taken before.
startBrowser(SITE + "/events.html");
var box = element("P", "box");
takeScreenshot(box, "box.png");
test.verify(test.compareScreenshot(box, "box.png"));
test.verify(test.compareScreenshot(findObject(box), "box.png", 0.1));
test.throws(function () {
  test.compareScreenshot(findObject("{tagName='TITLE'}"), "box.png");
}, "There is no picture of the object: nothing of it is shown.");
closeWindow();
test.throws(function () { test.compareScreenshot(box, "box.png"); }, "The browser window is closed.");
