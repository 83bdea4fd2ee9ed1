#include "wrappers/web/input/sharedobjectmodelfunctions.h"

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"

#include <algorithm>
#include <iterator>

namespace Corvex::WebWrapper {

namespace {

GlobalMethod* sClickLinkByObjectFn = nullptr;
GlobalMethod* sClickLinkByNameFn = nullptr;
GlobalMethod* sSelectOptionByObjectFn = nullptr;
GlobalMethod* sSelectOptionByNameFn = nullptr;
GlobalMethod* sScrollToByObjectFn = nullptr;
GlobalMethod* sScrollToByObjectAndAlignmentFn = nullptr;

SharedPtr<Object> scriptError(const QString& text) {
  Inspector::self()->reportScriptError(text);
  return nullptr;
}

SharedPtr<Object> voidOrError(const QString& error) {
  return error.isEmpty() ? Inspector::self()->wrapVoid() : scriptError(error);
}

const SharedPtr<Object>& argument(void** arguments, int index) {
  return *static_cast<SharedPtr<Object>*>(arguments[index]);
}

bool isAlive(const HTML_Object* object) {
  if (object && !object->hasValidReference()) {
    scriptError(deadObjectReferenceError());
    return false;
  }
  return true;
}

/// Why a lookup by the name gave nothing. What is known besides the sentence comes after it.
QString whyNotFound(const QString& name) {
  const QString sentence = QStringLiteral("Invalid object name '%1'").arg(name);
  const QString why = Inspector::self()->takeScriptError();
  const bool isUnknownSymbol = name.startsWith(QLatin1Char(':')) && ObjectMap::self()->realName(name).isEmpty();
  if (why.isEmpty()) {
    return sentence;
  }
  return isUnknownSymbol ? sentence + QLatin1String(". ") + why : why;
}

/// The object that a name argument means. Null when there is none, and then the script has been told.
SharedPtr<Object> objectByName(const SharedPtr<Object>& name) {
  const SharedPtr<Object> object = Inspector::self()->lookup(name->toString());
  return object ? object : scriptError(whyNotFound(name->toString()));
}

bool isSelectable(const QString& className) {
  static const char* const classes[] = {"HTML_Select", "HTML_KiwiChoice", "HTML_CustomComboBox",
                                        "HTML_CustomSelectList", "HTML_BackBaseComboBox"};
  return std::any_of(std::begin(classes), std::end(classes),
                     [&className](const char* cls) { return className == QLatin1String(cls); });
}

/// Empty when a single-selection element has an option of the text. The page would select nothing, silently, without
/// it.
QString optionExistenceError(const HTML_Object* object, const QString& text) {
  const JavaScriptAnswer answer = object->evaluateJS(
      QStringLiteral(
          "var found = false;for( var i = 0; i < %1.options.length; i++ ) {    if( %1.options[i].text == '%2' "
          ") {        found = true;    }}found;")
          .arg(object->reference, escapeQuoteWithBackslash(text)));
  if (!answer.succeeded()) {
    return QStringLiteral("Error checking existence of option '%1': %2").arg(text, answer.text);
  }
  return answer.text == QLatin1String("true") ? QString()
                                              : QStringLiteral("Could not find item with text '%1'.").arg(text);
}

SharedPtr<Object> clickLink1(void** arguments, const Class*) {
  return clickLink(retrieveObject(argument(arguments, 0)));
}

SharedPtr<Object> clickLink2(void** arguments, const Class*) {
  const SharedPtr<Object> object = objectByName(argument(arguments, 0));
  return object ? clickLink(retrieveObject(object)) : nullptr;
}

SharedPtr<Object> selectOption1(void** arguments, const Class*) {
  const QByteArray text = argument(arguments, 1)->toString().toUtf8();
  return selectOption(retrieveObject(argument(arguments, 0)), text.constData());
}

SharedPtr<Object> selectOption2(void** arguments, const Class*) {
  const SharedPtr<Object> object = objectByName(argument(arguments, 0));
  const QByteArray text = argument(arguments, 1)->toString().toUtf8();
  return object ? selectOption(retrieveObject(object), text.constData()) : nullptr;
}

SharedPtr<Object> scroll(HTML_Object* object, bool top) {
  if (!object) {
    return scriptError(QStringLiteral("Cannot scroll to null object."));
  }
  return isAlive(object) ? voidOrError(object->scrollTo(top)) : nullptr;
}

SharedPtr<Object> scrollToByObject(void** arguments, const Class*) {
  return scroll(retrieveObject(argument(arguments, 0)), true);
}

SharedPtr<Object> scrollToByObjectAndAlignment(void** arguments, const Class*) {
  return scroll(retrieveObject(argument(arguments, 0)), argument(arguments, 1)->toBool());
}

Argument htmlObjArg() {
  return Argument(QStringLiteral("object"), Inspector::self()->classByName(QStringLiteral("HTML_Object")));
}

Argument primitiveArg(const char* name, PrimitiveType::Id type) {
  return Argument(QString::fromLatin1(name), Inspector::self()->primitiveType(type));
}

GlobalMethod* addFunction(GlobalFunction function, const char* name, const Signature& signature) {
  const Argument nothing(Inspector::self()->primitiveType(PrimitiveType::Void), ObjectAttribute());
  auto* method = new GlobalMethod(function, nothing, QString::fromLatin1(name), signature, true);
  Inspector::self()->globalClass()->addMethod(method);
  return method;
}

}  // namespace

SharedPtr<Object> clickLink(HTML_Object* object) {
  if (!object) {
    return scriptError(QStringLiteral("Cannot click null object."));
  }
  const QString className = QString::fromLatin1(object->className());
  if (className != QLatin1String("HTML_Anchor")) {
    return scriptError(
        QStringLiteral("Element of type '%1' can't be clicked. Must be of type HTML_Anchor").arg(className));
  }
  return isAlive(object) ? voidOrError(object->click(0, 0, 0, 1)) : nullptr;
}

SharedPtr<Object> selectOption(HTML_Object* object, const char* text) {
  if (!object) {
    return scriptError(QStringLiteral("Cannot select option in null object."));
  }
  const QString className = QString::fromLatin1(object->className());
  if (!isSelectable(className)) {
    return scriptError(QStringLiteral("Element of type '%1' can't be selected. Must be of type HTML_Select, "
                                      "HTML_KiwiChoice, HTML_CustomComboBox or HTML_BackBaseComboBox")
                           .arg(className));
  }
  if (!isAlive(object)) {
    return nullptr;
  }
  auto* select = dynamic_cast<HTML_Select*>(object);
  if (!select) {
    return scriptError(QStringLiteral("Unknown type of combobox: '%1'").arg(className));
  }
  const QString option = QString::fromUtf8(text);
  const bool probes = className == QLatin1String("HTML_Select") && !select->multiple;
  const QString error = probes ? optionExistenceError(object, option) : QString();
  return voidOrError(error.isEmpty() ? select->setSelectedOption(option) : error);
}

void setupSharedObjectModelFunctions() {
  const QString deprecation =
      QStringLiteral("The clickLink function has been deprecated, please consider using mouseClick instead.");
  const Argument name = primitiveArg("object", PrimitiveType::String);
  const Argument text = primitiveArg("text", PrimitiveType::String);
  const Argument top = primitiveArg("top", PrimitiveType::Bool);
  sClickLinkByObjectFn = addFunction(clickLink1, "clickLink", Signature(htmlObjArg()));
  sClickLinkByObjectFn->deprecate(deprecation);
  sClickLinkByNameFn = addFunction(clickLink2, "clickLink", Signature(name));
  sClickLinkByNameFn->deprecate(deprecation);
  sSelectOptionByObjectFn = addFunction(selectOption1, "selectOption", Signature(htmlObjArg(), text));
  sSelectOptionByNameFn = addFunction(selectOption2, "selectOption", Signature(name, text));
  sScrollToByObjectFn = addFunction(scrollToByObject, "scrollTo", Signature(htmlObjArg()));
  sScrollToByObjectAndAlignmentFn = addFunction(scrollToByObjectAndAlignment, "scrollTo", Signature(htmlObjArg(), top));
}

const GlobalMethod* sharedClickLinkByObjectFn() { return sClickLinkByObjectFn; }

const GlobalMethod* sharedClickLinkByNameFn() { return sClickLinkByNameFn; }

const GlobalMethod* sharedSelectOptionByObjectFn() { return sSelectOptionByObjectFn; }

const GlobalMethod* sharedSelectOptionByNameFn() { return sSelectOptionByNameFn; }

const GlobalMethod* sharedScrollToByObjectFn() { return sScrollToByObjectFn; }

const GlobalMethod* sharedScrollToByObjectAndAlignmentFn() { return sScrollToByObjectAndAlignmentFn; }

}  // namespace Corvex::WebWrapper
