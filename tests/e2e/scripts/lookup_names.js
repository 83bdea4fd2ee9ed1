// What a script is told about a name that cannot be right, and about one that finds nothing.
startBrowser(SITE + "/lookup.html");

var faulty = {
  "{id='x'": "Invalid object name '{id='x'': the closing brace is missing at position 8.",
  "": "Invalid object name '': it is empty.",
  ":Nobody": "The symbolic name ':Nobody' is not in the object map. Add it there, or use a real name.",
  "{id='box'}": "Invalid object name '{id='box'}': it has no tagName; add one, the search needs it.",
  "{tagName~='P'}": "Invalid object name '{tagName~='P'}': its tagName is a pattern; the search needs an exact one.",
  "{tagName='P' id~='('}": "Invalid object name '{tagName='P' id~='('}': the regular expression of 'id' does not compile: ",
  "{tagName='' id='box'}": "it has no tagName; add one, the search needs it.",
  "{tagName='P' container={id='box'}}":
    "in the part '{id='box'}', it has no tagName; add one, the search needs it.",
  "{tagName='P' container={tagName='DIV' id~='['}}": "in the part '{tagName='DIV' id~='['}', ",
  "{tagName='P' container={tagName='DIV' id='box'} context='lookup.html'}":
    "Invalid object name '{tagName='P' context='lookup.html'}'. Cannot lookup objects that have a context and a " +
    "container property, please make sure the context property is set only on the 'top-most' object name"
};
var start = Date.now();
for (var name in faulty) {
  [findObject, waitForObject, exists, findAllObjects].forEach(function (look) {
    verifyFails(function () { look(name); }, faulty[name]);
  });
}
test.verify(Date.now() - start < 20000, "no wait for what cannot come");

var missing = {
  "{tagName='P' context='nowhere' id='x'}": "There is no context 'nowhere'.",
  "{tagName='P' container={tagName='DIV' id='gone'}}": "Its container '{tagName='DIV' id='gone'}' was not found.",
  "{tagName='EM' container={tagName='P' container={tagName='DIV' id='gone'}}}":
    "Its container '{tagName='DIV' id='gone'}' was not found.",
  "{tagName='P' container=':Box'}": "Its container ':Box' is not in the object map.",
  "{tagName='EM' container={tagName='DIV' id='box'}}": "No element in its container has the tag EM.",
  "{tagName='P' title='no' container={tagName='DIV' id='box'}}":
    "2 elements in its container have the tag P, but none has this title.",
  "{tagName='P' id='no'}": "elements have the tag P, but none has this id.",
  "{tagName='P' id='box' context='lookup.html'}": "3 elements in its context have the tag P, but none has this id.",
  "{tagName='P' className='row' innerText='three' container={tagName='DIV' id='box'}}":
    "2 elements in its container have the tag P, but none has this innerText.",
  "{tagName='P' className='row' occurrence='4'}":
    "elements have the tag P, but the name fits 3 of one document at most: there is no occurrence 4.",
  "{tagName='P' visible~='t.*'}": "but none has this visible: it is true or false, which is compared with no pattern.",
  "{tagName='P' no.such.path='x'}": "elements have the tag P, but none has this no.such.path: ",
  "{tagName='P' container='DOCUMENT.HTML1.BODY1'}":
    "Its container 'DOCUMENT.HTML1.BODY1' is a place in the tree, which finds no container. Name it by its properties.",
  "DOCUMENT.HTML1.BODY1.DIV9.P1": "'DOCUMENT.HTML1.BODY1' has no child 'DIV9'.",
  "DOCUMENT[no|where].HTML1": "There is no context 'no.where'."
};
for (name in missing) {
  verifyFails(function () { findObject(name); }, "Object '" + name + "' not found. ");
  verifyFails(function () { waitForObject(name, 100); }, missing[name]);
  test.compare(exists(name), false, name);
  test.compare(findAllObjects(name).length, 0, name);
}
