// @exit 1 not found
// A lookup that fails names what was looked for.
startBrowser(SITE + "/color.html");
verifyFails(function () { findObject("{tagName='P' title='none'}"); }, "title");
verifyFails(function () { findObject("{tagName='P' title.x+1='none'}"); }, "'title.x+1' is no path of properties: '+1' follows 'title.x'");
verifyFails(function () { findObject("{tagName='VIDEO' title='none'}"); }, "not found");
verifyFails(function () { waitForObject("{tagName='P' title='none'}", 300); }, "Object '{tagName='P' title='none'}' not found");
findObject("{tagName='P' title='none'}");
