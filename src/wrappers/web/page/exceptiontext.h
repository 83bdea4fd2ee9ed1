#pragma once

#include <QString>

#include <json/value.h>

namespace Corvex::WebWrapper {

/// The end of a function whose answer is JSON: what it throws becomes the member "error".
/// exceptionText() reads it.
extern const char* const catchAsError;

/// What stands between the parts of an exception's text, and how a part becomes text.
struct ExceptionForm {
  QString (*textOf)(const Json::Value& part);
  const char* beforeFile;
  const char* beforeLine;
  const char* afterPlace;
  const char* beforeStack;
};

/// "name: message" of an object, then where it was thrown and the stack as far as it has these members.
QString exceptionText(const Json::Value& e, const ExceptionForm& form);

}  // namespace Corvex::WebWrapper
