// Mouse events that a script sends by their names.
startBrowser(SITE + "/events.html");
var box = waitForObject(element("P", "box"));
sendEvent("mouseover", box, 7, 9);
sendEvent("mousedown", box, 0, 0);
sendEvent("click", element("P", "box"), 3, 4, 2, 4);
sendEvent("mouseout", box, 1, 2);
test.compare(textOf("P", "log"), "mouseover 7 9 0;mousedown 5 5 0;click 3 4 0;mouseout 1 2 0;");

verifyFails(function () { sendEvent("keyup", box, 1, 2); }, "Unknown event type: keyup");
verifyFails(function () { sendEvent("tap", box, 1, 2); }, "Unknown event type: tap. There is mousedown, mouseup, ");
verifyFails(function () { sendEvent("click", null, 1, 2); }, "sendEvent needs an object or its name, but got null.");
verifyFails(function () { sendEvent("click", box, 1); }, "Event 'click' needs a position in the object");
test.compare(textOf("P", "log").split(";").length, 5);
