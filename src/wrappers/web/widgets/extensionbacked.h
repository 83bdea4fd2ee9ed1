#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

/// A page object for which a toolkit's extension script in the page answers.
template <typename Base>
class ExtensionBacked : public Base {
public:
  ExtensionBacked(const QString& name, const QString& objectReference, HTMLComponent* connection,
                  const QString& extensionName)
      : Base(name, objectReference, connection), extension(extensionName) {}

  /// The script's name as the page wrote it.
  QString extension;

  /// The expression for the script's object in the page.
  QString extensionObject() const { return extension + QLatin1String("Extension"); }

protected:
  /// The code that calls a function of the script with this object.
  QString extensionCall(const char* function) const {
    return QStringLiteral("%1.%2(%3);").arg(extensionObject(), QLatin1String(function), this->reference);
  }
  QString extensionCall(const char* function, int argument) const {
    return QStringLiteral("%1.%2(%3, %4);")
        .arg(extensionObject(), QLatin1String(function), this->reference, QString::number(argument));
  }
};

/// The number that a page answered. The sentences have the page's text at their "%1": `failure` for a call that failed,
/// `unconvertible` for an answer that is no number.
FunctionCallResult<int> numberOf(const JavaScriptAnswer& answer, const char* failure, const char* unconvertible);

/// The same result; an error, if there is one, stands after the text.
template <typename T>
FunctionCallResult<T> withPrefix(const QString& text, const FunctionCallResult<T>& result) {
  return result.failed() ? FunctionCallResult<T>::failure(text + result.error) : result;
}

}  // namespace Corvex::WebWrapper
