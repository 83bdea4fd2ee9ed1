var button = findObject("{tagName='BUTTON' id='count'}");
button.submit();
waitForValue(button, "innerText", "1");
