#include "corvexhook/inspector.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/class.h"
#include "corvexhook/delegate.h"
#include "corvexhook/hostservices.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/objectname.h"
#include "corvexhook/primitives.h"
#include "corvexhook/valueclasses.h"
#include "shared/wait.h"

#include <algorithm>

namespace Corvex {

namespace {

// Long enough not to keep the page busy, short enough not to be noticed.
const int attemptIntervalMs = 20;

// A script may ask for any number of names that are never found.
const int maxUnmatchedNames = 1000;

struct PrimitiveRow {
  PrimitiveType::Id id;
  const char* name;
};

const PrimitiveRow primitiveRows[] = {
    {PrimitiveType::Int, "int"},       {PrimitiveType::UInt, "unsigned int"}, {PrimitiveType::Bool, "bool"},
    {PrimitiveType::String, "string"}, {PrimitiveType::Double, "double"},     {PrimitiveType::Void, "void"},
    {PrimitiveType::Any, "any"},
};

const HostServices knowsNothing;

/// A name as it stands in a sentence; of a very long one the ends.
QString shown(const QString& name) {
  const int most = 500;
  return name.size() <= most ? name : name.left(most / 2) + QLatin1String("...") + name.right(most / 2);
}

}  // namespace

Inspector* Inspector::self() {
  // Never destroyed: wrapped objects may be released at any time.
  static auto* inspector = new Inspector;
  static const bool complete = [] {
    createValueClasses(inspector->globalNamespace());
    return true;
  }();
  Q_UNUSED(complete)
  return inspector;
}

Inspector::Inspector() : m_namespace(new Namespace), m_services(&knowsNothing) {
  m_globalClass = new GlobalClass(m_namespace.get());
  for (const PrimitiveRow& row : primitiveRows) {
    new PrimitiveClass(row.name, m_namespace.get(), row.id);
  }
  new ArrayClass(m_namespace.get());
}

Inspector::~Inspector() = default;

void Inspector::addUnmatchedProperty(const QString& objectName, const QString& property) {
  if (m_unmatched.size() >= maxUnmatchedNames && !m_unmatched.contains(objectName)) {
    m_unmatched.clear();
  }
  QStringList& properties = m_unmatched[objectName];
  if (!properties.contains(property)) {
    properties << property;
  }
}

void Inspector::removeUnmatchedProperties(const QString& objectName) { m_unmatched.remove(objectName); }

SharedPtr<Object> Inspector::waitForObject(const QString& name) { return findObject(name, m_defaultTimeout); }

SharedPtr<Object> Inspector::findObject(const QString& name, int timeoutMs) {
  const qint64 begin = Clock::current().now();
  const SharedPtr<Object> found = timeoutMs > 0 ? waitUntilReady(name, timeoutMs) : lookup(name);
  if (!found && !hasScriptError()) {
    // An explanation takes its time, too.
    const qint64 waitedMs = Clock::current().now() - begin;
    const QString waited = timeoutMs > 0 ? QStringLiteral(" It was waited for during %1 ms.").arg(waitedMs) : QString();
    reportScriptError(notFoundError(name) + waited);
  }
  return found;
}

const Class* Inspector::primitiveType(int id) const {
  for (const PrimitiveRow& row : primitiveRows) {
    if (row.id == id) {
      return m_namespace->getClass(QString::fromLatin1(row.name));
    }
  }
  return nullptr;
}

const Class* Inspector::classByName(const QString& name) const { return m_namespace->getClass(name); }

static SharedPtr<Object> wrapPrimitive(const Inspector* inspector, PrimitiveType::Id id, const QVariant& value) {
  return new PrimitiveObject(static_cast<const PrimitiveClass*>(inspector->primitiveType(id)), value);
}

SharedPtr<Object> Inspector::wrapInt(int value) const { return wrapPrimitive(this, PrimitiveType::Int, value); }

SharedPtr<Object> Inspector::wrapUInt(unsigned int value) const {
  return wrapPrimitive(this, PrimitiveType::UInt, value);
}

SharedPtr<Object> Inspector::wrapBool(bool value) const { return wrapPrimitive(this, PrimitiveType::Bool, value); }

SharedPtr<Object> Inspector::wrapDouble(double value) const {
  return wrapPrimitive(this, PrimitiveType::Double, value);
}

SharedPtr<Object> Inspector::wrapString(const QString& value) const {
  return wrapPrimitive(this, PrimitiveType::String, value);
}

SharedPtr<Object> Inspector::nullObject(const Class* cls) const { return new Object(cls, nullptr); }

SharedPtr<Object> Inspector::wrapVoid() const { return wrapPrimitive(this, PrimitiveType::Void, QVariant()); }

void Inspector::reportScriptError(const QString& text) {
  if (m_scriptError.isEmpty()) {
    m_scriptError = text;
  }
}

QString Inspector::takeScriptError() { return std::exchange(m_scriptError, QString()); }

void Inspector::setHostServices(const HostServices* services) { m_services = services ? services : &knowsNothing; }

QString Inspector::whyNotGoOn() const {
  return m_interruption && *m_interruption ? QStringLiteral("interrupted") : m_services->whyNotGoOn();
}

bool Inspector::reportWhyNotLookUp(const QString& name) {
  const QString end = whyNotGoOn();
  const QString mapped = ObjectMap::self()->realName(name);
  const QString why = end.isEmpty() ? m_services->whyNotLookUp(mapped.isEmpty() ? name : mapped) : end;
  if (!why.isEmpty()) {
    reportScriptError(why);
  }
  return !why.isEmpty();
}

QString Inspector::usableName(const QString& name) {
  const QString mapped = ObjectMap::self()->realName(name);
  const QString realName = mapped.isEmpty() ? name : mapped;
  if (mapped.isEmpty() && name.startsWith(QLatin1Char(':'))) {
    reportScriptError(
        QStringLiteral("The symbolic name '%1' is not in the object map. Add it there, or use a real name.")
            .arg(shown(name)));
    return QString();
  }
  const QString parseError = ObjectName(realName).parseError();
  if (realName.isEmpty() || !parseError.isEmpty()) {
    reportScriptError(QStringLiteral("Invalid object name '%1': %2.")
                          .arg(shown(realName), realName.isEmpty() ? QStringLiteral("it is empty") : parseError));
    return QString();
  }
  return realName;
}

bool Inspector::reportWhyNeverFound(const QString& realName) {
  const QString why = m_services->whyNeverFound(realName);
  if (!why.isEmpty()) {
    reportScriptError(QStringLiteral("Invalid object name '%1': %2.").arg(shown(realName), why));
  }
  return !why.isEmpty();
}

SharedPtr<Object> Inspector::lookup(const QString& name) {
  const QString realName = reportWhyNotLookUp(name) ? QString() : usableName(name);
  if (realName.isEmpty()) {
    return nullptr;
  }
  const SharedPtr<Object> found = lookupOnce(realName);
  if (!found && !hasScriptError()) {
    reportWhyNeverFound(realName);
  }
  return found;
}

/// The second text to try; empty where there is none. A name that was printed by way of the wrapper's unescape has
/// "&amp;" for each ampersand.
static QString withAmpersands(const QString& realName) {
  const QLatin1String entity("&amp;");
  return realName.contains(entity) ? QString(realName).replace(entity, QLatin1String("&")) : QString();
}

SharedPtr<Object> Inspector::lookupOnce(const QString& realName) const {
  const SharedPtr<Object> found = lookupInRoots(m_roots, realName);
  const QString second = withAmpersands(realName);
  return found || hasScriptError() || second.isEmpty() ? found : lookupInRoots(m_roots, second);
}

ObjectList Inspector::lookupAll(const QString& name) {
  const QString realName = reportWhyNotLookUp(name) ? QString() : usableName(name);
  if (realName.isEmpty()) {
    return {};
  }
  ObjectList found = allInRoots(realName);
  const QString second = withAmpersands(realName);
  if (found.isEmpty() && !hasScriptError() && !second.isEmpty()) {
    found = allInRoots(second);
  }
  if (found.isEmpty() && !hasScriptError()) {
    reportWhyNeverFound(realName);
  }
  return found;
}

ObjectList Inspector::allInRoots(const QString& realName) const {
  const ObjectName name(realName);
  return name.isMultiProperty() ? m_services->findAll(m_roots, name) : firstInRoots(m_roots, name);
}

ObjectList Inspector::firstInRoots(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const {
  const SharedPtr<Object> found = lookupInRoots(roots, name.qualifiedName());
  return found ? ObjectList{found} : ObjectList();
}

static SharedPtr<Object> childByName(const SharedPtr<Object>& object, const QString& name) {
  const ObjectHierarchyDelegate* delegate = hierarchyDelegate(object);
  return delegate ? delegate->childByName(object, name) : SharedPtr<Object>();
}

/// Follows a plain name from child to child, its levels parted by dots. The name of a frame's document ends in one.
static SharedPtr<Object> descend(const SharedPtr<Object>& root, const QString& name) {
  QStringList levels = name.split(QLatin1Char('.'));
  if (levels.size() > 1 && levels.last().isEmpty()) {
    levels.removeLast();
  }
  SharedPtr<Object> object = childByName(root, levels.first());
  if (!object) {
    // The dots may belong to the text that a child of the root is known by.
    return levels.size() > 1 ? childByName(root, name) : SharedPtr<Object>();
  }
  for (int i = 1; object && i < levels.size(); ++i) {
    object = childByName(object, levels.at(i));
  }
  return object;
}

SharedPtr<Object> Inspector::lookupInRoots(const std::vector<SharedPtr<Object>>& roots, const QString& realName) const {
  const ObjectName name(realName);
  // A copy: a lookup waits, and windows may come and go meanwhile.
  const std::vector<SharedPtr<Object>> asked = roots;  // NOLINT(performance-unnecessary-copy-initialization)
  for (const SharedPtr<Object>& root : asked) {
    const ObjectHierarchyDelegate* delegate = hierarchyDelegate(root);
    SharedPtr<Object> found = delegate ? delegate->objectByQualifiedName(root, name) : SharedPtr<Object>();
    if (!found && !hasScriptError() && !name.isMultiProperty()) {
      found = descend(root, realName);
    }
    if (found || hasScriptError()) {
      return found;
    }
  }
  return nullptr;
}

bool Inspector::isReady(const SharedPtr<Object>& object) const {
  const FunctionCallResult<bool> ready = m_services->isReady(object);
  return ready.value && !ready.failed();
}

SharedPtr<Object> Inspector::waitUntilReady(const QString& name, int timeoutMs) {
  const QString realName = usableName(name);
  if (realName.isEmpty()) {
    return nullptr;
  }
  bool isChecked = false;
  bool isUsable = false;
  SharedPtr<Object> found;
  QString failure;
  const auto attempt = [&] {
    found =
        reportWhyNotLookUp(name) ? SharedPtr<Object>() : m_services->lookUpToUse([&] { return lookupOnce(realName); });
    const QString lastFailure = std::exchange(failure, takeScriptError());
    isUsable = found && failure.isEmpty() && isReady(found);
    // A page that is being replaced fails once. What fails twice in a row is going to stay.
    const bool failedTwice = !failure.isEmpty() && !lastFailure.isEmpty();
    const bool mayCome =
        found || !failure.isEmpty() || std::exchange(isChecked, true) || !reportWhyNeverFound(realName);
    return isUsable || failedTwice || !mayCome;
  };
  poll(timeoutMs, attemptIntervalMs, attempt);
  if (isUsable || hasScriptError()) {
    return isUsable ? found : SharedPtr<Object>();
  }
  if (!failure.isEmpty()) {
    reportScriptError(failure);
  } else if (found) {
    reportScriptError(
        QStringLiteral("The object '%1' was found, but was not ready within %2 ms: it is hidden or disabled.")
            .arg(shown(name), QString::number(timeoutMs)));
  }
  return nullptr;
}

QString Inspector::notFoundError(const QString& name) const {
  const QString mapped = ObjectMap::self()->realName(name);
  const QString realName = mapped.isEmpty() ? name : mapped;
  const QString explanation = m_services->whyNotFound(realName);
  if (!explanation.isEmpty()) {
    return QStringLiteral("Object '%1' not found. %2").arg(shown(name), explanation);
  }
  const QStringList unmatched = m_unmatched.value(realName);
  if (unmatched.contains(QStringLiteral("container"))) {
    return QStringLiteral("Object '%1' not found. Its container was not found.").arg(shown(name));
  }
  const QString reason = unmatched.isEmpty()
                             ? QString()
                             : QStringLiteral(" No element matched: %1.").arg(unmatched.join(QLatin1String(", ")));
  return QStringLiteral("Object '%1' not found.%2").arg(shown(name), reason);
}

void Inspector::askFirst(const SharedPtr<Object>& root) {
  std::stable_partition(m_roots.begin(), m_roots.end(),
                        [&root](const SharedPtr<Object>& candidate) { return candidate == root; });
}

void Inspector::removeRootObject(const SharedPtr<Object>& root) {
  m_roots.erase(std::remove(m_roots.begin(), m_roots.end(), root), m_roots.end());
}

}  // namespace Corvex
