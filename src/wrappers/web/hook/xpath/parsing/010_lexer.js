// Gives: __corvex__xpath.tokens, which splits the text of an XPath 1.0 expression.
// Needs: nothing.

var __corvex__xpath = {};

// Each token is a record of kind, text and at (its place in the expression). Kinds: number, literal, variable,
// operator, axis, function, nodetype, nametest, and punctuation, whose kind is its text. The last one is "end".
__corvex__xpath.tokens = (function () {
  var letter = "A-Za-z_\\u00C0-\\u1FFF\\u200C\\u200D\\u2070-\\u218F\\u2C00-\\u2FEF\\u3001-\\uDFFF\\uF900-\\uFFFD";
  var ncName = "[" + letter + "][" + letter + "0-9.\\-\\u00B7]*";
  var pattern = new RegExp(
    "[ \\t\\r\\n]*(?:" +
      "(\\d+(?:\\.\\d*)?|\\.\\d+)|" +
      "(\"[^\"]*\"|'[^']*')|" +
      "\\$(" + ncName + "(?::" + ncName + ")?)|" +
      "(" + ncName + ":\\*|" + ncName + ":" + ncName + "(?!:)|" + ncName + "|\\*)|" +
      "(::|\\.\\.|//|!=|<=|>=|[()\\[\\].@,/|+\\-=<>])" +
      ")", "g");
  var operators = /^(?:\/\/?|!?=|[<>]=?|[|+-])$/;
  var operatorNames = /^(?:and|or|mod|div|\*)$/;
  var nodeTypes = /^(?:comment|text|processing-instruction|node)$/;
  // Behind one of these an operand begins, so that "*" and "div" are names there.
  var operandFollows = /^(?:@|::|\(|\[|,|operator)$/;

  function nameKind(text, previous, rest) {
    if (previous && !operandFollows.test(previous.kind) && operatorNames.test(text)) {
      return "operator";
    }
    if (/^[ \t\r\n]*\(/.test(rest)) {
      return nodeTypes.test(text) ? "nodetype" : "function";
    }
    return /^[ \t\r\n]*::/.test(rest) ? "axis" : "nametest";
  }

  function token(match, previous, rest) {
    if (match[1] !== undefined) {
      return { kind: "number", text: match[1] };
    }
    if (match[2] !== undefined) {
      return { kind: "literal", text: match[2].substring(1, match[2].length - 1) };
    }
    if (match[3] !== undefined) {
      return { kind: "variable", text: match[3] };
    }
    if (match[4] !== undefined) {
      return { kind: nameKind(match[4], previous, rest), text: match[4] };
    }
    return { kind: operators.test(match[5]) ? "operator" : match[5], text: match[5] };
  }

  return function (expr) {
    var tokens = [];
    var end = expr.replace(/[ \t\r\n]+$/, "").length;
    pattern.lastIndex = 0;
    while (pattern.lastIndex < end) {
      var at = pattern.lastIndex;
      var match = pattern.exec(expr);
      if (!match || match.index !== at) {
        throw new Error("The XPath expression '" + expr + "' cannot be read from character " + (at + 1) +
          " on: '" + expr.substring(at) + "'");
      }
      var next = token(match, tokens[tokens.length - 1], expr.substring(pattern.lastIndex));
      next.at = at;
      tokens.push(next);
    }
    tokens.push({ kind: "end", text: "", at: end });
    return tokens;
  };
})();
