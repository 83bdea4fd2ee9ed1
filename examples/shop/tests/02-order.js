// Two articles go into the basket and are ordered.
startBrowser("../index.html");

clickButton("{tagName='BUTTON' id='add-sencha'}");
clickButton("{tagName='BUTTON' id='add-pot'}");
clickButton("{tagName='BUTTON' id='add-pot'}");
test.compare(waitForObject("{tagName='SPAN' id='count'}").innerText, "3");

mouseClick("{tagName='A' name='basket'}");
test.compare(waitForObject("{tagName='SPAN' id='total'}").innerText, "106.50");
test.compare(waitForObject("{tagName='TD' occurrence='4'}").innerText, "Cast-iron pot");

typeText("{tagName='INPUT' name='name' form='order'}", "Ada O'Neil \\ Sons");
typeText("{tagName='INPUT' name='mail' type='email'}", "ada@example.com");
selectOption("{tagName='SELECT' name='country'}", "Norway");
test.compare(waitForObject("{tagName='SPAN' id='shipping'}").innerText, "Shipping 9.00");
mouseClick("{tagName='INPUT' type='radio' value='invoice'}");
test.compare(findObject("{tagName='INPUT' type='radio' value='invoice'}").checked, true);
selectOption("{tagName='SELECT' name='extras'}", "Gift wrap,Express");
test.compare(findObject("{tagName='SELECT' name='extras'}").selectedTexts.join("+"), "Gift wrap+Express");
typeText("{tagName='TEXTAREA' name='note'}", "Ring twice.\nThe dog is kind.");

clickButton("{tagName='BUTTON' name='place'}");
var message = waitForObject("{tagName='P' id='message' simplifiedInnerText?='Thank you*'}");
test.compare(message.innerText, "Thank you, Ada O'Neil \\ Sons! We ship to Norway.");
