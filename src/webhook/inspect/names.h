#pragma once

#include <QString>
#include <QVector>

namespace Corvex {

namespace WebWrapper {
class HTMLComponent;
}

namespace Webhook {

/// The rule by which an element gets its name.
enum class NameKind { Control, Link, Image, Named, Text, Hierarchical, None };

/// What a search for the name of an element finds.
enum class NameOutcome {
  Itself,      ///< The very element.
  Link,        ///< The link around it, which its name stands for.
  LostByRule,  ///< Another element or none, as the rules of naming and search have it.
  Lost,        ///< Another element or none, with no rule to explain that.
};

/// An element of a page and its name.
struct NamedElement {
  QString element;  ///< Its opening tag, shortened.
  QString name;     ///< Empty where none could be made.
  NameKind kind = NameKind::None;
  NameOutcome outcome = NameOutcome::Lost;
  QString why;    ///< Why it is lost, as part of a sentence.
  QString other;  ///< The opening tag of what was found in its place; empty where nothing was.
};

/// All elements of all documents of a page that can be reached, those of shadow trees included, each after its host.
struct NamesCheck {
  QVector<NamedElement> elements;
  qint64 namingMs = 0;
  qint64 searchMs = 0;
  QString error;  ///< Why the check ended early, as a sentence; empty when it is complete.
};

/// Names every element and searches for each name as a script does whose first look-up it is. Elements are named as
/// when their first action is recorded. `timeoutMs` is for each call of the page.
NamesCheck checkNames(WebWrapper::HTMLComponent& page, int timeoutMs);

}  // namespace Webhook
}  // namespace Corvex
