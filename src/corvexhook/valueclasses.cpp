#include "corvexhook/valueclasses.h"

#include "corvexhook/datetime.h"
#include "corvexhook/geometry.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"

#include <array>

namespace Corvex {

namespace {

template <typename T>
struct Field {
  const char* name;
  int (*read)(const T&);
};

const std::array<Field<ScreenRectangle>, 4> rectangleFields = {{
    {"x", [](const ScreenRectangle& r) { return r.x; }},
    {"y", [](const ScreenRectangle& r) { return r.y; }},
    {"width", [](const ScreenRectangle& r) { return r.width; }},
    {"height", [](const ScreenRectangle& r) { return r.height; }},
}};

const std::array<Field<DateTime>, 5> dateFields = {{
    {"year", [](const DateTime& d) { return d.value().date().year(); }},
    {"month", [](const DateTime& d) { return d.value().date().month(); }},
    {"day", [](const DateTime& d) { return d.value().date().day(); }},
    {"hours", [](const DateTime& d) { return d.value().time().hour(); }},
    {"minutes", [](const DateTime& d) { return d.value().time().minute(); }},
}};

/// A class of small records whose fields are whole numbers that scripts may read.
template <typename T, std::size_t N>
class ValueClass : public Class {
public:
  ValueClass(const char* name, Namespace* ns, const std::array<Field<T>, N>& fields)
      : Class(name, ns, true), m_fields(fields) {
    setMemberCounts(0, static_cast<int>(N), 0);
  }

  const Property* createProperty(int id) const override {
    if (m_properties.empty()) {
      const Class* type = Inspector::self()->primitiveType(PrimitiveType::Int);
      m_properties.reserve(N);
      for (std::size_t i = 0; i < N; ++i) {
        m_properties.emplace_back(this, Argument(type, ObjectAttribute()), QString::fromLatin1(m_fields[i].name),
                                  Property::ReadOnly, static_cast<int>(i));
      }
    }
    return id >= 0 && id < static_cast<int>(N) ? &m_properties[static_cast<std::size_t>(id)] : nullptr;
  }

  SharedPtr<Object> getProperty(SharedPtr<Object> object, const Property* property) const override {
    void* data = nullptr;
    if (!object || !object->get(&data)) {
      return nullptr;
    }
    const auto index = static_cast<std::size_t>(property->index());
    return Inspector::self()->wrapInt(m_fields[index].read(*static_cast<const T*>(data)));
  }

  void deleteObjectData(void* data, const ObjectAttribute&) const override { delete static_cast<T*>(data); }

private:
  const std::array<Field<T>, N>& m_fields;
  mutable std::vector<Property> m_properties;
};

SharedPtr<Object> wrapOwned(const Class* cls, void* data) {
  SharedPtr<Object> object = cls->wrap(data, ObjectAttribute(ObjectAttribute::NativePointer));
  object->setOwnsData(true);
  return object;
}

}  // namespace

void createValueClasses(Namespace* ns) {
  new ValueClass<ScreenRectangle, 4>("ScreenRectangle", ns, rectangleFields);
  new ValueClass<DateTime, 5>("DateTime", ns, dateFields);
}

const Class* objectModelScreenRectangleClass() {
  return Inspector::self()->globalNamespace()->getClass(QStringLiteral("ScreenRectangle"));
}

SharedPtr<Object> wrapScreenRectangle(const ScreenRectangle& rectangle) {
  return wrapOwned(objectModelScreenRectangleClass(), new ScreenRectangle(rectangle));
}

const Class* objectModelDateTimeClass() {
  return Inspector::self()->globalNamespace()->getClass(QStringLiteral("DateTime"));
}

SharedPtr<Object> wrapDateTime(const DateTime& value) {
  return wrapOwned(objectModelDateTimeClass(), new DateTime(value));
}

DateTime unwrapDateTime(SharedPtr<Object> object) {
  void* data = nullptr;
  if (!object || !object->isA(objectModelDateTimeClass()) || !object->get(&data)) {
    return DateTime();
  }
  return *static_cast<const DateTime*>(data);
}

}  // namespace Corvex
