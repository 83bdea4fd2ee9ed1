#pragma once

#include "wrappers/web/glue/scriptclass.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// Reads the computed style of an element in the page, one value at a time. The connection is not owned.
class HTML_Style {
public:
  static constexpr const char* ScriptName = "HTML_Style";

  HTML_Style(const QString& objectReference, HTMLComponent* connection);
  ~HTML_Style();

  /// The value of a property by its name in camel case; "undefined" for one that the browser does not know.
  FunctionCallResult<QString> value(const char* name) const;

  bool hasValidReference() const;
  void invalidate();
  static QString deadError();

  HTML_Style(const HTML_Style&) = delete;
  HTML_Style& operator=(const HTML_Style&) = delete;

  QString reference;
  HTMLComponent* component;
};

extern const ClassMembers HTML_Style_Class;

}  // namespace Corvex::WebWrapper
