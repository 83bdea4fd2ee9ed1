#pragma once

#include <QString>
#include <QVector>

#include <deque>

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;

/// An object that a person chose in a page.
struct PickedObject {
  QString name;
  /// How many objects of its page the name fits. 0 where the object went before it could be looked at; the rest is
  /// empty then.
  int matches = 0;
  QString className;
  QString domPath;
  /// The window or frame that it is in; empty for the only window there is.
  QString context;
};

/// Lets a person choose objects of pages with the pointer, and shows which one is under it. The page gets nothing of
/// the press that chooses, and no element of it is added, changed or removed.
class Picking {
public:
  /// Borrows the windows. While this object is there it receives the messages to the test runner.
  explicit Picking(BrowserWindows& windows);
  /// Leaves pages as they were.
  ~Picking();
  Picking(const Picking&) = delete;
  Picking& operator=(const Picking&) = delete;

  /// What a page tells of the object that the pointer rests on: its rectangle on the screen, a comma, its name.
  void noteHovered(const QString& info) { m_hovered = info; }

  /// Asks the pages to let objects be picked, and paints; to be called again and again.
  void serve();
  bool hasPicked() const { return !m_picked.empty(); }
  /// The oldest that was not taken; there must be one.
  PickedObject take();

private:
  QVector<Connection*> pagesToAsk() const;

  BrowserWindows& m_windows;
  QString m_hovered;
  std::deque<QString> m_picked;
};

}  // namespace Corvex::Webhook
