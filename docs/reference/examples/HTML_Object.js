var heading = findObject("{tagName='H1' id='heading'}");
test.compare([heading.tagName, heading.id, heading.title], ["H1", "heading", "Since 1890"]);
test.compare([heading.innerText, heading.innerHTML], ["Tea shop", "Tea shop"]);
test.compare(heading.className(), "HTML_Object");
test.verify(heading.visible && !heading.hasFocus);

// Its text, its attributes and its styles.
var price = findObject("{tagName='P' id='price'}");
test.compare(price.simplifiedInnerText, "Each 4 € the box");
test.compare(findObject("{tagName='LI' innerText='Assam'}").domClassName, "tea black");
test.compare(price.property("lang"), "en");
price.setProperty("title", "With tax");
test.compare(price.title, "With tax");
test.compare([price.css.marginTop, price.style().value("margin-top")], ["7px", "7px"]);
var waiting = findObject("{tagName='P' id='waiting'}");
waiting.invoke("setAttribute", "'style'", "'display: none; visibility: hidden'");
test.compare([waiting.styleDisplay, waiting.styleVisibility()], ["none", "hidden"]);

// Its place.
var pad = findObject("{tagName='DIV' id='pad'}");
test.compare([pad.width, pad.height], [120, 60]);
var inView = pad.boundingClientRect;
test.compare([inView.x, inView.y, inView.width], [600, 40, 120]);
test.verify(pad.screenRect.width > 0);
test.verify(pad.x >= 600 && pad.y >= 40);
findObject("{tagName='P' id='far'}").scrollTo();
pad.scrollToAlignment(true);

// The tree around it.
var list = findObject("{tagName='UL' id='teas'}");
test.compare(list.numChildren, 3);
test.compare([list.firstChild().innerText, list.lastChild().innerText], ["Assam", "Oolong"]);
test.compare(list.previousSibling().id, "heading");
test.compare(list.nextSibling().id, "price");
test.compare(list.parentElement().tagName, "BODY");
test.compare(list.domPath, list.hierarchicalQualifiedName());
test.verify(sameObject(list, findObject(list.domPath)));
test.verify(list.firstChild().name() !== "");
test.compare(findObject("{tagName='DIV' id='host'}").shadowRoot.className(), "HTML_ShadowRoot");
test.compare(list.evaluateXPath("./LI").snapshotLength, 3);

// Clicks by events of the page.
pad.click(0, 10, 20);
waitForValue("{tagName='P' id='answer'}", "innerText", "click at 10,20");
pad.doubleClick();
waitForValue("{tagName='P' id='answer'}", "innerText", "double click");
pad.openContextMenu();
waitForValue("{tagName='P' id='answer'}", "innerText", "menu");
