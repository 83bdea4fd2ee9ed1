// Prints the medians of a click by name and of typing 100 characters, in milliseconds, and the bare round trip.
startBrowser(script.arguments.page);

function median(times, action) {
  var taken = [];
  for (var i = 0; i < times; ++i) {
    var begin = Date.now();
    action();
    taken.push(Date.now() - begin);
  }
  taken.sort(function (a, b) { return a - b; });
  return taken[Math.floor(times / 2)];
}

// Many to one reading of the clock, which has whole milliseconds.
function mean(times, action) {
  var begin = Date.now();
  for (var i = 0; i < times; ++i) {
    action();
  }
  return (Date.now() - begin) / times;
}

var text = new Array(101).join("a");
mean(5, function () { mouseClick("{tagName='BUTTON' id='b'}"); });
var lines = ["click " + median(5, function () {
  mean(20, function () { mouseClick("{tagName='BUTTON' id='b'}"); });
}) / 20, "type " + median(9, function () { typeText("{tagName='INPUT' id='t'}", text); })];
test.compare(retrieveJSObject("clicks"), 105);
test.compare(findObject("{tagName='INPUT' id='t'}").value, text);
test.log("FIGURES " + lines.join(" "));
