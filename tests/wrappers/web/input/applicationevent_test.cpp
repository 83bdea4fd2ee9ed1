#include "corvexhook/delegate.h"
#include "corvexhook/hook.h"
#include "wrappers/web/elements/html_button.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class Pointer : public NativeInterface {
public:
  QString pointerMove(ScreenPoint at) override { return note("move", 0, at); }
  QString pointerPress(MouseButton::Value button, ScreenPoint at) override { return note("press", button, at); }
  QString pointerRelease(MouseButton::Value button, ScreenPoint at) override { return note("release", button, at); }
  QString pointerClick(MouseButton::Value button, ScreenPoint at) override { return note("click", button, at); }
  QString pointerWheel(int notches, ScreenPoint at) override { return note("wheel", notches, at); }
  QString typeKeys(const QString&) override { return error; }
  std::optional<NativeDialog> topDialog() override { return {}; }

  QStringList deeds;
  QString error;

private:
  QString note(const char* deed, int number, ScreenPoint at) {
    deeds << QStringLiteral("%1 %2 at %3,%4").arg(QLatin1String(deed)).arg(number).arg(at.x).arg(at.y);
    return error;
  }
};

const QStringList answeringEvents{"mousedown", "mouseover", "mouseout", "click"};

class ApplicationEvents : public WebTest {
protected:
  void SetUp() override {
    WebTest::SetUp();
    Hook::hook->setNativeInterface(&pointer);
    page.answer("__corvex__sendMouseEvent(", "");
    page.answer("__corvex__scrollToElement", "");
    page.answer("__corvex__getRectAsString", "100,200,30,40");
  }
  void TearDown() override {
    Hook::hook->setNativeInterface(nullptr);
    WebTest::TearDown();
  }

  /// "sent" or "not sent", and the error after it.
  QString send(const QString& event, const SharedPtr<Object>& object, const ObjectList& arguments) {
    const Event* const found = Inspector::self()->globalClass()->event(event);
    const auto* const delegate = dynamic_cast<const SendEventDelegate*>(
        DelegateFactory::self()->delegate(button->objectClass(), Delegate::SendEventDelegateType));
    const bool sent = delegate->sendEvent(found, object, arguments);
    const QString error = scriptError();
    return QLatin1String(sent ? "sent" : "not sent") + (error.isEmpty() ? error : QStringLiteral(": ") + error);
  }
  QString send(const QString& event) { return send(event, button, {number(3), number(4)}); }

  Pointer pointer;
  SharedPtr<Object> button = wrapped<HTML_Button>();
};

}  // namespace

TEST_F(ApplicationEvents, ArePlainTextsForThePage) {
  for (const QString& event : answeringEvents) {
    EXPECT_EQ(send(event), QString("sent"));
    EXPECT_EQ(page.takeCodes(),
              QStringList(QStringLiteral("__corvex__sendMouseEvent(ref,'%1', false, false, false, 3, 4);").arg(event)));
  }
  EXPECT_EQ(pointer.deeds, QStringList());
  page.fail("__corvex__sendMouseEvent(", "page is gone");
  EXPECT_EQ(send("click"), QString("not sent: page is gone"));
}

TEST_F(ApplicationEvents, MoveAndReleaseUseTheRealPointerFirst) {
  EXPECT_EQ(send("mousemove"), QString("sent"));
  const QStringList codes = page.takeCodes();
  ASSERT_EQ(codes.size(), 3);
  EXPECT_EQ(codes[0], QString("__corvex__scrollToElement(ref, true);"));
  EXPECT_EQ(codes[2], QString("__corvex__sendMouseEvent(ref,'mousemove', false, false, false, 3, 4);"));
  EXPECT_EQ(send("mouseup"), QString("sent"));
  EXPECT_EQ(page.takeCodes().last(), QString("__corvex__sendMouseEvent(ref,'mouseup', false, false, false, 3, 4);"));
  EXPECT_EQ(pointer.deeds, QStringList({"move 0 at 103,204", "click 0 at 103,204"}));
}

TEST_F(ApplicationEvents, WithoutAPlaceOnTheScreenNothingReachesThePage) {
  for (const QString& event : {QStringLiteral("mousemove"), QStringLiteral("mouseup")}) {
    const QString start = QStringLiteral("sent: Error sending %1: ").arg(event);
    page.fail("__corvex__getRectAsString", "no box");
    EXPECT_EQ(send(event), start +
                               "Error while obtaining rectangle with function "
                               "'__corvex__getScreenRectAsObject': no box");
    page.answer("__corvex__getRectAsString", "-1,-1,-1,-1");
    EXPECT_EQ(send(event), start + "The object is not on the screen.");
    EXPECT_EQ(pointer.deeds, QStringList());
    page.answer("__corvex__getRectAsString", "100,200,30,40");
    pointer.error = "the screen is locked";
    EXPECT_EQ(send(event), start + "the screen is locked");
    pointer = Pointer();
    EXPECT_EQ(page.takeCodes().filter("sendMouseEvent"), QStringList());
  }
}

TEST_F(ApplicationEvents, OthersAreRefused) {
  EXPECT_EQ(send("keyup"), QString("not sent: Unknown event type: keyup"));
  EXPECT_EQ(send("dblclick"), QString("not sent: Unknown event type: dblclick"));
  EXPECT_EQ(send("click", wrapObject(nullptr), {}), QString("not sent: Cannot send event 'click' to null object."));
  EXPECT_EQ(send("click", text("button"), {}), QString("not sent"));
  const QString position = "not sent: Event 'click' needs a position in the object: x and y, two whole numbers.";
  EXPECT_EQ(send("click", button, {number(1)}), position);
  EXPECT_EQ(send("click", button, {number(1), text("top")}), position);
  retrieveObject(button)->invalidate();
  EXPECT_EQ(send("click"), "not sent: " + HTML_Object::deadError());
  EXPECT_TRUE(page.calls.empty());
}
