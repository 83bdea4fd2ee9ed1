// What pages and browsers tell of downloads never leads out of the folder of downloads.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include "support/printing.h"
#include "webhook/browser/downloads.h"

using namespace Corvex::Webhook;

namespace {

void write(const QString& path) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("text");
}

}  // namespace

TEST(Downloads, NamesAreThoseOfPlainFiles) {
  const QString e = QStringLiteral("\u00e9");
  const QMap<QString, QString> names{{QStringLiteral("a b.csv"), QStringLiteral("a b.csv")},
                                     {QStringLiteral("../../x.sh"), QStringLiteral("_._.._x.sh")},
                                     {QStringLiteral("C:\\x\n.txt"), QStringLiteral("C:_x_.txt")},
                                     {QStringLiteral("a\u202egpj.exe"), QStringLiteral("a_gpj.exe")},
                                     {QStringLiteral(".."), QStringLiteral("_.")},
                                     {QString(), QStringLiteral("download")}};
  for (auto name = names.begin(); name != names.end(); ++name) {
    EXPECT_EQ(Downloads::safeName(name.key()), name.value());
  }
  const QString longest = Downloads::safeName(e.repeated(500) + QStringLiteral(".tar.gz"));
  EXPECT_EQ(longest, e.repeated(73) + QStringLiteral(".gz"));
}

TEST(Downloads, FilesElsewhereAreNotTouched) {
  QTemporaryDir folder;
  QTemporaryDir elsewhere;
  const QString foreign = elsewhere.filePath(QStringLiteral("mine"));
  const QString link = folder.filePath(QStringLiteral("link"));
  write(foreign);
  QFile::link(foreign, link);
  Downloads downloads(folder.path());
  for (const QString& path : {foreign, link, folder.filePath(QStringLiteral("nothing")), folder.path()}) {
    downloads.take({DownloadNews::Begun, path, {}, QStringLiteral("x"), {}});
    downloads.take({DownloadNews::Finished, path, {}, {}, path});
    const std::optional<Download> ended = downloads.takeEnded();
    ASSERT_TRUE(ended);
    EXPECT_TRUE(ended->error.contains(QLatin1String("cannot be used"))) << ended->path.toStdString();
  }
  EXPECT_TRUE(QFile::exists(foreign));
}
