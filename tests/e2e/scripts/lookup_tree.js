// The page as a tree, and names that lead back.
startBrowser(SITE + "/lookup.html");
waitForContextExists("lookup.html.FRAME2.FRAME1");

var doc = findObject("DOCUMENT");
test.compare(objectName(doc), "DOCUMENT");
test.compare(parent(doc), null);
var html = children(doc)[0];
test.compare(html.tagName, "HTML");
test.verify(sameObject(parent(html), doc), "down and up again");
test.compare(children(html).map(function (o) { return o.tagName; }), ["HEAD", "BODY"]);

var box = findObject("{tagName='DIV' id='box'}");
var rows = children(box);
test.compare(rows.map(function (o) { return o.innerText; }), ["one", "two"]);
test.verify(!sameObject(rows[0], rows[1]), "siblings are not the same");
test.verify(sameObject(box, findObject(objectName(box))), "a name finds its object again");

var inHost = children("{tagName='SPAN' id='host'}");
test.compare(inHost.length, 1, "the shadow root is a child");
var inShadow = findObject("{tagName='P' container={tagName='SPAN' id='host'}}");
test.compare(objectName(inShadow), objectName(children(inHost[0])[0]));
test.verify(sameObject(inShadow, waitForObject(objectName(inShadow))), "through a shadow tree, too");

var frameDoc = findObject("DOCUMENT[lookup|html|FRAME1]");
test.verify(sameObject(frameDoc, findObject(objectName(frameDoc))), "a frame's document has a name");
var left = findObject("{tagName='P' context='lookup.html.FRAME1'}");
setContext("lookup.html");
test.verify(sameObject(left, findObject(objectName(left))), objectName(left));

startBrowser(SITE + "/plain.html");
[children, parent, objectName].forEach(function (ask) {
  verifyFails(function () { ask(box); }, "Object reference deleted in browser already");
});
