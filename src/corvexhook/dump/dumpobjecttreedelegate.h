#pragma once

#include "corvexhook/delegate.h"
#include "corvexhook/dump/dumpfilter.h"
#include "corvexhook/dump/uielement.h"

namespace Corvex {

/// Reads objects for a dump. Everything else is asked between `enterDump` and the matching `leaveDump` only, and of
/// the object that `enterDump` was given and those below it.
class CORVEXHOOK_EXPORT DumpObjectTreeDelegate : public Delegate {
public:
  explicit DumpObjectTreeDelegate(const QString& className) : Delegate(className, DumpObjectTreeDelegateType) {}
  ~DumpObjectTreeDelegate() override;

  /// False with an `*error` where the object cannot be dumped; it is left already then.
  virtual bool enterDump(SharedPtr<Object> object, const DumpFilter& filters, QString* error) const = 0;
  virtual bool leaveDump(QString* error) const = 0;
  /// Adds the object, and what is below it, to `parentElement`. `*element` is the new element, null without one.
  virtual bool dumpObject(SharedPtr<Object> object, bool includeProperties, UIAbstraction::UIElement** element,
                          const DumpFilter& filters, UIAbstraction::UIElement* parentElement) const = 0;
  /// False where the image is to be taken from the screen instead.
  virtual bool takeScreenshot(SharedPtr<Object> object, UIAbstraction::UIElement* element) const = 0;
  /// False where the property has no value.
  virtual bool setProperty(const Property* property, SharedPtr<Object> object, UIAbstraction::UIElement* element,
                           bool identifying) const = 0;
  virtual bool children(SharedPtr<Object> object, ObjectList* list) const = 0;
  virtual bool visibleGlobalBounds(SharedPtr<Object> object, GlobalBounds* bounds) const = 0;
  /// Whether what lies under the object can be seen. False if not overridden.
  virtual bool isTransparent(SharedPtr<Object> object) const;
  /// Empty if not overridden.
  virtual QString simplifiedType(SharedPtr<Object> object) const;
};

}  // namespace Corvex
