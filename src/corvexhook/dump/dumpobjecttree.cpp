#include "corvexhook/dump/dumpobjecttree.h"

namespace Corvex {

namespace {

using UIAbstraction::UIElement;

void addProperties(const SharedPtr<Object>& object, const DumpObjectTreeDelegate& delegate, const DumpFilter& filters,
                   UIElement* element) {
  const FilterObject* const filter = filterObjectForCorvexObject(object, filters);
  const Class* const cls = object->objectClass();
  for (int i = 0; filter && i < cls->numProperties(); ++i) {
    const Property* const property = cls->property(i);
    PropertyInfo info;
    if (filter->isMatchedProperty(property->name(), &info)) {
      delegate.setProperty(property, object, element, info.isIdentifying);
    }
  }
}

}  // namespace

const DumpObjectTreeDelegate* dumpDelegate(const SharedPtr<Object>& object) {
  return object ? static_cast<const DumpObjectTreeDelegate*>(
                      DelegateFactory::self()->delegate(object->objectClass(), Delegate::DumpObjectTreeDelegateType))
                : nullptr;
}

DumpObjectTreeDelegate::~DumpObjectTreeDelegate() = default;

bool DumpObjectTreeDelegate::isTransparent(SharedPtr<Object>) const { return false; }

QString DumpObjectTreeDelegate::simplifiedType(SharedPtr<Object>) const { return QString(); }

UIElement* dumpObjectTreeImpl(const SharedPtr<Object>& object, bool includeProperties, const DumpFilter& filters,
                              UIElement* parentElement) {
  const DumpObjectTreeDelegate* const delegate = dumpDelegate(object);
  if (!delegate) {
    return nullptr;
  }
  UIElement* const element = parentElement->addChild(object->objectClass()->name());
  const ObjectHierarchyDelegate* const names = hierarchyDelegate(object);
  element->setName(names ? names->name(object) : QString());
  element->setSimplifiedType(delegate->simplifiedType(object));
  GlobalBounds bounds;
  if (delegate->visibleGlobalBounds(object, &bounds)) {
    element->setBounds(bounds);
  }
  if (filters.takesPictures && bounds.width > 0 && bounds.height > 0) {
    delegate->takeScreenshot(object, element);
  }
  if (includeProperties) {
    addProperties(object, *delegate, filters, element);
  }
  ObjectList children;
  delegate->children(object, &children);
  for (const SharedPtr<Object>& child : children) {
    const DumpObjectTreeDelegate* const next = dumpDelegate(child);
    UIElement* added = nullptr;
    if (next) {
      next->dumpObject(child, includeProperties, &added, filters, element);
    }
  }
  return element;
}

FunctionCallResult<std::shared_ptr<UIElement>> dumpObjectTree(const SharedPtr<Object>& object,
                                                              const DumpFilter& filters) {
  using Result = FunctionCallResult<std::shared_ptr<UIElement>>;
  const DumpObjectTreeDelegate* const delegate = dumpDelegate(object);
  QString error;
  if (!delegate) {
    return Result::failure(QStringLiteral("Objects of this class cannot be dumped."));
  }
  if (!delegate->enterDump(object, filters, &error)) {
    return Result::failure(error);
  }
  const auto root = std::make_shared<UIElement>();
  UIElement* element = nullptr;
  delegate->dumpObject(object, true, &element, filters, root.get());
  return delegate->leaveDump(&error) ? Result::success(root) : Result::failure(error);
}

}  // namespace Corvex
