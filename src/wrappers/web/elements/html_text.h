#pragma once

#include "wrappers/web/elements/html_formelement.h"

namespace Corvex::WebWrapper {

/// A field for text, of one line or many.
class HTML_TextBase : public HTML_FormElement {
public:
  static constexpr const char* ScriptName = "HTML_TextBase";

  using HTML_FormElement::HTML_FormElement;

  const char* className() const override;

  FunctionCallResult<QString> value() const;
  /// Clicks the field and replaces its text, as a user would see it. The text "<Return>" presses that key instead, and
  /// a field for files takes the path of one.
  QString setValue(const QString& value);
  FunctionCallResult<QString> selectedText() const;
  QString selectAll();

private:
  QString evaluateInField(const QString& code) const;
};

class HTML_Text : public HTML_TextBase {
public:
  static constexpr const char* ScriptName = "HTML_Text";

  using HTML_TextBase::HTML_TextBase;

  const char* className() const override;
};

class HTML_TextArea : public HTML_TextBase {
public:
  static constexpr const char* ScriptName = "HTML_TextArea";

  using HTML_TextBase::HTML_TextBase;

  const char* className() const override;
};

extern const ClassMembers HTML_TextBase_Class;

}  // namespace Corvex::WebWrapper
