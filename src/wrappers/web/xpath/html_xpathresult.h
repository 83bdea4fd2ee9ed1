#pragma once

#include "wrappers/web/glue/scriptclass.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// The result of an XPath expression, which stays in the page. The connection is not owned.
class HTML_XPathResult {
public:
  static constexpr const char* ScriptName = "HTML_XPathResult";

  HTML_XPathResult(const QString& objectReference, HTMLComponent* connection);
  ~HTML_XPathResult();

  // The result converted as XPath has it.
  FunctionCallResult<bool> booleanValue() const;
  FunctionCallResult<double> numberValue() const;
  FunctionCallResult<QString> stringValue() const;

  /// How many nodes it has; -1 for a result that is no set of nodes.
  FunctionCallResult<int> snapshotLength() const;
  /// The node at a place from 0; failed where there is none.
  FunctionCallResult<HTML_Object*> snapshotItem(int index);
  FunctionCallResult<HTML_Object*> singleNodeValue() { return snapshotItem(0); }

  bool hasValidReference() const;
  void invalidate();
  static QString deadError();

  HTML_XPathResult(const HTML_XPathResult&) = delete;
  HTML_XPathResult& operator=(const HTML_XPathResult&) = delete;

  QString reference;
  HTMLComponent* component;

private:
  /// What the code gives; the sentence has the reference and the page's words in it.
  FunctionCallResult<QString> ask(const QString& code, const char* what) const;
};

extern const ClassMembers HTML_XPathResult_Class;

}  // namespace Corvex::WebWrapper
