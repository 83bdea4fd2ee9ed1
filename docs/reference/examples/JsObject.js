var shop = retrieveJSObject("shop");
test.compare(shop.property("teas").property("0"), "Assam");
test.compare(shop.call("add", [40, 2]), 42);
test.compare(shop.call("tagOf", [findObject("{tagName='H1'}")]), "H1");
