#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <memory>

#include "corvexhook/object.h"

namespace Corvex::Scripting {

class ObjectHandle;

/// The objects that a script holds, and the names by which it found them.
class LiveObjects {
public:
  /// For error sentences; kept as long as the script holds the object.
  void setName(const SharedPtr<Object>& object, const QString& name) { m_names.insert(object.get(), name); }
  /// Empty for an object that was not found by a name.
  QString name(const SharedPtr<Object>& object) const { return m_names.value(object.get()); }
  /// Lets go of every object, also of those whose handles the script engine
  /// has yet to collect.
  void releaseAll();

private:
  friend class ObjectHandle;

  QHash<const Object*, QString> m_names;
  QSet<ObjectHandle*> m_handles;
};

/// An object as the script engine holds it. The engine owns the handle, the
/// handle a share of the object.
class ObjectHandle : public QObject {
  Q_OBJECT
  /// Stands for the object's class.
  Q_PROPERTY(int classNumber READ classNumber CONSTANT)

public:
  ObjectHandle(const SharedPtr<Object>& object, int classNumber, const std::shared_ptr<LiveObjects>& live);
  ~ObjectHandle() override;

  /// Null after `LiveObjects::releaseAll`.
  const SharedPtr<Object>& object() const { return m_object; }
  int classNumber() const { return m_classNumber; }

private:
  friend class LiveObjects;

  SharedPtr<Object> m_object;
  int m_classNumber;
  std::shared_ptr<LiveObjects> m_live;
};

}  // namespace Corvex::Scripting
