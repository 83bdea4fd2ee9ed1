#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <random>

#include "support/recordedbrowser.h"

namespace Walks {

/// Somebody who does random things in a browser, with its own input: the same things for the same seed. What recordings
/// do not hold is not done:
/// - things that show only while the pointer rests somewhere are left alone, so the pointer is taken away first;
/// - the page stands still before each thing that is done, as scripts do not know how long somebody looked at it;
/// - dates are typed as a whole, and are others than before: a page is told of nothing else;
/// - the browser's own lists and windows stay closed, and files are not chosen;
/// - links to pages of others, or to none, are not followed;
/// - nobody goes back where the browser does not tell who did.
class Walker {
public:
  /// Not all browsers tell who goes back.
  Walker(TestSupport::RecordedBrowser& browser, unsigned int seed, bool mayGoBack)
      : m_browser(browser), m_random(seed), m_mayGoBack(mayGoBack) {}

  /// From the page that is shown. What was done, for people.
  QStringList walk();
  /// Closes what pages show only for the moment.
  void leave();

private:
  struct Thing {
    QString kind;
    QPointF place;
    QString name;
  };

  int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned int>(end)); }
  Corvex::Webhook::BrowserWindows& windows() { return *m_browser.control().windows(); }
  Corvex::Webhook::Connection& window();
  QString someText();

  void act();
  bool answerDialog();
  bool changeWindow();
  bool useKeyboard();
  bool useHistory();
  void useThing();
  /// One that is in view and that nothing is on top of; nothing after some attempts.
  bool chooseThing(Thing& thing);
  void click(const Thing& thing, int clicks);
  void fill(const Thing& thing);
  void keys(const QString& text);
  /// Until the pages stand still.
  void settle();

  TestSupport::RecordedBrowser& m_browser;
  std::mt19937 m_random;
  bool m_mayGoBack;
  int m_dates = 0;
  QString m_window;
  QString m_firstAddress;
  QStringList m_done;
};

}  // namespace Walks
