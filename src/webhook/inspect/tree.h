#pragma once

#include <QString>
#include <QVector>

#include <optional>

namespace Corvex::Webhook {

class BrowserWindows;

/// An object of a page's tree, as scripts see it.
struct TreeNode {
  int depth = 0;          ///< Levels below its document.
  QString className;      ///< The script class.
  QString name;           ///< Its name among its siblings.
  QString qualifiedName;  ///< A name that finds it; empty where none could be made.
  QString context;        ///< Of documents: the window or frame that shows it.
};

/// The objects of all documents that can be reached: each document followed by what is below it. Windows come in the
/// order of their opening, each followed by its frames in the order of the page, outer ones first. The children of an
/// element are its elements and, after them, its shadow root; a frame's document is no child of the frame's element.
struct PageTree {
  QVector<TreeNode> nodes;
  QString error;  ///< Why the tree is incomplete, as a sentence; empty when it is complete.
};

/// Reads the tree as scripts walk it. Below `maxDepth`, 0 being the documents, it is left out.
PageTree readTree(const BrowserWindows& windows, std::optional<int> maxDepth);

}  // namespace Corvex::Webhook
