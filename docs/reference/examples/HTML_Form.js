findObject("{tagName='FORM' id='order'}").submit();
waitForUrl("*basket.html?name=*");
