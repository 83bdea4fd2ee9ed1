#include "wrappers/web/setup/wrapperconfig.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/environment.h"
#include "support/files.h"
#include "support/freshprocess.h"
#include "support/messagecapture.h"
#include "support/printing.h"

using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

QString toText(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
QString toText(int value) { return QString::number(value); }
QString toText(const QString& value) { return QLatin1Char('"') + value + QLatin1Char('"'); }

template <auto Getter>
QString get(const WrapperConfig& config) {
  return toText((config.*Getter)());
}

/// One value: its key, its default and another value as a file holds them, and whether a process reads it only once.
struct Row {
  const char* key;
  QString (*get)(const WrapperConfig&);
  const char* standard;
  const char* other;
  bool cached;
};

using W = WrapperConfig;
const Row rows[] = {
    {"EnableObjectInfoOverlay", get<&W::enableObjectInfoOverlay>, "false", "true", true},
    {"DynamicTextNodeFilter", get<&W::filterNonElementNodes>, "true", "false", true},
    {"ProxyListenAddress", get<&W::proxyListenAddress>, "\"localhost:8001\"", "\"a:1\"", false},
    {"ProxyConnectAddress", get<&W::proxyInternalCommAddress>, "\"localhost:8000\"", "\"b:2\"", false},
    {"ProxyStartBrowser", get<&W::proxyStartBrowser>, "true", "false", false},
    {"ProxyDebugOutput", get<&W::proxyDebugOutput>, "false", "true", false},
    {"ProxyImplicitStart", get<&W::proxyStartProxy>, "true", "false", false},
    {"HookNewWindows", get<&W::hookNewWindows>, "false", "true", true},
    {"DebugJavaScriptExecution", get<&W::debugJavaScriptExecution>, "false", "true", true},
    {"CaseInsensitiveXPathNodeNameMatching", get<&W::caseInsensitiveXPathNodeNameMatching>, "true", "false", true},
    {"BackwardsCompatibleVisiblePropertyForHTML_Object", get<&W::backwardsCompatibleVisiblePropertyForHTML_Object>,
     "false", "true", true},
    {"InternetExplorerReadyStateTimeout", get<&W::internetExplorerReadyStateTimeout>, "5000", "7", false},
    {"OpenFirefoxWithConsole", get<&W::openFirefoxWithConsole>, "false", "true", false},
    {"ImprovedTabAndWindowSupport", get<&W::improvedTabAndWindowSupport>, "true", "false", true},
    {"SupportSinglePropertyNaming", get<&W::supportSinglePropertyNaming>, "false", "true", false},
    {"ThrowErrorOnUnknownContextNames", get<&W::throwErrorOnUnknownContextNames>, "true", "false", true},
    {"EnableBrowserDebugging", get<&W::enableBrowserDebugging>, "false", "true", true},
    {"ChromeDriverForChromiumBasedApps", get<&W::chromeDriverForChromiumBasedApps>, "\"chromedriver\"", "\"mine\"",
     false},
    {"IncludeIdPropertyInGeneratedNames", get<&W::includeIdPropertyInGeneratedNames>, "true", "false", false},
    {"UseSessionStorageForEvents", get<&W::useSessionStorageForEvents>, "false", "true", true},
};

/// All values, one "key = value" line each: the very text of a settings file.
QString valuesOf(const WrapperConfig& config) {
  QString text;
  for (const Row& row : rows) {
    text += QStringLiteral("%1 = %2\n").arg(QLatin1String(row.key), row.get(config));
  }
  return text;
}

enum class Which { Standard, Other, OtherUnlessCached };

QString expectedValues(Which which) {
  QString text;
  for (const Row& row : rows) {
    const bool standard = which == Which::Standard || (which == Which::OtherUnlessCached && row.cached);
    text += QStringLiteral("%1 = %2\n").arg(QLatin1String(row.key), QLatin1String(standard ? row.standard : row.other));
  }
  return text;
}

class FileSystemBasedConfigTest : public testing::Test {
protected:
  bool writeGlobal(const QString& values) const { return write(QStringLiteral("prefix/etc/webwrapper.ini"), values); }
  bool writeUser(const QString& values) const { return write(QStringLiteral("user/ver1/webwrapper.ini"), values); }

private:
  bool write(const QString& name, const QString& values) const {
    return writeFile(m_directory.filePath(name), "[General]\n" + values.toUtf8());
  }

  QTemporaryDir m_directory;
  ScopedVariable m_prefix{"CORVEX_PREFIX", m_directory.filePath(QStringLiteral("prefix")).toUtf8()};
  ScopedVariable m_user{"CORVEX_USER_SETTINGS_DIR", m_directory.filePath(QStringLiteral("user")).toUtf8()};
  ScopedVariable m_newWindowHook{"CORVEX_WEB_NEWWINDOWHOOK", QByteArray()};
};

QString readAll() { return valuesOf(FileSystemBasedConfig()); }

}  // namespace

TEST(MemoryBasedConfigTest, StartsWithTheDefaultsAndIgnoresTheEnvironment) {
  const ScopedVariable variable("CORVEX_WEB_NEWWINDOWHOOK", "1");
  EXPECT_EQ(valuesOf(MemoryBasedConfig()), expectedValues(Which::Standard));
}

TEST(MemoryBasedConfigTest, EachSetterSetsItsOwnValue) {
  using M = MemoryBasedConfig;
  // In the order of the rows; the last value has no setter.
  void (*const setters[])(M&) = {
      [](M& c) { c.setObjectInfoOverlayEnabled(true); },
      [](M& c) { c.setFilterNonElementNodes(false); },
      [](M& c) { c.setProxyListenAddress(QStringLiteral("a:1")); },
      [](M& c) { c.setProxyInternalCommAddress(QStringLiteral("b:2")); },
      [](M& c) { c.setProxyStartBrowser(false); },
      [](M& c) { c.setProxyDebugOutput(true); },
      [](M& c) { c.setProxyStartProxy(false); },
      [](M& c) { c.setHookNewWindows(true); },
      [](M& c) { c.setDebugJavaScriptExecution(true); },
      [](M& c) { c.setCaseInsensitiveXPathNodeNameMatching(false); },
      [](M& c) { c.setBackwardsCompatibleVisiblePropertyForHTML_Object(true); },
      [](M& c) { c.setInternetExplorerReadyStateTimeout(7); },
      [](M& c) { c.setOpenFirefoxWithConsole(true); },
      [](M& c) { c.setImprovedTabAndWindowSupport(false); },
      [](M& c) { c.setSupportSinglePropertyNaming(true); },
      [](M& c) { c.setThrowErrorOnUnknownContextNames(false); },
      [](M& c) { c.setEnableBrowserDebugging(true); },
      [](M& c) { c.setChromeDriverForChromiumBasedApps(QStringLiteral("mine")); },
      [](M& c) { c.setIncludeIdProperty(false); },
  };
  ASSERT_EQ(std::size(setters) + 1, std::size(rows));
  for (std::size_t set = 0; set < std::size(setters); ++set) {
    MemoryBasedConfig config;
    setters[set](config);
    for (std::size_t i = 0; i < std::size(rows); ++i) {
      EXPECT_EQ(rows[i].get(config), QLatin1String(i == set ? rows[i].other : rows[i].standard)) << rows[i].key;
    }
  }
}

// What FileSystemBasedConfig remembers per process must not reach the next case: it is used in fresh processes only.

TEST_F(FileSystemBasedConfigTest, AnswersTheDefaultsWithoutFiles) {
  EXPECT_EQ(inFreshProcess(readAll), expectedValues(Which::Standard));
}

TEST_F(FileSystemBasedConfigTest, ReadsEveryKeyOfEitherFile) {
  ASSERT_TRUE(writeUser(expectedValues(Which::Other)));
  EXPECT_EQ(inFreshProcess(readAll), expectedValues(Which::Other));
  ASSERT_TRUE(writeUser(QString()) && writeGlobal(expectedValues(Which::Other)));
  EXPECT_EQ(inFreshProcess(readAll), expectedValues(Which::Other));
}

TEST_F(FileSystemBasedConfigTest, TheUsersFileWins) {
  ASSERT_TRUE(writeGlobal(expectedValues(Which::Other)) && writeUser(expectedValues(Which::Standard)));
  EXPECT_EQ(inFreshProcess(readAll), expectedValues(Which::Standard));
}

TEST_F(FileSystemBasedConfigTest, UnusableValuesFallThroughToTheNextFile) {
  QString unusable;
  for (const Row& row : rows) {
    unusable += QStringLiteral("%1 = maybe\n").arg(QLatin1String(row.key));
  }
  const auto readQuietly = [] {
    const MessageCapture capture;
    return readAll();
  };
  ASSERT_TRUE(writeUser(unusable) && writeGlobal(expectedValues(Which::Other)));
  EXPECT_EQ(inFreshProcess(readQuietly), expectedValues(Which::Other));
  ASSERT_TRUE(writeGlobal(unusable));
  EXPECT_EQ(inFreshProcess(readQuietly), expectedValues(Which::Standard));
}

TEST_F(FileSystemBasedConfigTest, CachedValuesKeepTheirFirstAnswerForTheProcess) {
  const QString second = inFreshProcess([this] {
    readAll();
    return writeUser(expectedValues(Which::Other)) ? readAll() : QStringLiteral("not written");
  });
  EXPECT_EQ(second, expectedValues(Which::OtherUnlessCached));
}

TEST_F(FileSystemBasedConfigTest, TheEnvironmentCanOnlyTurnNewWindowHookingOn) {
  const struct {
    const char* variable;
    const char* file;
    const char* expected;
  } cases[] = {{"1", "false", "true"}, {"true", "false", "false"}, {"01", "false", "false"},
               {"", "false", "false"}, {"0", "true", "true"},      {"1", "true", "true"}};
  for (const auto& row : cases) {
    const ScopedVariable variable("CORVEX_WEB_NEWWINDOWHOOK", row.variable);
    ASSERT_TRUE(writeUser(QStringLiteral("HookNewWindows = %1\n").arg(QLatin1String(row.file))));
    EXPECT_EQ(inFreshProcess([] { return toText(FileSystemBasedConfig().hookNewWindows()); }),
              QLatin1String(row.expected))
        << row.variable << ' ' << row.file;
  }
}

TEST_F(FileSystemBasedConfigTest, OnlyTheFirstCallLooksAtTheEnvironment) {
  EXPECT_EQ(inFreshProcess([] {
              const FileSystemBasedConfig config;
              const QString first = toText(config.hookNewWindows());
              const ScopedVariable variable("CORVEX_WEB_NEWWINDOWHOOK", "1");
              return first + toText(config.hookNewWindows());
            }),
            QStringLiteral("falsefalse"));
}
