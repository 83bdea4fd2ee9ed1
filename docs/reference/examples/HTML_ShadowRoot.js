var root = findObject("{tagName='DIV' id='host'}").shadowRoot;
test.compare(root.className(), "HTML_ShadowRoot");
test.compare(children(root)[0].innerText, "The best tea is Sencha.");
