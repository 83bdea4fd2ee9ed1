#include "wrappers/web/style/html_style.h"

#include "wrappers/web/object/references.h"
#include "wrappers/web/page/htmlcomponent.h"

namespace Corvex::WebWrapper {

namespace {

constexpr MethodRow methods[] = {method<&HTML_Style::value>("value", "name")};

}  // namespace

const ClassMembers HTML_Style_Class = classMembers(methods);

void createdHtmlStyle(HTML_Style* style) { referencedStyles.add(style, &style->reference, style->component); }

void destroyedHtmlStyle(HTML_Style* style) { referencedStyles.remove(style); }

HTML_Style::HTML_Style(const QString& objectReference, HTMLComponent* connection)
    : reference(objectReference), component(connection) {
  createdHtmlStyle(this);
}

HTML_Style::~HTML_Style() { destroyedHtmlStyle(this); }

bool HTML_Style::hasValidReference() const { return reference != deadReference(); }

void HTML_Style::invalidate() { reference = deadReference(); }

QString HTML_Style::deadError() { return deadStyleReferenceError(); }

FunctionCallResult<QString> HTML_Style::value(const char* name) const {
  const QString property = QString::fromUtf8(name);
  const JavaScriptAnswer answer =
      component->evaluateJS(QStringLiteral("%1.styleProperty('%2');").arg(reference, property), 0);
  return answer.succeeded()
             ? FunctionCallResult<QString>::success(answer.text)
             : FunctionCallResult<QString>::failure(
                   QStringLiteral("Failed to obtain css value '%1' from %2: %3").arg(property, reference, answer.text));
}

// Stands here, since only this room knows of styles.
FunctionCallResult<HTML_Style*> HTML_Object::style() {
  const QString global = nextDriverReference();
  const JavaScriptAnswer answer =
      evaluateJS(global + QLatin1String(" = new __corvex__styleInfo(") + reference + QLatin1String("); 'done';"));
  return answer.succeeded() ? FunctionCallResult<HTML_Style*>::success(new HTML_Style(global, component))
                            : FunctionCallResult<HTML_Style*>::failure(
                                  QStringLiteral("Error obtaining the style: %1").arg(answer.text));
}

}  // namespace Corvex::WebWrapper
