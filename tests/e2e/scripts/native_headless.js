// Without a window of the browser nothing of the screen is touched.
startBrowser(SITE + "/upload.html");
var why = "The browser shows no window for native input. Run the script with --headed.";
verifyFails(function () { screenClick(element("INPUT", "text")); }, why);
verifyFails(function () { screenType("a"); }, why);
verifyFails(function () { chooseFile("test.js"); }, why);
