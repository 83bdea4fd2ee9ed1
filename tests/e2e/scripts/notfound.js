// @exit 1 not found
// A lookup that fails names what was looked for.
startBrowser(SITE + "/color.html");
verifyFails(function () { findObject("{tagName='P' title='none'}"); }, "title");
verifyFails(function () { findObject("{tagName='P' title.x+1='none'}"); }, "'title.x+1' is no path of properties: '+1' follows 'title.x'");
verifyFails(function () { findObject("{tagName='VIDEO' title='none'}"); }, "not found");
verifyFails(function () { waitForObject("{tagName='P' title='none'}", 300); }, "Object '{tagName='P' title='none'}' not found");
verifyFails(function () { waitForObject("{tagName='P' title='none'}", 300); }, " It was waited for during ");
["#main", ".row > a", "div[data-x]", "div.row:hover", "ul > li"].forEach(function (name) {
  verifyFails(function () { findObject(name); }, "It reads as CSS, which is no name here. Name the object by its properties in ");
});
["//div[1]", "/html/body", ".//a", "//*[@id='x']"].forEach(function (name) {
  verifyFails(function () { findObject(name); }, "It reads as XPath, which is no name here. ");
});
test.compare(failureOf(function () { findObject("No such words"); }), 
  "Error: Object 'No such words' not found. Searched: 'color.html'.");
startBrowser(SITE + "/texts.html");
verifyFails(function () { findObject("{tagName='BUTTON' visible='true' innerText='SIGN Up'}"); },
  "2 elements have the tag BUTTON, but none has this innerText. Nearest come: of DOCUMENT.HTML1.BODY1.BUTTON2, ");
verifyFails(function () { findObject("{tagName='BUTTON' visible='true' innerText='SIGN Up'}"); },
  "not 'SIGN Up' (only upper and lower case differ); of DOCUMENT.HTML1.BODY1.BUTTON1, innerText is ");
verifyFails(function () { findObject("{tagName='BUTTON' innerText='Sing up'}"); },
  "Nearest come: of DOCUMENT.HTML1.BODY1.BUTTON2, innerText is 'S");
verifyFails(function () { findObject("{tagName='LI' visible='false' simplifiedInnerText?='no*'}"); },
  "but none has this visible or simplifiedInnerText.");
verifyFails(function () { findObject("{tagName='LI' visible='true' simplifiedInnerText?='no*'}"); },
  ", not the pattern 'no*'; of DOCUMENT.HTML1.BODY1.UL1.LI2, simplifiedInnerText is 'Pay");
startBrowser(SITE + "/stranger.html");
verifyFails(function () { findObject("{tagName='P' title='none'}"); },
  " Frames of another origin cannot be searched; the page has: http://localhost:");
findObject("{tagName='P' title='none'}");
