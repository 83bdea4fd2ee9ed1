#include "webhook/inspect/pagedump.h"

#include "corvexhook/dump/dumpobjecttree.h"
#include "corvexhook/inspector.h"
#include "shared/jsescape.h"
#include "webhook/inspect/askforeach.h"
#include "webhook/inspect/contextdocument.h"
#include "webhook/pages/connection.h"
#include "webhook/pages/contexts.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/page/escaping.h"

#include <QHash>

namespace Corvex::Webhook {

namespace {

using UIAbstraction::UIElement;

/// Reads one page, document by document.
class DumpReader {
public:
  DumpReader(Connection& page, const QStringList& properties)
      : m_page(page),
        m_filters{{FilterObject(QLatin1String(WebWrapper::HTML_Object::ScriptName), properties)}, false} {}

  void read(const Context& context);
  void countNamesakes();
  PageDump take() { return std::move(m_dump); }

private:
  void add(const UIElement& element, const SharedPtr<Object>& object, const DumpObjectTreeDelegate& delegate,
           int depth);
  void moveIntoFrame(const SharedPtr<Object>& document, int from);
  void addAttributes(const QString& pairs, DumpedObject* object) const;
  void nameAll(int from);
  void fail(const QString& what, const QString& why) {
    if (m_dump.error.isEmpty()) {
      m_dump.error = what.arg(why).trimmed();
    }
  }

  Connection& m_page;
  const DumpFilter m_filters;
  PageDump m_dump;
  ObjectList m_objects;
};

void DumpReader::read(const Context& context) {
  const SharedPtr<Object> document = documentOfContext(context);
  const QString lost = Inspector::self()->takeScriptError();
  const DumpObjectTreeDelegate* const delegate = document ? dumpDelegate(document) : nullptr;
  if (!delegate) {
    fail(QStringLiteral("The document of '%1' could not be reached. %2").arg(context.name), lost);
    return;
  }
  QString error;
  if (!delegate->enterDump(document, m_filters, &error)) {
    fail(QStringLiteral("%1"), error);
    return;
  }
  UIElement root;
  UIElement* element = nullptr;
  delegate->dumpObject(document, true, &element, m_filters, &root);
  const int from = m_dump.objects.size();
  add(*element, document, *delegate, 0);
  m_dump.objects[from].context = context.name;
  moveIntoFrame(document, from);
  nameAll(from);
  delegate->leaveDump(&error);
}

void DumpReader::add(const UIElement& element, const SharedPtr<Object>& object, const DumpObjectTreeDelegate& delegate,
                     int depth) {
  DumpedObject dumped;
  dumped.depth = depth;
  dumped.className = element.type();
  dumped.name = element.name();
  dumped.bounds = element.bounds();
  dumped.properties = element.identifyingProperties() + element.concreteProperties();
  m_dump.objects.append(dumped);
  m_objects.push_back(object);
  ObjectList children;
  delegate.children(object, &children);
  // The walk that made the elements has met the same objects in this order.
  for (int i = 0; i < children.size() && i < static_cast<int>(element.children().size()); ++i) {
    add(*element.children()[static_cast<std::size_t>(i)], children[i], delegate, depth + 1);
  }
}

// Rectangles are those of the object's own document.
void DumpReader::moveIntoFrame(const SharedPtr<Object>& document, int from) {
  ObjectList one;
  one.push_back(document);
  const QStringList offset = askForEach(m_page, "frameOffset", one).value.value(0).split(QLatin1Char(','));
  for (int i = from; i < m_dump.objects.size(); ++i) {
    GlobalBounds& bounds = m_dump.objects[i].bounds;
    if (offset.size() != 2) {
      // Nobody can tell where they are, if they are shown at all.
      bounds = GlobalBounds{0, 0, -1, -1, -1};
    } else {
      bounds.x += offset.at(0).toInt();
      bounds.y += offset.at(1).toInt();
    }
  }
}

void DumpReader::addAttributes(const QString& pairs, DumpedObject* object) const {
  for (const QString& pair : pairs.split(QLatin1Char('&'), Qt::SkipEmptyParts)) {
    const QString name = undoEscape(pair.section(QLatin1Char('='), 0, 0));
    if (m_filters.objects.front().isMatchedProperty(name, nullptr)) {
      object->properties.append({name, undoEscape(pair.section(QLatin1Char('='), 1))});
    }
  }
}

void DumpReader::nameAll(int from) {
  for (int begin = from; begin < m_dump.objects.size(); begin += objectsPerCall) {
    ObjectList some;
    for (int i = begin; i < qMin(begin + objectsPerCall, m_dump.objects.size()); ++i) {
      some.push_back(m_objects[i]);
    }
    const FunctionCallResult<QStringList> names = askForEach(m_page, "nameAndHits", some);
    if (names.failed()) {
      fail(QStringLiteral("The page gave no names: %1"), names.error);
      return;
    }
    for (int i = 0; i < names.value.size(); ++i) {
      const QStringList parts = names.value.at(i).split(QLatin1Char(' '));
      if (parts.size() == 3 && !parts.at(0).startsWith(QLatin1Char('!'))) {
        DumpedObject& object = m_dump.objects[begin + i];
        object.qualifiedName = WebWrapper::unescape(undoEscape(parts.at(0)));
        object.matches = parts.at(1).toInt();
        addAttributes(parts.at(2), &object);
      }
    }
  }
}

/// Where the page did not count, the objects that were named alike are those that there are.
void DumpReader::countNamesakes() {
  QHash<QString, int> counts;
  for (const DumpedObject& object : qAsConst(m_dump.objects)) {
    ++counts[object.qualifiedName];
  }
  for (DumpedObject& object : m_dump.objects) {
    if (object.qualifiedName.isEmpty()) {
      object.matches = 0;
    } else if (object.matches < 0) {
      object.matches = counts.value(object.qualifiedName);
    }
  }
}

}  // namespace

// Texts of elements with others in them hold the same again and again: each object has its own text anyway.
QStringList usualProperties() {
  return QStringLiteral(
             "tagName id title visible name type value href src alt checked disabled class for placeholder role aria-* "
             "data-test*")
      .split(QLatin1Char(' '));
}

PageDump readObjects(const BrowserWindows& windows, Connection& page, const QStringList& properties) {
  DumpReader reader(page, properties);
  for (const Context& context : allContexts(windows)) {
    if (context.connection == &page) {
      reader.read(context);
    }
  }
  reader.countNamesakes();
  PageDump dump = reader.take();
  dump.url = page.page()->url();
  const WebWrapper::JavaScriptAnswer title = page.evaluateJS(QStringLiteral("String(document.title)"), 5000);
  dump.title = title.succeeded() ? title.text : QString();
  return dump;
}

PageDump readDump(const BrowserWindows& windows, Connection& page, const QStringList& properties) {
  PageDump dump = readObjects(windows, page, properties);
  const FunctionCallResult<QImage> picture =
      page.supportsPageScreenshot() ? page.grabPageScreenshot() : FunctionCallResult<QImage>{};
  dump.picture = picture.value;
  if (picture.failed() && dump.error.isEmpty()) {
    dump.error = QStringLiteral("The page gave no picture: %1").arg(picture.error);
  }
  return dump;
}

}  // namespace Corvex::Webhook
