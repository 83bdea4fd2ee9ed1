#pragma once

#include "corvexhook/delegate.h"
#include "wrappers/web/export.h"

#include <QMap>

#include <list>
#include <optional>
#include <vector>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;

/// The tree of page objects. The embedding process makes one, which serves every connection.
class CORVEX_WEBWRAPPER_EXPORT HTMLObjectHierarchyDelegate : public ObjectHierarchyDelegate {
public:
  HTMLObjectHierarchyDelegate();
  ~HTMLObjectHierarchyDelegate() override;

  int numChildren(SharedPtr<Object> object) const override;
  SharedPtr<Object> child(SharedPtr<Object> object, int index) const override;
  SharedPtr<Object> childByName(SharedPtr<Object> object, const QString& name) const override;
  SharedPtr<Object> objectByQualifiedName(SharedPtr<Object> parent, const ObjectName& name) const override;
  QString name(SharedPtr<Object> object) const override;
  QString qualifiedName(SharedPtr<Object> object) const override;
  /// Asked of the page once per object and then kept, until one of the two operations below is called. Behind these
  /// stand the items that only a toolkit knows, which are asked for each time.
  ObjectList children(SharedPtr<Object> object) const override;
  SharedPtr<Object> parent(SharedPtr<Object> object) const override;
  int wrapperType() const override;

  /// To be called when the pages of a connection go away: its objects are dead from then on. Of objects that were made
  /// one after the other, one call does not reach all.
  virtual void clearAllJSReferences(HTMLComponent* component) const;
  /// The same for all objects of all connections.
  virtual void invalidateAllReferencedObjects() const;

  /// Only the outermost name of a chain of containers may have a context. Whether this one, which is to be looked up
  /// below an element, has one, which is then reported to the script.
  bool refusesContext(const ObjectName& name) const;

private:
  SharedPtr<Object> objectInContainer(SharedPtr<Object> parent, std::list<ObjectName> parts,
                                      const ObjectName& name) const;
  QString getChildInfo(SharedPtr<Object> object) const;
  void clearChildCache() const;

  mutable QMap<SharedPtr<Object>, std::vector<SharedPtr<Object>>> m_childCache;
};

/// The tree of items below an item of an item view. Items have no qualified name, and nothing is looked up below them.
class CORVEX_WEBWRAPPER_EXPORT CustomViewItemPropertyDelegate : public ObjectHierarchyDelegate {
public:
  CustomViewItemPropertyDelegate();

  int numChildren(SharedPtr<Object> item) const override;
  SharedPtr<Object> child(SharedPtr<Object> item, int index) const override;
  SharedPtr<Object> childByName(SharedPtr<Object> item, const QString& name) const override;
  /// Empty for what is no item of a view.
  QString name(SharedPtr<Object> item) const override;
  QString qualifiedName(SharedPtr<Object> item) const override;
  /// Asked of the page each time.
  ObjectList children(SharedPtr<Object> item) const override;
  int wrapperType() const override;
};

/// The root of the page tree, whose one child is the document of the current context. The embedding process supplies
/// the subclass for its root objects.
class CORVEX_WEBWRAPPER_EXPORT WebToplevelDelegate : public ObjectHierarchyDelegate {
public:
  explicit WebToplevelDelegate(const QString& className);
  ~WebToplevelDelegate() override;

  int numChildren(SharedPtr<Object> root) const override;
  SharedPtr<Object> child(SharedPtr<Object> root, int index) const override;
  SharedPtr<Object> childByName(SharedPtr<Object> root, const QString& name) const override;
  SharedPtr<Object> objectByQualifiedName(SharedPtr<Object> root, const ObjectName& name) const override;
  QString name(SharedPtr<Object> root) const override;
  QString qualifiedName(SharedPtr<Object> root) const override;
  ObjectList children(SharedPtr<Object> root) const override;
  SharedPtr<Object> parent(SharedPtr<Object> root) const override;
  int wrapperType() const override;
  /// The connection behind a root object; may be null. Containers are looked up with a null root.
  virtual HTMLComponent* component(SharedPtr<Object> root) const = 0;
  /// Whether the document that is kept serves any connection.
  virtual bool keepsDocumentAcrossComponents() const = 0;
  /// A name without a container as a page knows it; nothing if it means another page. Here the name itself.
  virtual std::optional<ObjectName> nameInPage(HTMLComponent* page, const ObjectName& name) const;

  /// To be called when the top document goes away.
  void clearDocumentReference() const;

protected:
  /// The next child is asked of the page. The kept document stays alive.
  void forgetDocument() const;

private:
  SharedPtr<Object> keptDocument(HTMLComponent* component) const;
  SharedPtr<Object> objectInContainer(std::list<ObjectName> parts, const ObjectName& name) const;

  static SharedPtr<Object> document;
};

/// Tells whether two script values mean one object of one page.
class CORVEX_WEBWRAPPER_EXPORT WebObjectComparisonDelegate : public ComparisonDelegate {
public:
  explicit WebObjectComparisonDelegate(const QString& className);

  bool compare(SharedPtr<Object> a, SharedPtr<Object> b) const override;
  bool sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const override;
};

}  // namespace Corvex::WebWrapper
