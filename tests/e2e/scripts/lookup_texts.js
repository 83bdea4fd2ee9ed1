// Texts find the same objects in each browser, as the page holds them and as its style shows them.
startBrowser(SITE + "/texts.html");
["{tagName='BUTTON' innerText='LOG IN'}", "{tagName='BUTTON' simplifiedInnerText='Log in'}",
  "{tagName='BUTTON' innerText~='^L[oO]'}", "{tagName='LI' innerText?='Buy milk*'}",
  "{tagName='LI' simplifiedInnerText='Buy milk two litres'}", "{tagName='LI' simplifiedInnerText?='Buy milk sold out*'}",
  "{tagName='LI' innerText='Pay rent'}", "{tagName='LI' innerText='Payrent'}"
].forEach(function (name) {
  test.compare(findAllObjects(name).length, 1, name);
});
test.compare(exists("{tagName='LI' innerText?='buy*'}"), false);
test.compare(exists("{tagName='BUTTON' simplifiedInnerText='log in'}"), false);
