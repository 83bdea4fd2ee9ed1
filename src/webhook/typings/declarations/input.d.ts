// == Mouse, keyboard and choices ==
// But for `clickLink`, `setFocus`, `selectOption`, `sendEvent` and `scrollTo`, which are calls in the page, these act as a
// person does. They wait, at most the default time, until the object is there, visible, not disabled, no longer moving and
// scrolled into view, and until nothing covers the place. Keys that are held are the sum of `HTML_Event.Alt`,
// `HTML_Event.Control` and `HTML_Event.Shift`.

/**
 * Clicks where the object can be reached: in its middle, or beside what covers that.
 * @param object The object, or its name.
 * @param modifiers Keys that are held; 16 more clicks with the right button.
 * @example
 * mouseClick("{tagName='A' id='basket-link'}");
 * test.compare(pageTitle(), "Basket");
 */
declare function mouseClick(object: ObjectOrName, modifiers?: number): void;
/**
 * Clicks at a position inside the object.
 * @param object The object, or its name.
 * @param x Pixels from the left edge.
 * @param y Pixels from the upper edge.
 * @param modifiers Keys that are held.
 * @param button 1 left, 2 right, 4 middle; the left one without it.
 * @example
 * mouseClick("{tagName='DIV' id='pad'}", 10, 20, HTML_Event.Control);
 * test.compare(findObject("{tagName='P' id='answer'}").innerText, "click at 10,20 with Control");
 */
declare function mouseClick(object: ObjectOrName, x: number, y: number, modifiers?: number, button?: number): void;

/**
 * Clicks twice.
 * @param object The object, or its name.
 * @param modifiers Keys that are held.
 * @example
 * doubleClick("{tagName='DIV' id='pad'}");
 * test.compare(findObject("{tagName='P' id='answer'}").innerText, "double click");
 */
declare function doubleClick(object: ObjectOrName, modifiers?: number): void;
/**
 * Clicks twice at a position inside the object.
 * @param object The object, or its name.
 * @param x Pixels from the left edge.
 * @param y Pixels from the upper edge.
 * @param modifiers Keys that are held.
 */
declare function doubleClick(object: ObjectOrName, x: number, y: number, modifiers?: number): void;

/**
 * Clicks with the right button.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; the middle without a position.
 * @param y Pixels from the upper edge.
 * @param modifiers Keys that are held.
 * @example
 * openContextMenu("{tagName='DIV' id='pad'}", 10, 20);
 * test.compare(findObject("{tagName='P' id='answer'}").innerText, "menu");
 */
declare function openContextMenu(object: ObjectOrName, x?: number, y?: number, modifiers?: number): void;

/**
 * Presses a button.
 * @param object The object, or its name.
 * @example
 * clickButton("{tagName='BUTTON' id='count'}");
 * test.compare(findObject("{tagName='BUTTON' id='count'}").innerText, "1");
 */
declare function clickButton(object: ObjectOrName): void;

/**
 * Clicks a link by an event of the page. Looks once for it.
 * @deprecated Use mouseClick.
 * @param object The link, or its name.
 * @example
 * clickLink("{tagName='A' id='basket-link'}");
 * waitForUrl("*basket.html");
 */
declare function clickLink(object: ObjectOrName): void;

/**
 * As `mouseClick`, with the button after the position.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; the middle without a position.
 * @param y Pixels from the upper edge.
 * @param button 1 left, 2 right, 4 middle; the left one without it.
 * @example
 * nativeMouseClick("{tagName='DIV' id='pad'}", 10, 20, 2);
 * test.compare(findObject("{tagName='P' id='answer'}").innerText, "menu");
 */
declare function nativeMouseClick(object: ObjectOrName, x?: number, y?: number, button?: number): void;

/**
 * Moves the pointer to the object, where it stays.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; the middle without a position.
 * @param y Pixels from the upper edge.
 * @example
 * hover("{tagName='SPAN' id='hint'}");
 * waitForObject("{tagName='SPAN' id='tip'}");
 */
declare function hover(object: ObjectOrName, x?: number, y?: number): void;

/**
 * Moves the pointer to the object, where it stays: `hover` by another name, for use between `mouseDown` and `mouseUp`.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; the middle without a position.
 * @param y Pixels from the upper edge.
 * @example
 * mouseDown("{tagName='LI' innerText='Assam'}");
 * mouseMove("{tagName='DIV' id='pad'}");
 * mouseUp("{tagName='DIV' id='pad'}");
 */
declare function mouseMove(object: ObjectOrName, x?: number, y?: number): void;

/**
 * Presses a button of the mouse over the object, and keeps it pressed.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; the middle without a position.
 * @param y Pixels from the upper edge.
 * @param modifiers Keys that are held.
 * @param button 1 left, 2 right, 4 middle; the left one without it.
 * @example
 * mouseDown("{tagName='DIV' id='pad'}", 10, 20);
 * test.compare(findObject("{tagName='P' id='answer'}").innerText, "pressed");
 * mouseUp("{tagName='DIV' id='pad'}");
 */
declare function mouseDown(object: ObjectOrName, x?: number, y?: number, modifiers?: number, button?: number): void;

/**
 * Releases a button of the mouse over the object.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; the middle without a position.
 * @param y Pixels from the upper edge.
 * @param modifiers Keys that are held.
 * @param button 1 left, 2 right, 4 middle; the left one without it.
 * @example
 * mouseDown("{tagName='LI' innerText='Assam'}");
 * mouseUp("{tagName='DIV' id='pad'}", 10, 20);
 * test.compare(findObject("{tagName='P' id='answer'}").innerText, "released");
 */
declare function mouseUp(object: ObjectOrName, x?: number, y?: number, modifiers?: number, button?: number): void;

/**
 * Turns the wheel over the object.
 * @param object The object, or its name.
 * @param right By how many pixels the page is to scroll to the right.
 * @param down By how many pixels the page is to scroll down.
 * @example
 * mouseWheel("{tagName='DIV' id='long'}", 0, 100);
 * waitFor(function () { return retrieveJSObject("document.getElementById('long').scrollTop") > 0; });
 */
declare function mouseWheel(object: ObjectOrName, right: number, down: number): void;

/**
 * Drags an object to another one.
 * @param from The object that is dragged, or its name.
 * @param to The object on which it is dropped, or its name.
 * @example
 * dragTo("{tagName='LI' innerText='Assam'}", "{tagName='DIV' id='tray'}");
 * waitForValue("{tagName='DIV' id='tray'}", "innerText", "Assam");
 */
declare function dragTo(from: ObjectOrName, to: ObjectOrName): void;

/**
 * Clicks a check box, a radio button or a switch, or its label, unless it is as wanted.
 * @param object The object, or its name.
 * @param checked As it is wanted.
 * @example
 * setChecked("{tagName='INPUT' id='wrapped'}", true);
 * test.verify(findObject("{tagName='INPUT' id='wrapped' type='checkbox'}").checked);
 */
declare function setChecked(object: ObjectOrName, checked: boolean): void;

/**
 * Types a text, key by key, in place of what a field holds.
 * @param object The field, or its name.
 * @param text The text. `<Return>`, `<Ctrl+A>` and such stand for keys; a text that begins with a key leaves what the
 *   field holds.
 * @example
 * typeText("{tagName='INPUT' id='name'}", "Ada");
 * typeText("{tagName='INPUT' id='name'}", "<End> Lovelace");
 * test.compare(findObject("{tagName='INPUT' id='name'}").value, "Ada Lovelace");
 */
declare function typeText(object: ObjectOrName, text: string): void;

/**
 * Puts a text in at once, in place of what a field holds. Fields for dates, times, colours and ranges take their value,
 * file fields the path of a file.
 * @param object The field, or its name.
 * @param text The text, in which nothing stands for keys.
 * @example
 * setText("{tagName='TEXTAREA' id='note'}", "<Thanks>");
 * setText("{tagName='INPUT' id='day'}", "2024-02-29");
 * test.compare(findObject("{tagName='INPUT' id='day'}").property("value"), "2024-02-29");
 */
declare function setText(object: ObjectOrName, text: string): void;

/**
 * Presses keys, whatever has the focus.
 * @param text The keys.
 * @example
 * setFocus("{tagName='INPUT' id='name'}");
 * pressKeys("Ada<Home><Del>a");
 * test.compare(findObject("{tagName='INPUT' id='name'}").value, "ada");
 */
declare function pressKeys(text: string): void;

/**
 * Gives an element the input focus.
 * @param object The object, or its name.
 * @example
 * setFocus("{tagName='INPUT' id='name'}");
 * test.verify(findObject("{tagName='INPUT' id='name'}").hasFocus);
 */
declare function setFocus(object: ObjectOrName): void;

/**
 * Selects an option of a list.
 * @param object The list, or its name.
 * @param text The text of the option; in a list with several choices the texts of several, parted by commas.
 * @example
 * selectOption("{tagName='SELECT' id='size'}", "Large");
 * waitForValue("{tagName='SELECT' id='size'}", "selectedOption", "Large");
 */
declare function selectOption(object: ObjectOrName, text: string): void;

/**
 * Sends one mouse event of a script, with the left button and without keys held. `"mousemove"` and `"mouseup"` also use
 * the real pointer, and need a browser that is shown.
 * @param event What is sent.
 * @param object The object, or its name.
 * @param x Pixels from the left edge; 5 for 0.
 * @param y Pixels from the upper edge; 5 for 0.
 * @example
 * sendEvent("mousedown", "{tagName='DIV' id='pad'}", 10, 20);
 * waitForValue("{tagName='P' id='answer'}", "innerText", "pressed");
 */
declare function sendEvent(event: 'mousedown' | 'mouseover' | 'mouseout' | 'click' | 'mousemove' | 'mouseup',
                           object: ObjectOrName, x: number, y: number): void;

/**
 * Scrolls until the object is in view.
 * @param object The object; no name.
 * @param top Whether it is to be at the upper edge, else at the lower one.
 * @example
 * scrollTo(findObject("{tagName='P' id='far'}"), true);
 * test.verify(retrieveJSObject("scrollY") > 0);
 */
declare function scrollTo(object: HTML_Object, top?: boolean): void;

/**
 * Who clicks and types from now on in this script: the browser, as a person does, or events of scripts in the page, for
 * views that no protocol gives input.
 * @param road `"browser"` at first, unless `--input page` says else.
 * @example
 * useInput("page");
 * clickButton("{tagName='BUTTON' id='count'}");
 * waitForValue("{tagName='BUTTON' id='count'}", "innerText", "1");
 * useInput("browser");
 */
declare function useInput(road: 'browser' | 'page'): void;

/**
 * Whether a name that fits several objects is none to act on from now on in this script.
 * @param strict False at first, unless `--strict` says else.
 * @example
 * useStrictNames(true);
 * test.throws(function () { mouseClick("{tagName='LI' className='tea'}"); });
 * useStrictNames(false);
 */
declare function useStrictNames(strict: boolean): void;
