var page = findObject("DOCUMENT");
test.compare(page.getElementById("heading").innerText, "Tea shop");
test.compare(page.getElementById("nothing"), null);
test.compare(page.getElementsByTagName("li").length, 3);
