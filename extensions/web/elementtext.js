// Gives: names find an element by its text as the page holds it and as its style shows it, whichever the browser tells.
// Needs: runtime/nodes, runtime/innertext, matching, simplifiedtext, search/kept, api/hooks, api/forwarders.

// One browser's innerText is the text that is shown: in capitals where the style has it so, without hidden children, and
// with a line for each block. The other's is the text of the page. A name that was written for one has to find the same
// elements in the other, so both texts count in both.
(function () {
  // What a style turns into other letters than capitals or small ones of the same.
  var odd = new RegExp("[\\u00df\\u0130\\u0131\\u0149\\u01f0\\u0307\\u0386-\\u0390\\u03aa-\\u03b0\\u03c2" +
    "\\u03ca-\\u03ce\\u0587\\u1e96-\\u1e9e\\u1f00-\\u1fff\\ufb00-\\ufb17]");
  var wide = /[\uff00-\uffef]/;
  // These need not be in a text that fits, either.
  var blanks = /[\s\u2010-\u2015-]/g;
  var blank = /[\s\u2010-\u2015-]/;
  // A text of so many characters is not read as it is shown without need: that is dear.
  var LONG = 300;
  var MOST_LETTERS = 40;
  var MOST_NODES = 20;
  var SHOW_TEXT = 4;

  var simplify = window.top.__corvex.simplifyText;

  function charactersAt(source, from, end) {
    var i = from;
    while (i < source.length && source.charAt(i) !== end) {
      i += source.charAt(i) === "\\" ? 2 : 1;
    }
    return i;
  }

  // The characters that each text has, in their order, that a regular expression fits; those that may be anywhere are
  // undefined. Too few rather than too many.
  function lettersOfExpression(source) {
    var letters = [];
    var depth = 0;
    for (var i = 0; i < source.length; ++i) {
      var c = source.charAt(i);
      var letter;
      if (c === "(" || c === ")") {
        depth += c === "(" ? 1 : -1;
      } else if (c === "[") {
        i = charactersAt(source, i + 1, "]");
      } else if (c === "*" || c === "?" || c === "{") {
        letters.pop();
        i = c === "{" ? charactersAt(source, i, "}") : i;
      } else if (c === "\\") {
        c = source.charAt(++i);
        letter = /\w/.test(c) ? undefined : c;
      } else {
        letter = /[.^$+|]/.test(c) ? undefined : c;
      }
      // What follows some letters belongs to them, and either side of a bar will do.
      if ((source.charAt(i - 1) === "\\" && /[cukx]/.test(c)) || (c === "|" && depth === 0)) {
        return [];
      }
      letters.push(depth === 0 ? letter : undefined);
      letter = undefined;
    }
    return letters;
  }

  function isSteady(letter) {
    return !blank.test(letter) && !odd.test(letter) && !wide.test(letter);
  }

  // Runs of steady letters, in which there may be blanks.
  function runsOf(letters) {
    var runs = [""];
    for (var i = 0; i < letters.length; ++i) {
      if (letters[i] && isSteady(letters[i])) {
        runs[runs.length - 1] += letters[i];
      } else if (!letters[i] || !blank.test(letters[i])) {
        runs.push("");
      }
    }
    return runs;
  }

  function longest(runs) {
    var found = "";
    for (var i = 0; i < runs.length; ++i) {
      found = runs[i].length > found.length ? runs[i] : found;
    }
    return found;
  }

  // An expression of all letters, each in the form that write gives to its code.
  function expressionOf(letters, write) {
    var text = "";
    for (var i = 0; i < letters.length && i < MOST_LETTERS; ++i) {
      text += write("\\u" + ("000" + letters.charCodeAt(i).toString(16)).slice(-4));
    }
    return text;
  }

  // What a value asks of a text, in capitals or not. fits: these letters in this order. run: the longest run of them.
  // start: what it begins with, if that is fixed. likes: the expression, where it means the same in capitals.
  function questionOf(value) {
    var isExact = value.modifiers === PropertyValue_StrictMatch;
    var source = isExact ? "" : value.value.source;
    var runs = runsOf(isExact ? String(value.value).split("") : lettersOfExpression(source));
    var steps = expressionOf(runs.join(""), function (code) {
      return "[^" + code + "]*" + code;
    });
    var run = expressionOf(longest(runs), function (code) {
      return code + "[\\s\\u2010-\\u2015-]*";
    });
    return {
      value: value.value,
      fits: new RegExp("^" + steps + "|" + odd.source, "i"),
      run: new RegExp(run + "|" + odd.source, "i"),
      start: isExact ? runs[0].toLowerCase() : source.charAt(0) === "^" && runs.length > 1 ? runs[1].toLowerCase() : "",
      likes: isExact || /\[\^|\(\?[!<]|\\[A-Z]/.test(source) || value.value.test("") ? null : new RegExp(source, "i")
    };
  }

  function questionFor(value) {
    if (!value.question || value.question.value !== value.value) {
      value.question = questionOf(value);
    }
    return value.question;
  }

  function isSurelyShown(node) {
    var parent = __corvex__nodeReader.parentNode(node);
    if (/^(OPTION|OPTGROUP|TEXTAREA)$/i.test(__corvex__nodeReader.tagName(parent)) ||
        getComputedStyle(parent).visibility !== "visible") {
      return false;
    }
    var range = __corvex__nodeReader.ownerDocument(node).createRange();
    range.selectNodeContents(node);
    return range.getClientRects().length !== 0;
  }

  function findsOtherStart(o, start) {
    var walker = __corvex__nodeReader.ownerDocument(o).createTreeWalker(o, SHOW_TEXT, null, false);
    for (var seen = 0; start && seen < MOST_NODES && walker.nextNode();) {
      var text = walker.currentNode.nodeValue.substring(0, LONG).replace(blanks, "").toLowerCase();
      if (text) {
        ++seen;
        var length = Math.min(text.length, start.length);
        if (odd.test(text) || text.substring(0, length) === start.substring(0, length)) {
          return false;
        }
        if (isSurelyShown(walker.currentNode)) {
          return true;
        }
      }
    }
    return false;
  }

  // Whether what is shown of an element begins with other letters. Names in a page may hide what this asks for.
  function startsOtherwise(o, start) {
    try {
      return findsOtherStart(o, start);
    } catch (e) {
      return false;
    }
  }

  // Whether it takes no reading to know that the text that is shown does not fit. Of long texts it is taken for granted
  // that nothing hidden stands within a run of letters.
  function isShownOtherwise(o, text, question) {
    if (text.length > LONG) {
      return !question.run.test(text) || startsOtherwise(o, question.start);
    }
    return question.likes && !o.firstElementChild && !odd.test(text) && !question.likes.test(text) &&
      !question.likes.test(simplify(text));
  }

  // The simplified texts of an element: what the browser tells first, then the others that there are.
  function simplifiedTexts(o) {
    var texts = [window.top.__corvex.getSimplifiedInnerText(o)];
    var others = [simplify(__corvex__nodeReader.textContent(o)), simplify(__corvex__shownText(o))];
    for (var i = 0; i < others.length; ++i) {
      if (typeof others[i] === "string" && others[i] !== texts[0]) {
        texts.push(others[i]);
      }
    }
    return texts;
  }

  function keptTextMatches(o, value) {
    var texts = __corvex__kept(simplifiedTexts, o);
    for (var i = 0; i < texts.length; ++i) {
      if (__corvex__propMatches(value, texts[i])) {
        return true;
      }
    }
    return false;
  }

  function textMatches(property, value, text) {
    return typeof text === "string" && (__corvex__propMatches(value, simplify(text)) ||
      (property === "innerText" && __corvex__readValueMatches(value, text)));
  }

  // Whether all elements that can be asked about have the innerText that their letters tell of: those that a page defines
  // may give it a meaning of their own, as the page may, and it is nothing to elements of drawings.
  function isToldByLetters(objectName) {
    return /tagName='[A-Z][A-Z0-9]*'/.test(objectName) && __corvex__isInnerTextKnown(__corvex__windowState.ctxwin);
  }

  function isAttribute(o, property, value) {
    return property === "innerText" && __corvex__readValueMatches(value, __corvex__attributeOf(o, property));
  }

  Corvex.addPropertyMatcherFactory(function (property, value, objectName) {
    var isPlain = __corvex__plainTestOfProperty(property, value);
    var question = null;
    var isTold = false;
    function matchObject(o) {
      if (__corvex__keptAnswers && property === "simplifiedInnerText") {
        return keptTextMatches(o, value);
      }
      if (!question) {
        question = questionFor(value);
        isTold = isToldByLetters(objectName);
      }
      var text = __corvex__nodeReader.textContent(o);
      if (!question.fits.test(text)) {
        return isTold ? isAttribute(o, property, value) : isPlain(o);
      }
      return isPlain(o) || textMatches(property, value, text) ||
        (!isShownOtherwise(o, text, question) && textMatches(property, value, __corvex__shownText(o)));
    }
    return {
      matchObject: matchObject,
      exactTexts: property !== "simplifiedInnerText" ? undefined : function (o) {
        return __corvex__kept(simplifiedTexts, o);
      }
    };
  }, ["innerText", "simplifiedInnerText"]);
})();
