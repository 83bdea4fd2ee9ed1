// Pages come from the proxy, those of this machine, too; what the hook script tells does not go to it.
// @options --proxy SITE
startBrowser("http://proxied.test/");
test.compare(pageTitle(), "Proxied");
test.compare(retrieveJSObject("__corvex__sendXMLHttpRequest(document, 'debuglog=ofthehook', false).status"), 200);
openUrl("http://127.0.0.1:65000/");
test.compare(pageTitle(), "Proxied, too");
