#pragma once

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// The computed style of an element in the page. The connection is not owned.
class HTML_Style {
public:
  HTML_Style(const QString& objectReference, HTMLComponent* connection);
  ~HTML_Style();

  bool hasValidReference() const;
  void invalidate();

  HTML_Style(const HTML_Style&) = delete;
  HTML_Style& operator=(const HTML_Style&) = delete;

  QString reference;
  HTMLComponent* component;
};

}  // namespace Corvex::WebWrapper
