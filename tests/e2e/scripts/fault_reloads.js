// The page is loaded again and again while lookups run: each call ends, and in the end the page answers.
startBrowser(SITE + "/plain.html");
var sentences = {};
var found = 0;
for (var i = 0; i < 200; ++i) {
  var sentence = failureOf(function () {
    findObject("{tagName='BODY'}").invoke("reload");
    found += exists(element("P", "where")) ? 1 : 0;
  });
  if (sentence) {
    sentences[sentence] = (sentences[sentence] || 0) + 1;
  }
}
for (sentence in sentences) {
  test.log(sentences[sentence] + " times: " + sentence);
}
test.verify(found > 0, found + " times found");
waitForText("P", "where", "plain at 127.0.0.1");
test.compare(contextNames().join(" "), "plain.html");
