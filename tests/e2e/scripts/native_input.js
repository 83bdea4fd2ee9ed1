// Pointer and keyboard of a screen, into the page of a browser that is shown there.
// @screen 1280 1024
// @options --headed
startBrowser(SITE + "/upload.html");
var field = element("INPUT", "text");
screenClick(field);
screenType("aB é€<Home>{<Shift+End><Ctrl+x>Ж<Ctrl+v>");
waitUntil(function () { return findObject(field).value === "{ЖaB é€"; }, "the field has the text");

screenClick(element("BUTTON", "own"), 2);
waitForText("P", "events", "button 2");

verifyFails(function () { screenClick(findObject(element("BUTTON", "away"))); }, "The object is not on the screen.");
verifyFails(function () { screenClick(field, 3); }, "There is no mouse button 3:");
verifyFails(function () { screenType("<Retrun>"); }, "There is no key '<Retrun>'.");
