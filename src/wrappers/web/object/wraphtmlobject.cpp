#include "wrappers/web/object/wraphtmlobject.h"

#include "corvexhook/inspector.h"

namespace Corvex::WebWrapper {

SharedPtr<Object> wrapObject(HTML_Object* object) {
  if (!object) {
    Inspector* inspector = Inspector::self();
    return inspector->nullObject(inspector->classByName(QStringLiteral("HTML_Object")));
  }
  return wrapAndTransferOwnership(object, QString::fromLatin1(object->className()));
}

SharedPtr<Object> wrapAndTransferOwnership(void* object, const QString& className) {
  const Class* cls = Inspector::self()->globalNamespace()->getClass(className);
  SharedPtr<Object> wrapped = cls->wrap(object, ObjectAttribute(ObjectAttribute::NativePointer));
  wrapped->setOwnsData(true);
  return wrapped;
}

HTML_Object* retrieveObject(SharedPtr<Object> wrapped) {
  void* data = nullptr;
  const bool isPageObject = wrapped && wrapped->isA(objectModelHtmlObjectClass());
  return isPageObject && wrapped->get(&data) ? static_cast<HTML_Object*>(data) : nullptr;
}

const Class* objectModelHtmlObjectClass() {
  return Inspector::self()->globalNamespace()->getClass(QStringLiteral("HTML_Object"));
}

}  // namespace Corvex::WebWrapper
