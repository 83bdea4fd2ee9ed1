// Gives: xpathDomEval( expr, node ), ExprContext, xpathLog.
// Needs: runtime/natives, runtime/builtins, xpath/evaluation/expressions, xpath/parsing/parser.

function xpathLog() {
}

// What an expression is evaluated against: a node, its place from 0 in a list of nodes, and variables, which a context
// inherits from its parent.
function ExprContext(node, opt_position, opt_nodelist, opt_parent, opt_caseInsensitive) {
  this.node = node;
  this.position = opt_position || 0;
  this.nodelist = opt_nodelist || [node];
  this.parent = opt_parent;
  this.caseInsensitive = opt_caseInsensitive || false;
  this.variables = {};
}

ExprContext.prototype.clone = function (opt_node, opt_position, opt_nodelist) {
  return new ExprContext(
    opt_node || this.node,
    opt_position === undefined ? this.position : opt_position,
    opt_nodelist || this.nodelist,
    this,
    this.caseInsensitive);
};

ExprContext.prototype.setCaseInsensitive = function (caseInsensitive) {
  this.caseInsensitive = caseInsensitive;
  return caseInsensitive;
};

// value: a text, a number, a boolean, or an array of nodes in document order.
ExprContext.prototype.setVariable = function (name, value) {
  this.variables[name] = value;
};

ExprContext.prototype.getVariable = function (name) {
  for (var ctx = this; ctx; ctx = ctx.parent) {
    if (__corvex__natives.has(ctx.variables, name)) {
      return ctx.variables[name];
    }
  }
  throw new Error("The XPath variable $" + name + " has no value");
};

var xpathDomEval = __corvex__withBuiltIns(function (expr, node) {
  var tree = __corvex__xpath.parse(expr);
  var ctx = new ExprContext(node);
  ctx.setCaseInsensitive(!!top.__corvex__xpath__caseInSensitiveMatching);
  return __corvex__xpath.evaluate(tree, ctx);
});
