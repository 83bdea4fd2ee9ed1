#include "wrappers/web/dump/htmlobjectdumpobjecttreedelegate.h"

#include "corvexhook/dump/dumpobjecttree.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/readiness/readiness.h"

namespace Corvex::WebWrapper {

HtmlObjectDumpObjectTreeDelegate::HtmlObjectDumpObjectTreeDelegate(LogInterface* log)
    : DumpObjectTreeDelegate(QLatin1String(HTML_Object::ScriptName)), log(log) {}

HtmlObjectDumpObjectTreeDelegate::~HtmlObjectDumpObjectTreeDelegate() = default;

bool HtmlObjectDumpObjectTreeDelegate::enterDump(SharedPtr<Object> object, const DumpFilter& filters,
                                                 QString* error) const {
  if (dumpDepth++ > 0) {
    return true;
  }
  // Of a page that goes meanwhile its objects say no more what they were.
  const QString text = castToString(object);
  const QString why = fillCache(object, filters);
  if (!why.isEmpty()) {
    *error = QStringLiteral("Error preparing object dump for '%1': ").arg(text) + why;
    leaveDump(error);
  }
  return why.isEmpty();
}

QString HtmlObjectDumpObjectTreeDelegate::fillCache(const SharedPtr<Object>& object, const DumpFilter& filters) const {
  const HTML_Object* const native = retrieveObject(object);
  if (!native) {
    return QStringLiteral("There is no object.");
  }
  const FunctionCallResult<Json::Value> tree = callJavaScriptFunction(
      native->component, QStringLiteral("window.top.__corvex.objectTreeInformation( %1 )").arg(native->reference), 0);
  if (tree.failed()) {
    return tree.error;
  }
  FunctionCallResult<DumpCache> built = buildCache(object, tree.value, filters);
  cache = std::move(built.value);
  return built.failed() ? built.error : fetchPropertyValues(native->component, &cache);
}

bool HtmlObjectDumpObjectTreeDelegate::leaveDump(QString*) const {
  if (--dumpDepth == 0) {
    cache.clear();
    m_pageImage.reset();
  }
  return true;
}

const ChildrenAndProperties* HtmlObjectDumpObjectTreeDelegate::entryOf(const SharedPtr<Object>& object) const {
  const auto found = cache.find(retrieveObject(object));
  return found == cache.end() ? nullptr : &found->second;
}

bool HtmlObjectDumpObjectTreeDelegate::dumpObject(SharedPtr<Object> object, bool includeProperties,
                                                  UIAbstraction::UIElement** element, const DumpFilter& filters,
                                                  UIAbstraction::UIElement* parentElement) const {
  *element = dumpObjectTreeImpl(object, includeProperties, filters, parentElement);
  const ChildrenAndProperties* const entry = entryOf(object);
  if (*element && entry) {
    const auto text = entry->propertyValues.find(QStringLiteral("__corvex__textContent"));
    (*element)->setConcreteProperty(QStringLiteral("textContent"),
                                    text == entry->propertyValues.end() ? QString() : text->second);
  }
  return true;
}

bool HtmlObjectDumpObjectTreeDelegate::takeScreenshot(SharedPtr<Object> object,
                                                      UIAbstraction::UIElement* element) const {
  const HTML_Object* const native = retrieveObject(object);
  const ChildrenAndProperties* const entry = entryOf(object);
  if (!native || !native->component->supportsPageScreenshot()) {
    log->log(1,
             "Falling back to desktop screenshot grabbing for Object Dump as the browser does not support full page "
             "grabs.");
    return false;
  }
  if (!m_pageImage) {
    m_pageImage = std::make_unique<FunctionCallResult<QImage>>(native->component->grabPageScreenshot());
  }
  const FunctionCallResult<QImage> image =
      partOfPageImage(*m_pageImage, entry ? entry->documentRect : ScreenRectangle());
  if (image.failed()) {
    log->log(1, "Failed to retrieve object screenshot: %s\n", image.error.toUtf8().constData());
  } else {
    element->setImage(image.value);
  }
  return true;
}

bool HtmlObjectDumpObjectTreeDelegate::setProperty(const Property* property, SharedPtr<Object> object,
                                                   UIAbstraction::UIElement* element, bool identifying) const {
  const ChildrenAndProperties* const entry = hasSimpleValue(*property) ? entryOf(object) : nullptr;
  if (!entry) {
    return false;
  }
  const auto value = entry->propertyValues.find(property->name());
  if (value == entry->propertyValues.end()) {
    return false;
  }
  if (identifying) {
    element->setIdentifyingProperty(value->first, value->second);
  } else {
    element->setConcreteProperty(value->first, value->second);
  }
  return true;
}

bool HtmlObjectDumpObjectTreeDelegate::children(SharedPtr<Object> object, ObjectList* list) const {
  const ChildrenAndProperties* const entry = entryOf(object);
  *list = entry ? entry->children : ObjectList();
  return object && !object->isNull();
}

bool HtmlObjectDumpObjectTreeDelegate::visibleGlobalBounds(SharedPtr<Object> object, GlobalBounds* bounds) const {
  const ChildrenAndProperties* const entry = entryOf(object);
  *bounds = GlobalBounds{0, 0, -1, -1, -1};
  if (!entry) {
    return true;
  }
  const auto visible = entry->propertyValues.find(QStringLiteral("visible"));
  if (visible == entry->propertyValues.end() || visible->second != QLatin1String("false")) {
    const bool hasPageImage = retrieveObject(object)->component->supportsPageScreenshot();
    const ScreenRectangle& rect = hasPageImage ? entry->documentRect : entry->screenRect;
    *bounds = GlobalBounds{rect.x, rect.y, rect.width, rect.height, -1};
  }
  return true;
}

}  // namespace Corvex::WebWrapper
