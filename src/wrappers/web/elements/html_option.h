#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

/// One option of a select element.
class HTML_Option : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_Option";

  using HTML_Object::HTML_Object;

  const char* className() const override;

  FunctionCallResult<QString> text() const;
  QString setText(const QString& text);
  FunctionCallResult<QString> value() const;
  QString setValue(const QString& value);
  FunctionCallResult<bool> selected() const;
  FunctionCallResult<bool> defaultSelected() const;
  /// Counted from 0.
  FunctionCallResult<int> index() const;
};

extern const ClassMembers HTML_Option_Class;

}  // namespace Corvex::WebWrapper
