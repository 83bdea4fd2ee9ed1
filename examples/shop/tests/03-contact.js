// A link that is only an image, a file field, and a button that becomes usable after a while.
startBrowser("../index.html");

mouseClick("{tagName='A' img_alt='Write to us'}");
test.verify(waitForObject("{tagName='EM' simplifiedInnerText='O\\'Neil & Sons'}").visible, "the text is shown");

var send = findObject("{tagName='BUTTON' name='send'}");
test.compare(send.disabled, true);
setText("{tagName='INPUT' name='attachment'}", scriptPath("03-contact.js"));
test.compare(waitForObject("{tagName='SPAN' id='attached' simplifiedInnerText?='*.js'}").innerText, "03-contact.js");
clickButton("{tagName='BUTTON' name='send'}");
test.compare(send.disabled, false);
mouseClick("{tagName='A' id='home'}");
test.verify(waitForObject("{tagName='UL' id='goods'}").numChildren > 0, "back in the shop");
