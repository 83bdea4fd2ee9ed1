#include "webhook/pages/searchexplanation.h"

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "shared/visibletext.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/contexts.h"
#include "webhook/pages/windownames.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/lookup/findallobjects.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Corvex::Webhook {

namespace {

const unsigned int explanationTimeoutMs = 2000;

// What the names begin with that are places in the tree.
const QLatin1String treeRoot("DOCUMENT");

const QLatin1String contextProperty("context");

/// `where` has a blank in front.
QString elements(const QString& tag, int count, const QString& where) {
  if (count == 0) {
    return QStringLiteral("No element%1 has the tag %2").arg(where, tag);
  }
  return count == 1 ? QStringLiteral("1 element%1 has the tag %2").arg(where, tag)
                    : QStringLiteral("%1 elements%2 have the tag %3").arg(QString::number(count), where, tag);
}

QString missingProperties(const QJsonArray& missing) {
  QStringList names;
  for (const QJsonValue& name : missing) {
    names << name.toString();
  }
  return names.join(QLatin1String(" or "));
}

QString missingContext(const BrowserWindows& windows, const QString& context) {
  return whyNoContext(windows, QStringLiteral("There is no context '%1'.").arg(context));
}

/// Calls a function of the page with a name, and below an object where a reference of one is given.
WebWrapper::JavaScriptAnswer askPage(WebWrapper::HTMLComponent& page, const char* function, const QString& name,
                                     const QString& reference) {
  const QString below = reference.isEmpty() ? QString() : QLatin1String(", ") + reference;
  const QString code =
      QStringLiteral("JSON.stringify(window.top.__corvex.%1(\"%2\"%3) || {})")
          .arg(QLatin1String(function), WebWrapper::escapeObjectNameForUseAsStringLiteral(name), below);
  return page.evaluateJS(code, explanationTimeoutMs);
}

QString inQuotes(const QString& text) {
  const int most = 80;
  const QString kept = text.size() > most ? text.left(most) + QLatin1String("...") : text;
  return QLatin1Char('\'') + visibleText(kept, LineBreaks::Shown) + QLatin1Char('\'');
}

QString wantedValue(const PropertyValue& value) {
  const char* const pattern = value.modifiers() == PropertyValue::RegExp     ? "the regular expression "
                              : value.modifiers() == PropertyValue::Wildcard ? "the pattern "
                                                                             : "";
  return QLatin1String(pattern) + inQuotes(value.value());
}

QString difference(const QJsonObject& differs, const ObjectName& name) {
  const QString property = differs.value(QLatin1String("property")).toString();
  const bool isOtherCase = differs.value(QLatin1String("isOtherCase")).toBool();
  return QStringLiteral("%1 is %2, not %3%4")
      .arg(visibleText(property), inQuotes(differs.value(QLatin1String("actual")).toString()),
           wantedValue(name.property(property)),
           isOtherCase ? QStringLiteral(" (only upper and lower case differ)") : QString());
}

/// The elements that come nearest, and in what they differ.
QString explainRivals(const QJsonArray& rivals, const ObjectName& name) {
  QStringList sentences;
  for (const QJsonValue& rival : rivals) {
    QStringList differences;
    for (const QJsonValue& differs : rival.toObject().value(QLatin1String("differs")).toArray()) {
      differences << difference(differs.toObject(), name);
    }
    const QString path = visibleText(rival.toObject().value(QLatin1String("path")).toString(), LineBreaks::Shown);
    sentences << QStringLiteral("of %1, %2").arg(path, differences.join(QLatin1String(" and ")));
  }
  return sentences.isEmpty() ? QString()
                             : QStringLiteral(" Nearest come: %1.").arg(sentences.join(QLatin1String("; ")));
}

QString explainClosedFrames(const QJsonArray& frames) {
  QStringList addresses;
  for (const QJsonValue& address : frames) {
    addresses << visibleText(address.toString(), LineBreaks::Shown);
  }
  return addresses.isEmpty() ? QString()
                             : QStringLiteral(" Frames of another origin cannot be searched; the page has: %1.")
                                   .arg(addresses.join(QLatin1String(", ")));
}

struct Language {
  const char* name;
  const char* looks;
  const char* advice;
};

// What other tools take for names.
const Language languages[] = {
    {"XPath", "^\\.?//?[\\w*]|\\[@\\w+", ", or ask an object with evaluateXPath"},
    {"CSS",
     "^[#.][A-Za-z_][^ ]*|^[\\w-]+\\[[\\w-]+([~|^$*]?=.*)?\\]| > |"
     "^(a|button|div|form|input|label|li|p|select|span|table|td|tr|ul)[.#:][\\w-]",
     ""},
};

/// For a name that reads as a text of another language that selects elements.
QString explainLanguage(const QString& name) {
  for (const Language& language : languages) {
    if (QRegularExpression(QLatin1String(language.looks)).match(name).hasMatch()) {
      return QStringLiteral(
                 "It reads as %1, which is no name here. Name the object by its properties in braces, as in "
                 "{tagName='DIV' id='main'}%2.")
          .arg(QLatin1String(language.name), QLatin1String(language.advice));
    }
  }
  return QString();
}

/// What is known of the elements of the tag that were seen; `where` tells where they were looked for.
QString explainSeenElements(const QJsonObject& why, const ObjectName& name, const QString& where) {
  const int count = why.value(QLatin1String("count")).toInt();
  const QString found = elements(why.value(QLatin1String("tag")).toString(), count, where);
  const QString missing = missingProperties(why.value(QLatin1String("missing")).toArray());
  const int most = why.value(QLatin1String("most")).toInt();
  const QString error = why.value(QLatin1String("error")).toString();
  if (count == 0) {
    return found + QLatin1Char('.');
  }
  if (most > 0) {
    const QString occurrence = WebWrapper::occurrenceOf(name).value();
    return found + QStringLiteral(", but the name fits %1 of one document at most: there is no occurrence %2.")
                       .arg(QString::number(most), occurrence);
  }
  if (missing.isEmpty()) {
    return found + QStringLiteral(", but none has all the properties together.");
  }
  return found + QStringLiteral(", but none has this %1%2.")
                     .arg(missing, error.isEmpty() ? QString() : QLatin1String(": ") + error);
}

/// Where a function of the page's own failed, there may be elements that nobody has seen.
QString explainElements(const QJsonObject& why, const ObjectName& name, const QString& where) {
  const QString replaced = why.value(QLatin1String("replaced")).toString();
  if (replaced.isEmpty()) {
    return explainSeenElements(why, name, where);
  }
  if (why.value(QLatin1String("count")).toInt() == 0) {
    return QStringLiteral(
               "No element%1 with the tag %2 can be found: the page has replaced %3 by a function that fails.")
        .arg(where, why.value(QLatin1String("tag")).toString(), replaced);
  }
  return explainSeenElements(why, name, where) +
         QStringLiteral(" The page has replaced %1 by a function that fails.").arg(replaced);
}

/// `localName` is what the page knows `name` by.
QString explainFailedStep(const BrowserWindows& windows, WebWrapper::HTMLComponent& page, const ObjectName& name,
                          const ObjectName& localName, const QString& reference) {
  const WebWrapper::JavaScriptAnswer answer =
      askPage(page, "explainFailedSearch", localName.qualifiedName(), reference);
  const QJsonObject why = QJsonDocument::fromJson(answer.text.toUtf8()).object();
  const QString context = name.property(contextProperty).value();
  if (why.contains(QLatin1String("context"))) {
    return missingContext(windows, context);
  }
  if (!answer.succeeded() || !why.contains(QLatin1String("tag"))) {
    return QString();
  }
  const QString where = context.isEmpty() ? QString() : QStringLiteral(" in its context");
  return explainElements(why, name, reference.isEmpty() ? where : QStringLiteral(" in its container")) +
         explainRivals(why.value(QLatin1String("rivals")).toArray(), name) +
         explainClosedFrames(why.value(QLatin1String("frames")).toArray());
}

QString missingContainer(const QString& container) {
  QString problem = QStringLiteral("was not found");
  if (container.startsWith(QLatin1Char(':'))) {
    problem = QStringLiteral("is not in the object map");
  } else if (container.startsWith(treeRoot)) {
    problem = QStringLiteral("is a place in the tree, which finds no container. Name it by its properties");
  }
  return QStringLiteral("Its container '%1' %2.").arg(container, problem);
}

SharedPtr<Object> lookUp(const QString& name) {
  const SharedPtr<Object> object = Inspector::self()->lookup(name);
  Inspector::self()->takeScriptError();
  return object;
}

/// As look-ups below a container find it: a place in the tree is no name for one.
SharedPtr<Object> lookUpContainer(const ObjectName& name) {
  if (name.isMultiProperty()) {
    return lookUp(name.qualifiedName());
  }
  SharedPtr<Object> found;
  for (const SharedPtr<Object>& root : Inspector::self()->rootObjects()) {
    const ObjectHierarchyDelegate* delegate = hierarchyDelegate(root);
    found = found || !delegate ? found : delegate->objectByQualifiedName(root, name);
  }
  Inspector::self()->takeScriptError();
  return found;
}

QString contextOfPath(const QString& path) {
  const QString first = path.section(QLatin1Char('.'), 0, 0);
  QString context = first.section(QLatin1Char('['), 1).section(QLatin1Char(']'), 0, 0);
  return context.replace(QLatin1Char('|'), QLatin1Char('.'));
}

/// For a name that is a place in the tree: the first step that leads nowhere.
QString explainPath(const BrowserWindows& windows, const QString& name) {
  const QStringList steps = name.split(QLatin1Char('.'));
  if (!steps.first().startsWith(treeRoot)) {
    return explainLanguage(name);
  }
  QString path = steps.first();
  if (!lookUp(path)) {
    const QString context = contextOfPath(path);
    return context.isEmpty() ? QString() : missingContext(windows, context);
  }
  for (const QString& step : steps.mid(1)) {
    const QString parent = std::exchange(path, path + QLatin1Char('.') + step);
    if (!lookUp(path)) {
      return QStringLiteral("'%1' has no child '%2'.").arg(parent, step);
    }
  }
  return QString();
}

/// Puts back the window that was the current one.
class CurrentWindow {
public:
  explicit CurrentWindow(BrowserWindows& windows) : m_windows(windows), m_current(windows.current()) {}
  ~CurrentWindow() { m_windows.setCurrent(m_current); }
  CurrentWindow(const CurrentWindow&) = delete;
  CurrentWindow& operator=(const CurrentWindow&) = delete;

private:
  BrowserWindows& m_windows;
  Connection* m_current;
};

/// The page that a name means, and the name as that page knows it.
struct PlacedName {
  WebWrapper::HTMLComponent* page;
  ObjectName name;
};

PlacedName placeName(const BrowserWindows& windows, WebWrapper::HTMLComponent* page, const ObjectName& name) {
  const WindowNames names(name.hasProperty(contextProperty) ? windows.connections() : QVector<Connection*>());
  const QString context = name.property(contextProperty).value();
  Connection* const window = names.windowOf(context);
  if (!window) {
    return {page, name};
  }
  ObjectName local = name;
  local.setProperty(contextProperty, PropertyValue(names.inside(window, context).value_or(context)));
  return {window, local};
}

bool hasPattern(const ObjectName& name) {
  const QMap<QString, PropertyValue> properties = name.properties();
  return std::any_of(properties.begin(), properties.end(),
                     [](const PropertyValue& value) { return value.modifiers() != PropertyValue::StrictMatch; });
}

QString faultOfPart(WebWrapper::HTMLComponent& page, const ObjectName& part) {
  if (!part.isMultiProperty()) {
    return QString();
  }
  if (!part.parseError().isEmpty()) {
    return part.parseError();
  }
  const PropertyValue tagName = part.property(QStringLiteral("tagName"));
  if (tagName.modifiers() == PropertyValue::StrictMatch && tagName.value().isEmpty()) {
    return QStringLiteral("it has no tagName; add one, the search needs it");
  }
  const WebWrapper::JavaScriptAnswer answer =
      hasPattern(part) ? askPage(page, "faultOfName", part.qualifiedName(), QString()) : WebWrapper::JavaScriptAnswer();
  return QJsonDocument::fromJson(answer.text.toUtf8()).object().value(QLatin1String("fault")).toString();
}

}  // namespace

QString searchedContexts(const BrowserWindows& windows, const QString& name) {
  const ObjectName outermost = WebWrapper::splitByContainer(ObjectName(name)).front();
  const bool isAnywhere = !name.startsWith(treeRoot) && !outermost.hasProperty(contextProperty);
  return isAnywhere ? QStringLiteral("Searched: %1.").arg(listOfContexts(windows)) : QString();
}

QString explainFailedSearch(BrowserWindows& windows, const QString& name) {
  // Looking a container up may make its window the current one.
  const CurrentWindow before(windows);
  std::list<ObjectName> parts = WebWrapper::splitByContainer(ObjectName(name));
  const ObjectName last = parts.back();
  parts.pop_back();
  std::list<ObjectName> outer;
  WebWrapper::HTMLComponent* searched = windows.current();
  QString reference;
  for (const ObjectName& part : parts) {
    outer.push_back(part);
    const QString containerName = WebWrapper::joinByContainer(outer).qualifiedName();
    const SharedPtr<Object> container = lookUpContainer(WebWrapper::joinByContainer(outer));
    const WebWrapper::HTML_Object* native = WebWrapper::retrieveObject(container);
    if (!native) {
      return missingContainer(containerName);
    }
    if (!dynamic_cast<const WebWrapper::HTMLObjectHierarchyDelegate*>(hierarchyDelegate(container))) {
      return QStringLiteral("Nothing can be looked up below its container '%1', which is of the class %2.")
          .arg(containerName, container->objectClass()->name());
    }
    searched = native->component;
    reference = native->reference;
  }
  if (!last.isMultiProperty()) {
    return explainPath(windows, name);
  }
  const PlacedName placed = placeName(windows, searched, last);
  return explainFailedStep(windows, *placed.page, last, placed.name, reference);
}

Connection* windowMeant(const BrowserWindows& windows, const QString& name) {
  if (windows.whatIsShown().isEmpty()) {
    return nullptr;
  }
  const QString context =
      name.startsWith(treeRoot)
          ? contextOfPath(name)
          : WebWrapper::splitByContainer(ObjectName(name)).front().property(contextProperty).value();
  return context.isEmpty() ? nullptr : WindowNames(windows.connections()).windowOf(context);
}

QString faultOfName(WebWrapper::HTMLComponent& page, const QString& name) {
  const std::list<ObjectName> parts = WebWrapper::splitByContainer(ObjectName(name));
  for (const ObjectName& part : parts) {
    const QString fault = faultOfPart(page, part);
    if (!fault.isEmpty()) {
      return parts.size() == 1 ? fault : QStringLiteral("in the part '%1', %2").arg(part.qualifiedName(), fault);
    }
  }
  return QString();
}

}  // namespace Corvex::Webhook
