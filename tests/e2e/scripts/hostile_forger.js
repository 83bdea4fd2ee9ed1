// A page that makes up what a lookup gives gets no code of its own to run.
startBrowser(SITE + "/forger.html");
verifyFails(function () { findObject("{tagName='P' id='where'}").innerText; }, "no reference for an object");
startBrowser(SITE + "/plain.html");
test.compare(findObject("{tagName='BODY'}").tagName, "BODY", "other pages are none the worse for it");
