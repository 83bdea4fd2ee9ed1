// A page that replaces what scripts build on.
startBrowser(SITE + "/hostile.html");
typeText("{tagName='INPUT' name='name' form='order'}", "Ada");
test.compare(findObject("{tagName='INPUT' name='name'}").value, "Ada");
test.compare(findObject("{tagName='INPUT' value='shadows'}").tagName, "INPUT");
selectOption("{tagName='SELECT' name='choice'}", "two");
test.compare(findObject("{tagName='SELECT' name='choice'}").selectedOption, "two");
test.compare(findObject("{tagName='SELECT' name='choice'}").selectedTexts.join("+"), "two");
test.compare(findObject("{tagName='FORM' name='order'}").numChildren, 3);
test.compare(contextNames().join(" "), "hostile.html hostile.html.FRAME1");
setContext("hostile.html.FRAME1");
waitForText("P", "where", "inside");
setContext("hostile.html");
clickButton(element("BUTTON", "confirm"));
closeConfirm(true);
waitForText("P", "answer", "true");
test.compare(textOf("P", "json"), "untouched", "the page keeps what it replaced");
verifyFails(function () { findObject("{tagName='INPUT' name='nothing'}"); }, "not found");
