// Every element that a name fits, over documents, containers and shadow trees.
startBrowser(SITE + "/lookup.html");
waitForContextExists("lookup.html.FRAME2.FRAME1");

function found(name) {
  return findAllObjects(name).map(function (o) { return o.innerText; }).join(" ");
}

var rows = {
  "{tagName='P'}": "one two three left nest inner",
  "{tagName='P' className='row'}": "one two three",
  "{tagName='P' innerText~='^t'}": "two three",
  "{tagName='P' occurrence='2'}": "two",
  "{tagName='P' occurrence='4'}": "",
  "{tagName='P' context='lookup.html.FRAME2.FRAME1'}": "inner",
  "{tagName='P' container={tagName='DIV' title='box'}}": "one two",
  "{tagName='P' occurrence='2' container={tagName='DIV' title='box'}}": "two",
  "{tagName='P' container={tagName='BODY' context='lookup.html.FRAME1'}}": "left",
  "{tagName='P' container={tagName='SPAN' id='host'}}": "shadow deep",
  "{tagName='P' container={tagName='DIV' id='in' container={tagName='SPAN' id='host'}}}": "deep",
  "{tagName='P' container={tagName='DIV' id='gone'}}": "",
  "{tagName='P' context='nowhere' innerText='none'}": "",
  "{tagName='BUTTON' value='1 &amp; 2'}": "press",
  "press": "press",
  "nothing": ""
};
for (var name in rows) {
  test.compare(found(name), rows[name], name);
}

function texts(objects) {
  return objects.map(function (o) { return o.property("id"); }).join(" ");
}
test.compare(texts(findAllObjects("{tagName='A' img_alt='pic'}")), "by-first by-second lone", "each link once");
for (var i = 1; i <= 3; ++i) {
  var ith = findObject("{tagName='P' className='row' occurrence='" + i + "'}");
  test.verify(sameObject(ith, findAllObjects("{tagName='P' className='row'}")[i - 1]), "in the order of occurrences");
}

setContext("lookup.html.FRAME1");
test.compare(found("{tagName='P'}"), "left one two three nest inner", "the current context comes first");
test.compare(found("{tagName='P' occurrence='2'}"), "two");
test.compare(where(), "left", "and stays the current one");
