#include "corvexhook/object.h"

#include "corvexhook/class.h"
#include "corvexhook/delegate.h"

namespace Corvex {

Object::Object(const Class* objectClass, void* data) : m_class(objectClass), m_data(data) {}

Object::~Object() {
  if (m_ownsData && m_class) {
    m_class->deleteObjectData(m_data, ObjectAttribute(ObjectAttribute::NativePointer));
  }
}

void Object::deref() {
  if (--m_count == 0) {
    delete this;
  }
}

QString Object::toString() const { return castToString(const_cast<Object*>(this)); }

int Object::toInt() const { return 0; }

long long Object::toLongLong() const { return toInt(); }

double Object::toDouble() const { return 0.0; }

bool Object::toBool() const { return !isNull(); }

QStringList Object::toStringList() const { return isNull() ? QStringList() : QStringList(toString()); }

bool Object::isNull() const { return m_data == nullptr; }

bool Object::get(void** out) const {
  *out = m_data;
  return m_data != nullptr;
}

bool Object::isA(const Class* cls) const { return m_class && cls && m_class->derivesFrom(cls); }

SharedPtr<Object> ObjectList::at(int index) const {
  return index >= 0 && index < size() ? m_objects[static_cast<std::size_t>(index)] : SharedPtr<Object>();
}

void ObjectList::append(const std::vector<SharedPtr<Object>>& objects) {
  m_objects.insert(m_objects.end(), objects.begin(), objects.end());
}

}  // namespace Corvex
