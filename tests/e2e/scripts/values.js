// Styles, colours, XPath results and values of the page.
startBrowser(SITE + "/values.html");
var red = waitForObject("{tagName='P' id='red'}");

test.compare(red.css.display, "inline-block");
test.compare(red.css.marginTop, "7px");
test.compare(red.style().value("margin-top"), "7px");
test.compare(String(CssColor.fromRgb(1, 2, 3)), "rgba(1,2,3,1)");
verifyFails(function () { CssColor.fromRgb("x", 2, 3); }, "CssColor.fromRgb: argument 'red' must be of type int, but got 'x'.");
verifyFails(function () { CssColor.fromRgb(1, 2, 3).rad; }, "Invalid property of CssColor accessed: rad. Did you mean 'red'?");
verifyFails(function () { CssColor.fromRgb(1, 2, 3).hue = 1; }, "Invalid property of CssColor accessed: hue");
verifyFails(function () { red.css.widh; }, "Unknown CSS property 'widh'. Did you mean 'width'?");
test.compare(HTML_Event.Control + HTML_Event.Shift, 6);

var items = findObject("{tagName='UL' id='list'}").evaluateXPath("./LI");
test.compare(items.snapshotLength, 3);
test.compare(items.snapshotItem(1).innerText, "two");
test.compare(items.singleNodeValue().innerText, "one");
verifyFails(function () { items.snapshotItem(3); }, "No XPath result item at index 3");
test.compare(red.evaluateXPath("count(//LI)").numberValue, 3);
test.compare(red.evaluateXPath("string(//LI[2])").stringValue, "two");
test.compare(red.evaluateXPath("boolean(//EM)").booleanValue, false);
verifyFails(function () { red.evaluateXPath("//LI["); }, "Error evaluating xpath '//LI[': Error: The XPath expression");

test.compare(red.evaluateXPath("//LI[1]\n| //LI[2]").snapshotLength, 2);

var shop = retrieveJSObject("shop");
test.compare(shop.property("name"), 'the "shop"');
test.compare(shop.property("price"), 2.5);
test.compare(shop.property("open"), true);
test.compare(shop.property("none"), null);
test.compare(shop.property("missing"), undefined);
test.compare(shop.call("add", [40, 2]), 42);
test.compare(shop.call("add", ["it's ", "\"that\""]), "it's \"that\"");
test.compare(shop.call("self").property("items").property("length"), 3);
test.compare(shop.property("items").property("2").property("three"), 3);
test.compare(shop.call("sum", [[1, 2, 3]]), 6);
test.compare(shop.call("tagOf", [red]), "P");
verifyFails(function () { shop.call("fail"); }, "code threw exception: RangeError: sold out");
verifyFails(function () { shop.property(2); }, "JsObject::property: Requires a string argument");
verifyFails(function () { shop.call(2, []); }, "JsObject::call: Requires a string as first argument, got: 2");
verifyFails(function () { shop.call("self", null); }, "JsObject::call: Requires a list as second argument, got: null");
verifyFails(function () { retrieveJSObject("not code"); }, "Failed to retrieve Javascript Object");
test.compare(retrieveJSObject("var n = 20; n + 1"), 21);
test.compare(retrieveJSObject("0 / 0") + "", "NaN");

takeScreenshot(red, "red.png");
takeScreenshot("red.jpg");
verifyFails(function () { takeScreenshot(red, "red"); }, "The name of a picture ends in .png, .jpg or .bmp, unlike");
verifyFails(function () { takeScreenshot(shop, "shop.png"); }, "takeScreenshot takes an object of a page, or its name.");

startBrowser(SITE + "/next.html");
verifyFails(function () { shop.property("name"); }, "The value belongs to a page that is gone.");
verifyFails(function () { retrieveJSObject("[]").call("push", [[shop]]); }, "The value belongs to a page that is gone.");
verifyFails(function () { red.innerText; }, "Object reference deleted in browser already");
