// Gives: __corvex__xpath.evaluate( tree, ctx ): the value of a parsed expression.
// Needs: runtime/natives, xpath/evaluation/values, xpath/evaluation/nodes, xpath/evaluation/axes,
//   xpath/evaluation/functions, xpath/parsing/lexer.

__corvex__xpath.evaluate = (function () {
  var arithmetic = {
    "+": function (a, b) { return a + b; },
    "-": function (a, b) { return a - b; },
    "*": function (a, b) { return a * b; },
    "div": function (a, b) { return a / b; },
    "mod": function (a, b) { return a % b; }
  };

  var comparisons = {
    "=": function (a, b) { return a === b; },
    "!=": function (a, b) { return a !== b; },
    "<": function (a, b) { return a < b; },
    "<=": function (a, b) { return a <= b; },
    ">": function (a, b) { return a > b; },
    ">=": function (a, b) { return a >= b; }
  };

  function asValue(plain) {
    switch (typeof plain) {
      case "string":
        return new __corvex__xpath.StringValue(plain);
      case "number":
        return new __corvex__xpath.NumberValue(plain);
      case "boolean":
        return new __corvex__xpath.BooleanValue(plain);
    }
    return new __corvex__xpath.NodeSetValue(plain);
  }

  // A node set stands for the texts of its nodes, and a comparison holds if it holds for one of them.
  function operands(value) {
    if (value.type !== "node-set") {
      return [value];
    }
    var values = [];
    for (var i = 0; i < value.value.length; ++i) {
      values.push(asValue(__corvex__xpath.textOfNode(value.value[i])));
    }
    return values;
  }

  function compareSingle(operator, a, b) {
    var compare = comparisons[operator];
    if (operator !== "=" && operator !== "!=") {
      return compare(a.numberValue(), b.numberValue());
    }
    if (a.type === "boolean" || b.type === "boolean") {
      return compare(a.booleanValue(), b.booleanValue());
    }
    if (a.type === "number" || b.type === "number") {
      return compare(a.numberValue(), b.numberValue());
    }
    return compare(a.stringValue(), b.stringValue());
  }

  function isNodeSetWithBoolean(a, b) {
    return a.type === "node-set" && b.type === "boolean";
  }

  function compare(operator, a, b) {
    if (isNodeSetWithBoolean(a, b) || isNodeSetWithBoolean(b, a)) {
      return compareSingle(operator, asValue(a.booleanValue()), asValue(b.booleanValue()));
    }
    var left = operands(a);
    var right = operands(b);
    for (var i = 0; i < left.length; ++i) {
      for (var j = 0; j < right.length; ++j) {
        if (compareSingle(operator, left[i], right[j])) {
          return true;
        }
      }
    }
    return false;
  }

  function call(tree, ctx) {
    var known = __corvex__natives.has(__corvex__xpath.functions, tree.name);
    if (!known) {
      throw new Error("XPath 1.0 has no function " + tree.name + "()");
    }
    var row = __corvex__xpath.functions[tree.name];
    if (tree.args.length < row.least || tree.args.length > row.most) {
      throw new Error("The XPath function " + tree.name + "() takes " + row.least +
        (row.most === row.least ? "" : row.most === Infinity ? " or more" : " to " + row.most) +
        " arguments, and was given " + tree.args.length);
    }
    var args = [];
    for (var i = 0; i < tree.args.length; ++i) {
      args.push(evaluate(tree.args[i], ctx));
    }
    return row.call(ctx, args);
  }

  function filtered(nodes, predicates, ctx) {
    for (var i = 0; i < predicates.length; ++i) {
      var kept = [];
      for (var k = 0; k < nodes.length; ++k) {
        var result = evaluate(predicates[i], ctx.clone(nodes[k], k, nodes));
        if (result.type === "number" ? result.value === k + 1 : result.booleanValue()) {
          kept.push(nodes[k]);
        }
      }
      nodes = kept;
    }
    return nodes;
  }

  function stepFrom(node, step, ctx) {
    var axis = __corvex__xpath.axes[step.axis](node);
    var test = __corvex__xpath.nodeTests[step.test.kind];
    var nodes = [];
    for (var i = 0; i < axis.length; ++i) {
      if (test(axis[i], step.test, ctx.caseInsensitive, step.axis)) {
        nodes.push(axis[i]);
      }
    }
    nodes = filtered(nodes, step.predicates, ctx);
    return __corvex__xpath.reverseAxes.test(step.axis) ? nodes.reverse() : nodes;
  }

  function stepFromAll(nodes, step, ctx) {
    if (nodes.length === 1) {
      return stepFrom(nodes[0], step, ctx);
    }
    var all = [];
    var coversDescendants = step.predicates.length === 0 && /^descendant/.test(step.axis);
    var covered = null;
    for (var i = 0; i < nodes.length; ++i) {
      // What is below a node that lies below the one before has been collected there.
      if (coversDescendants && covered && __corvex__xpath.isBelow(nodes[i], covered)) {
        continue;
      }
      covered = nodes[i];
      var some = stepFrom(nodes[i], step, ctx);
      for (var k = 0; k < some.length; ++k) {
        all.push(some[k]);
      }
    }
    return __corvex__xpath.ordered(all);
  }

  function path(tree, ctx) {
    var nodes = [tree.absolute ? __corvex__xpath.rootOf(ctx.node) : ctx.node];
    if (tree.filter) {
      nodes = filtered(evaluate(tree.filter, ctx).nodeSetValue(), tree.predicates, ctx);
    }
    for (var i = 0; i < tree.steps.length; ++i) {
      nodes = stepFromAll(nodes, tree.steps[i], ctx);
    }
    return nodes;
  }

  // Kind of expression to a function that returns a plain value or an array of nodes.
  var kinds = {
    "or": function (tree, ctx) {
      return evaluate(tree.left, ctx).booleanValue() || evaluate(tree.right, ctx).booleanValue();
    },
    "and": function (tree, ctx) {
      return evaluate(tree.left, ctx).booleanValue() && evaluate(tree.right, ctx).booleanValue();
    },
    "compare": function (tree, ctx) {
      return compare(tree.operator, evaluate(tree.left, ctx), evaluate(tree.right, ctx));
    },
    "arithmetic": function (tree, ctx) {
      return arithmetic[tree.operator](
        evaluate(tree.left, ctx).numberValue(), evaluate(tree.right, ctx).numberValue());
    },
    "negate": function (tree, ctx) {
      return -evaluate(tree.operand, ctx).numberValue();
    },
    "union": function (tree, ctx) {
      var left = evaluate(tree.left, ctx).nodeSetValue();
      return __corvex__xpath.ordered(left.concat(evaluate(tree.right, ctx).nodeSetValue()));
    },
    "number": function (tree) { return tree.value; },
    "literal": function (tree) { return tree.value; },
    "variable": function (tree, ctx) { return ctx.getVariable(tree.name); },
    "call": call,
    "path": path
  };

  function evaluate(tree, ctx) {
    return asValue(kinds[tree.kind](tree, ctx));
  }

  return evaluate;
})();
