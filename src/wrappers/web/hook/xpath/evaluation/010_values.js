// Gives: __corvex__xpath.StringValue, NumberValue, BooleanValue, NodeSetValue: the results of an expression.
// Needs: runtime/builtins, xpath/evaluation/nodes, xpath/parsing/lexer.

// Each value has type, value, and the conversions booleanValue, numberValue, stringValue, nodeSetValue; the last one
// raises an error for all but node sets.

__corvex__xpath.numberOfText = function (text) {
  return /^[ \t\r\n]*-?(?:\d+(?:\.\d*)?|\.\d+)[ \t\r\n]*$/.test(text) ? parseFloat(text) : NaN;
};

// No exponents: an XPath number has all of its digits.
__corvex__xpath.textOfNumber = function (number) {
  var text = String(number);
  var match = /^(-?)(\d)(?:\.(\d+))?e([+-]\d+)$/.exec(text);
  if (!match) {
    return text;
  }
  var digits = match[2] + (match[3] || "");
  var point = 1 + Number(match[4]);
  while (point < 1) {
    digits = "0" + digits;
    ++point;
  }
  while (digits.length < point) {
    digits += "0";
  }
  var fraction = digits.substring(point);
  return match[1] + digits.substring(0, point) + (fraction ? "." + fraction : "");
};

(function () {
  function noNodeSet() {
    throw new Error("The XPath result is a " + this.type + " and no node set; ask for its " + this.type + " value");
  }

  function valueType(type, toBoolean, toNumber, toText) {
    var Value = function (value) {
      this.value = value;
      this.type = type;
    };
    Value.prototype.booleanValue = __corvex__withBuiltIns(toBoolean);
    Value.prototype.numberValue = __corvex__withBuiltIns(toNumber);
    Value.prototype.stringValue = __corvex__withBuiltIns(toText);
    Value.prototype.nodeSetValue = noNodeSet;
    return Value;
  }

  function itself() {
    return this.value;
  }

  __corvex__xpath.StringValue = valueType("string",
    function () { return this.value.length > 0; },
    function () { return __corvex__xpath.numberOfText(this.value); },
    itself);

  __corvex__xpath.NumberValue = valueType("number",
    function () { return !!this.value; },
    itself,
    function () { return __corvex__xpath.textOfNumber(this.value); });

  __corvex__xpath.BooleanValue = valueType("boolean",
    itself,
    function () { return this.value ? 1 : 0; },
    function () { return String(this.value); });

  // value: the nodes in document order.
  __corvex__xpath.NodeSetValue = valueType("node-set",
    function () { return this.value.length > 0; },
    function () { return __corvex__xpath.numberOfText(this.stringValue()); },
    function () { return this.value.length ? __corvex__xpath.textOfNode(this.value[0]) : ""; });
  __corvex__xpath.NodeSetValue.prototype.nodeSetValue = itself;
})();
