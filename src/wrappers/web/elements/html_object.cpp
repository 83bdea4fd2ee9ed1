#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

namespace {

QString click(HTML_Object& object) { return object.click(0, 0, 0, 1); }

QString clickWith(HTML_Object& object, int modifierState) { return object.click(modifierState, 0, 0, 1); }

QString clickAtX(HTML_Object& object, int modifierState, int x) { return object.click(modifierState, x, 0, 1); }

QString clickAt(HTML_Object& object, int modifierState, int x, int y) { return object.click(modifierState, x, y, 1); }

QString doubleClick(HTML_Object& object) { return object.doubleClick(0, 0, 0); }

QString doubleClickWith(HTML_Object& object, int modifierState) { return object.doubleClick(modifierState, 0, 0); }

QString doubleClickAtX(HTML_Object& object, int modifierState, int x) {
  return object.doubleClick(modifierState, x, 0);
}

constexpr PropertyRow properties[] = {
    property<&HTML_Object::boundingClientRect>("boundingClientRect"),
    property<&HTML_Object::cssProperties>("css"),
    property<&HTML_Object::domClassName>("domClassName"),
    property<&HTML_Object::hierarchicalQualifiedName>("domPath"),
    property<&HTML_Object::hasFocus>("hasFocus"),
    property<&HTML_Object::height>("height"),
    property<&HTML_Object::id>("id"),
    property<&HTML_Object::innerHTML>("innerHTML"),
    property<&HTML_Object::innerText>("innerText"),
    property<&HTML_Object::numChildren>("numChildren"),
    property<&HTML_Object::screenRect>("screenRect"),
    property<&HTML_Object::shadowRoot>("shadowRoot"),
    property<&HTML_Object::simplifiedInnerText>("simplifiedInnerText"),
    property<&HTML_Object::styleDisplay>("styleDisplay"),
    property<&HTML_Object::tagName>("tagName"),
    property<&HTML_Object::title>("title"),
    property<&HTML_Object::visible>("visible"),
    property<&HTML_Object::width>("width"),
    property<&HTML_Object::x>("x"),
    property<&HTML_Object::y>("y"),
};

constexpr MethodRow methods[] = {
    method<&HTML_Object::boundingClientRect>("boundingClientRect"),
    method<&HTML_Object::className>("className"),
    method<&click>("click"),
    method<&clickWith>("click", "modifierState"),
    method<&clickAtX>("click", "modifierState", "x"),
    method<&clickAt>("click", "modifierState", "x", "y"),
    method<&HTML_Object::click>("click", "modifierState", "x", "y", "button"),
    method<&HTML_Object::domClassName>("domClassName"),
    method<&doubleClick>("doubleClick"),
    method<&doubleClickWith>("doubleClick", "modifierState"),
    method<&doubleClickAtX>("doubleClick", "modifierState", "x"),
    method<&HTML_Object::doubleClick>("doubleClick", "modifierState", "x", "y"),
    method<&HTML_Object::evaluateXPath>("evaluateXPath", "expression"),
    method<&HTML_Object::firstChild>("firstChild"),
    method<&HTML_Object::height>("height"),
    method<&HTML_Object::hierarchicalQualifiedName>("hierarchicalQualifiedName"),
    method<&HTML_Object::id>("id"),
    method<&HTML_Object::innerHTML>("innerHTML"),
    method<&HTML_Object::innerText>("innerText"),
    method<overload<const char*>(&HTML_Object::invoke)>("invoke", "method"),
    method<overload<const char*, const char*>(&HTML_Object::invoke)>("invoke", "method", "argument"),
    method<overload<const char*, const char*, const char*>(&HTML_Object::invoke)>("invoke", "method", "argument1",
                                                                                  "argument2"),
    method<&HTML_Object::lastChild>("lastChild"),
    method<&HTML_Object::name>("name"),
    method<&HTML_Object::nextSibling>("nextSibling"),
    method<&HTML_Object::numChildren>("numChildren"),
    method<&HTML_Object::openContextMenu>("openContextMenu"),
    method<&HTML_Object::parentElement>("parentElement"),
    method<&HTML_Object::previousSibling>("previousSibling"),
    method<&HTML_Object::property>("property", "name"),
    method<&HTML_Object::screenRect>("screenRect"),
    method<&HTML_Object::scrollToTop>("scrollTo"),
    method<&HTML_Object::scrollTo>("scrollToAlignment", "top"),
    method<overload<const char*, const char*>(&HTML_Object::setProperty)>("setProperty", "name", "value"),
    method<overload<const char*, int>(&HTML_Object::setProperty)>("setProperty", "name", "value"),
    method<overload<const char*, bool>(&HTML_Object::setProperty)>("setProperty", "name", "value"),
    method<&HTML_Object::simplifiedInnerText>("simplifiedInnerText"),
    method<&HTML_Object::style>("style"),
    method<&HTML_Object::styleDisplay>("styleDisplay"),
    method<&HTML_Object::styleVisibility>("styleVisibility"),
    method<&HTML_Object::tagName>("tagName"),
    method<&HTML_Object::title>("title"),
    method<&HTML_Object::visible>("visible"),
    method<&HTML_Object::width>("width"),
    method<&HTML_Object::x>("x"),
    method<&HTML_Object::y>("y"),
};

}  // namespace

const ClassMembers HTML_Object_Class = classMembers(properties, methods);

}  // namespace Corvex::WebWrapper
