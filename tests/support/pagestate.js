// What a person sees of a window in the end, as text: addresses, texts and fields of its documents and shadow trees.
(function () {
  var lines = [];
  function addField(node) {
    var what = node.tagName + " " + (node.id || node.name) + " ";
    if (node.tagName === "SELECT") {
      lines.push(what + [].filter.call(node.options, function (o) { return o.selected; }).map(function (o) { return o.text; }));
    } else if (node.type === "checkbox" || node.type === "radio") {
      lines.push(what + node.checked);
    } else {
      lines.push(what + JSON.stringify(node.value));
    }
  }
  function add(root) {
    [].forEach.call(root.querySelectorAll("*"), function (node) {
      if (/^(INPUT|TEXTAREA|SELECT)$/.test(node.tagName)) {
        addField(node);
      }
      if (node.shadowRoot) {
        lines.push("shadow");
        addText(node.shadowRoot);
        add(node.shadowRoot);
      }
      if (/^I?FRAME$/.test(node.tagName)) {
        try {
          addDocument(node.contentDocument);
        } catch (e) {
          lines.push("foreign");
        }
      }
    });
  }
  function addText(root) {
    var texts = [], node, walker = root.ownerDocument.createTreeWalker(root, 4);
    while ((node = walker.nextNode())) {
      var holder = node.parentNode;
      if (holder.nodeType !== 1 || (holder.getClientRects().length && getComputedStyle(holder).visibility === "visible")) {
        texts.push(node.data);
      }
    }
    lines.push(texts.join(" ").replace(/\s+/g, " "));
  }
  function addDocument(doc) {
    lines.push(doc.location.pathname + doc.location.search + doc.location.hash);
    addText(doc.body || doc);
    add(doc);
  }
  addDocument(document);
  return lines.join("\n");
})();
