// A page without unsafe-eval: properties of properties are compared and read all the same.
startBrowser(SITE + "/noeval/color.html");
test.compare(findObject("{tagName='P' style.color='blue'}").id, "blue");
verifyFails(function () { findObject("{tagName='P' style.color='green'}"); }, "not found");
var red = findObject(element("P", "red"));
test.compare(red.property("style.color"), "red");
red.setProperty("innerText", "changed");
test.compare(red.innerText, "changed");
test.compare(red.invoke("getAttribute", "'id'"), "red");
