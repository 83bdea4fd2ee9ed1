#include "wrappers/web/setup/getjscode.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QJSEngine>
#include <QTemporaryDir>

#include "corvexhook/inspector.h"
#include "support/environment.h"
#include "support/files.h"
#include "support/printing.h"
#include "wrappers/web/setup/wrapperconfig.h"

using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

const QString frameworkCode = QStringLiteral("/* framework code */");

class GetJSCodeTest : public testing::Test {
protected:
  GetJSCodeTest() { Corvex::Inspector::self()->setExtensionCode(frameworkCode); }
  ~GetJSCodeTest() override { Corvex::Inspector::self()->setExtensionCode(QString()); }

  QString extension(const char* name) const { return m_directory.filePath(extensions + QLatin1String(name)); }
  void write(const char* name, const QByteArray& content) const { ASSERT_TRUE(writeFile(extension(name), content)); }
  QString root() const { return m_directory.path(); }

  static QString code(bool caseInsensitive = true) {
    MemoryBasedConfig config;
    config.setCaseInsensitiveXPathNodeNameMatching(caseInsensitive);
    return getJSCode(config);
  }

  /// The part before the extension texts, when these are `texts` joined; null when they don't stand there.
  static QString baseBefore(const QString& code, const QString& texts) {
    const int at =
        code.indexOf(QLatin1Char('\n') + texts + QStringLiteral("\n\n") + frameworkCode + QStringLiteral("\n\n"));
    return at < 0 ? QString() : code.left(at);
  }

private:
  const QString extensions = QStringLiteral("lib/extensions/web/");
  QTemporaryDir m_directory;
  ScopedVariable m_prefix{"CORVEX_PREFIX", m_directory.path().toUtf8()};
};

/// Gives up the right to read everything, if this process has it, as long as it lives.
class WithoutPrivileges {
public:
  WithoutPrivileges() : m_wasRoot(geteuid() == 0) {
    if (m_wasRoot) {
      m_dropped = seteuid(65534) == 0;
    }
  }
  ~WithoutPrivileges() {
    if (m_dropped && seteuid(0) != 0) {
      abort();
    }
  }
  bool worked() const { return !m_wasRoot || m_dropped; }

private:
  bool m_wasRoot;
  bool m_dropped = false;
};

}  // namespace

TEST_F(GetJSCodeTest, PartsStandInTheirOrder) {
  const QString text = code();
  const QString base = baseBefore(text, QString());
  ASSERT_FALSE(base.isEmpty());
  EXPECT_TRUE(base.contains(QStringLiteral("__corvex__isHooked")));
  EXPECT_TRUE(base.contains(QStringLiteral("__corvex__parseCSSColor")));
  EXPECT_TRUE(text.mid(base.size()).contains(QStringLiteral("xpathDomEval")));
}

TEST_F(GetJSCodeTest, EndsWithTheCaseFlag) {
  const QString ending = QStringLiteral("\ntop.__corvex__xpath__caseInSensitiveMatching = %1;");
  EXPECT_TRUE(code(true).endsWith(ending.arg(1)));
  EXPECT_TRUE(code(false).endsWith(ending.arg(0)));
}

TEST_F(GetJSCodeTest, TakesExtensionFilesInNameOrderIgnoringCase) {
  write("b.js", "b\n");
  write("A.js", "A \xc3\xbc\xff");
  write("c.JS", "no");
  write("d.js.bak", "no");
  write("x.js/inner.js", "no");
  write("z.js", "");
  EXPECT_FALSE(baseBefore(code(), QString::fromUtf8("A \xc3\xbc\xef\xbf\xbd\nb\n\n")).isEmpty());
}

TEST_F(GetJSCodeTest, ReadsTheDirectoryAnewAndKeepsTheBase) {
  const QString base = baseBefore(code(), QString());
  write("a.js", "first");
  EXPECT_EQ(baseBefore(code(), QStringLiteral("first")), base);
  write("a.js", "changed");
  write("b.js", "%1");
  EXPECT_EQ(baseBefore(code(), QStringLiteral("changed\n%1")), base);
}

TEST_F(GetJSCodeTest, ReportsAnUnreadableFileAndGoesOn) {
  write("a.js", "secret");
  write("b.js", "b");
  ASSERT_EQ(chmod(root().toUtf8().constData(), 0755), 0);
  ASSERT_EQ(chmod(extension("a.js").toUtf8().constData(), 0), 0);
  testing::internal::CaptureStderr();
  QString text;
  {
    const WithoutPrivileges unprivileged;
    EXPECT_TRUE(unprivileged.worked());
    text = code();
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Failed to read JavaScript extension: " + extension("a.js").toStdString() + "\n");
  EXPECT_FALSE(baseBefore(text, QStringLiteral("\nb")).isEmpty());
}

TEST(GetCorvexJsNamespaceInitCodeTest, MakesTheNamespaceOnce) {
  int argc = 0;
  const QCoreApplication application(argc, nullptr);
  QJSEngine engine;
  const auto evaluate = [&engine](const QString& code) {
    const QJSValue value = engine.evaluate(code);
    EXPECT_FALSE(value.isError()) << value.toString().toStdString();
    return value.toString();
  };
  const QString describe = QStringLiteral("JSON.stringify(window.top.__corvex)");
  evaluate(QStringLiteral("var window = {}; window.top = window; 0"));
  evaluate(getCorvexJsNamespaceInitCode());
  EXPECT_EQ(evaluate(QStringLiteral("Object.keys(window.top.__corvex).sort().join()")),
            QStringLiteral("addGlassPaneClassName,addGlassPaneId,"
                           "glassPaneClassNames,glassPaneIds,lastTouches"));
  EXPECT_EQ(evaluate(describe), QStringLiteral("{\"glassPaneIds\":[],\"lastTouches\":null,"
                                               "\"glassPaneClassNames\":[]}"));

  evaluate(
      QStringLiteral("['a', 'b', 'a'].forEach(function (name) {"
                     "  window.top.__corvex.addGlassPaneId(name);"
                     "  window.top.__corvex.addGlassPaneClassName('c' + name); }); 0"));
  evaluate(getCorvexJsNamespaceInitCode());
  EXPECT_EQ(evaluate(describe), QStringLiteral("{\"glassPaneIds\":[\"a\",\"b\"],\"lastTouches\":null,"
                                               "\"glassPaneClassNames\":[\"ca\",\"cb\"]}"));
}
