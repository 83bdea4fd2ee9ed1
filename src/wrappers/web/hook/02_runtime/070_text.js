// Gives: text cleaning, class-list tests and searches by class name.
// Needs: runtime/natives, runtime/nodes.

// The order of the steps is part of the format: names that were recorded hold cleaned texts.
function __corvex__clean(s) {
  if (!s) {
    return s;
  }
  return String(s)
    .replace(/\u00a0/g, " ")
    .replace(/\n+/g, " ")
    .replace(/\r/g, "")
    .replace(/ +/g, " ")
    .replace(/\t+/g, " ")
    .replace(/[\u2011\u2013]/g, "-")
    .replace(/^ /, "")
    .replace(/ $/, "");
}

// For string-like objects without split. A last word with no space after it is not collected.
function __corvex__collectWords(s) {
  var words = [];
  try {
    var word = "";
    for (var i = 0; i < s.length; ++i) {
      var c = s.charAt(i);
      if (c === " ") {
        words.push(word);
        word = "";
      } else {
        word += c;
      }
    }
  } catch (e) {
    // Not string-like after all.
  }
  return words;
}

function __corvex__listContains(s, entry) {
  if (!s) {
    return false;
  }
  // An animated string of SVG.
  var list = __corvex__natives.has(s, "baseVal") ? s.baseVal : s;
  if (!list) {
    return false;
  }
  var words = list.split ? list.split(" ") : __corvex__collectWords(list);
  for (var i = 0; i < words.length; ++i) {
    if (words[i] === entry) {
      return true;
    }
  }
  return false;
}

function __corvex__hasClass(elem, className) {
  return typeof elem !== "function" && __corvex__listContains(__corvex__nodeReader.className(elem), className);
}

function __corvex__getElementByClassName(context, className, tagName) {
  var elements = __corvex__elementsByTag(context, tagName);
  for (var i = 0; i < elements.length; ++i) {
    if (__corvex__hasClass(elements[i], className)) {
      return elements[i];
    }
  }
  return undefined;
}

function __corvex__getElementsByClassName(context, className, tagName) {
  var elements = __corvex__elementsByTag(context, tagName);
  var matches = [];
  for (var i = 0; i < elements.length; ++i) {
    if (__corvex__hasClass(elements[i], className)) {
      matches.push(elements[i]);
    }
  }
  return matches;
}
