#pragma once

#include <memory>
#include <vector>

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"

/// A class with `methods` methods and `properties` properties of its own, named after the class and their own numbers.
class TestClass : public Corvex::Class {
public:
  TestClass(const char* name, const char* superName, int methods = 0, int properties = 0)
      : Class(name, Corvex::Inspector::self()->globalNamespace(), true), m_superName(superName) {
    setMemberCounts(methods, properties, 0);
  }

  void initSuperClass() override {
    ++superInits;
    setSuperClass(Corvex::Inspector::self()->classByName(QString::fromLatin1(m_superName)));
  }
  const Corvex::Method* createMethod(int id) const override {
    using namespace Corvex;
    const int own = id - superClassOffset(MethodOffset);
    const Argument result(Inspector::self()->primitiveType(PrimitiveType::Void), {});
    const Argument argument(QStringLiteral("text"), Inspector::self()->primitiveType(PrimitiveType::String));
    m_methods.emplace_back(
        new Method(this, result, QStringLiteral("%1m%2").arg(name()).arg(own), Signature(argument), false));
    return m_methods.back().get();
  }
  const Corvex::Property* createProperty(int id) const override {
    using namespace Corvex;
    const int own = id - superClassOffset(PropertyOffset);
    const Argument result(Inspector::self()->primitiveType(PrimitiveType::Int), {});
    m_properties.emplace_back(
        new Property(this, result, QStringLiteral("%1p%2").arg(name()).arg(own), Property::ReadOnly, own));
    return m_properties.back().get();
  }
  void deleteObjectData(void* data, const Corvex::ObjectAttribute& attribute) const override {
    EXPECT_EQ(attribute.value(), Corvex::ObjectAttribute::NativePointer);
    deleted.push_back(data);
  }

  int superInits = 0;
  mutable std::vector<void*> deleted;

private:
  const char* m_superName;
  mutable std::vector<std::unique_ptr<Corvex::Method>> m_methods;
  mutable std::vector<std::unique_ptr<Corvex::Property>> m_properties;
};
