// Gives: window.plainRoad, the answers of a search as they are defined, without any short cut, and how those of the hook
// script differ from them.
// Needs: a hooked page with the body oddities.html.

window.plainRoad = (function () {
  var NAMES = [
    "{visible='true' tagName='*' title='a b'}", "{visible='false' tagName='*' title='a b'}",
    "{tagName='*' title='a b' visible='false'}", "{visible='true' tagName='*' title='none' name='c'}",
    "{tagName='*' title='none' visible='true' name='c'}", "{visible='true' tagName='*' title?='a?b'}",
    "{visible='true' tagName='*' title~='^a.b$' simplifiedInnerText='plain'}", "{visible='true' tagName='*' disabled~='x'}",
    "{visible='true' tagName='*' thrower='x'}", "{visible~='true' tagName='*' title='a b'}",
    "{tagName='*' title='none' visible~='true'}", "{visible='maybe' tagName='*' type='text'}"
  ];
  var PROPERTIES = ["title", "value", "name", "type", "checked", "disabled", "maxLength", "data-mark", "className", "id",
    "innerText", "style.display", "number", "list"];
  var VALUES = ["a b", "a  b", "a\u00a0b", "a\tb", "a \t b", " a b ", "a-b", "a\u2013b", "A B", "", "5", "3", "true", "false",
    "null", "undefined", "none", "text", "1,2", "v"];

  // All elements, those of shadow trees and frames too.
  function everyElement() {
    var found = [];
    function collect(root) {
      var all = root.querySelectorAll("*");
      for (var i = 0; i < all.length; ++i) {
        found.push(all[i]);
        if (__corvex__nodeReader.shadowRoot(all[i])) {
          collect(__corvex__nodeReader.shadowRoot(all[i]));
        }
        if (all[i].tagName === "IFRAME") {
          collect(all[i].contentDocument);
        }
      }
    }
    collect(document.body);
    return found;
  }

  function describe(element) {
    return (__corvex__nodeReader.tagName(element) + " " + element.outerHTML).substring(0, 80);
  }

  // The answer of action, or what it threw.
  function answerOf(action) {
    try {
      return action();
    } catch (e) {
      return "error";
    }
  }

  function compareEach(elements, quick, plain) {
    var differences = [];
    elements.forEach(function (element) {
      var answers = [quick, plain].map(function (ask) {
        return answerOf(function () { return ask(element); });
      });
      if (answers[0] !== answers[1]) {
        differences.push(describe(element) + ": " + answers.join(" instead of "));
      }
    });
    return differences;
  }

  function matches(o, prop, value) {
    var read = o[prop];
    if (typeof read === "boolean") {
      return value.value.toLowerCase() === "true" ? read : !read;
    }
    var reads = [function () { return o[prop]; }, function () { return Element.prototype.getAttribute.call(o, prop); }];
    if (prop.indexOf(".") !== -1) {
      reads.push(function () { return eval("o." + prop); });
    }
    return reads.some(function (get) {
      return __corvex__propMatches(value, __corvex__clean(get()), false) || __corvex__propMatches(value, get(), false) ||
        __corvex__propMatches(value, __corvex__clean(get()), true);
    });
  }

  // What a search accepts, with the reports that it makes.
  function search(nm, elements, makeTest) {
    __corvex.sentUnmatchedProperties = [];
    var accepts = makeTest(__corvex__matchersFor(__corvex__propertyMap(nm), nm));
    var accepted = answerOf(function () { return elements.map(function (element) { return !!accepts(element); }); });
    return JSON.stringify([accepted, __corvex.sentUnmatchedProperties]);
  }

  function plainTest(matchers) {
    return function (element) { return __corvex__matchedByAll(matchers, element); };
  }

  return {
    prepare: function () {
      document.querySelector("#host").attachShadow({ mode: "open" }).innerHTML =
        "<p title='a b'>own</p><slot name=in><i>fallback</i></slot><span style='display:none'>no</span>";
      document.querySelector("#hiddenhost").attachShadow({ mode: "open" }).innerHTML =
        "<div style='visibility:hidden'><slot></slot></div><div style='display:none'><b>no</b></div>";
      var odd = document.querySelectorAll("p");
      odd[0].number = 5;
      odd[1].list = [1, 2];
      Object.defineProperty(document.querySelector("p.hidden"), "thrower", { get: function () { throw new Error("x"); } });
      return everyElement().length;
    },
    visibility: function () {
      return compareEach(everyElement(), __corvex__isVisible, __corvex__isVisibleByStyle).slice(0, 5);
    },
    surelyVisible: function () {
      return everyElement().filter(__corvex__isSurelyVisible).length;
    },
    values: function () {
      var differences = [];
      var elements = everyElement();
      PROPERTIES.forEach(function (prop) {
        if (__corvex__propertyTests[prop]) {
          return;
        }
        VALUES.forEach(function (text) {
          [[text, 0], [new RegExp(text), 1]].forEach(function (made) {
            var value = new __corvex__PropValue(made[0], made[1]);
            var quick = __corvex__plainTestOfProperty(prop, value);
            differences = differences.concat(compareEach(elements, function (o) { return !!quick(o); },
              function (o) { return !!matches(o, prop, value); }));
          });
        });
      });
      return differences.slice(0, 5);
    },
    // In both directions: the order of the elements decides what is reported first.
    searches: function () {
      var elements = everyElement();
      var differences = [];
      [elements, elements.slice().reverse()].forEach(function (list) {
        NAMES.forEach(function (nm) {
          if (search(nm, list, __corvex__elementTest) !== search(nm, list, plainTest)) {
            differences.push(nm);
          }
        });
      });
      return differences;
    }
  };
})();
