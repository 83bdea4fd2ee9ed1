#pragma once

#include "corvexhook/object.h"

#include <QString>

namespace Corvex::Webhook {

class Connection;

/// What a person does with the keyboard, given to the browser as its own input. Each action answers an error sentence.
class Typing {
public:
  explicit Typing(bool isStrict) : m_isStrict(isStrict) {}

  /// Types a text in place of the one that a field holds. Names of keys in it are keys; a text that begins with one
  /// leaves what the field holds.
  QString typeText(const SharedPtr<Object>& object, const QString& text) const;
  /// Puts a text, as it is, in place of the one that a field holds; chooses a date, a colour and so on.
  QString setText(const SharedPtr<Object>& object, const QString& text) const;
  /// Presses keys in a page, whatever has the focus there.
  static QString pressKeys(Connection& page, const QString& text);

private:
  QString put(const SharedPtr<Object>& object, const QString& text, bool hasKeys) const;

  bool m_isStrict;
};

}  // namespace Corvex::Webhook
