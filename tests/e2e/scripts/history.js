// A script goes from page to page in one window: by address, back and forward, and once more to the same page.
verifyFails(function () { reload(); }, "No browser is running. Call startBrowser(url) first.");
startBrowser(SITE + "/plain.html");
test.compare(currentUrl(), SITE + "/plain.html");
test.compare(pageTitle(), "plain");
verifyFails(function () { goBack(); }, "There is no page to go back to");
test.compare(where(), "plain at 127.0.0.1", "the first page is there after that");
var hash = findObject(element("P", "hash"));

openUrl(SITE + "/next.html");
test.compare(where(), "next");
test.verify(failureOf(function () { return hash.innerText; }) !== "", "objects of the page before are void");
goBack();
test.compare(where(), "plain at 127.0.0.1");
goForward();
test.compare(currentUrl(), SITE + "/next.html");
verifyFails(function () { goForward(); }, "There is no page to go forward to");
test.compare(where(), "next");

// Parts of one document.
goBack();
hash = findObject(element("P", "hash"));
openUrl(SITE + "/plain.html#first");
waitForText("P", "hash", "#first");
test.compare(hash.innerText, "#first");
goBack();
test.compare(currentUrl(), SITE + "/plain.html");
waitForText("P", "hash", "");
goForward();
waitForText("P", "hash", "#first");
reload();
test.compare(where(), "plain at 127.0.0.1");
test.compare(currentUrl(), SITE + "/plain.html#first");
test.compare(textOf("P", "hash"), "", "the document is another one");

// A page that asks whether to leave it is left.
openUrl(SITE + "/leaving.html");
typeText("{tagName='INPUT' name='field'}", "unsaved");
reload();
test.compare(findObject("{tagName='INPUT' name='field'}").value === "unsaved", BROWSER === "firefox");
typeText("{tagName='INPUT' name='field'}", "unsaved");
goBack();
test.compare(where(), "plain at 127.0.0.1");
openUrl(SITE + "/leaving.html");
typeText("{tagName='INPUT' name='field'}", "unsaved");
openUrl(SITE + "/next.html");
test.compare(where(), "next");

// A page that stops at a dialog is loaded as far as that.
openUrl(SITE + "/held.html");
verifyFails(function () { reload(); }, "The page shows a dialog (alert: 'Held')");
test.compare(currentUrl(), SITE + "/held.html");
closeAlert();
findObject(element("P", "end"));
reload();
closeAlert();
findObject(element("P", "end"));

openUrl(SITE + "/titled.html");
test.compare(pageTitle(), "The title", "a form hides nothing");
verifyFails(function () { openUrl(" "); }, "openUrl needs an address");
verifyFails(function () { openUrl("http://127.0.0.1:1/"); }, "could not be loaded");
openUrl(SITE + "/next.html");
test.compare(where(), "next");
