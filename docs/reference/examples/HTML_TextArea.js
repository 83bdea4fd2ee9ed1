var note = findObject("{tagName='TEXTAREA' id='note'}");
typeText(note, "By noon,<Return>please.");
test.compare(note.value, "By noon,\nplease.");
