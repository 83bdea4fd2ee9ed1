// Widgets that live on hover, focus, key and drag events.
function evaluated(code) {
  return String(retrieveJSObject(code));
}

startBrowser(SITE + "/foreign/bootstrap.html");
hover(element("BUTTON", "tipped"));
waitForObject("{tagName='DIV' class='tooltip-inner' innerText='Tip text'}");
mouseClick(element("BUTTON", "open"));
typeText(element("INPUT", "inside"), "in the dialog");
test.compare(findObject(element("INPUT", "inside")).value, "in the dialog");
// While it fades in, the dialog does not close.
waitUntil(function () {
  return evaluated("bootstrap.Modal.getInstance(document.getElementById('dialog'))._isTransitioning") === "false";
}, "the dialog is there");
mouseClick(element("BUTTON", "close"));
mouseClick(element("BUTTON", "open"));
waitForObject(element("BUTTON", "close"));

startBrowser(SITE + "/packages/jquery-ui-dist/index.html");
typeText(element("INPUT", "autocomplete"), "ja");
mouseClick("{tagName='DIV' class?='ui-menu-item-wrapper*' innerText='Java'}");
test.compare(findObject(element("INPUT", "autocomplete")).value, "Java");
hover("{tagName='DIV' class?='ui-menu-item-wrapper*' innerText?='Item 3*'}");
waitForObject("{tagName='DIV' class?='ui-menu-item-wrapper*' innerText='Item 3-1'}");

startBrowser(SITE + "/foreign/jqueryui.html");
mouseClick(element("INPUT", "date"));
mouseClick("{tagName='A' simplifiedInnerText='15'}");
test.compare(findObject(element("INPUT", "date")).value, "02/15/2024");
mouseClick("{tagName='SPAN' class?='ui-slider-handle*'}");
pressKeys("<Right><Right>");
test.compare(evaluated("$('#slider').slider('value')"), "2");
mouseDown("{tagName='SPAN' class?='ui-slider-handle*'}");
mouseMove(element("DIV", "slider"), 300, 5);
mouseUp(element("DIV", "slider"), 300, 5);
test.verify(Math.abs(evaluated("$('#slider').slider('value')") - 75) <= 1, "the handle was dragged");
dragTo("{tagName='LI' innerText='one'}", "{tagName='LI' innerText='three'}");
test.compare(evaluated("$('#sortable').text()"), "twothreeone");
