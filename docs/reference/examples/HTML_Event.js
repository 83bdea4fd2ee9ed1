mouseClick("{tagName='DIV' id='pad'}", 10, 20, HTML_Event.Control + HTML_Event.Shift);
test.compare(findObject("{tagName='P' id='answer'}").innerText, "click at 10,20 with Control");
mouseClick("{tagName='DIV' id='pad'}", HTML_Event.Alt);
