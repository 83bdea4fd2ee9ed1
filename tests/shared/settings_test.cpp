#include "shared/settings.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/environment.h"
#include "support/files.h"
#include "support/messagecapture.h"
#include "support/printing.h"

using namespace Corvex;
using namespace TestSupport;

namespace {

const QString general = Settings::defaultGroup();

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

class SettingsTest : public testing::Test {
protected:
  QString path(const char* name = "test.ini") const { return m_directory.filePath(text(name)); }
  QString write(const QByteArray& content) {
    EXPECT_TRUE(writeFile(path(), content));
    return path();
  }

private:
  QTemporaryDir m_directory;
};

}  // namespace

TEST_F(SettingsTest, ReadsGroupsCommentsAndValues) {
  const MessageCapture capture;
  const Settings settings(
      write("\xef\xbb\xbf# comment = 1\r\n"
            "\r\n"
            "  [General]  \r\n"
            "\tName =  \"a = b\"  \r\n"
            "Count = 12\r\n"
            "[Other\n"
            "Count=3\n"
            "[General]\n"
            "# Name = \"no\"\n"
            "Count = 13\n"
            "Umlaut = \"\xc3\xbc\""));
  EXPECT_EQ(capture.messages(), QStringList());
  EXPECT_EQ(settings.groupList(), QStringList({text("General"), text("Other")}));
  EXPECT_EQ(settings.readEntry(general, text("Name")), text("a = b"));
  EXPECT_EQ(settings.readEntry(general, text("Umlaut")), text("\xc3\xbc"));
  EXPECT_EQ(settings.readNumEntry(general, text("Count")), 13);
  EXPECT_EQ(settings.readNumEntry(text("Other"), text("Count")), 3);
  EXPECT_EQ(settings.readNumEntry(text("None"), text("Count"), 7), 7);
  EXPECT_EQ(settings.readEntry(general, text("count"), text("default")), text("default"));
}

TEST_F(SettingsTest, SkipsBrokenLinesWithAWarningAndKeepsTheRest) {
  const MessageCapture capture;
  const Settings settings(write(" early = 1\n[General]\nA = 1\n no value \nB = 2\n"));
  const QString file = path();
  EXPECT_EQ(capture.messages(), QStringList({text("Corvex::Settings::parse: in file %1: line "
                                                  "`early = 1' not in a group")
                                                 .arg(file),
                                             text("Corvex::Settings::parse: in file %1: corrupted "
                                                  "line `no value' in group `General'")
                                                 .arg(file)}));
  EXPECT_EQ(settings.entryList(general, QString()), QStringList({text("A"), text("B")}));
}

TEST_F(SettingsTest, MissingFileIsSilentAndAnUnreadableOneIsNot) {
  {
    const MessageCapture capture;
    EXPECT_TRUE(Settings(path("missing.ini")).groupList().isEmpty());
    EXPECT_EQ(capture.messages(), QStringList());
  }
  const MessageCapture capture;
  ASSERT_TRUE(QDir().mkpath(path("directory.ini")));
  EXPECT_TRUE(Settings(path("directory.ini")).groupList().isEmpty());
  EXPECT_EQ(
      capture.messages(),
      QStringList(text("Corvex::Settings::parse: could not open file `%1' for reading").arg(path("directory.ini"))));
}

TEST_F(SettingsTest, AFileThatIsNoTextIsReportedAndKept) {
  const QByteArray content = "[General]\nA = \"\xe9\"\n";
  const QString file = write(content);
  const MessageCapture capture;
  {
    Settings settings(file);
    EXPECT_TRUE(settings.groupList().isEmpty());
    settings.writeEntry(general, text("B"), 1);
  }
  EXPECT_EQ(capture.messages(),
            QStringList({text("Corvex::Settings::parse: in file %1: line 2 is no UTF-8 text").arg(file),
                         text("Corvex::Settings::flush: could not open file `%1' for writing").arg(file)}));
  EXPECT_EQ(TestSupport::readFile(file), content);
}

TEST_F(SettingsTest, ReadsBooleans) {
  const struct {
    const char* raw;
    bool whenDefaultIsTrue;
    bool whenDefaultIsFalse;
  } rows[] = {
      {"2", true, true},       {"0", false, false},        {"-1", true, true},       {"\"0\"", false, false},
      {"TRUE", true, true},    {"False", false, false},    {"\"true\"", true, true}, {"\"false", false, false},
      {"maybe", true, false},  {"", true, false},          {"0x0", true, false},     {"\"\"", true, false},
      {"\" 1 \"", true, true}, {"\"true \"", true, false},
  };
  for (const auto& row : rows) {
    const Settings settings(write(QByteArray("[General]\nFlag = ") + row.raw));
    EXPECT_EQ(settings.readBoolEntry(general, text("Flag"), true), row.whenDefaultIsTrue) << row.raw;
    EXPECT_EQ(settings.readBoolEntry(general, text("Flag"), false), row.whenDefaultIsFalse) << row.raw;
  }
}

TEST_F(SettingsTest, ReadsNumbers) {
  const struct {
    const char* raw;
    int number;
    double real;
  } rows[] = {{"12", 12, 12},   {"-3", -3, -3},    {"1.5", 77, 1.5}, {"\"5\"", 77, 88},
              {"0x10", 77, 88}, {"12 ms", 77, 88}, {"", 77, 88},     {"99999999999", 77, 99999999999.0}};
  for (const auto& row : rows) {
    const Settings settings(write(QByteArray("[General]\nValue = ") + row.raw));
    EXPECT_EQ(settings.readNumEntry(general, text("Value"), 77), row.number) << row.raw;
    EXPECT_EQ(settings.readDoubleEntry(general, text("Value"), 88), row.real) << row.raw;
  }
}

TEST_F(SettingsTest, UnusableStringsGiveTheDefault) {
  const MessageCapture capture;
  const Settings settings(write("[General]\nBare = word\nTwo = \"a\" \"b\"\n"));
  EXPECT_EQ(settings.readEntry(general, text("Bare"), text("default")), text("default"));
  EXPECT_EQ(settings.readEntry(general, text("Two"), text("default")), text("default"));
  EXPECT_EQ(settings.readListEntry(general, text("Two")), QStringList({text("a"), text("b")}));
  EXPECT_EQ(settings.readListEntry(general, text("Bare"), {text("x")}), QStringList(text("x")));
  EXPECT_EQ(capture.messages().size(), 3);
}

TEST_F(SettingsTest, NormalisesKeysOnEveryRoad) {
  EXPECT_EQ(Settings::normalizeKey(text("/a//b=c/")), text("a/b_c"));
  EXPECT_EQ(Settings::normalizeKey(text("//a")), text("/a"));
  Settings settings(write("[General]\n/inFile/ = 1\n"));
  settings.writeEntry(general, text("/a/"), 2);
  EXPECT_EQ(settings.readNumEntry(general, text("inFile")), 1);
  EXPECT_EQ(settings.readNumEntry(general, text("/inFile")), 1);
  EXPECT_EQ(settings.readNumEntry(general, text("a")), 2);
  settings.removeEntry(general, text("a/"));
  EXPECT_EQ(settings.entryList(general, QString()), QStringList(text("inFile")));
}

TEST_F(SettingsTest, ListsKeysByLevel) {
  const Settings settings(write("[General]\na/b/c = 1\na/b/d = 1\na/e = 1\nab = 1\na = 1\n"));
  EXPECT_EQ(settings.subkeyList(general, QString()), QStringList(text("a")));
  EXPECT_EQ(settings.entryList(general, text("/")), QStringList({text("a"), text("ab")}));
  EXPECT_EQ(settings.subkeyList(general, text("a")), QStringList(text("b")));
  EXPECT_EQ(settings.entryList(general, text("a")), QStringList(text("e")));
  EXPECT_EQ(settings.entryList(general, text("/a/b/")), QStringList({text("c"), text("d")}));
  EXPECT_TRUE(settings.entryList(text("None"), QString()).isEmpty());
}

TEST_F(SettingsTest, WrittenValuesComeBack) {
  const QString file = path("deep/below/test.ini");
  const QString string = text("a \"b\"\n\\ \xc3\xbc = [x]");
  {
    Settings settings(file);
    settings.writeEntry(general, text("String"), string);
    settings.writeEntry(general, text("Literal"), "text");
    settings.writeEntry(general, text("List"), QStringList({text("x"), QString()}));
    settings.writeEntry(general, text("Number"), -5);
    settings.writeEntry(general, text("Real"), 0.1);
    settings.writeEntry(general, text("Flag"), true);
    settings.writeRawEntry(text("A Group"), text("Raw"), text("as it is"));
  }
  EXPECT_EQ(readFile(file),
            "[A Group]\nRaw = as it is\n"
            "[General]\nFlag = true\nList = \"x\" \"\"\nLiteral = "
            "\"text\"\nNumber = -5\nReal = 0.1\n"
            "String = \"a \\\"b\\\"\\n\\\\ \xc3\xbc = [x]\"\n");
  const Settings settings(file);
  EXPECT_EQ(settings.readEntry(general, text("String")), string);
  EXPECT_EQ(settings.readListEntry(general, text("List")), QStringList({text("x"), QString()}));
  EXPECT_EQ(settings.readDoubleEntry(general, text("Real")), 0.1);
  EXPECT_TRUE(settings.readBoolEntry(general, text("Flag")));
  QString raw;
  EXPECT_TRUE(settings.readRawEntry(text("A Group"), text("Raw"), &raw));
  EXPECT_EQ(raw, text("as it is"));
}

TEST_F(SettingsTest, LeavesAnUnchangedFileAlone) {
  const QByteArray content = "# keep me\n[General]\nA=1\n";
  { Settings(write(content)).flush(); }
  EXPECT_EQ(readFile(path()), content);
}

TEST_F(SettingsTest, FailedFlushWarnsAndKeepsTheChange) {
  const MessageCapture capture;
  const QString blocked = write("a file");
  Settings settings(blocked + text("/sub"), text("x.ini"));
  settings.writeEntry(general, text("A"), 1);
  settings.flush();
  EXPECT_EQ(capture.messages(),
            QStringList(text("Corvex::Settings::flush: could not create directory `%1/sub'.").arg(blocked)));
  EXPECT_TRUE(settings.isDirty());

  QFile::remove(blocked);
  ASSERT_TRUE(QDir().mkpath(blocked + text("/sub/x.ini")));
  settings.flush();
  EXPECT_EQ(capture.messages().last(), text("Corvex::Settings::flush: could not open file `%1/sub/x.ini' "
                                            "for writing")
                                           .arg(blocked));

  ASSERT_TRUE(QDir(blocked + text("/sub/x.ini")).removeRecursively());
  settings.flush();
  EXPECT_FALSE(settings.isDirty());
  EXPECT_EQ(readFile(blocked + text("/sub/x.ini")), "[General]\nA = 1\n");
}

TEST_F(SettingsTest, RemovingFromAnUnknownGroupWarns) {
  const MessageCapture capture;
  Settings settings(path());
  settings.removeEntry(text("None"), text("A"));
  EXPECT_EQ(capture.messages(),
            QStringList(text("Corvex::Settings::removeEntry: group 'None' not found in %1").arg(path())));
  EXPECT_FALSE(settings.isDirty());
}

TEST_F(SettingsTest, ExpandsTheEnvironmentOnlyWhenAsked) {
  const ScopedVariable variable("CORVEX_TEST_A", "there");
  Settings settings(write("[General]\nA = \"$(CORVEX_TEST_A) $$\"\n"));
  EXPECT_EQ(settings.readEntry(general, text("A")), text("$(CORVEX_TEST_A) $$"));
  settings.setExpandEnvironment(true);
  EXPECT_EQ(settings.readEntry(general, text("A")), text("there $"));
}

TEST_F(SettingsTest, StandardFilesLieWhereTheirTypeSays) {
  const ScopedVariable prefix("CORVEX_PREFIX", path("prefix").toUtf8());
  const ScopedVariable user("CORVEX_USER_SETTINGS_DIR", path("user").toUtf8());
  EXPECT_EQ(UserSettings(UserSettingsType::Server).fileName(), path("user/ver1/server.ini"));
  EXPECT_EQ(UserSettings(UserSettingsType::WebWrapper).fileName(), path("user/ver1/webwrapper.ini"));
  EXPECT_EQ(UserSettings(UserSettingsType::TestCenterCmd).fileName(), path("user/ver1/testcentercmd.ini"));
  EXPECT_EQ(GlobalSettings(GlobalSettingsType::Corvex).fileName(), path("prefix/etc/corvex.ini"));
  EXPECT_EQ(GlobalSettings(GlobalSettingsType::Paths).fileName(), path("prefix/etc/paths.ini"));
}
