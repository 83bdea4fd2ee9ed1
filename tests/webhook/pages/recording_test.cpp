// The way of what happens in a page to the logger, by the endpoint and by the queue of the session.

#include <gtest/gtest.h>

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/pages/dialogs.h"
#include "webhook/pages/messagedispatcher.h"
#include "wrappers/web/recording/eventlogger.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

class Texts : public WebWrapper::EventLogger {
public:
  void logEvent(const QString& text) override { texts << text; }
  void recordCall(const QString&, const char*, const ObjectList&, const QTime*) override {}
  void addUnmatchedProperty(const QString&, const QString&) override {}
  void removeUnmatchedProperties(const QString&) override {}
  void doubleClickSeen(const QString&, const WebWrapper::EventMap&) override {}
  void keyEventSeen(const QString&) override {}
  EventData lastRecordedEvent() override { return EventData(nullptr, QString(), ObjectList()); }
  void removeLastRecordedEvent() override {}
  bool isLastRecordedCall(const QString&, const QString&) override { return false; }

  QStringList texts;
};

class RecordedPage : public testing::Test {
protected:
  void SetUp() override {
    browser.load(QStringLiteral("<button id='b' onclick='1'>Press</button>"));
    browser.evaluate(QStringLiteral("window.__corvex__recording = true"));
  }
  /// What the logger is told of a click.
  QString toldOfClick(const QString& before) {
    Texts logger;
    dispatcher.setEventLogger(&logger);
    browser.evaluate(before + QStringLiteral(", document.getElementById('b').click()"));
    Corvex::poll(5000, 20, [&logger] { return !logger.texts.isEmpty(); });
    dispatcher.setEventLogger(nullptr);
    return logger.texts.join('|');
  }

  TestSupport::HookedBrowser& browser = TestSupport::HookedBrowser::instance();
  Dialogs dialogs{browser.windows(), browser.endpoint()};
  MessageDispatcher dispatcher{browser.endpoint(), browser.windows(), dialogs};
};

TEST_F(RecordedPage, TellsTheLoggerOnEitherWay) {
  for (const char* way : {"0", "window.__corvex.useSessionStorageForEvents = true"}) {
    const QString told = toldOfClick(QLatin1String(way));
    EXPECT_TRUE(told.startsWith("logevent") && told.contains("&event=click&x=") && told.contains("&type=submit"))
        << way;
  }
}

TEST_F(RecordedPage, TellsNothingThatHappenedBeforeThereWasALogger) {
  browser.evaluate(
      QStringLiteral("document.body.click(), __corvex__sendLogEventData(0, 'event=addUnmatchedProperty"
                     "&name=n&property=p', true)"));
  Corvex::poll(5000, 20, [] { return !Inspector::self()->unmatchedProperties(QStringLiteral("n")).isEmpty(); });
  EXPECT_TRUE(toldOfClick(QStringLiteral("0")).contains("&type=submit"));
}

}  // namespace
