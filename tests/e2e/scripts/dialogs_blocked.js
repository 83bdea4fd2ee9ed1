// @options --timeout 2
// @exit 1 Sure?
// The sentence ends the script that asks nothing about the dialog; the dialog keeps nothing from ending.
startBrowser(SITE + "/dialogs.html");
clickButton(element("BUTTON", "confirm"));
pause(0.5);
findObject(element("P", "answer"));
