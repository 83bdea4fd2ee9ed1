// Gives: the rules that name one element by its properties, by a single property, or not at all.
// Needs: runtime/nodes, runtime/text, names/properties, names/hierarchy, names/entry, search/candidates, input/objects.

var __corvex__controlsWithValue = { button: 1, submit: 1, radio: 1, checkbox: 1, image: 1 };

function __corvex__isElementAvailableFromForm(obj, form) {
  try {
    var controls = __corvex__formControls(form);
    for (var i = 0; i < controls.length; ++i) {
      if (controls[i] === obj) {
        return true;
      }
    }
  } catch (e) { /* a form whose controls cannot be read */ }
  return false;
}

function __corvex__formText(value) {
  try {
    return "form='" + __corvex__escapeCharactersInPropertyValue(value) + "' ";
  } catch (e) {
    return "form='" + value + "' ";
  }
}

function __corvex__formOfInput(o) {
  if (!o.form || !__corvex__isElementAvailableFromForm(o, o.form)) {
    return "";
  }
  var id = __corvex__nodeReader.id(o.form);
  if (id) {
    return __corvex__formText(id);
  }
  var name = __corvex__getObjectAttribute(o.form, "name");
  return name ? __corvex__formText(name) : "";
}

function __corvex__nameOfInput(o) {
  var name = "{" +
    __corvex__propsToNameStr(o, __corvex__optionallyIncludeIdPropertyInList(["tagName", "name", "type"])) +
    __corvex__formOfInput(o);
  if (__corvex__controlsWithValue[o.type] === 1) {
    // The value of a BUTTON is its inner text in one browser and empty in another.
    if (o.tagName !== "BUTTON") {
      name += __corvex__clean(__corvex__nameHelper(o, "value"));
    }
    name += __corvex__nameHelper(o, "simplifiedInnerText");
  }
  return __corvex__fixName(name) + "}";
}

function __corvex__nameOfProperties(o, props) {
  return "{" + __corvex__fixName(__corvex__propsToNameStr(o, props)) + "}";
}

function __corvex__nameOfCMenu(o) {
  return __corvex__nameOfProperties(o,
    __corvex__optionallyIncludeIdPropertyInList(["tagName", "class", "name", "simplifiedInnerText"]));
}

function __corvex__nameOfNamedElement(o) {
  return __corvex__nameOfProperties(o,
    __corvex__optionallyIncludeIdPropertyInList(["tagName", "name", "title"]));
}

function __corvex__nameOfSpanOrDiv(o) {
  return __corvex__nameOfProperties(o, ["tagName", "simplifiedInnerText"]);
}

function __corvex__hasText(o) {
  var text = __corvex__clean(o.innerText);
  return !!text && text.replace(/ /g, "") !== "";
}

// The properties of the image that a link without any text of its own shows; undefined if they tell nothing.
function __corvex__imageOfLink(img) {
  var text = "";
  if (img.id) {
    text += __corvex__propertyText("img_id", "=", img.id);
  }
  text += __corvex__nameHelper(img, "name", "img_name");
  if (__corvex__clean(img.alt)) {
    text += __corvex__propertyText("img_alt", "=", __corvex__clean(img.alt));
  }
  if (text === "" && img.src) {
    var slash = img.src.lastIndexOf("/");
    var src = slash === -1 ? img.src : "*" + img.src.substring(slash + 1);
    text = __corvex__propertyText("img_src", "?=", __corvex__clean(src));
  }
  return text || undefined;
}

function __corvex__nameOfLink(o) {
  var name = "{tagName='A' " +
    __corvex__propsToNameStr(o, __corvex__optionallyIncludeIdPropertyInList(["name", "simplifiedInnerText"]));
  if (!o.name && !(__corvex__idsAreNamed() && o.id) && !__corvex__hasText(o)) {
    var img = __corvex__elementsByTag(o, "IMG")[0];
    var imageText = img && __corvex__imageOfLink(img);
    if (!imageText) {
      return __corvex__qualifiedName(o);
    }
    name += imageText;
  }
  return __corvex__fixName(name) + "}";
}

function __corvex__nameOfImage(o) {
  if (!o.alt && !o.name && !(__corvex__idsAreNamed() && o.id)) {
    return __corvex__qualifiedName(o);
  }
  var alt = __corvex__clean(o.alt);
  var name = "{tagName='IMG' " +
    (alt ? __corvex__propertyText("img_alt", "=", alt) : "") +
    __corvex__propsToNameStr(o, __corvex__optionallyIncludeIdPropertyInList(["name"]));
  return __corvex__fixName(name) + "}";
}

function __corvex__nameOfBySingleProp(o) {
  var id = __corvex__nodeReader.id(o);
  if (id) {
    return id;
  }
  // A field of that name hides the name of a form.
  var name = typeof o.name === "object" ? __corvex__getObjectAttribute(o, "name") : o.name;
  if (name) {
    return name;
  }
  if (o.type === "button" && (o.value || o.innerText)) {
    return o.value || o.innerText;
  }
  var link = __corvex__enclosingLink(o);
  return link && (link.id || link.name || link.innerText) || "[Window]";
}
