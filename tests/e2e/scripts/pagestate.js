// What a page keeps beside its elements: cookies, local storage, and the size of what is in view.
startBrowser(SITE + "/plain.html");
function named(name) {
  return cookies().filter(function (cookie) { return cookie.name === name; })[0];
}
test.compare(cookies().length, 0);
setCookie("plain", "a b; c".replace("; ", "-"));
setCookie("deep", "1", { path: "/self/", httpOnly: true, sameSite: "Lax", expires: 4000000000 });
test.compare(cookies().map(function (c) { return c.name + "=" + c.value; }), ["plain=a b-c"]);
test.compare([named("plain").domain, named("plain").path, named("plain").secure], ["127.0.0.1", "/", false]);
test.compare(retrieveJSObject("document.cookie"), "plain=a b-c");
openUrl(SITE + "/self/next.html");
test.compare([named("deep").httpOnly, named("deep").sameSite, named("deep").path], [true, "lax", "/self/"]);
test.verify(named("deep").expires > 1700000000, "it outlives the browser");
test.compare(retrieveJSObject("document.cookie"), "plain=a b-c", "the page does not see it");
deleteCookies();
test.compare(cookies(), []);
verifyFails(function () { setCookie("", "x"); }, "setCookie needs a name");
verifyFails(function () { setCookie("a", "x", { sameSite: "maybe" }); }, "setCookie: the options are");
verifyFails(function () { setCookie("a", "x", { colour: "red" }); }, "colour");
verifyFails(function () { setCookie("a", "x;y"); }, "without semicolons");

test.compare(localStorageItem("basket"), null);
setLocalStorageItem("basket", "");
test.compare(localStorageItem("basket"), "");
setLocalStorageItem("basket", 'tea "\u00fc"\n');
test.compare(localStorageItem("basket"), 'tea "\u00fc"\n');
reload();
test.compare(retrieveJSObject("localStorage.getItem('basket')"), 'tea "\u00fc"\n');
setLocalStorageItem("basket", null);
test.compare(localStorageItem("basket"), null);

setViewport(500, 400);
test.compare(retrieveJSObject("innerWidth + ' ' + innerHeight"), "500 400");
setViewport(640, 480, 2);
test.compare(retrieveJSObject("innerWidth + ' ' + innerHeight + ' ' + devicePixelRatio"), "640 480 2");
openUrl(SITE + "/plain.html");
mouseClick(element("A", "next"));
test.compare(waitForUrl("*/next.html"), SITE + "/next.html", "the click met its target");
verifyFails(function () { setViewport(0, 10); }, "setViewport needs a width");
verifyFails(function () { setViewport(10, 10, -1); }, "ratio");

openUrl("data:text/html,<title>nothing</title>");
verifyFails(function () { setCookie("a", "x"); }, "has no host");
verifyFails(function () { localStorageItem("a"); }, "localStorageItem: ");
