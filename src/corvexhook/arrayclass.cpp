#include "corvexhook/arrayclass.h"

#include "corvexhook/inspector.h"

namespace Corvex {

namespace {

using Values = std::vector<SharedPtr<Object>>;

class ArrayObject : public Object {
public:
  explicit ArrayObject(Values* values) : Object(ArrayClass::registeredClass(), values) { setOwnsData(true); }

  QStringList toStringList() const override {
    QStringList texts;
    for (const SharedPtr<Object>& value : ArrayClass::unwrapObject(const_cast<ArrayObject*>(this))) {
      texts << value->toString();
    }
    return texts;
  }

  QString toString() const override { return toStringList().join(QLatin1Char(',')); }
};

}  // namespace

ArrayClass::ArrayClass(Namespace* ns) : Class("Array", ns, true) {}

void ArrayClass::deleteObjectData(void* data, const ObjectAttribute&) const { delete static_cast<Values*>(data); }

const Class* ArrayClass::registeredClass() {
  return Inspector::self()->globalNamespace()->getClass(QStringLiteral("Array"));
}

SharedPtr<Object> ArrayClass::wrapObject(const Values& values) { return new ArrayObject(new Values(values)); }

std::vector<SharedPtr<Object>> ArrayClass::unwrapObject(SharedPtr<Object> object) {
  void* data = nullptr;
  if (!object || !object->isA(registeredClass()) || !object->get(&data)) {
    return {};
  }
  return *static_cast<Values*>(data);
}

Argument ArrayClass::arrayClassArg(const std::string& name) {
  return Argument(QString::fromStdString(name), registeredClass());
}

}  // namespace Corvex
