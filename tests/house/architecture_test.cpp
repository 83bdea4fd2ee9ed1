#include <gtest/gtest.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

#include "house/sourcetree.h"
#include "support/printing.h"

using namespace House;

namespace {

const QStringList cppFiles{QStringLiteral("*.h"), QStringLiteral("*.cpp")};

/// A room: a folder of src, and the rooms that it may include from, beside itself and what those may include from.
struct Room {
  const char* folder;
  const char* mayUse;
};

const Room rooms[] = {
    {"shared", ""},
    {"tracelib", "shared"},
    {"corvexhook/x11", "shared"},
    {"corvexhook", "shared tracelib corvexhook/x11"},
    {"corvexhook/dump", "corvexhook"},
    {"scripting", "corvexhook"},
    {"scripting/report", "scripting"},
    {"scripting/objects", "scripting"},
    {"scripting/functions", "scripting/objects"},
    {"scripting/engine", "scripting/functions"},
    {"wrappers/common", "corvexhook"},
    {"wrappers/web", ""},  // the export macro alone
    {"wrappers/web/page", "wrappers/web corvexhook"},
    {"wrappers/web/setup", "wrappers/web corvexhook"},
    {"wrappers/web/object", "wrappers/web/page wrappers/web/setup"},
    {"wrappers/web/values", "wrappers/web/object"},
    {"wrappers/web/glue", "wrappers/web/object"},
    {"wrappers/web/elements", "wrappers/web/glue"},
    {"wrappers/web/style", "wrappers/web/glue"},
    {"wrappers/web/xpath", "wrappers/web/glue"},
    {"wrappers/web/widgets", "wrappers/web/elements"},
    {"wrappers/web/itemviews", "wrappers/web/widgets"},
    {"wrappers/web/toolkits", "wrappers/web/itemviews"},
    {"wrappers/web/tables", "wrappers/web/widgets wrappers/common"},
    {"wrappers/web/readiness", "wrappers/web/elements"},
    {"wrappers/web/input", "wrappers/web/readiness wrappers/web/widgets"},
    {"wrappers/web/picking", "wrappers/web/page"},
    {"wrappers/web/recording", "wrappers/web/glue wrappers/web/picking"},
    {"wrappers/web/dump", "wrappers/web/readiness corvexhook/dump"},
    {"wrappers/web/lookup", "wrappers/web/itemviews"},
    {"wrappers/web/catalogue",
     "wrappers/web/values wrappers/web/style wrappers/web/xpath wrappers/web/toolkits wrappers/web/tables "
     "wrappers/web/input wrappers/web/recording wrappers/web/dump wrappers/web/picking wrappers/web/lookup"},
    {"webhook/process", "shared"},
    {"webhook/protocol", "webhook/process"},
    {"webhook/protocol/transport", "webhook/protocol"},
    {"webhook/protocol/devtools", "webhook/protocol"},
    {"webhook/protocol/bidi", "webhook/protocol"},
    {"webhook/browser", "webhook/protocol/transport"},
    {"webhook/backends/devtools", "webhook/browser webhook/protocol/devtools"},
    // A Chromium behind a WebDriver server is asked for some things in its own words.
    {"webhook/backends/bidi", "webhook/browser webhook/protocol/bidi webhook/protocol/devtools"},
    {"webhook/backends", "webhook/backends/devtools webhook/backends/bidi"},
    {"webhook/endpoint", "webhook/protocol"},
    {"webhook/pages", "webhook/browser webhook/endpoint wrappers/web/catalogue"},
    {"webhook/inspect", "webhook/pages"},
    {"webhook/recorder", "webhook/pages"},
    {"webhook/run", "webhook/inspect scripting"},
    {"webhook/typings", "corvexhook"},
    {"webhook/cli",
     "webhook/backends webhook/inspect webhook/recorder webhook/run webhook/typings scripting/report scripting/engine"},
    {"webhook", "webhook/cli"},
};

/// The room of a file of src, by its path below src.
const Room* roomOf(const QString& path) {
  const QString folder = path.left(path.lastIndexOf(QLatin1Char('/')));
  const auto found = std::find_if(std::begin(rooms), std::end(rooms),
                                  [&folder](const Room& room) { return folder == QLatin1String(room.folder); });
  return found == std::end(rooms) ? nullptr : &*found;
}

/// The folders that files of a room may include from. Empty for a row that names no room.
QStringList reach(const Room& room) {
  QStringList folders{QLatin1String(room.folder)};
  for (const QString& name : QString::fromLatin1(room.mayUse).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const Room* const next = roomOf(name + QLatin1Char('/'));
    folders += next ? reach(*next) : QStringList{QStringLiteral("there is no room ") + name};
  }
  return folders;
}

}  // namespace

TEST(Architecture, EverySourceFileLiesInARoom) {
  const QStringList files = filesBelow(QStringLiteral("src"), cppFiles);
  ASSERT_FALSE(files.isEmpty());
  for (const QString& file : files) {
    EXPECT_TRUE(roomOf(file.mid(4))) << file.toStdString();
  }
}

TEST(Architecture, IncludesPointDownwards) {
  for (const QString& file : filesBelow(QStringLiteral("src"), cppFiles)) {
    const Room* const own = roomOf(file.mid(4));
    if (!own) {
      continue;
    }
    const QStringList allowed = reach(*own);
    EXPECT_EQ(allowed.filter(QStringLiteral("no room")), QStringList());
    for (const QString& included : allMatches(textOf(file), "^\\s*#\\s*include\\s*[\"<]([^\">]+)[\">]")) {
      EXPECT_FALSE(included.contains(QStringLiteral("../"))) << file.toStdString() << " includes by a relative path";
      const Room* const target = roomOf(included);
      EXPECT_TRUE(!target || allowed.contains(QLatin1String(target->folder)))
          << file.toStdString() << " must not include " << included.toStdString();
    }
  }
}

TEST(Architecture, RowsNameEachRoomOnceAndLowestFirst) {
  QStringList known;
  for (const Room& room : rooms) {
    for (const QString& name : QString::fromLatin1(room.mayUse).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
      EXPECT_TRUE(known.contains(name)) << room.folder << " uses " << name.toStdString();
    }
    EXPECT_FALSE(known.contains(QLatin1String(room.folder))) << room.folder;
    known << QLatin1String(room.folder);
  }
}

TEST(Architecture, OnlyTheConnectionKnowsSocketsAndProcesses) {
  const char* const headers =
      "^\\s*#\\s*include\\s*<((?:Qt(?:Network|WebSockets)/|QTcp|QNetwork|QWebSocket|QLocalS|QProcess>)[^>]*)";
  for (const QString& file : filesBelow(QStringLiteral("src"), cppFiles)) {
    if (file.startsWith(QStringLiteral("src/webhook/"))) {
      continue;
    }
    EXPECT_EQ(allMatches(textOf(file), headers), QStringList()) << file.toStdString();
  }
}

TEST(Architecture, OnlyTheWaitRunsAnEventLoopOrBlocksOnTheBrowser) {
  const QStringList allowed{QStringLiteral("src/shared/wait.h"), QStringLiteral("src/shared/wait.cpp")};
  const char* const waiting =
      "\\b(QEventLoop|processEvents|QWaitCondition|waitFor(?:ReadyRead|BytesWritten|Connected|Disconnected|"
      "Started|Finished)|(?:\\.|->|::)exec)\\b";
  for (const QString& file : filesBelow(QStringLiteral("src"), cppFiles)) {
    if (allowed.contains(file)) {
      continue;
    }
    EXPECT_EQ(allMatches(withoutComments(textOf(file)), waiting), QStringList()) << file.toStdString();
  }
}

TEST(Architecture, EverySourceIsBuilt) {
  const QStringList sources = filesBelow(QStringLiteral("src"), {QStringLiteral("*.cpp")}) +
                              filesBelow(QStringLiteral("tests"), {QStringLiteral("*.cpp")}) +
                              filesBelow(QStringLiteral("bench"), {QStringLiteral("*.cpp")});
  for (const QString& source : sources) {
    if (source.startsWith(QStringLiteral("tests/support/"))) {
      continue;
    }
    bool listed = false;
    for (QString folder = source; !listed && folder.contains(QLatin1Char('/'));) {
      folder = folder.left(folder.lastIndexOf(QLatin1Char('/')));
      const QString name = QRegularExpression::escape(source.mid(folder.size() + 1));
      listed = textOf(folder + QStringLiteral("/CMakeLists.txt"))
                   .contains(QRegularExpression(QStringLiteral("(^|[\\s/\"])%1($|[\\s\")])").arg(name)));
    }
    EXPECT_TRUE(listed) << source.toStdString() << " stands in no CMakeLists.txt";
  }
}

TEST(Architecture, TheDocumentNamesPathsThatExist) {
  // In backticks, with a slash, and of nothing but what paths are made of.
  const QStringList paths = allMatches(textOf(QStringLiteral("ARCHITECTURE.md")), "`([\\w.-]+/[\\w./-]*)`");
  EXPECT_FALSE(paths.isEmpty());
  for (const QString& path : paths) {
    EXPECT_TRUE(QFileInfo::exists(root() + path)) << path.toStdString();
  }
}
