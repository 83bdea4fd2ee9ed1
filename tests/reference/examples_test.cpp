// The examples of the reference, each as a test function of one script, so that they share a browser. They are written
// for a site at localhost:8000, and for pages that are as they were.

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>

#include <memory>

#include "support/files.h"
#include "support/programrun.h"
#include "support/testserver.h"
#include "support/virtualscreen.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;
using TestSupport::readFile;
using TestSupport::TestServer;
using TestSupport::VirtualScreen;

const QString reference = QStringLiteral(CORVEX_TEST_SOURCE "/../docs/reference/");
const QString screenPage = QStringLiteral("pointer-and-keyboard-of-the-screen.md");

QString textOf(const QString& path) { return QString::fromUtf8(readFile(path)); }

QString asFunction(const QString& name, const QString& code) {
  return QStringLiteral("function test_%1() {\n  %2\n}\n")
      .arg(QString(name).replace(QRegularExpression(QStringLiteral("\\W")), QStringLiteral("_")),
           QString(code).replace(QLatin1Char('\n'), QLatin1String("\n  ")));
}

/// Test functions with the names of the headings that the examples stand below.
QStringList examplesOf(const QString& page) {
  static const QRegularExpression part(
      QStringLiteral("^## (?<heading>[^\\n]+)$|^```js\\n(?<code>.*?)\\n```$"),
      QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
  QString heading;
  QStringList functions;
  for (auto parts = part.globalMatch(textOf(reference + page)); parts.hasNext();) {
    const QRegularExpressionMatch match = parts.next();
    const QString code = match.captured(QStringLiteral("code"));
    if (code.isEmpty()) {
      heading = match.captured(QStringLiteral("heading"));
    } else {
      const QString name = QStringLiteral("%1_%2").arg(QString(page).chopped(3), heading);
      functions << asFunction(name + QLatin1Char('_') + QString::number(functions.size()), code);
    }
  }
  return functions;
}

/// The site of the examples, and a folder with what they use.
class Examples : public testing::Test {
protected:
  Examples() {
    m_server.serveFolder(reference + QStringLiteral("examples"));
    m_program.write(QStringLiteral("people.csv"), QStringLiteral("name,town\nAda,London\nGrace,New York\n"));
    m_program.write(QStringLiteral("photo.png"), QStringLiteral("a picture"));
    m_program.write(QStringLiteral("lib/greeting.js"),
                    QStringLiteral("function greeting(name) { return 'Hello, ' + name; }\n"));
    const QDir shipped(QStringLiteral(CORVEX_TEST_SOURCE "/../extensions/web"));
    for (const QString& file : shipped.entryList({QStringLiteral("*.js")})) {
      addExtension(shipped.filePath(file));
    }
    addExtension(reference + QStringLiteral("examples/widgets.js"));
    m_program.setEnvironment(QStringLiteral("CORVEX_PREFIX"), m_program.folder());
  }

  void addExtension(const QString& file) {
    m_program.write(QStringLiteral("lib/extensions/web/") + QFileInfo(file).fileName(), textOf(file));
  }

  ProgramRun& program() { return m_program; }

  void run(const QStringList& functions, const QStringList& options) {
    QString script = QStringLiteral(
                         "startBrowser('http://localhost:8000/shop.html');\n"
                         "function setUp() { openUrl('http://localhost:8000/shop.html'); }\n") +
                     functions.join(QString());
    script.replace(QLatin1String("http://localhost:8000"), m_server.url(QString()));
    m_program.write(QStringLiteral("examples.js"), script);
    const QString browser = qEnvironmentVariable("CORVEX_TEST_BROWSER", QStringLiteral("chromium"));
    const ProgramResult result =
        m_program.run(QStringList{QStringLiteral("run"), QStringLiteral("--browser"), browser} + options +
                      QStringList{QStringLiteral("examples.js")});
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output + result.errors);
    EXPECT_TRUE(result.output.contains(QLatin1String(", 0 failed; ")));
  }

private:
  TestServer m_server;
  ProgramRun m_program;
};

}  // namespace

TEST_F(Examples, DoAsTheySay) {
  QStringList functions;
  for (const QString& page : QDir(reference).entryList({QStringLiteral("*.md")})) {
    functions += page == screenPage ? QStringList() : examplesOf(page);
  }
  ASSERT_GT(functions.size(), 100);
  run(functions, {QStringLiteral("--timeout"), QStringLiteral("5")});
}

TEST_F(Examples, DoAsTheySayOnAScreen) {
  const VirtualScreen screen(QSize(1280, 1024));
  ASSERT_EQ(screen.error(), QString());
  program().setEnvironment(QStringLiteral("DISPLAY"), QString::fromLatin1(screen.display()));
  const QStringList functions = examplesOf(screenPage);
  ASSERT_EQ(functions.size(), 3);
  run(functions, {QStringLiteral("--headed")});
}
