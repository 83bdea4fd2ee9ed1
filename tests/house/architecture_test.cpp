#include <gtest/gtest.h>

#include "house/sourcetree.h"
#include "support/printing.h"

using namespace House;

namespace {

const QStringList cppFiles{QStringLiteral("*.h"), QStringLiteral("*.cpp")};

/// A folder of src, and the folders that it may include from beside itself.
struct Layer {
  const char* folder;
  const char* mayUse;
};

const Layer layers[] = {
    {"shared", ""},
    {"tracelib", ""},
    {"corvexhook", "shared tracelib"},
    {"wrappers/common", "corvexhook shared tracelib"},
    {"wrappers/web", "wrappers/common corvexhook shared tracelib"},
    {"scripting", "corvexhook shared tracelib"},
    {"webhook", "scripting wrappers/web wrappers/common corvexhook shared tracelib"},
};

const Layer* layerOf(const QString& path) {
  for (const Layer& layer : layers) {
    if (path.startsWith(QLatin1String(layer.folder) + QLatin1Char('/'))) {
      return &layer;
    }
  }
  return nullptr;
}

}  // namespace

TEST(Architecture, EverySourceFileLiesInAKnownLayer) {
  const QStringList files = filesBelow(QStringLiteral("src"), cppFiles);
  ASSERT_FALSE(files.isEmpty());
  for (const QString& file : files) {
    EXPECT_TRUE(layerOf(file.mid(4))) << file.toStdString();
  }
}

TEST(Architecture, IncludesPointDownwards) {
  for (const QString& file : filesBelow(QStringLiteral("src"), cppFiles)) {
    const Layer* const own = layerOf(file.mid(4));
    if (!own) {
      continue;
    }
    const QStringList allowed = QString::fromLatin1(own->mayUse).split(QLatin1Char(' '));
    for (const QString& included : allMatches(textOf(file), "^\\s*#\\s*include\\s*[\"<]([^\">]+)[\">]")) {
      EXPECT_FALSE(included.contains(QStringLiteral("../"))) << file.toStdString() << " includes by a relative path";
      const Layer* const target = layerOf(included);
      if (!target || target == own) {
        continue;
      }
      EXPECT_TRUE(allowed.contains(QLatin1String(target->folder)))
          << file.toStdString() << " must not include " << included.toStdString();
    }
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

TEST(Architecture, OnlyTwoPlacesRunAnEventLoopOrBlockOnTheBrowser) {
  const QStringList allowed{QStringLiteral("src/webhook/wait.h"), QStringLiteral("src/webhook/wait.cpp"),
                            QStringLiteral("src/wrappers/web/sleeping.cpp")};
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
