// Frames come and go while their names are read.
startBrowser(SITE + "/restless.html");
var reads = 0;
var most = 0;
var end = Date.now() + 40000;
while (textOf("P", "state") !== "done" && Date.now() < end) {
  for (var i = 0; i < 20; ++i) {
    var names = contextNames();
    test.verify(names[0] === "restless.html", names.join(" "));
    most = Math.max(most, names.length);
    ++reads;
  }
  setContext("restless.html");
}
test.log(reads + " reads, up to " + most + " contexts");
test.verify(most > 1, "frames were seen");
test.compare(contextNames().join(" "), "restless.html");
