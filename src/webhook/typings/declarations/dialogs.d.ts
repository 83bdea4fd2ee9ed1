// == Dialogs ==
// A dialog of the page waits until it is answered. The functions that answer wait for it, at most the given
// milliseconds, else the default time.

/**
 * Waits for an alert and closes it.
 * @param milliseconds The longest wait.
 * @example
 * clickButton("{tagName='BUTTON' id='greet'}");
 * closeAlert();
 * test.compare(lastAlertText(), "Good morning!");
 */
declare function closeAlert(milliseconds?: number): void;

/**
 * Waits for a question and answers it.
 * @param accept True is OK, false is Cancel.
 * @param milliseconds The longest wait.
 * @example
 * clickButton("{tagName='BUTTON' id='clear'}");
 * closeConfirm(true);
 * waitForValue("{tagName='P' id='answer'}", "innerText", "cleared");
 */
declare function closeConfirm(accept: boolean, milliseconds?: number): void;

/**
 * Waits for a prompt and answers it.
 * @param answer The text; null cancels.
 * @param milliseconds The longest wait.
 * @example
 * clickButton("{tagName='BUTTON' id='ask'}");
 * closePrompt("Ada");
 * waitForValue("{tagName='P' id='answer'}", "innerText", "Hello, Ada");
 */
declare function closePrompt(answer: string | null, milliseconds?: number): void;

/**
 * What the last alert said; of two in a row it may be the second as soon as the first is answered.
 * @example
 * clickButton("{tagName='BUTTON' id='greet'}");
 * closeAlert();
 * test.compare(lastAlertText(), "Good morning!");
 */
declare function lastAlertText(): string;

/**
 * What the last question of OK and Cancel said.
 * @example
 * clickButton("{tagName='BUTTON' id='clear'}");
 * closeConfirm(false);
 * test.compare(lastConfirmText(), "Clear the basket?");
 */
declare function lastConfirmText(): string;

/**
 * What the last prompt asked.
 * @example
 * clickButton("{tagName='BUTTON' id='ask'}");
 * closePrompt(null);
 * test.compare(lastPromptText(), "Your name?");
 */
declare function lastPromptText(): string;

/**
 * The answer that the last prompt proposed.
 * @example
 * clickButton("{tagName='BUTTON' id='ask'}");
 * closePrompt(null);
 * test.compare(lastPromptDefault(), "Grace");
 */
declare function lastPromptDefault(): string;
