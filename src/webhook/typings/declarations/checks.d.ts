// == Checks ==
// A check that fails is counted, and the script goes on; it fails at its end. Checks answer whether they passed.

declare namespace test {
  /**
   * Passes when the condition is true.
   * @param condition What has to hold.
   * @param message What the reports say of it.
   * @example
   * test.verify(exists("{tagName='H1'}"), "the page has a heading");
   */
  function verify(condition: any, message?: string): boolean;

  /**
   * Passes when both are equal without conversion, so `"5"` is not `5`. Arrays and plain objects are compared by what they
   * hold, and the report names the first place where they differ, as in `.items[2].price`.
   * @param actual What there is.
   * @param expected What there should be.
   * @param message What the reports say of it.
   * @example
   * test.compare(findObject("{tagName='H1'}").innerText, "Tea shop");
   * test.compare({ teas: ["Assam"] }, { teas: ["Assam"] });
   */
  function compare(actual: any, expected: any, message?: string): boolean;

  /**
   * Passes when an object looks as in a PNG file. Where it does not, the picture there is and the difference are written
   * beside that file.
   * @param object The object, or its name.
   * @param file The file; a relative path starts at the script.
   * @param share The share of the pixels that may differ, from 0 to 1; none without it.
   * @example
   * takeScreenshot("{tagName='DIV' id='pad'}", "pad.png");
   * test.compareScreenshot("{tagName='DIV' id='pad'}", "pad.png", 0.01);
   */
  function compareScreenshot(object: ObjectOrName, file: string, share?: number): boolean;

  /**
   * Runs a function, and passes when it throws an error of this text.
   * @param run What is run.
   * @param text What the error's text has to contain, or match; any error will do without it.
   * @example
   * test.throws(function () { findObject("{tagName='TABLE'}"); }, "not found");
   * test.throws(function () { throw new Error("no tea"); }, /tea$/);
   */
  function throws(run: () => any, text?: string | RegExp): boolean;

  /**
   * A check that fails.
   * @param message What the reports say of it.
   * @example
   * if (!exists("{tagName='H1'}")) {
   *   test.fail("the page has no heading");
   * }
   */
  function fail(message?: string): boolean;

  /**
   * Runs a function and gives its result. The reports show what it does as a group under the title; an error passes on to
   * the script.
   * @param title What the group is called.
   * @param run What is run.
   * @example
   * var heading = test.step("read the heading", function () {
   *   return findObject("{tagName='H1'}").innerText;
   * });
   * test.compare(heading, "Tea shop");
   */
  function step<Result>(title: string, run: () => Result): Result;

  /**
   * Ends the script, or the test function, at once: no `catch` and no `finally` of it runs. It counts as skipped, and not
   * as a failure, unless a check has failed before.
   * @param reason What the reports say of it.
   * @example
   * if (environment.TEA_SHOP_IS_CLOSED) {
   *   test.skip("the shop is closed");
   * }
   */
  function skip(reason?: string): void;

  /**
   * Writes a line to the output and the JUnit file.
   * @param texts What is written, with spaces between.
   * @example
   * test.log("The page is", pageTitle());
   */
  function log(...texts: any[]): void;
}
