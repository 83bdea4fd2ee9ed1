// The page as a tree, and names that lead back.
startBrowser(SITE + "/lookup.html");
waitForContextExists("lookup.html.FRAME2.FRAME1");

var doc = findObject("DOCUMENT");
test.compare(objectName(doc), "DOCUMENT");
test.compare(object.parent(doc), null);
var html = object.children(doc)[0];
test.compare(html.tagName, "HTML");
test.verify(object.same(object.parent(html), doc), "down and up again");
test.compare(object.children(html).map(function (o) { return o.tagName; }), ["HEAD", "BODY"]);

var box = findObject("{tagName='DIV' id='box'}");
var rows = object.children(box);
test.compare(rows.map(function (o) { return o.innerText; }), ["one", "two"]);
test.verify(!object.same(rows[0], rows[1]), "siblings are not the same");
test.verify(object.same(box, findObject(objectName(box))), "a name finds its object again");

var inHost = object.children("{tagName='SPAN' id='host'}");
test.compare(inHost.length, 1, "the shadow root is a child");
var inShadow = findObject("{tagName='P' container={tagName='SPAN' id='host'}}");
test.compare(objectName(inShadow), objectName(object.children(inHost[0])[0]));
test.verify(object.same(inShadow, waitForObject(objectName(inShadow))), "through a shadow tree, too");

var frameDoc = findObject("DOCUMENT[lookup|html|FRAME1]");
test.verify(object.same(frameDoc, findObject(objectName(frameDoc))), "a frame's document has a name");
var left = findObject("{tagName='P' context='lookup.html.FRAME1'}");
setContext("lookup.html");
test.verify(object.same(left, findObject(objectName(left))), objectName(left));

startBrowser(SITE + "/plain.html");
[object.children, object.parent, objectName].forEach(function (ask) {
  verifyFails(function () { ask(box); }, "Object reference deleted in browser already");
});
