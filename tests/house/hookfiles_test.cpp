#include <gtest/gtest.h>

#include <QFileInfo>
#include <QSet>

#include "house/sourcetree.h"
#include "support/printing.h"

using namespace House;

namespace {

const QString hookFolder = QStringLiteral("src/wrappers/web/hook/");

/// The entries of the lists in cmake/HookScript.cmake, in their order.
QStringList listedEntries() {
  QStringList entries;
  const QString lists = textOf(QStringLiteral("cmake/HookScript.cmake"));
  for (const QString& list : allMatches(lists,
                                        "^set\\(CORVEX_HOOK_(?:PRELUDE|FRAGMENTS|XPATH_TEXTS)\\s+([^)"
                                        "]*)\\)")) {
    entries += list.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
  }
  return entries;
}

QStringList hookFiles() { return filesBelow(hookFolder, {QStringLiteral("*.js"), QStringLiteral("*.js.in")}); }

}  // namespace

TEST(HookFiles, EveryFileIsPartOfTheScript) {
  const QStringList entries = listedEntries();
  ASSERT_GT(entries.size(), 3);
  for (const QString& file : hookFiles()) {
    const QString name = file.mid(hookFolder.size());
    EXPECT_TRUE(entries.contains(name) || entries.contains(QFileInfo(name).path()))
        << file.toStdString() << " is not listed in cmake/HookScript.cmake";
  }
}

TEST(HookFiles, EveryListedEntryExistsOnce) {
  const QStringList entries = listedEntries();
  EXPECT_EQ(QSet<QString>(entries.begin(), entries.end()).size(), entries.size());
  for (const QString& entry : entries) {
    EXPECT_TRUE(QFileInfo::exists(root() + hookFolder + entry)) << entry.toStdString();
  }
}

TEST(HookFiles, FragmentsStandInTheOrderOfTheirNumbers) {
  QStringList numbered;
  for (const QString& entry : listedEntries()) {
    if (entry.at(0).isDigit()) {
      numbered.append(entry);
    }
  }
  QStringList sorted = numbered;
  sorted.sort();
  EXPECT_EQ(numbered, sorted);
}

// What the second line says is checked by the linter, see cmake/hookneeds.js.
TEST(HookFiles, EveryFileOpensWithWhatItGivesAndNeeds) {
  for (const QString& file : hookFiles()) {
    const QStringList lines = textOf(file).split(QLatin1Char('\n'));
    EXPECT_TRUE(lines.value(0).startsWith(QStringLiteral("// Gives: ")) && lines.value(0).endsWith(QLatin1Char('.')))
        << file.toStdString();
    EXPECT_TRUE(lines.value(1).startsWith(QStringLiteral("// Needs: "))) << file.toStdString();
  }
}

// So that they sort as they count, and leave room between them.
TEST(HookFiles, FilesInFoldersAreNumberedInTens) {
  const QRegularExpression numbered(QStringLiteral("/[0-9]{2}0_[a-z]+\\.js$"));
  for (const QString& file : hookFiles()) {
    if (file.mid(hookFolder.size()).contains(QLatin1Char('/'))) {
      EXPECT_TRUE(numbered.match(file).hasMatch()) << file.toStdString();
    }
  }
}
