// A page that broke the language's own functions: it is searched and pressed all the same.
startBrowser(SITE + "/broken.html");
clickButton("{tagName='BUTTON' simplifiedInnerText='Ask'}");
waitForObject("{tagName='P' simplifiedInnerText='pressed'}");
setFocus("{visible='true' tagName='INPUT' name?='u*' title='u'}");
test.compare(findObject("{tagName='INPUT' name='user'}").title, "u");
typeText("{tagName='INPUT' name='user'}", "Ada");
test.compare(findObject("{tagName='INPUT' name='user'}").value, "Ada");
test.compare(contextNames().join(" "), "broken.html");
verifyFails(function () { findObject("{tagName='INPUT' name='nothing'}"); }, "not found");
