// Pages that a server only gives to those who say who they are.
// @options --verbose
// @hidden sec:r@t
startBrowser(SITE + "/private");
test.compare(pageTitle(), "Refused", "nobody was named");

// Neither a frame nor a request of a script waits for an answer.
openUrl(SITE + "/plain.html");
retrieveJSObject(
  "var asked = ''; fetch('/private').then(function (answer) { asked += 'fetch ' + answer.status; });" +
  "var frame = document.createElement('iframe'); frame.src = '/private'; frame.onload = function () { asked += ' frame'; };" +
  "document.body.appendChild(frame); 0");
waitUntil(function () {
  return retrieveJSObject("asked").length === "fetch 401 frame".length;
}, "both were refused");

setCredentials("ada", "wrong");
openUrl(SITE + "/private");
test.compare(pageTitle(), "Refused", "the server asked once more");
setCredentials("ada", "sec:r@t", "http://localhost:1");
openUrl(SITE + "/private");
test.compare(pageTitle(), "Refused", "the right password is another server's");
setCredentials("ada", "sec:r@t", SITE + "/any/page");
openUrl(SITE + "/private");
test.compare(pageTitle(), "Private");
openUrl(SITE + "/private/other");
test.compare(pageTitle(), "Private");
verifyFails(function () { setCredentials("ada", "secret", "example.com"); }, "setCredentials needs a user, a password");
verifyFails(function () { setCredentials("", "secret"); }, "setCredentials needs a user");

// They are those of the script, whatever browser it starts.
startBrowser(SITE + "/plain.html");
openUrl(SITE + "/private");
test.compare(pageTitle(), "Private");
