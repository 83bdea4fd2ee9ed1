// A frame that comes after load answers to its context name within a moment, and its events are heard.
startBrowser(SITE + "/growing.html");
test.verify(!hasContext("growing.html.FRAME1"), "no frame at first");
clickButton(element("BUTTON", "add"));
waitForContextExists("growing.html.FRAME1", 1100);
setContext("growing.html.FRAME1");
waitForText("P", "where", "late");

setContext("growing.html");
waitUntil(function () { return textOf("P", "delay") !== ""; }, "the frame is hooked");
test.log("hooked " + textOf("P", "delay") + " ms after its insertion");
// The page's own clock; the sweep comes once in a second.
test.verify(Number(textOf("P", "delay")) < 5000, "it was hooked by one of the next sweeps");
verifyFails(function () { waitForContextExists("growing.html.FRAME2", 200); }, "growing.html.FRAME1");
