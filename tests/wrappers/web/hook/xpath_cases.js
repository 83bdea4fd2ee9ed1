// Cases of the XPath evaluator that the browser's own cannot decide: see xpath_test.cpp for the others.

function withCase(flags, caseInsensitive) {
  flags({ xpath__caseInSensitiveMatching: caseInsensitive ? 1 : 0 });
}
const evaluate = (expression, node) => xpathDomEval(expression, node || document);
const ids = (expression, node) => evaluate(expression, node).nodeSetValue().map((one) => one.id || one.nodeName).join();
const failure = (expression) => {
  try {
    return evaluate(expression);
  } catch (e) {
    return e.message;
  }
};

test("exact names are node names, so upper case in HTML and as written in SVG; in any case when the flag is set", {
  page: '<div id="d"><svg id="s"><linearGradient id="g"/></svg></div>'
}, ({ flags }) => [0, 1].map((caseInsensitive) => {
  withCase(flags, caseInsensitive);
  return ["//div", "//DIV", "//SVG", "//linearGradient", "//lineargradient", "//di"].map((name) => ids(name)).concat(
    evaluate("count(//DIV/@ID)").numberValue(), evaluate("name(//DIV)").stringValue());
}), [["", "d", "", "g", "", "", 0, "DIV"], ["d", "d", "s", "g", "g", "", 1, "DIV"]]);

test("results convert, and a text is no node set", { page: "<p>12</p><p>x</p>" }, () => {
  const [nodes, count, none] = [evaluate("//P"), evaluate("count(//P)"), evaluate("//X")];
  return [nodes, count, none].map((r) => [r.booleanValue(), String(r.numberValue()), r.stringValue()]).concat(
    evaluate("''").booleanValue(), failure("1 | 2"));
}, [[true, "12", "12"], [true, "2", "2"], [false, "NaN", ""], false,
  "The XPath result is a number and no node set; ask for its number value"]);

test("numbers as text have no exponent", {}, () => ["1000000 * 1000000", "0.0000001 * 1", "-1 div 8", "1 div 0", "0 div 0",
  "100000000000000000000000", "-0.0000005", "2.50"].map((number) => evaluate("string(" + number + ")").stringValue()),
["1000000000000", "0.0000001", "-0.125", "Infinity", "NaN", "100000000000000000000000", "-0.0000005", "2.5"]);

test("an element inside a shadow tree stands in a tree of its own", { page: '<div id="h"></div>' }, ({ el, flags }) => {
  const root = el("h").attachShadow({ mode: "open" });
  root.innerHTML = '<p id="p"><b id="b"></b></p>';
  withCase(flags, true);
  return [ids("//b", root.firstChild), ids("..", root.firstChild), ids("/p", root.firstChild.firstChild), ids("//b")];
}, ["b", "#document-fragment", "p", ""]);

test("a form whose fields hide its properties, and an attribute, which covers nothing", {
  page: '<form id="f"><input id="i" name="firstChild"><input name="attributes"><input name="nodeName">' +
    '<input name="textContent"><b>t</b></form><div id="d"><b></b></div>'
}, ({ flags }) => {
  withCase(flags, true);
  return [ids("//form"), ids("//input[1]/..")].concat(["count(//form/*)", "string(//form)", "count(//form/@*)",
    "count((//div | //div/@id)/descendant-or-self::node())"].map((expression) => evaluate(expression).stringValue()));
}, ["f", "f", "5", "t", "1", "3"]);

test("contexts pass the flag and variables on", { page: '<p id="a"></p>' }, () => {
  const context = new ExprContext(document, 0, [document], undefined, true);
  const copy = context.clone(document.body, 1, [document.head, document.body]);
  const plain = new ExprContext(document);
  context.setVariable("v", "a");
  plain.setCaseInsensitive(true);
  return [copy.caseInsensitive, copy.node === document.body, copy.position, copy.getVariable("v"), plain.clone().caseInsensitive,
    __corvex__xpath.evaluate(__corvex__xpath.parse("count(//p[@id=$v])"), context).numberValue()];
}, [true, true, 1, "a", true, 1]);

test("a wrong expression is told with its place", {}, () => ["//", "'open", "foo(1)", "count()", "count(1)", "a b",
  "sideways::a", "//p[@]", "$none"].map(failure), [
  "The XPath expression '//' is wrong at character 3: a name, '*' or a node type is needed, but the expression ends",
  "The XPath expression ''open' cannot be read from character 1 on: ''open'", "XPath 1.0 has no function foo()",
  "The XPath function count() takes 1 arguments, and was given 0",
  "The XPath function count() needs a node set, and was given a number",
  "The XPath expression 'a b' is wrong at character 2: an operator or the end is needed, but 'b' follows",
  "The XPath expression 'sideways::a' is wrong at character 1: the name of an axis is needed, but 'sideways' follows",
  "The XPath expression '//p[@]' is wrong at character 6: a name, '*' or a node type is needed, but ']' follows",
  "The XPath variable $none has no value"
]);
