#include "fakemodel.h"

#include <QMap>
#include <functional>
#include <map>

#include "corvexhook/arrayclass.h"
#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/primitives.h"

using namespace Corvex;

namespace FakeModel {

namespace {

using Native = std::shared_ptr<Thing>;

QString text(const char* latin1) { return QString::fromLatin1(latin1); }

const Class* classNamed(const char* name) { return Inspector::self()->classByName(text(name)); }

Native* nativeOf(const SharedPtr<Object>& object) {
  void* data = nullptr;
  return object && object->get(&data) ? static_cast<Native*>(data) : nullptr;
}

SharedPtr<Object> wrapThing(const Native& thing) {
  SharedPtr<Object> object =
      Inspector::self()->classByName(thing->className)->wrap(new Native(thing), ObjectAttribute(2));
  object->setOwnsData(true);
  ++world().alive;
  return object;
}

struct MethodRow {
  const char* name;
  const char* returnType;
  std::vector<std::pair<const char*, const char*>> arguments;
  std::function<SharedPtr<Object>(Thing&, const ObjectList&)> run;
};

struct PropertyRow {
  const char* name;
  const char* type;
  std::function<SharedPtr<Object>(const Thing&)> read;
  std::function<void(Thing&, const SharedPtr<Object>&)> write;
};

class FakeClass : public Class {
public:
  FakeClass(const char* name, const char* super, std::vector<MethodRow> methods, std::vector<PropertyRow> properties)
      : Class(name, Inspector::self()->globalNamespace(), true),
        m_super(super),
        m_methods(std::move(methods)),
        m_properties(std::move(properties)) {
    setMemberCounts(static_cast<int>(m_methods.size()), static_cast<int>(m_properties.size()), 0);
  }

  void initSuperClass() override { setSuperClass(m_super ? classNamed(m_super) : nullptr); }

  void deleteObjectData(void* data, const ObjectAttribute&) const override {
    delete static_cast<Native*>(data);
    --world().alive;
  }

  const Method* createMethod(int id) const override {
    const int own = id - superClassOffset(MethodOffset);
    std::unique_ptr<Method>& slot = m_methodObjects[own];
    if (!slot) {
      const MethodRow& row = m_methods.at(static_cast<std::size_t>(own));
      std::vector<Argument> arguments;
      for (const auto& one : row.arguments) {
        arguments.emplace_back(text(one.first), classNamed(one.second));
      }
      slot.reset(
          new Method(this, Argument(classNamed(row.returnType), {}), text(row.name), Signature(arguments), false));
    }
    return slot.get();
  }

  const Property* createProperty(int id) const override {
    const int own = id - superClassOffset(PropertyOffset);
    std::unique_ptr<Property>& slot = m_propertyObjects[own];
    if (!slot) {
      const PropertyRow& row = m_properties.at(static_cast<std::size_t>(own));
      slot.reset(new Property(this, Argument(classNamed(row.type), {}), text(row.name),
                              row.write ? Property::ReadWrite : Property::ReadOnly, own));
    }
    return slot.get();
  }

  SharedPtr<Object> invoke(int id, SharedPtr<Object> object, const ObjectList& arguments,
                           const Method* method) const override {
    if (!verifyMethodInvocation(object, method) || !verifyMethodArgumentCount(name(), method, arguments)) {
      return nullptr;
    }
    const auto own = static_cast<std::size_t>(id - superClassOffset(MethodOffset));
    return m_methods.at(own).run(**nativeOf(object), arguments);
  }

  SharedPtr<Object> getProperty(SharedPtr<Object> object, const Property* property) const override {
    const auto index = static_cast<std::size_t>(property->index());
    return m_properties.at(index).read(**nativeOf(object));
  }

  bool setProperty(SharedPtr<Object> object, const Property* property, SharedPtr<Object> value) const override {
    const auto index = static_cast<std::size_t>(property->index());
    const auto& write = m_properties.at(index).write;
    if (write) {
      write(**nativeOf(object), value);
    }
    return write && !Inspector::self()->hasScriptError();
  }

private:
  const char* m_super;
  std::vector<MethodRow> m_methods;
  std::vector<PropertyRow> m_properties;
  mutable std::map<int, std::unique_ptr<Method>> m_methodObjects;
  mutable std::map<int, std::unique_ptr<Property>> m_propertyObjects;
};

SharedPtr<Object> noted(const char* function, const Thing& thing, const ObjectList& arguments) {
  QStringList texts;
  for (const SharedPtr<Object>& argument : arguments) {
    texts << (argument->isNull() ? text("null") : argument->toString());
  }
  world().calls << QStringLiteral("%1.%2(%3)").arg(thing.name, text(function), texts.join(QLatin1String(", ")));
  return Inspector::self()->wrapVoid();
}

std::function<SharedPtr<Object>(Thing&, const ObjectList&)> note(const char* function) {
  return [function](Thing& thing, const ObjectList& arguments) { return noted(function, thing, arguments); };
}

SharedPtr<Object> string(const QString& value) { return Inspector::self()->wrapString(value); }

SharedPtr<Object> failing(Thing&, const ObjectList&) {
  Inspector::self()->reportScriptError(text("The page said no."));
  return nullptr;
}

void makeClasses() {
  new FakeClass(
      "Widget", nullptr,
      {{"click", "void", {}, note("click")},
       {"click", "void", {{"modifierState", "int"}, {"x", "int"}, {"y", "int"}, {"button", "int"}}, note("click")},
       {"fail", "void", {}, failing},
       {"parent",
        "Widget",
        {},
        [](Thing&, const ObjectList&) { return Inspector::self()->nullObject(classNamed("Widget")); }},
       {"adopt", "void", {{"child", "Widget"}}, note("adopt")}},
      {{"name", "string", [](const Thing& t) { return string(t.name); }, {}},
       {"width", "int", [](const Thing&) { return Inspector::self()->wrapInt(42); }, {}},
       {"ratio", "double", [](const Thing&) { return Inspector::self()->wrapDouble(0.5); }, {}},
       {"enabled", "bool", [](const Thing& t) { return Inspector::self()->wrapBool(t.enabled); },
        [](Thing& t, const SharedPtr<Object>& v) { t.enabled = v->toBool(); }}});
  new FakeClass("Field", "Widget",
                {{"value", "string", {}, [](Thing& t, const ObjectList&) { return string(t.value); }},
                 {"setValue",
                  "void",
                  {{"text", "string"}},
                  [](Thing& t, const ObjectList& arguments) {
                    t.value = arguments[0]->toString();
                    return noted("setValue", t, arguments);
                  }},
                 {"focus", "void", {}, note("focus")},
                 {"find", "void", {{"index", "int"}}, note("findByIndex")},
                 {"find", "void", {{"label", "string"}}, note("findByLabel")},
                 {"words",
                  "Array",
                  {{"list", "Array"}},
                  [](Thing& t, const ObjectList& arguments) {
                    noted("words", t, arguments);
                    return ArrayClass::wrapObject(
                        {string(text("a")), Inspector::self()->wrapInt(2), wrapThing(std::make_shared<Thing>(t))});
                  }}},
                {{"value", "string", [](const Thing& t) { return string(t.value); },
                  [](Thing& t, const SharedPtr<Object>& v) { t.value = v->toString(); }}});
  new FakeClass("Choice", "Widget", {{"setSelectedOption", "void", {{"text", "string"}}, note("setSelectedOption")}},
                {});
  new FakeClass("FakeRoot", nullptr, {}, {});
}

class RootDelegate : public ObjectHierarchyDelegate {
public:
  RootDelegate() : ObjectHierarchyDelegate(text("FakeRoot")) {}

  SharedPtr<Object> objectByQualifiedName(SharedPtr<Object>, const ObjectName& name) const override {
    world().lookups << name.qualifiedName();
    const auto found = world().things.constFind(name.qualifiedName());
    return found == world().things.constEnd() ? nullptr : wrapThing(*found);
  }
  int numChildren(SharedPtr<Object>) const override { return 0; }
  SharedPtr<Object> child(SharedPtr<Object>, int) const override { return nullptr; }
  SharedPtr<Object> childByName(SharedPtr<Object>, const QString&) const override { return nullptr; }
  QString name(SharedPtr<Object>) const override { return QString(); }
  QString qualifiedName(SharedPtr<Object>) const override { return QString(); }
  ObjectList children(SharedPtr<Object>) const override { return ObjectList(); }
  int wrapperType() const override { return 0; }
};

/// The tree of the widgets, of which those with a value "nameless" have no name.
class WidgetDelegate : public ObjectHierarchyDelegate {
public:
  WidgetDelegate() : ObjectHierarchyDelegate(text("Widget")) {}

  QString qualifiedName(SharedPtr<Object> object) const override {
    const Thing& thing = **nativeOf(object);
    return thing.value == text("nameless") ? QString() : thing.name;
  }
  ObjectList children(SharedPtr<Object> object) const override {
    QMap<QString, Native> inside;
    for (const Native& thing : qAsConst(world().things)) {
      if (thing->parent == (*nativeOf(object))->name) {
        inside.insert(thing->name, thing);
      }
    }
    ObjectList list;
    for (const Native& thing : qAsConst(inside)) {
      list.push_back(wrapThing(thing));
    }
    return list;
  }
  SharedPtr<Object> parent(SharedPtr<Object> object) const override {
    const Native outer = world().things.value((*nativeOf(object))->parent);
    return outer ? wrapThing(outer) : SharedPtr<Object>();
  }
  int numChildren(SharedPtr<Object>) const override { return 0; }
  SharedPtr<Object> child(SharedPtr<Object>, int) const override { return nullptr; }
  SharedPtr<Object> childByName(SharedPtr<Object>, const QString&) const override { return nullptr; }
  QString name(SharedPtr<Object>) const override { return QString(); }
  int wrapperType() const override { return 0; }
};

class TextDelegate : public CastDelegate {
public:
  TextDelegate() : CastDelegate(text("Field")) {}

  bool canCastTo(const Class* target) const override { return target == classNamed("string"); }
  bool canCastFrom(const Class*) const override { return false; }
  SharedPtr<Object> castTo(SharedPtr<Object> object, const Class*) const override {
    return string(text("field ") + (*nativeOf(object))->name);
  }
  SharedPtr<Object> castFrom(SharedPtr<Object>, const Class*) const override { return nullptr; }
};

class SameDelegate : public ComparisonDelegate {
public:
  SameDelegate() : ComparisonDelegate(text("Widget")) {}

  bool compare(SharedPtr<Object> a, SharedPtr<Object> b) const override { return sameObjects(a, b); }
  bool sameObjects(SharedPtr<Object> a, SharedPtr<Object> b) const override { return *nativeOf(a) == *nativeOf(b); }
};

}  // namespace

FunctionCallResult<bool> Services::isReady(const SharedPtr<Object>& object) const {
  Native& thing = *nativeOf(object);
  const bool ready = thing->notReadyFor == 0;
  if (!ready) {
    --thing->notReadyFor;
  }
  return FunctionCallResult<bool>::success(ready);
}

World& world() {
  static World theWorld;
  return theWorld;
}

Thing& World::add(const QString& name, const QString& className) {
  auto thing = std::make_shared<Thing>();
  thing->name = name;
  thing->className = className;
  things.insert(name, thing);
  return *thing;
}

void reset() {
  static const bool classes = [] {
    makeClasses();
    new RootDelegate;
    new WidgetDelegate;
    new TextDelegate;
    new SameDelegate;
    return true;
  }();
  Q_UNUSED(classes)
  tearDown();
  const int alive = world().alive;
  world() = World();
  world().alive = alive;
  Inspector* inspector = Inspector::self();
  inspector->setHostServices(&world().services);
  inspector->addRootObject(new Object(classNamed("FakeRoot"), &world()));
}

void tearDown() {
  Inspector* inspector = Inspector::self();
  const std::vector<SharedPtr<Object>> roots = inspector->rootObjects();
  for (const SharedPtr<Object>& root : roots) {
    inspector->removeRootObject(root);
  }
  inspector->takeScriptError();
  ObjectMap::self()->clear();
}

}  // namespace FakeModel
