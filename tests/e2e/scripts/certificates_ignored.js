// A server whose certificate nobody trusts, taken all the same, by windows that pages open, too.
// @options --ignore-certificate-errors
startBrowser(SECURE_SITE + "/");
test.compare(pageTitle(), "Secure");
retrieveJSObject("var asked = ''; fetch('/').then(function (answer) { asked = String(answer.status); }); window.open('/').name");
waitUntil(function () { return retrieveJSObject("asked") === "200"; }, "a script's request");
waitUntil(function () { return windows().length === 2; }, "a window");
startBrowser(SITE + "/plain.html");
openUrl(SECURE_SITE + "/");
test.compare(pageTitle(), "Secure");
