// An uncaught error of a page counts as a failed check when that is wanted.
// @options --fail-on-page-error
// @exit 1 FAILED  Uncaught error of a page at
// @failed 2
startBrowser(SITE + "/console.html");
clickButton(element("BUTTON", "throw"));
waitFor(function () { return consoleMessages().length >= 5; });
test.log("told before this line");
