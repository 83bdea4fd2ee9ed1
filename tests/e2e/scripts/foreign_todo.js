// One script for the same application in many frameworks: a to-do list, by its authors.
var apps = ["backbone", "angularjs", "vue", "react", "knockoutjs", "emberjs", "vanillajs", "canjs", "ractive"];

function item(text) {
  return "{tagName='LABEL' simplifiedInnerText='" + text + "'}";
}

for (var i = 0; i < apps.length; ++i) {
  startBrowser(SITE + "/packages/todomvc/examples/" + apps[i] + "/index.html");
  typeText(element("INPUT", "new-todo"), "Buy milk<Return>");
  typeText(element("INPUT", "new-todo"), "Zwölf Äpfel 🍎<Return>");
  waitForObject(item("Buy milk"));
  mouseClick("{tagName='INPUT' type='checkbox' visible='true' container={tagName='LI' simplifiedInnerText='Buy milk'}}");
  waitForObject("{tagName='LI' class?='*completed*'}");
  doubleClick(item("Zwölf Äpfel 🍎"));
  typeText("{tagName='INPUT' class?='*edit*' visible='true'}", "Edited<Return>");
  hover(item("Edited"));
  mouseClick("{tagName='BUTTON' class?='*destroy*' container={tagName='LI' simplifiedInnerText='Edited'}}");
  waitUntil(function () { return !exists(item("Edited")); }, apps[i] + " takes everything");
}
