// == Finding objects ==

/**
 * Looks for an object once. One that is not there is an error.
 * @param name The name of the object.
 * @example
 * var heading = findObject("{tagName='H1' id='heading'}");
 * test.compare(heading.innerText, "Tea shop");
 */
declare function findObject<Name extends string>(name: Name): ObjectNamed<Name>;

/**
 * Waits until an object is there, visible and not disabled. One that does not come is an error.
 * @param name The name of the object.
 * @param milliseconds The longest wait; the default time (20 seconds, option `--timeout`) without it.
 * @example
 * clickButton("{tagName='BUTTON' id='load'}");
 * var news = waitForObject("{tagName='P' id='news'}", 10000);
 * test.compare(news.innerText, "Fresh tea has come.");
 */
declare function waitForObject<Name extends string>(name: Name, milliseconds?: number): ObjectNamed<Name>;

/**
 * Looks once for every object that the name fits, in all documents, the current context first. The array is empty when
 * there is none. A name with an `occurrence` fits one at most.
 * @param name The name of the objects.
 * @example
 * var teas = findAllObjects("{tagName='LI' className='tea'}");
 * test.compare(teas.map(function (tea) { return tea.innerText; }), ["Assam", "Sencha", "Oolong"]);
 */
declare function findAllObjects<Name extends string>(name: Name): ObjectNamed<Name>[];

/**
 * Looks once whether an object is there, visible or not.
 * @param name The name of the object.
 * @example
 * test.verify(exists("{tagName='LI' innerText='Assam'}"));
 * test.verify(!exists("{tagName='LI' innerText='Coffee'}"));
 */
declare function exists(name: string): boolean;
