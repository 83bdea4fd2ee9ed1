#pragma once

#include "webhook/inspect/tree.h"

namespace Corvex::Webhook {

/// A line per object, indented by its depth: class, name among its siblings, qualified name.
QString treeAsText(const PageTree& tree);

/// {"url": ..., "documents": [node...]}. A node has "class", "name", "qualifiedName" and "children"; a document also
/// has "context". Nodes at `maxDepth` have no "children".
QString treeAsJson(const PageTree& tree, const QString& url, std::optional<int> maxDepth);

}  // namespace Corvex::Webhook
