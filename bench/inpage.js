// Gives: window.inPageBench, the measures that are taken in the page: count, and measure(i) with name, aim and times.
// Needs: a hooked page with an empty body.

window.inPageBench = (function () {
  var SAMPLES = 9;
  var shownPage = null;
  var found = null;

  function fill(count, make) {
    var all = document.createDocumentFragment();
    for (var i = 0; i < count; ++i) {
      all.appendChild(make(i));
    }
    document.body.textContent = "";
    document.body.appendChild(all);
    top.__corvex__globalObjectRefStore = [];
  }

  function element(tagName, properties, text) {
    var made = document.createElement(tagName);
    Object.assign(made, properties);
    made.textContent = text || "";
    return made;
  }

  function input(i) {
    return element("input", { type: "text", name: "n" + i, title: "t" + i });
  }

  // Ten elements of a form, as pages have them.
  function block(i) {
    var made = element("div");
    made.innerHTML = "<label for=i" + i + ">Label " + i + "</label><input id=i" + i + "><a href=x>Link</a><span>text " + i +
      "</span><button>Save</button><table><tr><td>" + i + "</td></tr></table>";
    return made;
  }

  var pages = {
    inputs: function () { fill(10000, input); },
    oneHidden: function () {
      fill(10000, input);
      document.querySelector("input").style.display = "none";
    },
    thousandAlike: function () { fill(1000, function () { return element("input", { type: "text" }); }); },
    fiveThousandAlike: function () { fill(5000, function () { return element("input", { type: "text" }); }); },
    fiveThousandSpans: function () { fill(5000, function () { return element("span", {}, "like"); }); },
    controls: function () { fill(2000, input); },
    list: function () { fill(10000, function (i) { return element("span", {}, "text " + i); }); },
    blocks: function () { fill(1000, block); },
    texts: function () { fill(2000, function (i) { return element("span", {}, "text " + i); }); },
    forms: function () { fill(200, block); },
    twentyThousand: function () { fill(20000, input); }
  };

  function search(name) {
    return function () {
      found = __corvex__findObject(name);
    };
  }

  // The same work as a search for a visible element of a name and type, by the browser alone.
  function selectVisible() {
    var all = document.querySelectorAll("input");
    found = null;
    for (var i = 0; i < all.length; ++i) {
      if (all[i].checkVisibility({ visibilityProperty: true }) && all[i].name === "n9999" && all[i].type === "text") {
        found = all[i];
      }
    }
  }

  // With no more of the texts than the browser's innerText.
  function withoutFactories(action) {
    return function () {
      var factories = window.__corvex__factoriesOfProperties;
      window.__corvex__factoriesOfProperties = {};
      action();
      window.__corvex__factoriesOfProperties = factories;
    };
  }

  // A search by text that finds nothing, with the texts of the extension and without.
  function textRows(what, page, name) {
    return [["search by text, " + what + ", innerText alone", page, withoutFactories(search(name)), 5, nothing],
      ["the same with both texts", page, search(name), 5, nothing]];
  }

  function nameLast() {
    found = __corvex__findObject(unescape(__corvex__nameOf(document.body.lastElementChild)));
  }

  // Names each element and searches it by that name; found is the last one if each name with properties found its own.
  // Nothing is reported meanwhile, as when a whole page is checked.
  function nameAll() {
    found = null;
    window.__corvex__recording = true;
    __corvex__whilePageStays(function () {
      var all = document.body.querySelectorAll("*");
      for (var i = 0; i < all.length; ++i) {
        var name = unescape(__corvex__nameOf(all[i]));
        if (name.charAt(0) === "{" && __corvex__findObject(name) !== all[i]) {
          return;
        }
      }
      found = document.body.lastElementChild;
    });
    window.__corvex__recording = false;
  }

  function list() {
    found = JSON.stringify(__corvex.objectTreeInformation(document)).length > 100000 && document.body.lastElementChild;
  }

  function childList() {
    found = __corvex.childObjectAndInfo(document.body).length === 10000 && document.body.lastElementChild;
  }

  function last() {
    return document.body.lastElementChild;
  }

  function nothing() {
    return undefined;
  }

  // Name, page, what is measured, how often for one sample, what has to be found, aim.
  var rows = [
    ["querySelectorAll for tag, name and type, 10,000 inputs", "inputs", function () {
      found = document.querySelectorAll("input[name=n9999][type=text]")[0];
    }, 20, last],
    ["search for tag, name, title and type: the last", "inputs",
      search("{tagName='INPUT' name='n9999' title='t9999' type='text'}"), 5, last, 5],
    ["search for tag, name, title and type: there is none", "inputs",
      search("{tagName='INPUT' name='none' title='t9999' type='text'}"), 5, nothing, 5],
    ["the browser's visibility, name and type of 10,000 inputs", "inputs", selectVisible, 5, last],
    ["search for visible, tag, name and type: the last", "inputs",
      search("{visible='true' tagName='INPUT' name='n9999' type='text'}"), 5, last, 5],
    ["search for visible, tag, name and type: there is none", "inputs",
      search("{visible='true' tagName='INPUT' name='none' type='text'}"), 5, nothing, 5],
    ["the same where one of them is hidden: the last", "oneHidden",
      search("{visible='true' tagName='INPUT' name='n9999' type='text'}"), 5, last, 5],
    ["the same where one of them is hidden: there is none", "oneHidden",
      search("{visible='true' tagName='INPUT' name='none' type='text'}"), 5, nothing, 5],
    ["name and find the last of 1,000 like inputs", "thousandAlike", nameLast, 2, last, 50],
    ["name and find the last of 5,000 like inputs", "fiveThousandAlike", nameLast, 1, last, 250],
    ["name and find the last of 5,000 like spans", "fiveThousandSpans", nameLast, 1, last, 250],
    ["name and find all of 2,000 inputs", "controls", nameAll, 1, last, 5000],
    ["name and find all of 2,000 spans", "texts", nameAll, 1, last, 5000],
    ["name and find all of 2,000 spans, innerText alone", "texts", withoutFactories(nameAll), 1, last],
    ["name and find all of 2,000 elements of forms", "forms", nameAll, 1, last, 5000],
    ["objectTreeInformation, 10,000 objects, with its JSON", "inputs", list, 1, last, 300],
    ["objectTreeInformation, 20,000 objects, with its JSON", "twentyThousand", list, 1, last, 600],
    ["child list of 10,000 children", "inputs", childList, 1, last]
  ].concat(
    textRows("exact", "list", "{tagName='SPAN' simplifiedInnerText='text 1999x'}"),
    textRows("exact innerText", "list", "{tagName='SPAN' innerText='text 1999x'}"),
    textRows("pattern", "list", "{tagName='SPAN' innerText?='text 1999?x*'}"),
    textRows("regular expression", "list", "{tagName='SPAN' innerText~='^text [0-9]+x'}"),
    textRows("visible", "list", "{visible='true' tagName='SPAN' simplifiedInnerText='text 1999x'}"),
    textRows("blocks", "blocks", "{tagName='DIV' simplifiedInnerText='Label 17 Link x'}"),
    textRows("pattern of blocks", "blocks", "{tagName='DIV' innerText?='*Label 17 x*'}"));

  function sample(run, repeats) {
    var start = performance.now();
    for (var i = 0; i < repeats; ++i) {
      run();
    }
    return (performance.now() - start) / repeats;
  }

  function measure(index) {
    var row = { name: rows[index][0], aim: rows[index][5] || 0, times: [] };
    if (shownPage !== rows[index][1]) {
      shownPage = rows[index][1];
      pages[shownPage]();
    }
    for (var i = 0; i < SAMPLES; ++i) {
      row.times.push(sample(rows[index][2], rows[index][3]));
    }
    return found === rows[index][4]() ? row : { error: row.name + ": the wrong element was found" };
  }

  return { count: rows.length, measure: measure };
})();
