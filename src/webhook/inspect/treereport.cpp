#include "webhook/inspect/treereport.h"

#include "shared/visibletext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

QString onOneLine(const QString& text) { return visibleText(text, LineBreaks::Shown); }

/// Makes the nodes from `*place` on that are at this depth, each with what is below it, and moves `*place` after them.
QJsonArray siblings(const QVector<TreeNode>& nodes, int depth, std::optional<int> maxDepth, int* place) {
  QJsonArray array;
  while (*place < nodes.size() && nodes.at(*place).depth == depth) {
    const TreeNode& node = nodes.at((*place)++);
    QJsonObject object{{QStringLiteral("class"), node.className},
                       {QStringLiteral("name"), node.name},
                       {QStringLiteral("qualifiedName"), node.qualifiedName}};
    if (depth == 0) {
      object.insert(QStringLiteral("context"), node.context);
    }
    if (!maxDepth || depth < *maxDepth) {
      object.insert(QStringLiteral("children"), siblings(nodes, depth + 1, maxDepth, place));
    }
    array.append(object);
  }
  return array;
}

}  // namespace

QString treeAsText(const PageTree& tree) {
  QString text;
  for (const TreeNode& node : tree.nodes) {
    text += QString(2 * node.depth, QLatin1Char(' ')) + node.className + QLatin1Char(' ') + onOneLine(node.name) +
            QLatin1String("  ") + (node.qualifiedName.isEmpty() ? QStringLiteral("-") : onOneLine(node.qualifiedName)) +
            QLatin1Char('\n');
  }
  return text;
}

QString treeAsJson(const PageTree& tree, const QString& url, std::optional<int> maxDepth) {
  int place = 0;
  const QJsonObject whole{{QStringLiteral("url"), url},
                          {QStringLiteral("documents"), siblings(tree.nodes, 0, maxDepth, &place)}};
  return visibleText(QString::fromUtf8(QJsonDocument(whole).toJson()));
}

}  // namespace Corvex::Webhook
