var list = findObject("{tagName='UL' id='teas'}");
var teas = list.evaluateXPath("./LI");
test.compare(teas.snapshotLength, 3);
test.compare(teas.snapshotItem(1).innerText, "Sencha");
test.compare(teas.singleNodeValue().innerText, "Assam");
test.compare(list.evaluateXPath("count(./LI)").numberValue, 3);
test.compare(list.evaluateXPath("string(./LI[2])").stringValue, "Sencha");
test.compare(list.evaluateXPath("boolean(./TABLE)").booleanValue, false);
