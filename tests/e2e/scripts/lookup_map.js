// Symbolic names, in containers and contexts, too.
// @options --object-map objects.map
// @map :Box {tagName='DIV' title='box'}
// @map :Second {tagName='P' occurrence='2' container=':Box'}
// @map :Rows {tagName='P' container=':Box'}
// @map :Inner {tagName='INPUT' name='field' container=':Body'}
// @map :Body {tagName='BODY' context='lookup.html.FRAME2.FRAME1'}
// @map :Page DOCUMENT.HTML1.BODY1
// @map :Gone {tagName='P' container=':Lost'}
// @map :Loop {tagName='P' container=':Loop'}
startBrowser(SITE + "/lookup.html");

test.compare(waitForObject(":Second").innerText, "two");
test.compare(findAllObjects(":Rows").length, 2);
typeText(":Inner", "deep");
test.compare(findObject("{tagName='INPUT' context='lookup.html.FRAME2.FRAME1'}").value, "deep");
test.compare(findObject(":Page").tagName, "BODY");
test.compare(children(":Box").length, 2);
verifyFails(function () { findObject(":Gone"); }, "Object ':Gone' not found. Its container ':Lost' is not in the object map.");
verifyFails(function () { findObject(":Loop"); }, "its containers go round in a circle. Correct the object map.");
verifyFails(function () { findAllObjects(":Loop"); }, "its containers go round in a circle. Correct the object map.");
