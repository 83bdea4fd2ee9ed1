// Gives test scripts those checks that run functions of theirs: test.step, test.throws.
(function (bridge, global) {
  function needFunction(value, name, usage) {
    if (typeof value !== "function") {
      throw new Error(name + " needs a function. Use it as " + usage + ".");
    }
  }

  // Where a group is left by test.skip nothing of this runs any more; the bridge closes the group.
  global.test.step = function (title, run) {
    needFunction(run, "test.step", "test.step(title, function)");
    bridge.beginGroup(String(title));
    var result;
    try {
      result = run();
    } catch (error) {
      bridge.endGroup(bridge.errorText(error));
      throw error;
    }
    bridge.endGroup("");
    return result;
  };

  // What is wrong with a function that threw, or did not; empty when nothing is.
  function whyNotAsExpected(outcome, expected) {
    if (!outcome.thrown) {
      return "the function threw nothing, but an error was expected";
    }
    if (expected === undefined) {
      return "";
    }
    var isPattern = expected instanceof RegExp;
    var fits = isPattern ? outcome.text.search(expected) >= 0 : outcome.text.indexOf(String(expected)) >= 0;
    return fits ? "" : "the function threw '" + outcome.text + "', but expected was an error that " +
      (isPattern ? "matches " + expected : "contains '" + expected + "'");
  }

  global.test.throws = function (run, expected) {
    needFunction(run, "test.throws", "test.throws(function[, text or RegExp])");
    var outcome = { thrown: false, text: "" };
    try {
      run();
    } catch (error) {
      outcome = { thrown: true, text: error instanceof Error ? bridge.errorText(error) : String(error) };
    }
    var why = whyNotAsExpected(outcome, expected);
    return bridge.noteCheck(!why, why || "the function threw '" + outcome.text + "' as expected", new Error().stack);
  };
})
