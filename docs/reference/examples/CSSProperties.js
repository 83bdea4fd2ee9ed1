var price = findObject("{tagName='P' id='price'}");
test.compare(price.css.marginTop, "7px");
test.compare([String(price.css.color), price.css.color.blue], ["rgba(1,2,3,1)", 3]);
waitForValue(price, "css.display", "block");
