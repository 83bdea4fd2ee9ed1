#include "webhook/inspect/tree.h"

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "shared/jsescape.h"
#include "webhook/inspect/askforeach.h"
#include "webhook/inspect/contextdocument.h"
#include "webhook/pages/connection.h"
#include "webhook/pages/contexts.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"

#include <QStringList>

#include <algorithm>
#include <set>
#include <vector>

namespace Corvex::Webhook {

namespace {

/// The one walk over the documents of a page and what is below them.
class TreeReader {
public:
  explicit TreeReader(std::optional<int> maxDepth) : m_maxDepth(maxDepth) {}

  void read(const Context& context);
  const PageTree& tree() const { return m_tree; }

private:
  struct Found {
    SharedPtr<Object> object;
    int depth = 0;
    std::vector<std::size_t> children = {};
  };

  std::vector<Found> find(Connection& page, const SharedPtr<Object>& document);
  void addChildren(std::vector<Found>* found, std::size_t place);
  void addNodes(const std::vector<Found>& found);
  void nameAll(Connection& page, int from);
  void name(Connection& page, const std::vector<int>& places);
  void fail(const QString& error);

  std::optional<int> m_maxDepth;
  PageTree m_tree;
  std::vector<SharedPtr<Object>> m_objects;  // Of the nodes of the tree.
};

/// Which of the objects from `begin` to `end` need not be asked for their children, as they have none.
template <typename Items>
std::set<std::size_t> childless(Connection& page, const Items& found, std::size_t begin, std::size_t end) {
  std::set<std::size_t> leaves;
  std::vector<std::size_t> places;
  ObjectList objects;
  for (std::size_t i = begin; i < end; ++i) {
    if (!WebWrapper::hasItems(*WebWrapper::retrieveObject(found[i].object))) {
      places.push_back(i);
      objects.push_back(found[i].object);
    }
    const bool isFull = objects.size() == static_cast<int>(objectsPerCall) || i + 1 == end;
    if (!isFull || objects.size() < 2) {
      continue;
    }
    const QStringList answers = askForEach(page, "hasChildren", objects).value;
    for (int k = 0; k < answers.size(); ++k) {
      if (answers.at(k) == QLatin1String("false")) {
        leaves.insert(places[k]);
      }
    }
    places.clear();
    objects = ObjectList();
  }
  return leaves;
}

void TreeReader::read(const Context& context) {
  const SharedPtr<Object> document = documentOfContext(context);
  const QString error = Inspector::self()->takeScriptError();
  if (!document) {
    fail(QStringLiteral("The document of '%1' could not be reached. %2").arg(context.name, error).trimmed());
    return;
  }
  const int from = m_tree.nodes.size();
  addNodes(find(*context.connection, document));
  m_tree.nodes[from].context = context.name;
  nameAll(*context.connection, from);
}

void TreeReader::addChildren(std::vector<Found>* found, std::size_t place) {
  const Found parent = found->at(place);
  const ObjectHierarchyDelegate* const delegate = hierarchyDelegate(parent.object);
  if (!delegate) {
    return;
  }
  for (const SharedPtr<Object>& child : delegate->children(parent.object)) {
    found->at(place).children.push_back(found->size());
    found->push_back({child, parent.depth + 1});
  }
}

/// Level by level, so that the page can be asked about many objects at once.
std::vector<TreeReader::Found> TreeReader::find(Connection& page, const SharedPtr<Object>& document) {
  std::vector<Found> found = {{document}};
  std::size_t begin = 0;
  for (int depth = 0; begin < found.size() && (!m_maxDepth || depth < *m_maxDepth); ++depth) {
    const std::size_t end = found.size();
    const std::set<std::size_t> leaves = childless(page, found, begin, end);
    for (std::size_t i = begin; i < end; ++i) {
      if (leaves.count(i) == 0) {
        addChildren(&found, i);
      }
    }
    begin = end;
  }
  return found;
}

/// Each object is followed by what is below it.
void TreeReader::addNodes(const std::vector<Found>& found) {
  std::vector<std::size_t> left = {0};
  while (!left.empty()) {
    const Found& next = found[left.back()];
    left.pop_back();
    const ObjectHierarchyDelegate* const delegate = hierarchyDelegate(next.object);
    TreeNode node;
    node.depth = next.depth;
    node.className = next.object->objectClass()->name();
    node.name = delegate ? delegate->name(next.object) : QString();
    m_tree.nodes.append(node);
    m_objects.push_back(next.object);
    left.insert(left.end(), next.children.rbegin(), next.children.rend());
  }
}

void TreeReader::nameAll(Connection& page, int from) {
  std::vector<int> places;
  for (int i = from; i < m_tree.nodes.size(); ++i) {
    const ObjectHierarchyDelegate* const delegate = hierarchyDelegate(m_objects[i]);
    if (dynamic_cast<const WebWrapper::HTMLObjectHierarchyDelegate*>(delegate)) {
      places.push_back(i);
    } else if (delegate) {
      m_tree.nodes[i].qualifiedName = delegate->qualifiedName(m_objects[i]);
    }
    if (places.size() == objectsPerCall) {
      name(page, places);
      places.clear();
    }
  }
  name(page, places);
}

/// The same question as the delegate's `qualifiedName`, for many objects at once.
void TreeReader::name(Connection& page, const std::vector<int>& places) {
  ObjectList objects;
  for (const int place : places) {
    objects.push_back(m_objects[place]);
  }
  const FunctionCallResult<QStringList> names = askForEach(page, "name", objects);
  if (names.failed()) {
    fail(QStringLiteral("The page gave no names: %1").arg(names.error));
    return;
  }
  for (int i = 0; i < names.value.size(); ++i) {
    const QString& line = names.value.at(i);
    if (line.startsWith(QLatin1Char('!'))) {
      // No failure of the walk: the rules of naming have none for a form whose fields hide what takes part in it.
      continue;
    }
    m_tree.nodes[places[i]].qualifiedName = WebWrapper::unescape(undoEscape(line));
  }
}

void TreeReader::fail(const QString& error) {
  if (m_tree.error.isEmpty()) {
    m_tree.error = error;
  }
}

}  // namespace

PageTree readTree(const BrowserWindows& windows, std::optional<int> maxDepth) {
  TreeReader reader(maxDepth);
  for (const Context& context : allContexts(windows)) {
    reader.read(context);
  }
  return reader.tree();
}

}  // namespace Corvex::Webhook
