// Cases of names by text: what the page holds and what its style shows find the same elements in each browser.

const page = '<button style="text-transform: uppercase">Log in</button><button>LOG IN</button>' +
  '<button style="text-transform: uppercase">\n\tlog <i style="display: none">now</i>in</button>' +
  '<ul><li>\n\t\t\t\n\t\t<div>Buy milk</div>\n\t<span hidden>secret</span><div>2 l</div></li><li>one<br>two</li></ul>' +
  '<em style="text-transform: uppercase">Stra\u00dfe</em><em>a\u2011b</em>' +
  '<article>' + '<p hidden>Much that is hidden. </p>'.repeat(9) + '<p>Header</p>' +
  '<section>Text of some length. </section>'.repeat(20) + '</article>';

// The places of the hits among the elements of the tag.
const hits = (tag, property) => {
  const all = Array.from(document.getElementsByTagName(tag));
  const found = [];
  __corvex__addHits(document, "{tagName='" + tag.toUpperCase() + "' " + property + "}", found);
  return found.map((element) => all.indexOf(element)).join("");
};

test("exact texts", { page }, () => [
  ["button", "simplifiedInnerText='Log in'"], ["button", "simplifiedInnerText='LOG IN'"], ["button", "innerText='LOG IN'"],
  ["button", "simplifiedInnerText='log nowin'"], ["button", "innerText='log in'"],
  ["li", "innerText='Buy milk secret2 l'"], ["li", "innerText='Buy milk 2 l'"], ["li", "simplifiedInnerText='Buy milk'"],
  ["li", "simplifiedInnerText='one two'"], ["li", "innerText='onetwo'"], ["em", "innerText='STRASSE'"],
  ["em", "simplifiedInnerText='Stra\u00dfe'"], ["em", "innerText='a-b'"], ["em", "innerText='STRAND'"]
].map(([tag, property]) => hits(tag, property)), ["0", "012", "012", "2", "", "0", "0", "", "1", "1", "0", "0", "1", ""]);

test("wildcards and regular expressions", { page }, () => [
  ["button", "innerText?='LOG*'"], ["button", "simplifiedInnerText?='?og*in'"], ["button", "innerText~='^[A-Z ]+$'"],
  ["button", "innerText~='(LO|XY)G I?N'"], ["button", "innerText~='LOGX* IN{1}$|none'"], ["button", "innerText~='^[^A-Z ]og'"],
  ["li", "innerText?='Buy milk*'"], ["li", "innerText?='Buy milk ?secret*'"], ["li", "innerText~='^Buy milk \\\\d l$'"],
  ["li", "simplifiedInnerText?='*e t*'"], ["li", "innerText~='^$'"]
].map(([tag, property]) => hits(tag, property)), ["012", "02", "012", "012", "012", "2", "0", "", "0", "1", ""]);

test("long texts, of which much is hidden", { page }, () => [
  "simplifiedInnerText?='Header Text of some*'", "innerText?='*length. Text of*'", "innerText?='Much that is hidden. Much*'",
  "simplifiedInnerText?='Text of some*'", "innerText?='*length, Text*'"
].map((property) => hits("article", property)), ["0", "0", "0", "", ""]);

test("names count what they find, by whichever text", { page }, ({ flags }) => {
  flags({ namegen__scheme: 0, namegen__singleprop: 1, namegen__hierarchical: 2 });
  const buttons = Array.from(document.getElementsByTagName("button"));
  const named = () => buttons.map((button) => __corvex__findObject(unescape(__corvex__nameOf(button))) === button);
  const third = __corvex__findObject("{visible='true' tagName='BUTTON' simplifiedInnerText='LOG IN' occurrence='3'}");
  return [named(), __corvex__quietly(named), third === buttons[2],
    __corvex__findObject("{tagName='BUTTON' simplifiedInnerText='Log in' occurrence='2'}") === undefined];
}, [[true, true, true], [true, true, true], true, true]);

test("a meaning that the page gives to innerText counts, and so does an attribute", {
  page: '<x-y>held</x-y><p innertext="said">p</p>'
}, ({ set }) => {
  Object.defineProperty(document.querySelector("x-y"), "innerText", { value: "of its own" });
  const found = [hits("x-y", "innerText='of its own'"), hits("p", "innerText='said'")];
  const own = Object.getOwnPropertyDescriptor(HTMLElement.prototype, "innerText");
  Object.defineProperty(HTMLElement.prototype, "innerText", { configurable: true, get: () => "replaced" });
  found.push(hits("p", "innerText='replaced'"));
  Object.defineProperty(HTMLElement.prototype, "innerText", own);
  return found;
}, ["0", "0", "0"]);

test("rivals are few, short and in the order of nearness, on big pages too", {}, () => {
  document.body.innerHTML = "<p title=one>" + "long ".repeat(1000) + "</p><p title=one name=Wanted>short</p>" +
    "<p title=one>Short</p>" + "<p title=two>none</p>".repeat(10000);
  const why = __corvex.explainFailedSearch("{tagName='P' title='one' innerText='SHORT' name='wanted'}");
  return [why.count, why.rivals.map((rival) => [rival.path.replace(/.*\./, ""), rival.differs.map(
    (differs) => [differs.property, differs.actual.length, differs.isOtherCase].join(" "))])];
}, [10003, [["P2", ["innerText 5 true", "name 6 true"]], ["P3", ["innerText 5 true", "name 0 false"]],
  ["P1", ["innerText 63 false", "name 0 false"]]]]);
