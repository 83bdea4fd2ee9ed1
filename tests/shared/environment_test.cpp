#include "shared/environment.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/environment.h"
#include "support/printing.h"

using namespace Corvex;
using TestSupport::ScopedVariable;

TEST(Environment, ExpandsOnlyNamedVariablesThatHaveAValue) {
  const ScopedVariable set("CORVEX_TEST_A", "value $(CORVEX_TEST_A)");
  const ScopedVariable empty("CORVEX_TEST_B", "");
  const ScopedVariable unset("CORVEX_TEST_C", QByteArray());
  const struct {
    const char* text;
    const char* expected;
  } rows[] = {
      {"", ""},
      {"plain", "plain"},
      {"<$(CORVEX_TEST_A)>", "<value $(CORVEX_TEST_A)>"},
      {"$(CORVEX_TEST_B)$(CORVEX_TEST_C)!", "$(CORVEX_TEST_B)$(CORVEX_TEST_C)!"},
      {"$$HOME", "$HOME"},
      {"$$(CORVEX_TEST_A)", "$(CORVEX_TEST_A)"},
      {"$$$$", "$$"},
      {"$HOME $", "$HOME $"},
      {"$(CORVEX_TEST_A", "$(CORVEX_TEST_A"},
      {"$()", "$()"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(expandEnvironmentVariables(QLatin1String(row.text)), QLatin1String(row.expected)) << row.text;
  }
}

TEST(Environment, SettingsDirectoryComesFromTheVariableAndIsMade) {
  const QTemporaryDir directory;
  const QString wanted = directory.filePath(QStringLiteral("a/b"));
  const ScopedVariable variable("CORVEX_USER_SETTINGS_DIR", wanted.toUtf8());
  EXPECT_EQ(userSettingsDir(), wanted + QStringLiteral("/ver1"));
  EXPECT_TRUE(QDir(wanted).exists());
}

TEST(Environment, SettingsDirectoryFallsBackToTheHomeDirectory) {
  const QTemporaryDir home;
  const ScopedVariable homeVariable("HOME", home.path().toUtf8());
  const ScopedVariable empty("CORVEX_USER_SETTINGS_DIR", "");
  EXPECT_EQ(settingsDir(), home.path());
  EXPECT_EQ(corvexSettingsDir(), home.filePath(QStringLiteral(".corvex")));
}
