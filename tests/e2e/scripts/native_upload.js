// The browser's real file dialog, opened by the pointer and filled by the keyboard.
// @screen 1280 1024
// @options --headed
// @file 12345 plain.txt
// @file 123456789 Grüße (Ж€) <b> <Return>.txt
startBrowser(SITE + "/upload.html");
screenClick(element("INPUT", "file"));
chooseFile("plain.txt");
waitForText("P", "chosen", "plain.txt of 5 bytes");

// A button of the page opens it, too.
screenClick(element("BUTTON", "own"));
chooseFile(scriptPath("Grüße (Ж€) <b> <Return>.txt"), 10000);
waitForText("P", "chosen", "Grüße (Ж€) <b> <Return>.txt of 9 bytes");

verifyFails(function () { chooseFile("plain.txt", 200); }, "No file dialog opened within 200 ms.");
verifyFails(function () { chooseFile("missing.txt"); }, "missing.txt' does not exist.");
