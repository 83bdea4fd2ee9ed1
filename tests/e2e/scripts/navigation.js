// Redirects, other origins, fragments and the way back.
startBrowser(SITE + "/moved");
test.compare(where(), "plain at 127.0.0.1");
test.compare(contextNames().join(" "), "plain.html");

var hash = findObject(element("P", "hash"));
mouseClick(element("A", "first"));
waitForText("P", "hash", "#first");
test.compare(hash.innerText, "#first", "objects outlive a navigation within the document");
test.compare(contextNames().join(" "), "plain.html");

mouseClick(element("A", "next"));
waitForContextExists("next.html");
test.compare(where(), "next");
test.verify(failureOf(function () { return hash.innerText; }) !== "", "objects of the page before are void");
findObject("{tagName='BODY'}").invoke("back");
waitForContextExists("plain.html");
waitForText("P", "where", "plain at 127.0.0.1");

mouseClick(element("A", "moved"));
pause(0.3);
waitForText("P", "where", "plain at 127.0.0.1");
mouseClick(element("A", "elsewhere"));
waitForText("P", "where", "plain at localhost");
clickButton(element("A", "first"));
waitForText("P", "hash", "#first");
