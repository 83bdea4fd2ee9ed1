#include "wrappers/web/recording/webevents.h"

#include "corvexhook/class.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;

namespace {

class WebEvents : public TestSupport::WebTest {
protected:
  const GlobalClass* global = Inspector::self()->globalClass();

  QString signatureOf(const char* name) const {
    const Event* const event = global->event(QString::fromLatin1(name));
    return event ? event->signature().text() : QStringLiteral("no such event");
  }
};

}  // namespace

TEST_F(WebEvents, AreFoundByTheirNames) {
  for (const char* name : {"mousedown", "mouseup", "mousemove", "mouseover", "mouseout", "click", "dblclick"}) {
    EXPECT_EQ(signatureOf(name), QString("x: int, y: int, state: int, button: int")) << name;
  }
  EXPECT_EQ(signatureOf("keyup"), QString("state: int, keycode: int"));
  for (const char* name : {"change", "unload", "chooseColor", "ignoreEvent"}) {
    EXPECT_EQ(signatureOf(name), QString()) << name;
  }
  EXPECT_EQ(signatureOf("keydown"), QString("no such event"));
}

TEST_F(WebEvents, AreNumberedAfterThoseThatWereThereBefore) {
  const int before = global->numEvents();
  const Event* const first = global->event(QStringLiteral("click"));
  initWebEvents();
  ASSERT_EQ(global->numEvents(), before + 12);
  for (int i = before; i < global->numEvents(); ++i) {
    EXPECT_EQ(global->createEvent(i)->id(), i);
    EXPECT_TRUE(global->createEvent(i)->isBuiltIn());
    EXPECT_EQ(global->createEvent(i)->owner(), global);
  }
  EXPECT_EQ(global->createEvent(global->numEvents()), nullptr);
  EXPECT_EQ(global->event(QStringLiteral("click")), first);
}
