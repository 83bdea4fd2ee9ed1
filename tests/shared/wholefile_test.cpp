#include "shared/wholefile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Corvex;

TEST(WholeFile, ReplacesWhatIsThereOnceItIsComplete) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("f"));
  EXPECT_EQ(writeWholeFile(path, "old"), QString());
  EXPECT_EQ(writeWholeFile(path, "new"), QString());
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), QByteArray("new"));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("f")));
}

TEST(WholeFile, WritesToADeviceAndLeavesItOne) {
  const QString device = QStringLiteral("/dev/full");
  EXPECT_EQ(whyNotWritable(device), QString());
  EXPECT_EQ(writeWholeFile(device, "text"), QStringLiteral("No space left on device"));
  EXPECT_TRUE(QFileInfo::exists(device) && !QFileInfo(device).isFile());
}

TEST(WholeFile, SaysBeforeWhyItCannotBeWritten) {
  const QTemporaryDir folder;
  EXPECT_EQ(whyNotWritable(folder.path()), QStringLiteral("it is a directory"));
  EXPECT_EQ(whyNotWritable(folder.filePath(QStringLiteral("none/f"))), QStringLiteral("its directory does not exist"));
  EXPECT_EQ(whyNotWritable(folder.filePath(QStringLiteral("f"))), QString());
}
