#include "wrappers/web/dump/dumpcache.h"

#include "tracelib/tracepoint.h"
#include "wrappers/web/object/queryrectanglewithfunction.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

#include <sstream>

namespace Corvex::WebWrapper {

namespace {

const char* const screenRectGetter = "screenRect";
const char* const textContentGetter = "__corvex__textContent";
const char* const documentRectGetter = "__corvex__elementRectangleInDocument";

bool isWanted(const Property& property, const FilterObject* filter) {
  const QString& name = property.name();
  // Whether an object has bounds depends on it.
  const bool isMatched = name == QLatin1String("visible") || (filter && filter->isMatchedProperty(name, nullptr));
  return isMatched && HTML_Object::isJavaScriptPropertyReadSupported(name) && hasSimpleValue(property);
}

/// Builds the cache of one tree.
class CacheBuilder {
public:
  CacheBuilder(const DumpFilter& filters, double zoomFactor) : m_filters(filters) {
    std::ostringstream zoom;
    zoom << zoomFactor;
    m_zoom = QString::fromStdString(zoom.str());
  }

  DumpCache build(const SharedPtr<Object>& object, const Json::Value& tree) {
    add(object, tree);
    return std::move(m_cache);
  }

private:
  void add(const SharedPtr<Object>& object, const Json::Value& tree) {
    HTML_Object* const native = retrieveObject(object);
    const auto [place, isNew] = m_cache.try_emplace(native);
    ChildrenAndProperties unused;
    ChildrenAndProperties& entry = isNew ? place->second : unused;
    addGetters(*object->objectClass(), filterObjectForCorvexObject(object, m_filters), *native, &entry);
    for (const Json::Value& member : tree) {
      HTML_Object* const child =
          member.isObject() ? htmlObjectFromReferenceInfo(native->component, jsonText(member["typeString"]),
                                                          jsonText(member["reference"]), jsonText(member["nameInLeaf"]))
                            : nullptr;
      if (child) {
        const SharedPtr<Object> wrapped = wrapObject(child);
        entry.children.push_back(wrapped);
        add(wrapped, member["children"]);
      }
    }
  }

  void addGetters(const Class& cls, const FilterObject* filter, const HTML_Object& object,
                  ChildrenAndProperties* entry) {
    const auto add = [entry](const QString& name, const QString& code) {
      entry->propertyGetters.emplace(name.toStdString(), code.toStdString());
    };
    for (int i = 0; i < cls.numProperties(); ++i) {
      const Property& property = *cls.property(i);
      if (isWanted(property, filter)) {
        const PropertyId id = HTML_Object::parsePropertyIdString(property.name()).value;
        add(property.name(), object.propertyGetterCode(id));
      }
    }
    add(QLatin1String(screenRectGetter), QStringLiteral("__corvex__getScreenRectAsObject( %1 )").arg(object.reference));
    add(QLatin1String(textContentGetter),
        QStringLiteral("window.top.__corvex.getTextContent( %1 )").arg(object.reference));
    add(QLatin1String(documentRectGetter),
        QStringLiteral("window.top.__corvex.getElementRectangleInDocument( %1, %2 )").arg(object.reference, m_zoom));
  }

  const DumpFilter& m_filters;
  QString m_zoom;
  DumpCache m_cache;
};

/// Functions, which the page calls: their names are those of script properties.
QString propertiesRetrievalAsJson(const HTML_Object& object, const ChildrenAndProperties& entry) {
  std::string members;
  for (const auto& [name, code] : entry.propertyGetters) {
    members += (members.empty() ? "'" : ",'") + name + "': function() { return " + code + "; }";
  }
  return QStringLiteral("{ 'object': ") + object.reference + QStringLiteral(", 'propertyGetters': { ") +
         QString::fromStdString(members) + QStringLiteral("} }");
}

void store(const QString& name, const Json::Value& value, ChildrenAndProperties* entry) {
  TRACE_POINT("WebObjectDump",
              QStringLiteral("Storing fetched value for property: %1 = %2").arg(name, jsonText(value)));
  if (name == QLatin1String(screenRectGetter)) {
    entry->screenRect = screenRectangleFromJson(value);
  } else if (name == QLatin1String(documentRectGetter)) {
    entry->documentRect = screenRectangleFromJson(value);
  } else {
    entry->propertyValues.emplace(name, jsonText(value));
  }
}

}  // namespace

FunctionCallResult<DumpCache> buildCache(const SharedPtr<Object>& object, const Json::Value& tree,
                                         const DumpFilter& filters) {
  const FunctionCallResult<double> zoom = retrieveObject(object)->component->zoomFactor();
  return zoom.failed() ? FunctionCallResult<DumpCache>::failure(
                             QStringLiteral("Error obtaining needed zoom factor in browser tab: %1").arg(zoom.error))
                       : FunctionCallResult<DumpCache>::success(CacheBuilder(filters, zoom.value).build(object, tree));
}

QString fetchPropertyValues(HTMLComponent* component, DumpCache* cache) {
  QStringList requests;
  for (const auto& [object, entry] : *cache) {
    if (!entry.propertyGetters.empty()) {
      requests << propertiesRetrievalAsJson(*object, entry);
    }
  }
  if (requests.isEmpty()) {
    return QString();
  }
  const FunctionCallResult<Json::Value> values =
      callJavaScriptFunction(component,
                             QStringLiteral("window.top.__corvex.readPropertiesFromObjects( ") + QLatin1Char('[') +
                                 requests.join(QLatin1Char(',')) + QStringLiteral("] )"),
                             0);
  if (values.failed() || !values.value.isObject()) {
    return QStringLiteral("Error fetching property values: %1")
        .arg(values.failed() ? values.error : QStringLiteral("the page answered no object"));
  }
  for (auto& [object, entry] : *cache) {
    const Json::Value members = values.value.get(object->reference.toStdString(), Json::Value());
    if (members.isObject()) {
      for (const std::string& name : members.getMemberNames()) {
        store(QString::fromStdString(name), members[name], &entry);
      }
    }
  }
  return QString();
}

}  // namespace Corvex::WebWrapper
