// Gives: __corvex.namesCheck, which names all elements of a page and tells what a search for a name finds.
// Needs: the hook script.

window.__corvex.namesCheck = (function () {
  // A call ends after the element that it is at when so many milliseconds are over.
  var SLICE = 1000;
  var elements = [];
  var hierarchy = [];
  var plainWords = null;

  function quietly(action) {
    hierarchy = [];
    plainWords = null;
    return __corvex__quietly(action);
  }

  function collect(all) {
    for (var i = 0; i < all.length; ++i) {
      elements.push(all[i]);
      var shadowRoot = __corvex__nodeReader.shadowRoot(all[i]);
      if (shadowRoot) {
        collect(shadowRoot.querySelectorAll("*"));
      }
    }
  }

  // Calls action with places from `from` on until the time is over; answers what it gave, and the time that took.
  function slice(from, count, action) {
    var start = __corvex__natives.milliseconds();
    var results = [];
    var now = start;
    for (var i = from; i < count && (i === from || now - start < SLICE); ++i) {
      results.push(action(i));
      now = __corvex__natives.milliseconds();
    }
    return { results: results, milliseconds: now - start };
  }

  // The opening tag. Escaped, since half a character would spoil the whole answer.
  function describe(element) {
    var text = "<" + String(__corvex__nodeReader.nodeName(element)).toLowerCase();
    try {
      var attributes = __corvex__natives.apply(
        Object.getOwnPropertyDescriptor(Element.prototype, "attributes").get, element, []);
      for (var i = 0; i < attributes.length && text.length < 100; ++i) {
        text += " " + attributes[i].name + "=\"" + attributes[i].value + "\"";
      }
    } catch (e) { /* its tag has to do */ }
    return escape(text.length < 100 ? text + ">" : text.substring(0, 100) + "...");
  }

  // As when the user's first action on the element is recorded: its own window is the current context.
  function nameOf(element) {
    try {
      __corvex__windowState.ctxwin = __corvex__nodeReader.ownerDocument(element).defaultView;
      return { name: String(__corvex__nameOf(element)), element: describe(element) };
    } catch (e) {
      return { error: escape(String(e)), element: describe(element) };
    }
  }

  // All texts that the search for plain words compares a name with.
  function readPlainWords() {
    var words = Object.create(null);
    function add(text) {
      words[String(text)] = true;
    }
    __corvex__eachDocument(function (doc) {
      var all = __corvex__askDocument(doc, "getElementsByTagName", "*");
      for (var i = 0; i < all.length; ++i) {
        add(__corvex__nodeReader.id(all[i]));
        add(__corvex__getObjectAttribute(all[i], "name"));
        var tagName = __corvex__nodeReader.tagName(all[i]);
        if (tagName === "A" || tagName === "AREA" || tagName === "LABEL" || tagName === "DIV" ||
            all[i].type === "button") {
          add(__corvex__clean(all[i].innerText));
          add(all[i].value);
        }
      }
    });
    return words;
  }

  // The search for plain words reads the whole page: it is asked only where it finds something.
  function findByWords(name) {
    plainWords = plainWords || readPlainWords();
    return plainWords[name] ? __corvex__findObject(name) : undefined;
  }

  function childrenByLeaf(node) {
    var children = Object.create(null);
    var leafOf = __corvex__leafNamer();
    function add(leaf, child) {
      children[leaf] = children[leaf] || child;
    }
    if (node.qx_Widget) {
      add("qx_Widget", node.qxWidget);
    }
    for (var child = __corvexDOMAPI.firstChild(node); child; child = __corvexDOMAPI.nextSibling(child)) {
      add(leafOf(child), child);
    }
    var shadowRoot = __corvex__nodeReader.shadowRoot(node);
    if (shadowRoot) {
      add(__corvex__uniqueNameInLeaf(shadowRoot), shadowRoot);
    }
    return children;
  }

  // The children of the nodes along the last path are kept: neighbours share most of their path.
  function childOf(node, level, leaf) {
    if (!hierarchy[level] || hierarchy[level].node !== node) {
      hierarchy.length = level;
      hierarchy[level] = { node: node, children: childrenByLeaf(node) };
    }
    return hierarchy[level].children[leaf];
  }

  function descend(path) {
    var context = /^DOCUMENT\[(.*)\]$/.exec(path[0]);
    var node = context ? __corvex__documentOfContext(context[1]) : __corvex__windowState.ctxwin.document;
    for (var i = 1; node && i < path.length; ++i) {
      node = childOf(node, i - 1, path[i]);
    }
    return node;
  }

  // The nodes on the way that a script's look-up goes: the last one is what it finds.
  function follow(road) {
    if (road.path) {
      return [findByWords(road.name) || descend(road.path)];
    }
    var found = [__corvex__findObject(road.name)];
    for (var i = 0; found[i] && i < road.below.length; ++i) {
      found.push(__corvex__findObjectByProps(found[i], road.below[i]));
    }
    return found;
  }

  function last(list) {
    return list[list.length - 1];
  }

  // The element that the rules name in place of this one: what stands in a link is named as the link.
  function namedInstead(element) {
    var tagName = __corvex__nodeReader.tagName(element);
    if (__corvex__controlElements[tagName] === 1 || tagName === "IMG" ||
        (tagName === "TD" && __corvex__getObjectAttribute(element, "class") === "cMenuTD")) {
      return element;
    }
    return __corvex__enclosingLink(element) || element;
  }

  // Outermost first; the element itself is the last.
  function withHosts(element) {
    var nodes = [element];
    for (var root = element.getRootNode(); __corvex__isShadowRoot(root); root = root.host.getRootNode()) {
      nodes.unshift(root.host);
    }
    return nodes;
  }

  function isTextOrEmpty(value) {
    return !value || typeof value === "string";
  }

  function exactProperty(road, name) {
    return __corvex__exactText(__corvex__mapEntry(__corvex__propertyMap(road.name), name));
  }

  // Whether, from the element up, there is a leaf that an earlier child has too, or one that the parting of the name at
  // its dots breaks.
  function hasSharedLeaf(element) {
    for (var node = element; node && __corvex__nodeReader.nodeType(node) !== 9;) {
      var parent = __corvex__isShadowRoot(node) ? node.host : __corvex__nodeReader.parentNode(node);
      var leaf = __corvex__uniqueNameInLeaf(node);
      if (leaf.indexOf(".") !== -1 || childrenByLeaf(parent)[leaf] !== node) {
        return true;
      }
      node = parent;
    }
    return false;
  }

  // Why the naming or the search of an element loses it, where their rules leave nothing else. What each test is given:
  // the element, the roads of its name as they were tried, the last of them, and the nodes found along that.
  var rules = [
    ["gone", function (c) {
      return c.element.isConnected === false;
    }],
    ["field", function (c) {
      return !c.road && withHosts(c.element).some(function (node) {
        return !isTextOrEmpty(node.name) || !isTextOrEmpty(node.title);
      });
    }],
    ["context", function (c) {
      var context = !c.road ? null : c.road.path ? (/\[(.*)\]/.exec(c.road.path[0]) || [])[1] :
        exactProperty(c.road, "context");
      return !!context && !__corvex__hasContext(context.replace(/\|/g, "."));
    }],
    ["percent", function (c) {
      if (__corvex__currentContext(c.element) === (__corvex__windowState.explicitContext || window)) {
        return false;
      }
      var name = unescape(__corvex__propertyNameOf(c.element));
      return name.charAt(0) === "{" && unescape(name) !== name;
    }],
    ["wildcard", function (c) {
      return !!c.road && / img_src\?='[^']*\^/.test(c.road.name);
    }],
    ["form", function (c) {
      if (!c.road || c.road.path || !c.element.form) {
        return false;
      }
      var name = exactProperty(c.road, "form");
      var doc = __corvex__nodeReader.ownerDocument(c.element);
      var form = name && __corvex__findFormInContainer(doc, name);
      return !!form && form !== c.element.form &&
        __corvex__controlsOfForm(doc, name, __corvex__nodeReader.tagName(c.element)).length > 0;
    }],
    ["host", function (c) {
      return withHosts(c.element).slice(0, -1).some(function (host) {
        return namedInstead(host) !== host;
      });
    }],
    // There the search goes by the images alone, with the properties of the link's name.
    ["image", function (c) {
      var name = c.road && c.road.below && c.road.below.length && last(c.road.below);
      var map = name && __corvex__propertyMap(name);
      if (!map || !__corvex__isImageLink(map)) {
        return false;
      }
      var image = c.element.getElementsByTagName("IMG")[0];
      return !!__corvex__mapEntry(map, "img_name") || !!__corvex__mapEntry(map, "img_id") ||
        __corvex__isVisible(image) !== __corvex__isVisible(c.element);
    }],
    ["container", function (c) {
      var nodes = withHosts(c.element);
      for (var i = 0; i < nodes.length && i < c.found.length; ++i) {
        if (c.found[i] !== nodes[i]) {
          return i > 0 && __corvex__hitsInDocument(nodes[i - 1], c.road.below[i - 1], nodes[i], 1).place > 0;
        }
      }
      return false;
    }],
    ["words", function (c) {
      return !!c.road && !!c.road.path && !!findByWords(c.road.name);
    }],
    ["leaf", function (c) {
      return !!c.road && !!c.road.path && hasSharedLeaf(c.element);
    }],
    ["ampersand", function (c) {
      return c.roads.length > 1 && c.road === c.roads[0] && last(follow(c.roads[1])) === c.element;
    }]
  ];

  function ruleFor(failure) {
    for (var i = 0; i < rules.length; ++i) {
      try {
        if (rules[i][1](failure)) {
          return rules[i][0];
        }
      } catch (e) {
        continue;
      }
    }
    return "";
  }

  // Each road is tried as long as the one before it found nothing; an error ends that.
  function search(element, roads) {
    var wanted = namedInstead(element);
    var found = [];
    var road;
    __corvex__windowState.ctxwin = window;
    try {
      for (var i = 0; i < roads.length && !last(found); ++i) {
        road = roads[i];
        found = follow(road);
      }
    } catch (e) {
      found = [];
    }
    if (last(found) && last(found) === wanted) {
      return { found: wanted === element ? "itself" : "link" };
    }
    return {
      found: last(found) ? "other" : "nothing",
      other: last(found) ? describe(last(found)) : "",
      rule: ruleFor({ element: wanted, roads: roads, road: road, found: found })
    };
  }

  return {
    // How many elements there are, in all documents and shadow trees.
    start: __corvex__withBuiltIns(function () {
      elements = [];
      __corvex__hookFramesOfAllWindows();
      __corvex__eachDocument(function (doc) {
        collect(__corvex__askDocument(doc, "querySelectorAll", "*"));
      });
      return { count: elements.length };
    }),
    // The names of the elements from `from` on, at most so many.
    names: __corvex__withBuiltIns(function (from, most) {
      return quietly(function () {
        return slice(from, Math.min(elements.length, from + most), function (i) {
          return nameOf(elements[i]);
        });
      });
    }),
    // `plans` holds a list of roads for each element from `from` on.
    searches: __corvex__withBuiltIns(function (from, plans) {
      return quietly(function () {
        return slice(0, plans.length, function (i) {
          return search(elements[from + i], plans[i]);
        });
      });
    }),
    end: function () {
      delete window.__corvex.namesCheck;
    }
  };
})();
