// Native input, into a plain window of a screen of its own.

#include <gtest/gtest.h>

#include <QProcess>
#include <QTimer>

#include "corvexhook/hook.h"
#include "corvexhook/x11/connection.h"
#include "corvexhook/x11/firefoxdialog.h"
#include "corvexhook/x11/keycodes.h"
#include "corvexhook/x11/testwindow.h"
#include "support/environment.h"
#include "support/printing.h"
#include "support/virtualscreen.h"

// Last, because of their macros.
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

using namespace Corvex;
using namespace TestSupport;

namespace {

class NativeInput : public testing::Test {
protected:
  void SetUp() override {
    ASSERT_EQ(screen.error(), QString());
    ASSERT_TRUE(window.display());
  }
  QStringList typed(const QString& keys) {
    EXPECT_EQ(native().typeKeys(keys), QString());
    return window.takeInput();
  }
  void setLayout(const QString& layout) {
    ASSERT_EQ(QProcess::execute(QStringLiteral("setxkbmap"), {layout}), 0);
    window.takeInput();
  }
  static QString moreThanSpareKeys() {
    QString text;
    for (ushort code = 0x4e00; code < 0x4e00 + 120; ++code) {
      text += QChar(code);
    }
    return text;
  }
  static NativeInterface& native() { return *Hook::hook->nativeInterface(); }

  VirtualScreen screen{QSize(640, 480)};
  ScopedVariable display{"DISPLAY", screen.display()};
  TestWindow window{screen.display()};
  QObject context;
};

QStringList errorsOfAllOperations() {
  NativeInterface& native = *Hook::hook->nativeInterface();
  return {native.pointerMove({1, 1}),
          native.pointerPress(MouseButton::Left, {1, 1}),
          native.pointerRelease(MouseButton::Left, {1, 1}),
          native.pointerClick(MouseButton::Left, {1, 1}),
          native.pointerWheel(1, {1, 1}),
          native.typeKeys(QStringLiteral("a"))};
}

}  // namespace

TEST(NoScreen, IsSaidByEveryOperation) {
  const QString todo =
      QStringLiteral(" Run this program on a desktop, set DISPLAY to a running X server, or run it by xvfb-run.");
  {
    const ScopedVariable display("DISPLAY", QByteArray());
    for (const QString& error : errorsOfAllOperations()) {
      EXPECT_EQ(error, QStringLiteral("There is no X server for native input: DISPLAY is not set.") + todo);
    }
  }
  const ScopedVariable display("DISPLAY", ":64999");
  for (const QString& error : errorsOfAllOperations()) {
    EXPECT_EQ(
        error,
        QStringLiteral("The X server ':64999', which DISPLAY names, takes no connection for native input.") + todo);
  }
  EXPECT_FALSE(Hook::hook->nativeInterface()->topDialog());
  EXPECT_FALSE(hasFirefoxDialog(1));
}

TEST_F(NativeInput, PointerGoesAndClicksWhereItIsTold) {
  EXPECT_EQ(native().pointerClick(MouseButton::Left, {105, 60}), QString());
  EXPECT_EQ(native().pointerClick(MouseButton::Default, {106, 60}), QString());
  EXPECT_EQ(native().pointerClick(MouseButton::Right, {107, 60}), QString());
  EXPECT_EQ(native().pointerPress(MouseButton::Middle, {108, 60}), QString());
  EXPECT_EQ(native().pointerRelease(MouseButton::Middle, {150, 60}), QString());
  EXPECT_EQ(native().pointerWheel(2, {109, 60}), QString());
  EXPECT_EQ(native().pointerWheel(-1, {109, 60}), QString());
  EXPECT_EQ(window.takeInput(),
            QStringList({"button 1 at 5,10", "button 1 at 6,10", "button 3 at 7,10", "button 2 at 8,10",
                         "button 5 at 9,10", "button 5 at 9,10", "button 4 at 9,10"}));
  EXPECT_EQ(native().pointerClick(MouseButton::Left, {640, -1}),
            QString("The point 640,-1 is not on the screen, which has 640 x 480 pixels."));
  EXPECT_EQ(native().pointerClick(static_cast<MouseButton::Value>(3), {105, 60}),
            QString("There is no mouse button 3: 1 is the left one, 2 the right one, 4 the middle one."));
  EXPECT_EQ(window.takeInput(), QStringList());
}

TEST_F(NativeInput, ButtonsThatAreSwappedKeepTheirMeaning) {
  const unsigned char swapped[] = {3, 2, 1, 4, 5};
  unsigned char now[256];
  const int count = XGetPointerMapping(window.display(), now, 256);
  std::copy(swapped, swapped + 5, now);
  ASSERT_EQ(XSetPointerMapping(window.display(), now, count), MappingSuccess);
  EXPECT_EQ(native().pointerClick(MouseButton::Left, {105, 60}), QString());
  EXPECT_EQ(window.takeInput(), QStringList({"button 1 at 5,10"}));
}

TEST_F(NativeInput, KeysComeWithTheirModifiers) {
  EXPECT_EQ(typed("aZ?<Shift+End><Ctrl+A><Return>"), QStringList({"a", "Shift_L", "Z", "Shift_L", "question", "Shift_L",
                                                                  "Shift+End", "Control_L", "Ctrl+a", "Return"}));
  EXPECT_EQ(native().typeKeys(QStringLiteral("a<Retrun>")).left(24), QString("There is no key '<Retrun"));
  EXPECT_EQ(window.takeInput(), QStringList());
}

TEST_F(NativeInput, CapsLockIsLeftAlone) {
  XkbLockModifiers(window.display(), XkbUseCoreKbd, LockMask, LockMask);
  XSync(window.display(), False);
  EXPECT_EQ(typed("a"), QStringList({"a"}));
  XkbStateRec state = {};
  XkbGetState(window.display(), XkbUseCoreKbd, &state);
  EXPECT_EQ(state.locked_mods, LockMask);
}

TEST_F(NativeInput, CharactersThatTheLayoutLacksAreTyped) {
  const QStringList before = window.keyboard();
  EXPECT_EQ(typed(QString::fromUtf8("ä€Ж")), QStringList({"adiaeresis", "EuroSign", "U0416"}));
  QStringList names;
  for (const QChar character : moreThanSpareKeys()) {
    names << QStringLiteral("U%1").arg(QString::number(character.unicode(), 16).toUpper());
  }
  EXPECT_EQ(typed(moreThanSpareKeys()), names);
  EXPECT_EQ(window.keyboard(), before);
}

TEST_F(NativeInput, LayoutTellsTheModifiersOfASymbol) {
  setLayout(QStringLiteral("de"));
  const struct {
    KeySym symbol;
    bool found;
    int state;
  } cases[] = {
      {XK_z, true, 0}, {XK_Z, true, 1}, {XK_at, true, 128}, {XK_Greek_OMEGA, true, 129}, {XK_Cyrillic_a, false, -1}};
  forgetXKeyMap();
  for (const auto& c : cases) {
    KeyCode code = 0;
    int state = -1;
    EXPECT_EQ(getXKeyCodeAndStateFromSym(window.display(), c.symbol, &code, &state), c.found);
    EXPECT_EQ(state, c.state);
  }
  const QString levelThree = QStringLiteral("ISO_Level3_Shift");
  EXPECT_EQ(typed(QStringLiteral("z@=\\<Ctrl+y>")),
            QStringList({"z", levelThree, "at", "Shift_L", "equal", levelThree, "backslash", "Control_L", "Ctrl+y"}));
}

TEST_F(NativeInput, LayoutInUseCounts) {
  EXPECT_EQ(typed(QStringLiteral("a")), QStringList({"a"}));
  setLayout(QStringLiteral("us,ru"));
  XkbLockGroup(window.display(), XkbUseCoreKbd, 1);
  XSync(window.display(), False);
  EXPECT_EQ(typed(QStringLiteral("aя.")), QStringList({"a", "U044F", "period"}));
}

TEST_F(NativeInput, LossOfTheServerIsAnError) {
  XConnection connection;
  ASSERT_TRUE(connection.isUsable());
  window.close();
  screen.end();
  EXPECT_EQ(connection.finish().left(34), QString("The connection to the X server was"));
  EXPECT_FALSE(connection.isUsable());
  EXPECT_EQ(connection.finish().left(34), QString("The connection to the X server was"));
}

TEST_F(NativeInput, LossOfTheServerEndsTyping) {
  QTimer::singleShot(0, &context, [this] {
    window.close();
    screen.end();
  });
  EXPECT_EQ(native().typeKeys(moreThanSpareKeys()).left(34), QString("The connection to the X server was"));
}

TEST_F(NativeInput, RefusalsOfTheServerAreErrors) {
  XConnection connection;
  XMapWindow(connection.display(), 1);
  EXPECT_EQ(connection.finish(), QString("The X server refused native input: BadWindow (invalid Window parameter)"));
}

TEST_F(NativeInput, DialogsAreFound) {
  const int pid = 4242;
  const auto isDialog = [pid] { return hasFirefoxDialog(pid); };
  EXPECT_FALSE(isDialog());
  window.setClass("Dialog");
  EXPECT_FALSE(isDialog()) << "of another process";
  window.setProcess(pid);
  EXPECT_TRUE(isDialog());
  window.setClass("dialog");
  EXPECT_FALSE(isDialog());
  EXPECT_FALSE(native().topDialog());
  window.setType("_NET_WM_WINDOW_TYPE_NORMAL");
  EXPECT_FALSE(isDialog());
  window.setType("_NET_WM_WINDOW_TYPE_DIALOG");
  EXPECT_TRUE(isDialog());
  const auto dialog = native().topDialog();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(dialog->area, (ScreenRectangle{100, 50, 400, 300}));
  EXPECT_EQ(dialog->program, QString("dialog"));
}
