// == Walking the tree ==
// These look once where they take a name, and take hidden objects too.

/**
 * The children in the object tree. An element has its child elements and after them its shadow root. The list is read
 * once for an object: look the object up again to see what changed.
 * @param object The object, or its name.
 * @example
 * var teas = children("{tagName='UL' id='teas'}");
 * test.compare(teas.length, 3);
 * test.compare(teas[0].innerText, "Assam");
 */
declare function children(object: ObjectOrName): AnyObject[];

/**
 * The object around it; null for a document and a shadow root.
 * @param object The object, or its name.
 * @example
 * var list = parent("{tagName='LI' innerText='Assam'}");
 * test.compare(list.id, "teas");
 * test.compare(parent("DOCUMENT"), null);
 */
declare function parent(object: ObjectOrName): AnyObject;

/**
 * A name that finds the object again.
 * @param object The object, or its name.
 * @example
 * var tea = children("{tagName='UL' id='teas'}")[1];
 * test.verify(sameObject(tea, findObject(objectName(tea))));
 */
declare function objectName(object: ObjectOrName): string;

/**
 * Whether both stand for the same object. `==` tells two lookups of one object apart.
 * @param a An object, its name, or null.
 * @param b An object, its name, or null.
 * @example
 * var heading = findObject("{tagName='H1'}");
 * test.verify(sameObject(heading, "{tagName='H1' id='heading'}"));
 * test.verify(heading != findObject("{tagName='H1'}"));
 */
declare function sameObject(a: ObjectOrName | null, b: ObjectOrName | null): boolean;
