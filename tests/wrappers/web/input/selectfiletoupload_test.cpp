#include "wrappers/web/input/selectfiletoupload.h"

#include <QTemporaryDir>

#include "corvexhook/hook.h"
#include "support/fakeclock.h"
#include "support/files.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/webtest.h"
#include "wrappers/web/widgets/widgetclasses.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

/// Notes what it was told to do, and when.
class FakeInput : public NativeInterface {
public:
  explicit FakeInput(const FakeClock& clock) : m_clock(clock) { Hook::hook->setNativeInterface(this); }
  ~FakeInput() override { Hook::hook->setNativeInterface(nullptr); }

  QString pointerMove(ScreenPoint p) override { return note(QStringLiteral("move %1,%2").arg(p.x).arg(p.y)); }
  QString pointerPress(MouseButton::Value, ScreenPoint) override { return note(QStringLiteral("press")); }
  QString pointerRelease(MouseButton::Value, ScreenPoint) override { return note(QStringLiteral("release")); }
  QString pointerClick(MouseButton::Value button, ScreenPoint p) override {
    return note(QStringLiteral("click %1 at %2,%3").arg(button).arg(p.x).arg(p.y));
  }
  QString pointerWheel(int, ScreenPoint) override { return note(QStringLiteral("wheel")); }
  QString typeKeys(const QString& keys) override { return note(QStringLiteral("type ") + keys); }
  std::optional<NativeDialog> topDialog() override { return std::nullopt; }

  QStringList done;
  QString error;

private:
  QString note(const QString& what) {
    done << QStringLiteral("%1 ms: %2").arg(m_clock.nowMs).arg(what);
    return error;
  }

  const FakeClock& m_clock;
};

class Uploads : public WebTest {
protected:
  void SetUp() override {
    WebTest::SetUp();
    page.answer(QStringLiteral("scrollToElement"), QString());
    page.answer(QStringLiteral("getScreenRect"), QStringLiteral("100,200,250,30"));
    writeFile(path, "text");
  }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("a <Return> b.txt"));
  FakeClock clock;
  FakeInput input{clock};
};

}  // namespace

TEST_F(Uploads, AreClickedAndTypedWithPauses) {
  const QString typed = folder.filePath(QStringLiteral("a <less>Return> b.txt"));
  const QStringList steps = {QStringLiteral("0 ms: move 330,205"),     QStringLiteral("0 ms: click 1 at 330,205"),
                             QStringLiteral("3000 ms: type <Home>"),   QStringLiteral("3750 ms: type <Shift+End>"),
                             QStringLiteral("4500 ms: type ") + typed, QStringLiteral("5250 ms: type <Return>")};
  EXPECT_EQ(selectFileToUpload(make<HTML_Text>().get(), path), QString());
  EXPECT_EQ(input.done, steps);
  EXPECT_EQ(clock.nowMs, 6250);
  input.done.clear();
  clock.nowMs = 0;
  EXPECT_EQ(selectFileToUpload(make<HTML_CustomText>(QStringLiteral("custom")).get(), path), QString());
  EXPECT_EQ(input.done, steps);
  EXPECT_TRUE(page.takeCodes().join(QString()).contains(QLatin1String("scrollToElement")));
}

TEST_F(Uploads, AutomationIgnoresErrorsOfItsSteps) {
  input.error = QStringLiteral("no keyboard");
  EXPECT_EQ(automateFileDialog(path), QString());
  EXPECT_EQ(input.done.size(), 4);
}

TEST_F(Uploads, OfWhatIsNoReadableFileTouchNothing) {
  const auto error = [this](const QString& at) { return selectFileToUpload(make<HTML_Text>().get(), at); };
  const QString missing = folder.filePath(QStringLiteral("missing"));
  EXPECT_EQ(error(missing),
            QStringLiteral("Error automating file upload field, file at '%1' does not exist.").arg(missing));
  EXPECT_EQ(error(folder.path()),
            QStringLiteral("Error automating file upload field, file at '%1' is not a file.").arg(folder.path()));
  EXPECT_EQ(input.done, QStringList());
  EXPECT_EQ(page.takeCodes(), QStringList());
}

TEST_F(Uploads, NeedAPlaceOnTheScreen) {
  const auto error = [this] { return selectFileToUpload(make<HTML_Text>().get(), path); };
  page.answer(QStringLiteral("getScreenRect"), QStringLiteral("1,2,0,30"));
  EXPECT_EQ(error(), QString("Error automating file upload field, the elements width (0) or height (30) is 0. The "
                             "nececssary click will likely end up in the wrong place.If your website uses a button to "
                             "open the file dialog, please consider using mouseClick and chooseFile instead."));
  page.answer(QStringLiteral("getScreenRect"), QStringLiteral("1,2"));
  EXPECT_EQ(error(), QString("Cannot click on file upload field, obtaining screen rect failed: Rectangle string '1,2' "
                             "obtained has invalid format."));
  EXPECT_EQ(input.done, QStringList());
  EXPECT_EQ(internalSelectFileToUpload(nullptr, path),
            QString("Cannot click on file upload field, obtaining screen rect failed: No valid HTML object provided to "
                    "getScreenRect function"));
  page.answer(QStringLiteral("getScreenRect"), QStringLiteral("1,2,30,30"));
  input.error = QStringLiteral("no pointer");
  EXPECT_EQ(error(), QString("Click on upload field to open the file dialog failed: no pointer"));
  EXPECT_EQ(clock.nowMs, 0);
}
