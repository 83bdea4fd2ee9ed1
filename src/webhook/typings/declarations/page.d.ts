// == What belongs to a page ==

/**
 * What the pages of the current window wrote to the console, and their uncaught errors; the last 1000. Objects that a
 * page writes read as their kind, such as `array`.
 * @example
 * clickButton("{tagName='BUTTON' id='complain'}");
 * var warning = waitFor(function () {
 *   return consoleMessages().filter(function (message) { return message.level === "warn"; })[0];
 * });
 * test.compare(warning.text, "The kettle is empty.");
 */
declare function consoleMessages(): ConsoleMessage[];

/**
 * The cookies that the browser sends for the current page.
 * @example
 * setCookie("tea", "green");
 * test.compare(cookies()[0].value, "green");
 */
declare function cookies(): Cookie[];

/**
 * Sets a cookie, for the whole host of the page unless the options say else.
 * @param name Its name.
 * @param value Its value.
 * @param options Further parts of the cookie, under the names that `cookies` gives.
 * @example
 * setCookie("tea", "green", { path: "/", sameSite: "strict" });
 * test.compare(retrieveJSObject("document.cookie"), "tea=green");
 */
declare function setCookie(name: string, value: string, options?: CookieOptions): void;

/**
 * Deletes the cookies that `cookies` gives.
 * @example
 * setCookie("tea", "green");
 * deleteCookies();
 * test.compare(cookies(), []);
 */
declare function deleteCookies(): void;

/**
 * An item of the local storage of the current page; null without it.
 * @param name The key of the item.
 * @example
 * setLocalStorageItem("tea", "green");
 * test.compare(localStorageItem("tea"), "green");
 * test.compare(localStorageItem("coffee"), null);
 */
declare function localStorageItem(name: string): string | null;

/**
 * Sets an item of the local storage of the current page.
 * @param name The key of the item.
 * @param text Its value; null removes the item.
 * @example
 * setLocalStorageItem("tea", "green");
 * setLocalStorageItem("tea", null);
 * test.compare(localStorageItem("tea"), null);
 */
declare function setLocalStorageItem(name: string, text: string | null): void;

/**
 * Waits for the download that ends first of those that were not given yet, also one that ended before the call. Its file
 * is removed with the script's end. A download that broke off is an error.
 * @param milliseconds The longest wait; the default time without it.
 * @example
 * mouseClick("{tagName='A' id='prices'}");
 * var prices = waitForDownload();
 * test.compare(prices.name, "prices.csv");
 * test.compare(readTable(prices.path)[0].tea, "green");
 */
declare function waitForDownload(milliseconds?: number): Download;

/**
 * Copies the file of a download. Folders that miss are made, and a file of that name is replaced.
 * @param path Its `path`.
 * @param file Where to: a path beside the script, or a folder that ends in `/`, in which it keeps its own name.
 * @example
 * mouseClick("{tagName='A' id='prices'}");
 * saveDownload(waitForDownload().path, "kept/prices.csv");
 * test.compare(readTable("kept/prices.csv").length, 2);
 */
declare function saveDownload(path: string, file: string): void;

/**
 * What servers are told that ask for a user and a password, by this browser and the next ones of the script. Reports do
 * not show the password. A server that refuses it, or that asks when nothing was set, has its page of refusal (401)
 * shown. The browser itself keeps what a server took until it ends.
 * @param user The name.
 * @param password The password.
 * @param origin Only servers of this origin are told, such as `"https://example.com"`.
 * @example
 * setCredentials("ada", "secret", "https://shop.example");
 */
declare function setCredentials(user: string, password: string, origin?: string): void;

/**
 * Makes the part of the current page that is in view this large.
 * @param width In CSS pixels.
 * @param height In CSS pixels.
 * @param ratio How many pixels of the screen a CSS pixel has; as it was without it.
 * @example
 * setViewport(1024, 768);
 * test.compare(retrieveJSObject("innerWidth"), 1024);
 */
declare function setViewport(width: number, height: number, ratio?: number): void;

/**
 * Writes a picture of the whole page.
 * @param file The file, which ends in `.png`, `.jpg` or `.bmp`. A relative path starts at the script.
 * @example
 * takeScreenshot("page.png");
 */
declare function takeScreenshot(file: string): void;
/**
 * Writes a picture of an object that is cut out of the page, in pixels of the screen. An object that is scrolled out of a
 * box or a frame is scrolled into view first.
 * @param object The object, or its name.
 * @param file The file, which ends in `.png`, `.jpg` or `.bmp`. A relative path starts at the script.
 * @example
 * takeScreenshot("{tagName='UL' id='teas'}", "teas.png");
 */
declare function takeScreenshot(object: ObjectOrName, file: string): void;

/**
 * Writes the page as one file that opens offline: its picture, and its objects with names, places and properties, as
 * `corvexweb dump` does.
 * @param file The file, which ends in `.html`, `.json` or `.xml`. A relative path starts at the script.
 * @example
 * saveTree("page.html");
 */
declare function saveTree(file: string): void;

/**
 * The value of code in the page's own scope: texts, numbers, true, false and null as they are, anything structured but a
 * function as a `JsObject`. What the page throws is the error.
 * @param code JavaScript of the page.
 * @example
 * test.compare(retrieveJSObject("shop.teas.length"), 3);
 * test.compare(retrieveJSObject("shop").property("name"), "Tea shop");
 */
declare function retrieveJSObject(code: string): any;
