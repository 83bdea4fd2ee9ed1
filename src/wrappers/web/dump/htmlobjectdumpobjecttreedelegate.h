#pragma once

#include "corvexhook/dump/dumpobjecttreedelegate.h"
#include "corvexhook/dump/loginterface.h"
#include "shared/functioncallresult.h"
#include "wrappers/web/dump/dumpcache.h"
#include "wrappers/web/export.h"

namespace Corvex::WebWrapper {

/// Reads page objects for a dump: the whole tree with one evaluation and all properties of all its objects with a
/// second one, whatever its size. One image of the page serves for all objects.
class CORVEX_WEBWRAPPER_EXPORT HtmlObjectDumpObjectTreeDelegate : private DumpObjectTreeDelegate {
public:
  /// Borrows the log.
  explicit HtmlObjectDumpObjectTreeDelegate(LogInterface* log);
  ~HtmlObjectDumpObjectTreeDelegate() override;

  bool enterDump(SharedPtr<Object> object, const DumpFilter& filters, QString* error) const override;
  bool leaveDump(QString* error) const override;
  bool dumpObject(SharedPtr<Object> object, bool includeProperties, UIAbstraction::UIElement** element,
                  const DumpFilter& filters, UIAbstraction::UIElement* parentElement) const override;
  bool takeScreenshot(SharedPtr<Object> object, UIAbstraction::UIElement* element) const override;
  bool setProperty(const Property* property, SharedPtr<Object> object, UIAbstraction::UIElement* element,
                   bool identifying) const override;
  bool children(SharedPtr<Object> object, ObjectList* list) const override;
  bool visibleGlobalBounds(SharedPtr<Object> object, GlobalBounds* bounds) const override;

private:
  /// Why the cache could not be filled; empty when it was.
  QString fillCache(const SharedPtr<Object>& object, const DumpFilter& filters) const;
  const ChildrenAndProperties* entryOf(const SharedPtr<Object>& object) const;

  mutable DumpCache cache;
  mutable int dumpDepth = 0;
  /// Null until an object of the dump wants a picture.
  mutable std::unique_ptr<FunctionCallResult<QImage>> m_pageImage;
  LogInterface* log;
};

}  // namespace Corvex::WebWrapper
