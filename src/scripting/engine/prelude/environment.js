// Gives test scripts what they were started with, and tables of test data: script, environment, readTable.
(function (bridge, global) {
  var parse = JSON.parse;

  var script = bridge.scriptFacts();
  Object.freeze(script.arguments);
  global.script = Object.freeze(script);
  global.environment = Object.freeze(bridge.environment());

  global.readTable = function (file) {
    if (typeof file !== "string") {
      throw new Error("readTable needs the name of a file. Use it as readTable(file).");
    }
    var table = bridge.readTable(file);
    return typeof table === "string" ? parse(table) : table;
  };
})
