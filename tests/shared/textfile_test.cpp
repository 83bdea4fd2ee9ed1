#include "shared/textfile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "support/files.h"
#include "support/printing.h"

using namespace Corvex;

namespace {

class TextFile : public testing::Test {
protected:
  QString path() const { return m_directory.filePath(QStringLiteral("file")); }
  FunctionCallResult<QString> read(const QByteArray& content) {
    EXPECT_TRUE(TestSupport::writeFile(path(), content));
    return readTextFile(path());
  }

private:
  QTemporaryDir m_directory;
};

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

}  // namespace

TEST_F(TextFile, IsReadAsItIsButForTheByteOrderMark) {
  EXPECT_EQ(read("\xef\xbb\xbf"
                 "gr\xc3\xbcn\r\n\xf0\x9f\x8d\x8f")
                .value,
            text("gr\xc3\xbcn\r\n\xf0\x9f\x8d\x8f"));
  EXPECT_EQ(read("").error, QString());
  EXPECT_EQ(read(QByteArray(16 << 20, 'a')).value.size(), 16 << 20);
}

TEST_F(TextFile, WhatIsNoTextIsRefused) {
  const struct {
    QByteArray content;
    const char* error;
  } rows[] = {
      {QByteArray("a\nb\0c\n", 6), "line 2 holds a NUL character"},
      {QByteArray("\xff\xfe"
                  "a\0",
                  4),
       "line 1 is no UTF-8 text"},
      {"a\n\nl\xe4rm\n", "line 3 is no UTF-8 text"},
      {"cut \xc3", "line 1 is no UTF-8 text"},
      {"half a pair \xed\xa0\x80", "line 1 is no UTF-8 text"},
      {QByteArray((16 << 20) + 1, 'a'), "it is larger than 16 MB"},
  };
  for (const auto& row : rows) {
    const FunctionCallResult<QString> result = read(row.content);
    EXPECT_EQ(result.error, text(row.error));
    EXPECT_EQ(result.value, QString()) << row.error;
  }
}

TEST_F(TextFile, OnlyRegularFilesAreOpened) {
  ASSERT_EQ(mkfifo(qPrintable(path()), 0600), 0);
  EXPECT_EQ(readTextFile(path()).error, text("it is no regular file"));
  EXPECT_EQ(readTextFile(text("/dev/zero")).error, text("it is no regular file"));
  EXPECT_EQ(readTextFile(text("/tmp")).error, text("it is a directory"));
  EXPECT_EQ(readTextFile(text("/no/such")).error, text("No such file or directory"));
}
