#pragma once

#include <QHash>
#include <QString>
#include <QVector>

#include <optional>

namespace Corvex::Webhook {

class Connection;

/// What a page calls itself that has this address: the last element of its path.
QString pageOfAddress(const QString& address);

/// The frames at the end of a context's name, as in ".FRAME2.FRAME1".
QString framesOf(const QString& context);

/// Tells windows apart that show pages of the same name: counts them, the oldest first.
class NameCount {
public:
  /// What stands after the page's part of the next window's names: "<2>" for the second, nothing for the first.
  QString nextSuffix(const QString& page);

private:
  QHash<QString, int> m_windows;
};

/// The names of the open windows now, and the way from a context's name to the one inside its page and back. A single
/// window has no other names than its page gives, for itself and for windows that it carries.
class WindowNames {
public:
  /// Oldest first. Asks each page; one that a dialog may hold is known by its address.
  explicit WindowNames(const QVector<Connection*>& windows);

  /// The window of a context; null for a name that none has.
  Connection* windowOf(const QString& context) const;
  /// The context's name inside the page of a window. Nothing if it is one of another window; a name that none has stays
  /// as it is, and the page says so.
  std::optional<QString> inside(const Connection* window, const QString& context) const;
  QString outside(const Connection* window, const QString& localName) const;

private:
  struct Window {
    Connection* connection;
    QString page;
    QString suffix;
  };

  const Window* find(const QString& context) const;

  QVector<Window> m_windows;
};

}  // namespace Corvex::Webhook
