// Cases of property matching: wildcards, comparisons, hooks, values as the driver reads them, and reports.

const exact = (text) => new __corvex__PropValue(text, 0);
const matches = (o, property, text) => !!__corvex__matchObject(o, property, exact(text), "nm");

test("wildcards are anchored, letters with a meaning are plain, a circumflex is not", {}, () => [
  ["*.png", "a/b.png"], ["*.png", "b.png?x"], ["a?c", "abc"], ["a?c", "ac"], ["a+(b)", "a+(b)"], ["[x]{1}", "[x]{1}"],
  ["$1|2", "$1|2"], ["^a", "a"], ["a\\*", "a\\zz"]
].map(([wildcard, text]) => new RegExp(__corvex__wildcardToRegExp(wildcard)).test(text)),
[true, false, true, false, true, true, true, true, true]);

test("numbers match their digits, and only the searched value is cleaned", {}, () => [
  __corvex__propMatches(exact("5"), 5), __corvex__propMatches(exact("a  b"), "a b", true),
  __corvex__propMatches(exact("a b"), "a  b", true), __corvex__propMatches(new __corvex__PropValue(/^undef/, 1), undefined),
  __corvex__propMatches(new __corvex__PropValue("x", 7), "x") === undefined
], [true, true, false, true, true]);

test("text is compared as it is, cleaned, and with both sides cleaned", {
  page: '<p id="a" title=" one  two"></p><p id="b" title="one two"></p>'
}, ({ el }) => ["one two", " one \u00a0two", "one  two", "One two"].map(
  (text) => matches(el("a"), "title", text) && matches(el("b"), "title", text)), [true, true, true, false]);

test("attributes, paths, ids without generated parts, class lists and images", {
  page: '<img id="x_ctrl01_y" class="one two" alt=" An  image " src="http://h.invalid/p/pic.png" data-x="v" ' +
    'aria-label="  l " style="color: red">'
}, () => [
  ["data-x", "v"], ["aria-label", "l"], ["data-y", "v"], ["data-x", "w"], ["style.color", "red"], ["style.color", "blue"],
  ["id", "xy"], ["id", "x_ctrl01_y"], ["className", "two"], ["className", "on"], ["img_alt", "An image"],
  ["img_alt", " An  image "], ["img_src", "http://h.invalid/p/pic.png"], ["img_src", "pic.png"]
].map(([property, text]) => matches(document.images[0], property, text)),
[true, true, false, false, true, false, true, false, true, false, true, true, true, false]);

test("what is true or false is compared with the text true, anything else is false", {
  page: '<input id="a" type="checkbox" checked><div style="display:none"><input id="b" type="checkbox"></div>'
}, ({ el }) => ["true", "TRUE", "false", "yes"].map((text) => ["checked", "visible"].map(
  (property) => ["a", "b"].map((id) => __corvex__matchObject(el(id), property, exact(text), "nm")))),
[[[true, false], [true, false]], [[true, false], [true, false]], [[false, true], [false, true]],
  [[false, true], [false, true]]]);

test("a hook can accept and cannot refuse", { page: '<p id="a" title="t"></p>' }, ({ el }) => {
  Corvex.addMatchObjectHook((o, property, value, name) => property === "made" && value.value === "up" && name === "nm");
  return [["made", "up"], ["made", "no"], ["title", "t"]].map(([property, text]) => matches(el("a"), property, text));
}, [true, false, true]);

test("a factory for some properties makes their matchers where no other does", {
  page: '<p id="a" title="t"></p>'
}, ({ el }) => {
  Corvex.addPropertyMatcherFactory((property, value, name) => ({
    matchObject: (o) => o.title + value.value + name === "tupnm"
  }), ["made"]);
  return [["made", "up"], ["made", "no"], ["title", "t"]].map(([property, text]) => matches(el("a"), property, text));
}, [true, false, true]);

test("values: attributes for reserved words and hyphens, empty for what is missing, null as text, the base of SVG", {
  page: '<label id="a" class="c" for="f" aria-checked="mixed">x</label><svg><text id="t" class="big">x</text></svg>'
}, ({ el }) => ["class", "for", "aria-checked", "nothing", "offsetParent.nothing.more", "style.cssText", "onclick",
  "tagName"].map((name) => __corvex.getPropertyValue(el("a"), name)).concat(
  __corvex.getPropertyValue(el("t"), "className")), ["c", "f", "mixed", "", "", "", "null", "LABEL", "big"]);

test("the first failing property of each element is reported, once a search, and taken back when found", {
  page: '<input id="a" name="n" type="text"><input id="b" name="m" type="checkbox">'
}, ({ el, sent }) => {
  const name = "{tagName='INPUT' type='text' name='zz'}";
  __corvex__findObject(name);
  el("a").name = "zz";
  __corvex__findObject(name);
  return [sent.map((line) => line.replace(escape(name), "NAME")), __corvex.sentUnmatchedProperties.length];
}, [["GET logeventN&event=addUnmatchedProperty&name=NAME&property=name",
  "GET logeventN&event=addUnmatchedProperty&name=NAME&property=type",
  "GET logeventN&event=removeUnmatchedProperties&name=NAME"], 0]);

test("an absent tag is reported, and nothing while recording", {}, ({ flags }) => {
  __corvex__findObject("{tagName='VIDEO'}");
  const reported = __corvex.sentUnmatchedProperties.map((record) => record.prop);
  flags({ recording: true });
  __corvex__findObject("{tagName='VIDEO'}");
  return [reported, __corvex.sentUnmatchedProperties.length];
}, [["tagName"], 0]);
