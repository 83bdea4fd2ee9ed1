// == Pages, windows and frames ==

/**
 * Starts a browser, in place of one that runs, and opens a page in it. Waits until the page is loaded.
 * @param url An address, or a file beside the script.
 * @example
 * startBrowser("http://localhost:8000/shop.html");
 * test.compare(windows(), ["shop.html"]);
 */
declare function startBrowser(url: string): void;

/**
 * Has the current window go to another page, and waits until it is loaded.
 * @param url An address, or a file beside the script.
 * @example
 * openUrl("http://localhost:8000/basket.html");
 * test.compare(pageTitle(), "Basket");
 */
declare function openUrl(url: string): void;

/**
 * Goes to the page before, and waits until it is loaded. Without one this is an error.
 * @example
 * openUrl("http://localhost:8000/basket.html");
 * goBack();
 * test.compare(pageTitle(), "Tea shop");
 */
declare function goBack(): void;

/**
 * Goes to the page after, where one was left by `goBack`, and waits until it is loaded. Without one this is an error.
 * @example
 * openUrl("http://localhost:8000/basket.html");
 * goBack();
 * goForward();
 * test.compare(pageTitle(), "Basket");
 */
declare function goForward(): void;

/**
 * Loads the page of the current window once more, and waits until that is done.
 * @example
 * typeText("{tagName='TEXTAREA' id='note'}", "By noon, please.");
 * reload();
 * test.verify(exists("{tagName='TEXTAREA' id='note'}"));
 */
declare function reload(): void;

/**
 * The address of the page in the current window.
 * @example
 * test.compare(currentUrl(), "http://localhost:8000/shop.html");
 */
declare function currentUrl(): string;

/**
 * The title of the page in the current window.
 * @example
 * test.compare(pageTitle(), "Tea shop");
 */
declare function pageTitle(): string;

/**
 * The names of all windows, the oldest first.
 * @example
 * mouseClick("{tagName='A' id='help-link'}");
 * waitForContextExists("help.html");
 * test.compare(windows(), ["shop.html", "help.html"]);
 * setContext("help.html");
 * closeWindow();
 */
declare function windows(): string[];

/**
 * Closes the current window: the one that was selected, or in which the last object was found by a name without a
 * context. The newest that is left becomes the current one.
 * @example
 * mouseClick("{tagName='A' id='help-link'}");
 * waitForContextExists("help.html");
 * setContext("help.html");
 * closeWindow();
 * test.compare(windows(), ["shop.html"]);
 */
declare function closeWindow(): void;

/**
 * The names of all windows and frames.
 * @example
 * test.compare(contextNames(), ["shop.html", "shop.html.FRAME1"]);
 */
declare function contextNames(): string[];

/**
 * Whether there is a window or frame of this name.
 * @param name A name such as `shop.html` or `shop.html.FRAME2`.
 * @example
 * test.verify(hasContext("shop.html.FRAME1"));
 * test.verify(!hasContext("help.html"));
 */
declare function hasContext(name: string): boolean;

/**
 * Makes a window or frame the current one.
 * @param name One of the names that `contextNames` gives.
 * @example
 * setContext("shop.html.FRAME1");
 * test.compare(findObject("{tagName='P' id='offer'}").innerText, "Buy two teas, pay one.");
 */
declare function setContext(name: string): void;

/**
 * Waits until there is a window or frame of this name; one that does not come is an error.
 * @param name A name such as `shop.html` or `shop.html.FRAME2`.
 * @param milliseconds The longest wait; the default time without it.
 * @example
 * waitForContextExists("shop.html.FRAME1", 5000);
 */
declare function waitForContextExists(name: string, milliseconds?: number): true;

/**
 * Makes a frame of the current page the current context.
 * @param path Names, ids or `FRAME` with a number from 1 on, parted by dots, from the top of the page:
 *   `"menu"`, `"FRAME2.FRAME1"`.
 * @example
 * setFrameContext("offers");
 * test.compare(findObject("{tagName='P' id='offer'}").innerText, "Buy two teas, pay one.");
 * setFrameContext("FRAME1");
 */
declare function setFrameContext(path: string): void;
