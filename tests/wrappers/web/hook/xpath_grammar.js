// Gives: window.xpathGrammar: groups of expressions of each kind that XPath 1.0 has, and differences( group ), what the
// evaluator of the hook script and the browser's own make different.
// Needs: a hooked page with the body of pages/xpath.html.

window.xpathGrammar = (() => {
  const AXES = ["ancestor", "ancestor-or-self", "attribute", "child", "descendant", "descendant-or-self", "following",
    "following-sibling", "parent", "preceding", "preceding-sibling", "self"];
  const NAMES = ["*", "li", "span", "node()", "text()", "comment()", "processing-instruction()"];
  const POSITIONS = ["", "[1]", "[2]", "[last()]", "[position()>1]", "[position()=last()-1]", "[position()!=last()][1]"];
  const CONDITIONS = ["[@id]", "[@id and @class]", "[not(*)]", "[count(*)=0]", "[.='one']", "[text()]", "[normalize-space()]",
    "[span]", "[span[@id='s2']]", "[//h1='Catalogue'][1]", "[parent::div]", "[preceding-sibling::*[1]]", 
    "[position()=1 or last()]",
    "['x']", "['']", "[0]", "[1.5]", "[count(//a)]", "[string(position())]", "[contains(@class,'item')][2]", "[2][@class]"];
  const VALUES = ["1", "2", "-0", "1.5", "(0 div 0)", "'a'", "'1'", "''", "true()", "false()", "//li", "//ol/li", "//td",
    "//nothing"];
  const OPERATORS = ["=", "!=", "<", "<=", ">", ">=", "+", "-", "*", "div", "mod", "and", "or"];
  const TEXTS = ["''", "'abc'", "'1999/04'", "' a  b '", "12", "true()", "//h1", "//nothing", "//p[@id='unicode']"];
  const NUMBERS = ["0", "2", "1.5", "2.6", "-2.5", "-0.3", "-42", "(0 div 0)", "(1 div 0)", "(-1 div 0)", "'12'", "' 12.5 '",
    "'+3'", "'1e3'", "'.'", "'-.5'", "'5.'", "'abc'", "''", "true()", "//ol/li[3]"];

  // All combinations of one member of each list, joined.
  const product = (...lists) => lists.reduce((made, list) => made.flatMap((begin) => list.map((end) => begin + end)));
  // name(a,b) for all a and b.
  const calls = (names, ...lists) => product(names, ["("], ...lists.flatMap((list, i) => (i ? [[","], list] : [list])), [")"]);

  const groups = {
    axes: product(["//div[@id='middle']", "//li", "//span[@id='s2']", "//@class", "//text()", "/", "id('s3 s1 middle')"]
      .map((start) => start.replace(/\/$/, "")), ["/"], AXES, ["::"], NAMES),
    positions: product(["//span[@id='s2']/", "//div[@id='outer']/", "//div[@id='deep']//em/"], AXES, ["::"], ["*", "node()"],
      POSITIONS),
    paths: product(["/", "//", "//div/", "//ul//", "(//ul|//ol)/", "//*[@id]/../", "./", ""],
      ["*", "li", "span", ".", "..", "@*"],
      ["", "/.", "/..", "/@id", "//text()", "/self::li"]).concat(product(["//span", "//*", "/html", "//li[2]"], ["|"],
      ["//a", "//li", "//h1|//em", "//@class"])),
    conditions: product(["//*", "//li", "(//li)", "//div//*", "//tr/td", "//ul/li"], POSITIONS.slice(0, 4), CONDITIONS),
    values: product(VALUES, [" "], OPERATORS, [" "], VALUES),
    precedence: product(["1", "//li", "0"], OPERATORS.map((o) => " " + o + " "), ["2"], OPERATORS.map((o) => " " + o + " "),
      ["3"]),
    texts: calls(["contains", "starts-with", "substring-before", "substring-after", "concat"], TEXTS, TEXTS.concat("'b'", "'/'"))
      .concat(calls(["string", "string-length", "normalize-space", "boolean", "not", "number"], TEXTS.concat(NUMBERS)),
        calls(["translate"], TEXTS, ["'abc'", "'ab-'", "'aba'", "''"], ["'ABC'", "'xyz'", "'x'", "''"])),
    numbers: calls(["floor", "ceiling", "round", "number", "-", "- -"], NUMBERS).concat(
      // From minus infinity on stands everything, which both browsers get wrong.
      calls(["substring"], ["'12345'"], NUMBERS.filter((number) => number !== "(-1 div 0)")),
      calls(["substring"], ["'12345'"], NUMBERS, NUMBERS),
      calls(["sum", "count"], ["//ol/li", "//li/@data-price", "//nothing", "//tr/td[2]", "//*/@*"])),
    // The name of an HTML element stands in capitals here, and not in every browser.
    nodes: calls(["name", "local-name", "namespace-uri", "string"],
      ["//@href", "//nothing", "/", "//text()", "//comment()", "/node()"]).concat(
      calls(["local-name"], ["//h1"]), calls(["id"], ["'s3 s1'", "'nothing'", "//div[@id='refs']", "/.."]),
      calls(["lang"], ["'en'", "'EN-gb'", "'de'", "''"])),
    // How the text is read.
    spelling: ["1e0 = 1", "--1", "5.", ".5", "1 - -1", "3 -1", "10-3-2", "count(//li)-1", "count(//li)*count(//a)", " // li ",
      "//li [ 1 ]", "child :: body", "/ html / body", "// @ id", "//li[position( ) = 2]", "//mod", "//div/div", "div div div",
      "* * *", "//*[@id='div']", "\"a'b\"", "'a\"b'", "position()", "last()", "$", "//", "/html/..", "self::node()", "text ()"]
  };

  const read = {
    number: (r) => r.numberValue(), string: (r) => r.stringValue(), boolean: (r) => r.booleanValue(),
    "node-set": (r) => r.nodeSetValue()
  };
  function ours(expression, node) {
    const result = xpathDomEval(expression, node);
    return [result.type, read[result.type](result)];
  }
  function theirs(expression, node) {
    const type = document.evaluate(expression, node, null, XPathResult.ANY_TYPE, null);
    const plain = { [XPathResult.NUMBER_TYPE]: "number", [XPathResult.STRING_TYPE]: "string",
      [XPathResult.BOOLEAN_TYPE]: "boolean" }[type.resultType];
    if (plain) {
      return [plain, type[plain + "Value"]];
    }
    const list = document.evaluate(expression, node, null, XPathResult.ORDERED_NODE_SNAPSHOT_TYPE, null);
    return ["node-set", Array.from({ length: list.snapshotLength }, (none, i) => list.snapshotItem(i))];
  }
  // An error is an answer, whatever its words.
  function answer(evaluate, expression, node) {
    try {
      return evaluate(expression, node);
    } catch (e) {
      return ["error"];
    }
  }
  function same(a, b) {
    return a[0] === b[0] && (a[0] !== "node-set" ? Object.is(a[1], b[1]) || a[1] === b[1] :
      a[1].length === b[1].length && a[1].every((node, i) => node === b[1][i]));
  }

  return {
    groups: Object.keys(groups).map((name) => [name, groups[name].length]),
    differences: (name) => groups[name].flatMap((expression) => [document, document.body, document.querySelector("#middle")]
      .map((node) => [answer(ours, expression, node), answer(theirs, expression, node), node.nodeName])
      .filter(([our, their]) => !same(our, their))
      .map(([our, their, where]) => [expression, where, String(our), String(their)].join(" ~ "))).slice(0, 20).join("\n")
  };
})();
