#pragma once

#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

/// An element that takes input: it has the focus, and can be disabled.
class HTML_FormElement : public HTML_Object {
public:
  static constexpr const char* ScriptName = "HTML_FormElement";

  using HTML_Object::HTML_Object;

  const char* className() const override;
  virtual FunctionCallResult<bool> disabled() const;
  virtual QString setDisabled(bool disabled);
  virtual QString focus();

  FunctionCallResult<QString> type() const;

protected:
  /// Tells the page that the element's value has changed; `sentence` has the error at its "%1".
  QString sendChangeEvent(const char* sentence) const;
};

extern const ClassMembers HTML_FormElement_Class;

}  // namespace Corvex::WebWrapper
