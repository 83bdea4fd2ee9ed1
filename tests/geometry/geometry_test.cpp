// Where elements are on the screen: the colour of each is looked for in what the screen really shows.

#include <gtest/gtest.h>

#include <QColor>
#include <QJsonObject>

#include <cmath>
#include <ostream>

#include "geometry/paintedarea.h"
#include "support/printing.h"
#include "support/screenbrowser.h"
#include "support/testbrowser.h"

namespace {

using TestSupport::PaintedArea;
using TestSupport::paintedArea;
using TestSupport::ScreenBrowser;

/// One element, which has the id "e" and the colour E, in a page whose background has the colour B.
struct Case {
  const char* name;
  const char* body;
  const char* setUp = "";
  const char* element = "document.getElementById('e')";
  bool isOnScreen = true;
  int zoomSteps = 0;
};

void PrintTo(const Case& testCase, std::ostream* out) { *out << testCase.name; }

#define FRAME_HEAD "<!DOCTYPE html><style>body{margin:0;background:white}#e{position:absolute;background:E}</style>"
#define IN_FRAME "document.getElementById('f').contentDocument"

// Frames begin at whole pixels of the screen, and their borders count in whole CSS pixels. Multiples of 4 are both, at
// every scale and zoom below.
const char* const nestedFrames =
    "<iframe id=f style='position:absolute;left:32px;top:16px;width:520px;height:360px;border:solid navy;"
    "border-width:4px 8px 12px 16px' srcdoc=\"" FRAME_HEAD
    "<div style='height:900px;width:900px'></div>"
    "<iframe id=f style='position:absolute;left:140px;top:132px;width:240px;height:190px;border:4px dashed navy' "
    "srcdoc='" FRAME_HEAD
    "<p style=&quot;margin:0;width:800px;height:900px&quot;></p>"
    "<div id=e style=&quot;left:320px;top:230px;width:70px;height:33px&quot;></div>'></iframe>\"></iframe>";
const char* const scrollNestedFrames =
    "var w = document.getElementById('f').contentWindow; w.scrollTo(60, 70);"
    "w.document.getElementById('f').contentWindow.scrollTo(300, 200)";
const char* const inNestedFrame = "(" IN_FRAME ").getElementById('f').contentDocument.getElementById('e')";

const Case cases[] = {
    {"Plain", "<div id=e style='left:37px;top:23px;width:101px;height:53px'></div>"},
    {"Scrolled", "<div id=e style='left:1900px;top:2500px;width:101px;height:53px'></div>", "scrollTo(1700, 2400)"},
    {"ScrolledWithBars",
     "<style>html{overflow:scroll}</style><div id=e style='left:1900px;top:2500px;width:101px;height:53px'></div>",
     "scrollTo(1700, 2400)"},
    {"InScrolledBox",
     "<div style='position:absolute;left:60px;top:60px;width:300px;height:200px;overflow:scroll'>"
     "<div style='width:900px;height:900px'></div><div id=e style='left:420px;top:400px;width:81px;height:53px'></div>"
     "</div>",
     "document.getElementById('e').parentNode.scrollTo(350, 340)"},
    {"HalfOutAtLeft", "<div id=e style='left:-40px;top:23px;width:100px;height:50px'></div>"},
    {"HalfOutAtTop", "<div id=e style='left:40px;top:-20px;width:100px;height:50px'></div>"},
    {"HalfOutAtRight", "<div id=e style='left:calc(100vw - 60px);top:23px;width:100px;height:50px'></div>"},
    {"HalfOutAtBottom", "<div id=e style='left:40px;top:calc(100vh - 30px);width:100px;height:50px'></div>"},
    {"LargerThanTheView", "<div id=e style='left:-9px;top:-9px;width:200vw;height:200vh'></div>"},
    {"AwayAtLeft", "<div id=e style='left:-140px;top:23px;width:100px;height:50px'></div>", "",
     "document.getElementById('e')", false},
    {"AwayAtTop", "<div id=e style='left:40px;top:100px;width:100px;height:50px'></div>", "scrollTo(0, 400)",
     "document.getElementById('e')", false},
    {"AwayAtRight", "<div id=e style='left:150vw;top:23px;width:100px;height:50px'></div>", "",
     "document.getElementById('e')", false},
    {"AwayAtBottom", "<div id=e style='left:40px;top:150vh;width:100px;height:50px'></div>", "",
     "document.getElementById('e')", false},
    {"WithoutSize", "<div id=e style='left:40px;top:30px;width:0;height:50px'></div>", "",
     "document.getElementById('e')", false},
    {"FrameWithBorder",
     "<iframe id=f style='position:absolute;left:32px;top:16px;width:420px;height:300px;border:solid navy;"
     "border-width:4px 8px 12px 16px' srcdoc=\"" FRAME_HEAD
     "<div id=e style='left:40px;top:30px;width:100px;height:50px'></div>\"></iframe>",
     "", IN_FRAME ".getElementById('e')"},
    {"FrameHalfOut",
     "<iframe id=f style='position:absolute;left:-60px;top:-44px;width:420px;height:300px;border:8px solid navy' "
     "srcdoc=\"" FRAME_HEAD "<div id=e style='left:90px;top:70px;width:100px;height:50px'></div>\"></iframe>",
     "", IN_FRAME ".getElementById('e')"},
    {"NestedFrames", nestedFrames, scrollNestedFrames, inNestedFrame},
    {"RightToLeft", "<div id=e style='right:1700px;top:80px;width:101px;height:53px'></div>",
     "document.documentElement.dir = 'rtl'; scrollTo(-1650, 30)"},
    {"FrameInRightToLeft",
     "<iframe id=f style='position:absolute;right:1500px;top:40px;width:320px;height:200px;border:solid navy;"
     "border-width:4px 8px 12px 16px' srcdoc=\"<html dir=rtl>" FRAME_HEAD
     "<div id=e style='right:40px;top:30px;width:100px;height:50px'></div>\"></iframe>",
     "document.documentElement.dir = 'rtl'; scrollTo(-1450, 0)", IN_FRAME ".getElementById('e')"},
    {"WrappedLink",
     "<style>#e{position:static;color:transparent}</style>"
     "<p style='position:absolute;left:20px;top:20px;width:210px;margin:0;font:20px/40px monospace'>Some words <a id=e "
     "href='#'>a link that takes at least three lines</a></p>"
     // The other lines are hidden.
     "<div style='position:absolute;left:0;top:60px;width:300px;height:300px;background:navy'></div>"},
    {"InShadowTree", "<div id=h style='position:absolute;left:50px;top:40px'></div>",
     "document.getElementById('h').attachShadow({mode: 'open'}).innerHTML ="
     "'<div style=\"position:absolute;left:7px;top:9px;width:100px;height:50px;background:E\"></div>'",
     "document.getElementById('h').shadowRoot.firstChild"},
    {"ZoomedByStyle", "<div id=e style='left:40px;top:30px;width:100px;height:50px'></div>",
     "document.documentElement.style.zoom = 1.5"},
    {"Transformed", "<div id=e style='left:80px;top:60px;width:100px;height:60px;transform:scale(2)'></div>"},
    {"ZoomedPage", "<div id=e style='left:1900px;top:2500px;width:101px;height:53px'></div>", "scrollTo(1700, 2400)",
     "document.getElementById('e')", true, 2},
    {"ZoomedPageCut", "<div id=e style='left:calc(100vw - 60px);top:-20px;width:100px;height:50px'></div>", "",
     "document.getElementById('e')", true, 3},
    {"ZoomedPageWithFrames", nestedFrames, scrollNestedFrames, inNestedFrame, true, 3},
};

struct Rect {
  double x, y, width, height;
};

Rect rectFrom(const QJsonValue& value) {
  const QJsonObject object = value.toObject();
  return {object["x"].toDouble(), object["y"].toDouble(), object["width"].toDouble(), object["height"].toDouble()};
}

/// The rule for edges that are not where a pixel begins.
class EdgeRule {
public:
  explicit EdgeRule(double scale) : m_scale(scale) {}

  /// Whether an edge that is said to be at `said` may be found before pixel `found`. `viewEnd` is where the view ends.
  bool allows(double said, int found, int viewEnd) const {
    if (m_scale != std::floor(m_scale)) {
      return std::abs(said - found) <= 1;  // The view itself begins within a pixel.
    }
    if (found == viewEnd) {
      return std::abs(said - found) < m_scale;  // Pages know the view's size in whole CSS pixels.
    }
    const double layoutUnit = 1 / 32.0;
    return found >= std::floor(said + layoutUnit) && found <= std::ceil(said - layoutUnit);
  }

private:
  double m_scale;
};

std::string described(const Rect& rect, const PaintedArea& area) {
  return QStringLiteral("said %1,%2 %3x%4; on the screen %5,%6 %7x%8, %9 pixels")
      .arg(rect.x)
      .arg(rect.y)
      .arg(rect.width)
      .arg(rect.height)
      .arg(area.bounds.x())
      .arg(area.bounds.y())
      .arg(area.bounds.width())
      .arg(area.bounds.height())
      .arg(area.pixels)
      .toStdString();
}

class OnScreen : public testing::TestWithParam<std::tuple<double, Case>> {
protected:
  void SetUp() override {
    m_browser = &ScreenBrowser::withScale(std::get<0>(GetParam()));
    ASSERT_EQ(m_browser->error(), QString());
    // No case finds the colours of another one on the screen.
    static int number = 0;
    ++number;
    m_colour = QColor::fromHsv(300 + number % 50, 255, 255 - number / 50);
    m_background = QColor::fromHsv(150 + number % 50, 90, 200 - number / 50);
  }

  void TearDown() override {
    if (testCase().zoomSteps > 0) {
      EXPECT_EQ(m_browser->zoomPage(0), QString());
    }
  }

  static const Case& testCase() { return std::get<1>(GetParam()); }

  QString inColours(const char* text) const {
    return QString::fromUtf8(text).replace(QLatin1String("background:E"),
                                           QLatin1String("background:") + m_colour.name());
  }

  void show() {
    const QString head = QStringLiteral(
                             "<!DOCTYPE html><style>html{background:%1;overflow:hidden}"
                             "body{margin:0;min-width:4000px;min-height:4000px}#e{position:absolute;background:%2}"
                             "</style>")
                             .arg(m_background.name(), m_colour.name());
    ASSERT_EQ(m_browser->load(head + inColours(testCase().body)), QString());
    if (testCase().zoomSteps > 0) {
      ASSERT_EQ(m_browser->zoomPage(testCase().zoomSteps), QString());
    }
    const QString setUp = QStringLiteral("(function () { %1; return true; })()").arg(inColours(testCase().setUp));
    ASSERT_EQ(m_browser->evaluate(setUp), QJsonValue(true));
  }

  bool covers(const Rect& rect, const PaintedArea& area) const {
    const EdgeRule rule(std::get<0>(GetParam()));
    const QPoint end = ScreenBrowser::windowArea().bottomRight() + QPoint(1, 1);
    return area.isFilled() && rule.allows(rect.x, area.bounds.left(), end.x()) &&
           rule.allows(rect.y, area.bounds.top(), end.y()) &&
           rule.allows(rect.x + rect.width, area.bounds.right() + 1, end.x()) &&
           rule.allows(rect.y + rect.height, area.bounds.bottom() + 1, end.y());
  }

  Rect ask(const char* function, const char* argument) const {
    return rectFrom(
        m_browser->evaluate(QStringLiteral("%1(%2)").arg(QLatin1String(function), QLatin1String(argument))));
  }

  /// Chromium tells the size of its window in other units than that of the view once the page is zoomed, so that the
  /// view is said to begin elsewhere. Everything else holds: this moves the rectangle by that difference.
  void moveToRealView(const PaintedArea& page, Rect* rect) const {
    if (testCase().zoomSteps == 0 || TestSupport::isFirefox()) {
      return;
    }
    const Rect view = ask("__corvex__getViewportScreenPosition", "document, window");
    rect->x += page.bounds.x() - view.x;
    rect->y += page.bounds.y() - view.y;
  }

  ScreenBrowser* m_browser = nullptr;
  QColor m_colour;
  QColor m_background;
};

TEST_P(OnScreen, TheColourIsWhereTheElementIsSaidToBe) {
  show();
  if (HasFatalFailure()) {
    return;
  }
  Rect said = {};
  PaintedArea found;
  const auto look = [&] {
    const QImage shown = m_browser->screen().grab();
    const PaintedArea page = paintedArea(shown, m_background.rgb());
    said = ask("__corvex__getScreenRectAsObject", testCase().element);
    moveToRealView(page, &said);
    found = paintedArea(shown, m_colour.rgb());
    if (!testCase().isOnScreen) {
      return !page.isEmpty() && found.isEmpty() && said.x == -1 && said.y == -1 && said.width == -1 &&
             said.height == -1;
    }
    return covers(said, found);
  };
  // Once more after further frames: the first look may have met the page on its way.
  EXPECT_TRUE(m_browser->waitForPainted(look) && m_browser->waitForPainted(look)) << described(said, found);
}

class Pictures : public testing::TestWithParam<double> {};

TEST_P(Pictures, ShowTheElementAndNothingElse) {
  const struct {
    const char* element;
    QSize size;
    QRgb colour;
  } elements[] = {
      {"document.getElementById('plain')", {40, 24}, qRgb(200, 0, 0)},
      {"document.getElementById('below')", {80, 44}, qRgb(0, 200, 0)},
      {"document.getElementById('boxed')", {60, 20}, qRgb(0, 0, 200)},
      {"(" IN_FRAME ").getElementById('f').contentDocument.getElementById('e')", {72, 32}, qRgb(200, 0, 200)},
      {"document.getElementById('plain')", {40, 24}, qRgb(200, 0, 0)},
  };
  const QString page =
      QStringLiteral(
          "<!DOCTYPE html><style>body{margin:0;background:white}div{position:absolute}</style>"
          "<div id=plain style='left:8px;top:4px;width:40px;height:24px;background:rgb(200,0,0)'></div>"
          "<div id=below style='left:1600px;top:3000px;width:80px;height:44px;background:rgb(0,200,0)'></div>"
          "<div style='left:60px;top:60px;width:200px;height:100px;overflow:scroll'>"
          "<div style='width:900px;height:900px'></div>"
          "<div id=boxed style='left:400px;top:400px;width:60px;height:20px;background:rgb(0,0,200)'></div>"
          "</div>") +
      QString::fromUtf8(nestedFrames)
          .replace(QLatin1String("left:320px;top:230px;width:70px;height:33px"),
                   QLatin1String("left:320px;top:232px;width:72px;height:32px"))
          .replace(QLatin1String("left:32px;top:16px"), QLatin1String("left:400px;top:400px"))
          .replace(QLatin1String("background:E"), QLatin1String("background:rgb(200,0,200)"));
  ScreenBrowser& browser = ScreenBrowser::withScale(GetParam());
  ASSERT_EQ(browser.error(), QString());
  ASSERT_EQ(browser.load(page), QString());
  for (const auto& element : elements) {
    QString error;
    const QImage picture =
        browser.pictureOf(QLatin1String(element.element), &error).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(error, QString()) << element.element;
    EXPECT_EQ(picture.size(), element.size * GetParam()) << element.element;
    const PaintedArea area = paintedArea(picture, element.colour);
    EXPECT_EQ(area.pixels, picture.width() * picture.height()) << element.element;
  }
}

INSTANTIATE_TEST_SUITE_P(Geometry, Pictures, testing::Values(1.0, 2.0, 1.5), [](const auto& instance) {
  return "At" + std::to_string(static_cast<int>(instance.param * 100));
});

INSTANTIATE_TEST_SUITE_P(Geometry, OnScreen, testing::Combine(testing::Values(1.0, 2.0, 1.5), testing::ValuesIn(cases)),
                         [](const auto& instance) {
                           const int percent = static_cast<int>(std::get<0>(instance.param) * 100);
                           return std::get<1>(instance.param).name + ("At" + std::to_string(percent));
                         });

}  // namespace
