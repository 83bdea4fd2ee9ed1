#pragma once

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// The result of an XPath expression in the page. The connection is not owned.
class HTML_XPathResult {
public:
  HTML_XPathResult(const QString& objectReference, HTMLComponent* connection);
  ~HTML_XPathResult();

  bool hasValidReference() const;
  void invalidate();

  HTML_XPathResult(const HTML_XPathResult&) = delete;
  HTML_XPathResult& operator=(const HTML_XPathResult&) = delete;

  QString reference;
  HTMLComponent* component;
};

}  // namespace Corvex::WebWrapper
