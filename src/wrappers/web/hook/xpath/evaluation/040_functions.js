// Gives: __corvex__xpath.functions: the core functions, name to a record of least, most and call.
// Needs: runtime/nodes, xpath/evaluation/values, xpath/evaluation/nodes, xpath/parsing/lexer.

// call gets the context and the array of argument values, and returns a plain value or an array of nodes.
__corvex__xpath.functions = (function () {
  var textOfNode = __corvex__xpath.textOfNode;
  var read = __corvex__xpath.read;
  var xmlNamespace = "http://www.w3.org/XML/1998/namespace";

  function nodesOf(value, name) {
    if (value.type !== "node-set") {
      throw new Error("The XPath function " + name + "() needs a node set, and was given a " + value.type);
    }
    return value.value;
  }

  function firstNode(ctx, args, name) {
    return args.length ? nodesOf(args[0], name)[0] : ctx.node;
  }

  function textOf(ctx, args) {
    return args.length ? args[0].stringValue() : textOfNode(ctx.node);
  }

  function round(number) {
    return Math.floor(number + 0.5);
  }

  function hasName(node) {
    var type = node ? read.nodeType(node) : 0;
    return type === 1 || type === 2 || type === 7;
  }

  function substring(text, start, length) {
    var first = round(start);
    var end = length === undefined ? Infinity : first + round(length);
    var result = "";
    for (var i = 1; i <= text.length; ++i) {
      if (i >= first && i < end) {
        result += text.charAt(i - 1);
      }
    }
    return result;
  }

  function translate(text, from, to) {
    var result = "";
    for (var i = 0; i < text.length; ++i) {
      var at = from.indexOf(text.charAt(i));
      result += at === -1 ? text.charAt(i) : to.charAt(at);
    }
    return result;
  }

  function elementsById(ctx, value) {
    var texts = value.type === "node-set" ? [] : [value.stringValue()];
    for (var i = 0; value.type === "node-set" && i < value.value.length; ++i) {
      texts.push(textOfNode(value.value[i]));
    }
    var doc = ctx.node.nodeType === 9 ? ctx.node : read.ownerDocument(ctx.node);
    var ids = texts.join(" ").split(/[ \t\r\n]+/);
    var found = [];
    for (i = 0; i < ids.length; ++i) {
      var element = ids[i] ? __corvex__askDocument(doc, "getElementById", ids[i]) : null;
      if (element) {
        found.push(element);
      }
    }
    return __corvex__xpath.ordered(found);
  }

  function languageOf(node) {
    for (; node; node = __corvex__xpath.parentOf(node)) {
      var lang = read.nodeType(node) === 1 ? node.getAttributeNS(xmlNamespace, "lang") : null;
      if (lang) {
        return lang.toLowerCase();
      }
    }
    return "";
  }

  function sum(nodes) {
    var total = 0;
    for (var i = 0; i < nodes.length; ++i) {
      total += __corvex__xpath.numberOfText(textOfNode(nodes[i]));
    }
    return total;
  }

  function row(least, most, call) {
    return { least: least, most: most, call: call };
  }

  return {
    "last": row(0, 0, function (ctx) { return ctx.nodelist.length; }),
    "position": row(0, 0, function (ctx) { return ctx.position + 1; }),
    "count": row(1, 1, function (ctx, args) { return nodesOf(args[0], "count").length; }),
    "id": row(1, 1, function (ctx, args) { return elementsById(ctx, args[0]); }),
    "local-name": row(0, 1, function (ctx, args) {
      var node = firstNode(ctx, args, "local-name");
      return hasName(node) ? (node.nodeType === 1 ? read.localName(node) : node.localName) || node.nodeName : "";
    }),
    "namespace-uri": row(0, 1, function (ctx, args) {
      var node = firstNode(ctx, args, "namespace-uri");
      return node && node.namespaceURI || "";
    }),
    "name": row(0, 1, function (ctx, args) {
      var node = firstNode(ctx, args, "name");
      return hasName(node) ? read.nodeName(node) : "";
    }),
    "string": row(0, 1, textOf),
    "concat": row(2, Infinity, function (ctx, args) {
      var text = "";
      for (var i = 0; i < args.length; ++i) {
        text += args[i].stringValue();
      }
      return text;
    }),
    "starts-with": row(2, 2, function (ctx, args) {
      return args[0].stringValue().lastIndexOf(args[1].stringValue(), 0) === 0;
    }),
    "contains": row(2, 2, function (ctx, args) {
      return args[0].stringValue().indexOf(args[1].stringValue()) !== -1;
    }),
    "substring-before": row(2, 2, function (ctx, args) {
      var at = args[0].stringValue().indexOf(args[1].stringValue());
      return at === -1 ? "" : args[0].stringValue().substring(0, at);
    }),
    "substring-after": row(2, 2, function (ctx, args) {
      var separator = args[1].stringValue();
      var at = args[0].stringValue().indexOf(separator);
      return at === -1 ? "" : args[0].stringValue().substring(at + separator.length);
    }),
    "substring": row(2, 3, function (ctx, args) {
      return substring(args[0].stringValue(), args[1].numberValue(), args[2] && args[2].numberValue());
    }),
    "string-length": row(0, 1, function (ctx, args) { return textOf(ctx, args).length; }),
    "normalize-space": row(0, 1, function (ctx, args) {
      return textOf(ctx, args).replace(/[ \t\r\n]+/g, " ").replace(/^ | $/g, "");
    }),
    "translate": row(3, 3, function (ctx, args) {
      return translate(args[0].stringValue(), args[1].stringValue(), args[2].stringValue());
    }),
    "boolean": row(1, 1, function (ctx, args) { return args[0].booleanValue(); }),
    "not": row(1, 1, function (ctx, args) { return !args[0].booleanValue(); }),
    "true": row(0, 0, function () { return true; }),
    "false": row(0, 0, function () { return false; }),
    "lang": row(1, 1, function (ctx, args) {
      var wanted = args[0].stringValue().toLowerCase();
      var lang = languageOf(ctx.node);
      return lang !== "" && (lang === wanted || lang.indexOf(wanted + "-") === 0);
    }),
    "number": row(0, 1, function (ctx, args) {
      return args.length ? args[0].numberValue() : __corvex__xpath.numberOfText(textOfNode(ctx.node));
    }),
    "sum": row(1, 1, function (ctx, args) { return sum(nodesOf(args[0], "sum")); }),
    "floor": row(1, 1, function (ctx, args) { return Math.floor(args[0].numberValue()); }),
    "ceiling": row(1, 1, function (ctx, args) { return Math.ceil(args[0].numberValue()); }),
    "round": row(1, 1, function (ctx, args) { return round(args[0].numberValue()); })
  };
})();
