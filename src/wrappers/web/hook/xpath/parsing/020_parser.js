// Gives: __corvex__xpath.parse, from the text of an expression to a tree of records, each with a kind.
// Needs: runtime/natives, xpath/parsing/lexer.

// Kinds: or, and, compare, arithmetic, negate, union, number, literal, variable, call, path. A path has filter (an
// expression or null), predicates (of the filter), absolute, and steps of axis, test and predicates.
__corvex__xpath.parse = (function () {
  var axes = new RegExp("^(?:self|child|parent|attribute|namespace|ancestor|ancestor-or-self|descendant|" +
    "descendant-or-self|following|following-sibling|preceding|preceding-sibling)$");
  // Weakest first; operators of one row bind from the left.
  var levels = [
    { kind: "or", operators: /^or$/ },
    { kind: "and", operators: /^and$/ },
    { kind: "compare", operators: /^!?=$/ },
    { kind: "compare", operators: /^[<>]=?$/ },
    { kind: "arithmetic", operators: /^[+-]$/ },
    { kind: "arithmetic", operators: /^(?:\*|div|mod)$/ }
  ];
  var numberFunctions = /^(?:last|position|count|string-length|number|sum|floor|ceiling|round)$/;

  function Parser(expr) {
    this.expr = expr;
    this.tokens = __corvex__xpath.tokens(expr);
    this.pos = 0;
  }

  Parser.prototype.peek = function () {
    return this.tokens[this.pos];
  };

  Parser.prototype.is = function (kind, text) {
    var t = this.peek();
    return t.kind === kind && (text === undefined || t.text === text);
  };

  Parser.prototype.accept = function (kind, text) {
    return this.is(kind, text) ? this.tokens[this.pos++] : null;
  };

  Parser.prototype.fail = function (wanted) {
    var t = this.peek();
    throw new Error("The XPath expression '" + this.expr + "' is wrong at character " + (t.at + 1) + ": " + wanted +
      " is needed, but " + (t.kind === "end" ? "the expression ends" : "'" + t.text + "' follows"));
  };

  Parser.prototype.expect = function (kind) {
    return this.accept(kind) || this.fail("'" + kind + "'");
  };

  Parser.prototype.binary = function (level) {
    if (level === levels.length) {
      return this.unary();
    }
    var left = this.binary(level + 1);
    while (this.is("operator") && levels[level].operators.test(this.peek().text)) {
      var operator = this.accept("operator").text;
      left = { kind: levels[level].kind, operator: operator, left: left, right: this.binary(level + 1) };
    }
    return left;
  };

  Parser.prototype.unary = function () {
    if (this.accept("operator", "-")) {
      return { kind: "negate", operand: this.unary() };
    }
    var left = this.path();
    while (this.accept("operator", "|")) {
      left = { kind: "union", left: left, right: this.path() };
    }
    return left;
  };

  Parser.prototype.primary = function () {
    var t;
    if ((t = this.accept("number"))) {
      return { kind: "number", value: Number(t.text) };
    }
    if ((t = this.accept("literal"))) {
      return { kind: "literal", value: t.text };
    }
    if ((t = this.accept("variable"))) {
      return { kind: "variable", name: t.text };
    }
    if ((t = this.accept("function"))) {
      return { kind: "call", name: t.text, args: this.callArguments() };
    }
    if (this.accept("(")) {
      var inner = this.binary(0);
      this.expect(")");
      return inner;
    }
    return null;
  };

  Parser.prototype.callArguments = function () {
    var args = [];
    this.expect("(");
    if (!this.is(")")) {
      do {
        args.push(this.binary(0));
      } while (this.accept(","));
    }
    this.expect(")");
    return args;
  };

  Parser.prototype.predicates = function () {
    var predicates = [];
    while (this.accept("[")) {
      predicates.push(this.binary(0));
      this.expect("]");
    }
    return predicates;
  };

  Parser.prototype.path = function () {
    var path = { kind: "path", filter: this.primary(), predicates: [], absolute: false, steps: [] };
    if (path.filter) {
      path.predicates = this.predicates();
      if (!this.is("operator", "/") && !this.is("operator", "//")) {
        return path.predicates.length ? path : path.filter;
      }
    } else if (this.is("operator", "/") || this.is("operator", "//")) {
      path.absolute = true;
      if (this.accept("operator", "/") && this.startsStep()) {
        this.step(path.steps);
      }
    } else {
      this.step(path.steps);
    }
    this.furtherSteps(path.steps);
    return path;
  };

  Parser.prototype.furtherSteps = function (steps) {
    for (;;) {
      if (this.accept("operator", "//")) {
        steps.push({ axis: "descendant-or-self", test: { kind: "node" }, predicates: [] });
      } else if (!this.accept("operator", "/")) {
        return;
      }
      this.step(steps);
    }
  };

  Parser.prototype.startsStep = function () {
    return /^(?:\.|\.\.|@|axis|nametest|nodetype)$/.test(this.peek().kind);
  };

  Parser.prototype.step = function (steps) {
    var step = { axis: "child", test: { kind: "node" }, predicates: [] };
    if (this.accept(".")) {
      step.axis = "self";
    } else if (this.accept("..")) {
      step.axis = "parent";
    } else {
      if (this.accept("@")) {
        step.axis = "attribute";
      } else if (this.is("axis")) {
        step.axis = this.axis();
      }
      step.test = this.nodeTest();
      step.predicates = this.predicates();
    }
    addStep(steps, step);
  };

  Parser.prototype.axis = function () {
    if (!axes.test(this.peek().text)) {
      this.fail("the name of an axis");
    }
    var name = this.accept("axis").text;
    this.expect("::");
    return name;
  };

  Parser.prototype.nodeTest = function () {
    var t = this.accept("nametest");
    if (t) {
      if (t.text === "*") {
        return { kind: "any" };
      }
      return /:\*$/.test(t.text) ? { kind: "prefix", name: t.text.substring(0, t.text.length - 2) } :
        { kind: "name", name: t.text };
    }
    t = this.accept("nodetype") || this.fail("a name, '*' or a node type");
    this.expect("(");
    var target = t.text === "processing-instruction" ? this.accept("literal") : null;
    this.expect(")");
    return { kind: t.text, target: target ? target.text : null };
  };

  function asksForPosition(node) {
    if (!node || typeof node !== "object") {
      return false;
    }
    if (node.kind === "call" && /^(?:position|last)$/.test(node.name)) {
      return true;
    }
    for (var key in node) {
      if (__corvex__natives.has(node, key) && asksForPosition(node[key])) {
        return true;
      }
    }
    return false;
  }

  function dependsOnPosition(predicate) {
    return /^(?:number|negate|arithmetic|variable)$/.test(predicate.kind) ||
      (predicate.kind === "call" && numberFunctions.test(predicate.name)) || asksForPosition(predicate);
  }

  // "//name" is short for two steps of which the first collects every node. One step gives the same elements, unless
  // a predicate counts within each parent.
  function addStep(steps, step) {
    var last = steps[steps.length - 1];
    var joins = last && last.axis === "descendant-or-self" && last.test.kind === "node" &&
      last.predicates.length === 0 && step.axis === "child";
    for (var i = 0; joins && i < step.predicates.length; ++i) {
      joins = !dependsOnPosition(step.predicates[i]);
    }
    if (joins) {
      steps.pop();
      step.axis = "descendant";
    }
    steps.push(step);
  }

  return function (expr) {
    var parser = new Parser(String(expr));
    var tree = parser.binary(0);
    if (!parser.is("end")) {
      parser.fail("an operator or the end");
    }
    return tree;
  };
})();
