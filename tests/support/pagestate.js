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
        lines.push("shadow " + node.shadowRoot.textContent.replace(/\s+/g, " "));
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
  function addDocument(doc) {
    lines.push(doc.location.pathname + doc.location.search + doc.location.hash);
    lines.push(doc.body ? doc.body.innerText.replace(/\s+/g, " ") : "");
    add(doc);
  }
  addDocument(document);
  return lines.join("\n");
})();
