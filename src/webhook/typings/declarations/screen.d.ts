// == Pointer and keyboard of the screen ==
// These take what is not part of a page, such as a file dialog. They need a browser that is shown on a screen (option
// `--headed`), be it one in memory, as in `xvfb-run corvexweb run --headed script.js`.

/**
 * Scrolls an object into view and clicks its middle, as far as it can be seen, with the real pointer.
 * @param object The object, or its name.
 * @param button 1 left, 2 right, 4 middle; the left one without it.
 * @example
 * screenClick("{tagName='BUTTON' id='count'}");
 * waitForValue("{tagName='BUTTON' id='count'}", "innerText", "1");
 */
declare function screenClick(object: ObjectOrName, button?: number): void;

/**
 * Types to whatever has the keyboard.
 * @param keys The text. `<Return>`, `<Shift+End>` and `<Ctrl+a>` stand for keys.
 * @example
 * screenClick("{tagName='INPUT' id='name'}");
 * screenType("Ada<Home><Shift+End><Ctrl+x>Grace");
 * waitForValue("{tagName='INPUT' id='name'}", "value", "Grace");
 */
declare function screenType(keys: string): void;

/**
 * Waits until the browser's file dialog is open, and has it take a file.
 * @param path The file; a relative path starts at the script.
 * @param milliseconds The longest wait for the dialog; the default time without it.
 * @example
 * screenClick("{tagName='INPUT' id='photo'}");
 * chooseFile("photo.png");
 * waitForValue("{tagName='P' id='answer'}", "innerText", "photo.png");
 */
declare function chooseFile(path: string, milliseconds?: number): void;
