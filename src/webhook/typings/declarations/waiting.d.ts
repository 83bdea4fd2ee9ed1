// == Waiting ==
// Each of the functions that wait for something waits at most the given milliseconds, else the default time (20 seconds,
// option `--timeout`), and its error says what it saw last.

/**
 * Lets time pass.
 * @param seconds How long, such as 0.5.
 * @example
 * var start = Date.now();
 * pause(0.2);
 * test.verify(Date.now() - start >= 200);
 */
declare function pause(seconds: number): void;

/**
 * Calls a function again and again until its answer counts as true, and gives that answer. An error in it counts as not
 * yet.
 * @param condition What is called.
 * @param milliseconds The longest wait.
 * @example
 * clickButton("{tagName='BUTTON' id='load'}");
 * var length = waitFor(function () {
 *   return findObject("{tagName='P' id='news'}").innerText.length;
 * });
 * test.compare(length, 19);
 */
declare function waitFor<Answer>(condition: () => Answer, milliseconds?: number): Answer;

/**
 * Waits until a property has a value, compared as `test.compare` does, and gives the value.
 * @param object The object, or its name, which is looked up each time, so that the object may be replaced meanwhile.
 * @param property The name of the property. A path such as `"css.color"` is a property of a property.
 * @param value What the property is to be.
 * @param milliseconds The longest wait.
 * @example
 * clickButton("{tagName='BUTTON' id='load'}");
 * waitForValue("{tagName='P' id='news'}", "innerText", "Fresh tea has come.");
 * waitForValue("{tagName='P' id='news'}", "css.display", "block", 5000);
 */
declare function waitForValue(object: ObjectOrName, property: string, value: any, milliseconds?: number): any;

/**
 * Waits until no visible object fits the name.
 * @param name The name of the object.
 * @param milliseconds The longest wait.
 * @example
 * clickButton("{tagName='BUTTON' id='load'}");
 * waitForObjectGone("{tagName='P' id='waiting'}");
 */
declare function waitForObjectGone(name: string, milliseconds?: number): void;

/**
 * Waits until the address of the current window is as wanted, and gives the address.
 * @param pattern A text that fits the whole address, with the wildcards `*` and `?`, or a regular expression that fits a
 *   part of it.
 * @param milliseconds The longest wait.
 * @example
 * mouseClick("{tagName='A' id='basket-link'}");
 * test.compare(waitForUrl("*basket.html"), "http://localhost:8000/basket.html");
 * waitForUrl(/basket\.html$/, 5000);
 */
declare function waitForUrl(pattern: string | RegExp, milliseconds?: number): string;
