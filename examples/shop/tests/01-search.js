// Searching and filtering the catalogue.
startBrowser("../index.html");

var search = waitForObject("{tagName='INPUT' name='search' type='text'}");
test.compare(waitForObject("{tagName='P' id='hits'}").innerText, "6 of 6 articles");

typeText(search, "card");
test.compare(search.value, "card");
test.compare(waitForObject("{tagName='P' simplifiedInnerText?='1 of*'}").innerText, "1 of 6 articles");
test.verify(exists("{tagName='H2' simplifiedInnerText='\"Thank you\" card'}"), "the card is listed");
test.verify(!exists("{tagName='H2' simplifiedInnerText='Sencha'}"), "the tea is not");

setText(search, "");
selectOption("{tagName='SELECT' name='category'}", "Gifts & cards");
test.compare(waitForObject("{tagName='SELECT' name='category'}").selectedOption, "Gifts & cards");
test.compare(waitForObject("{tagName='P' simplifiedInnerText~='^2 of'}").innerText, "2 of 6 articles");
test.verify(exists("{tagName='H2' simplifiedInnerText='Box for him & her'}"), "a name with an ampersand is found");
