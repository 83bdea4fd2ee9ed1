#pragma once

#include "corvexhook/delegate.h"
#include "shared/functioncallresult.h"

namespace Corvex::WebWrapper {

/// Lets objects of a class read as a text, and as nothing else.
class CastToStringDelegate : public CastDelegate {
public:
  /// A text that there is not is reported to the script.
  using TextOf = FunctionCallResult<QString> (*)(const SharedPtr<Object>& object);

  CastToStringDelegate(const QString& className, TextOf textOf) : CastDelegate(className), m_textOf(textOf) {}

  bool canCastTo(const Class* target) const override;
  bool canCastFrom(const Class* source) const override;
  SharedPtr<Object> castTo(SharedPtr<Object> object, const Class* target) const override;
  SharedPtr<Object> castFrom(SharedPtr<Object> object, const Class* target) const override;

private:
  TextOf m_textOf;
};

/// A page object in a script's text reads as its reference.
class HTML_Object_CastToStringDelegate : public CastToStringDelegate {
public:
  HTML_Object_CastToStringDelegate();
};

}  // namespace Corvex::WebWrapper
