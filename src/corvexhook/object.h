#pragma once

#include "corvexhook/export.h"
#include "corvexhook/sharedptr.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Corvex {

class Class;

/// A script value: a class, a data pointer and whether the value owns its data. Reference counted, single-threaded.
class CORVEXHOOK_EXPORT Object {
public:
  /// Takes no ownership of `data`; see `setOwnsData`.
  Object(const Class* objectClass, void* data);
  virtual ~Object();

  /// The value as text. Page objects go through the cast-to-string delegate of their class.
  virtual QString toString() const;
  /// The value as a whole number; 0 where there is none.
  virtual int toInt() const;
  virtual long long toLongLong() const;
  virtual double toDouble() const;
  virtual bool toBool() const;
  virtual QStringList toStringList() const;
  /// True when the value has no data: a typed null, or no value at all.
  virtual bool isNull() const;

  const Class* objectClass() const { return m_class; }
  /// Stores the native data pointer, as given to `Class::wrap`, in `*out`; answers whether there is one.
  bool get(void** out) const;
  /// Class test, super classes of this object's class included.
  bool isA(const Class* cls) const;

  /// From true on, the last release hands the data to `Class::deleteObjectData`.
  void setOwnsData(bool owns) { m_ownsData = owns; }
  bool ownsData() const { return m_ownsData; }

  void ref() { ++m_count; }
  void deref();

  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

private:
  const Class* m_class;
  void* m_data;
  int m_count = 0;
  bool m_ownsData = false;
};

/// Arguments and results of script calls.
class CORVEXHOOK_EXPORT ObjectList {
public:
  ObjectList() = default;
  ObjectList(std::initializer_list<SharedPtr<Object>> objects) : m_objects(objects) {}

  int size() const { return static_cast<int>(m_objects.size()); }
  bool isEmpty() const { return m_objects.empty(); }
  /// The entry, or a null pointer out of range.
  SharedPtr<Object> at(int index) const;
  SharedPtr<Object>& operator[](int index) { return m_objects[static_cast<std::size_t>(index)]; }
  const SharedPtr<Object>& operator[](int index) const { return m_objects[static_cast<std::size_t>(index)]; }
  void push_back(const SharedPtr<Object>& object) { m_objects.push_back(object); }
  void append(const std::vector<SharedPtr<Object>>& objects);
  void append(const ObjectList& objects) { append(objects.m_objects); }
  void clear() { m_objects.clear(); }

  auto begin() const { return m_objects.begin(); }
  auto end() const { return m_objects.end(); }

private:
  std::vector<SharedPtr<Object>> m_objects;
};

}  // namespace Corvex
