#include "shared/visibletext.h"
#include "wrappers/web/itemviews/html_customitem.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <cstdio>
#include <memory>

namespace Corvex::WebWrapper {

namespace {

const int webWrapperType = 8;

HTML_CustomItem* itemOf(const SharedPtr<Object>& object) {
  return dynamic_cast<HTML_CustomItem*>(retrieveObject(object));
}

/// Whether there is one; what fails is told on standard error, and then `failed`.
template <typename T>
bool isThere(const FunctionCallResult<T*>& result, bool* failed) {
  const std::unique_ptr<T> object(result.value);
  if (result.failed()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(visibleText(result.error)));
    *failed = true;
  }
  return object != nullptr;
}

}  // namespace

CustomViewItemPropertyDelegate::CustomViewItemPropertyDelegate()
    : ObjectHierarchyDelegate(QString::fromLatin1(HTML_CustomItem::ScriptName)) {}

int CustomViewItemPropertyDelegate::numChildren(SharedPtr<Object> item) const { return children(item).size(); }

SharedPtr<Object> CustomViewItemPropertyDelegate::child(SharedPtr<Object> item, int index) const {
  return children(item).at(index);
}

SharedPtr<Object> CustomViewItemPropertyDelegate::childByName(SharedPtr<Object> item, const QString& name) const {
  const ObjectList list = children(item);
  for (const SharedPtr<Object>& child : list) {
    if (this->name(child) == name) {
      return child;
    }
  }
  return nullptr;
}

QString CustomViewItemPropertyDelegate::name(SharedPtr<Object> item) const {
  HTML_CustomItem* native = itemOf(item);
  if (!native) {
    return QString();
  }
  bool failed = false;
  const bool hasParent = isThere(native->parentItem(-1), &failed);
  const bool hasView = !failed && isThere(native->itemView(), &failed);
  if (failed || (!hasParent && !hasView)) {
    return QString();
  }
  const FunctionCallResult<QString> name = native->name();
  if (name.failed()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(visibleText(name.error)));
  }
  return name.value;
}

QString CustomViewItemPropertyDelegate::qualifiedName(SharedPtr<Object>) const { return QStringLiteral("__noimpl__"); }

ObjectList CustomViewItemPropertyDelegate::children(SharedPtr<Object> item) const {
  const HTML_CustomItem* native = itemOf(item);
  if (!native || !native->component || !native->component->isAvailable()) {
    return {};
  }
  const FunctionCallResult<ObjectList> items =
      fetchItems("__corvex__fetchItemChildren", *native, native->extensionObject());
  if (items.failed()) {
    std::fprintf(stderr, "Error obtaining itemview children: %s\n", qUtf8Printable(visibleText(items.error)));
  }
  return items.value;
}

int CustomViewItemPropertyDelegate::wrapperType() const { return webWrapperType; }

}  // namespace Corvex::WebWrapper
