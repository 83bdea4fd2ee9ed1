// The question whether to leave a page is a dialog, too.
startBrowser(SITE + "/leaving.html");
typeText("{tagName='INPUT' name='field'}", "unsaved");
mouseClick(element("A", "next"));
verifyFails(function () { waitForContextExists("next.html", 1000); }, "The page shows a dialog (beforeunload). Answer it with closeConfirm.");
closeConfirm(false);
test.compare(findObject("{tagName='INPUT' name='field'}").value, "unsaved", "stayed");
mouseClick(element("A", "next"));
closeConfirm(true);
waitForContextExists("next.html");
test.compare(where(), "next");
