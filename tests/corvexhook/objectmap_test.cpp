#include "corvexhook/objectmap.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

class ObjectMapTest : public testing::Test {
protected:
  QString path() const { return m_directory.filePath(text("objects.map")); }
  QString load(const QByteArray& content) {
    EXPECT_TRUE(TestSupport::writeFile(path(), content));
    return m_map.load(path());
  }

  ObjectMap m_map;

private:
  QTemporaryDir m_directory;
};

}  // namespace

TEST_F(ObjectMapTest, LoadsNamesAndPassesOverCommentsAndBlanks) {
  EXPECT_EQ(load("\xef\xbb\xbf# names\n\n:B\xc3\xbcro\t{title='\xc3\xbc'}\r\n:Tree\tDOCUMENT.HTML1\n"), QString());
  EXPECT_EQ(m_map.size(), 2);
  EXPECT_EQ(m_map.realName(text(":B\xc3\xbcro")), text("{title='\xc3\xbc'}"));
  EXPECT_EQ(m_map.realName(text(":Tree")), text("DOCUMENT.HTML1"));
  EXPECT_EQ(m_map.realName(text(":None")), QString());
}

TEST_F(ObjectMapTest, ABrokenLineIsNamedAndChangesNothing) {
  m_map.insert(text(":Old"), text("{a='1'}"));
  const struct {
    const char* content;
    const char* error;
  } cases[] = {
      {":A\t{a='1'}\n:B {b='2'}\n", ":2: expected a symbolic name that begins with ':', a tab, and the real name."},
      {"A\t{a='1'}\n", ":1: expected a symbolic name that begins with ':', a tab, and the real name."},
      {":\t{a='1'}\n", ":1: expected a symbolic name that begins with ':', a tab, and the real name."},
      {":A\t \n", ":1: the real name behind the tab is missing."},
      {":A\t:B\n", ":1: ':B' is a symbolic name, too; the real name has to stand behind the tab."},
      {":A\t{a='1'}\n\n:A\t{a='1'}\n", ":3: ':A' stands in line 1 already."},
      {"\n:A\t{a='1'\n", ":2: the closing brace is missing at position 7."},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(load(one.content), path() + text(one.error)) << one.content;
    EXPECT_EQ(m_map.size(), 1);
  }
  EXPECT_EQ(m_map.load(text("/nonexistent/objects.map")),
            text("Cannot read the object map '/nonexistent/objects.map': No such file or directory."));
  EXPECT_EQ(load(QByteArray(":A\t{a='1'}\n:B\t{b='\0'}\n", 22)),
            text("Cannot read the object map '%1': line 2 holds a NUL character.").arg(path()));
  EXPECT_EQ(m_map.size(), 1);
}
