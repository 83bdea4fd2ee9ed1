#pragma once

#include "corvexhook/inspector.h"
#include "support/fakecomponent.h"
#include "support/printing.h"
#include "wrappers/web/catalogue/webobject_init.h"
#include "wrappers/web/input/sharedobjectmodelfunctions.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/recording/webevents.h"

#include <gtest/gtest.h>

#include <memory>

namespace TestSupport {

/// A connection, the script classes, and no script error left behind.
class WebTest : public testing::Test {
protected:
  static void SetUpTestSuite() {
    static const bool registered = [] {
      Corvex::WebWrapper::createWebObjectClasses();
      Corvex::WebWrapper::setupSharedObjectModelFunctions();
      Corvex::initWebEvents();
      return true;
    }();
    Q_UNUSED(registered)
  }
  void SetUp() override { scriptError(); }
  void TearDown() override { EXPECT_EQ(scriptError(), QString()) << "a script error was not looked at"; }

  static QString scriptError() { return Corvex::Inspector::self()->takeScriptError(); }

  template <typename T, typename... Arguments>
  std::unique_ptr<T> make(Arguments... arguments) {
    return std::make_unique<T>(QString(), QStringLiteral("ref"), &page, arguments...);
  }
  template <typename T, typename... Arguments>
  Corvex::SharedPtr<Corvex::Object> wrapped(Arguments... arguments) {
    return Corvex::WebWrapper::wrapObject(make<T>(arguments...).release());
  }

  /// Calls the overload with as many arguments as it takes, or else the first of the name.
  static Corvex::SharedPtr<Corvex::Object> call(const Corvex::SharedPtr<Corvex::Object>& object, const QString& name,
                                                const Corvex::ObjectList& arguments = {}) {
    const Corvex::Class* cls = object->objectClass();
    int found = -1;
    for (int id = 0; id < cls->numMethods(); ++id) {
      const Corvex::Method* method = cls->method(id);
      if (method->name() == name && (found < 0 || method->signature().count() == arguments.size())) {
        found = id;
      }
    }
    const Corvex::Method* method = cls->method(found);
    return method->owner()->invoke(found, object, arguments, method);
  }
  static Corvex::SharedPtr<Corvex::Object> get(const Corvex::SharedPtr<Corvex::Object>& object, const QString& name) {
    return object->objectClass()->getProperty(object, object->objectClass()->property(name));
  }
  static bool set(const Corvex::SharedPtr<Corvex::Object>& object, const QString& name,
                  const Corvex::SharedPtr<Corvex::Object>& value) {
    return object->objectClass()->setProperty(object, object->objectClass()->property(name), value);
  }

  FakeComponent page;
};

inline Corvex::SharedPtr<Corvex::Object> text(const QString& value) {
  return Corvex::Inspector::self()->wrapString(value);
}

inline Corvex::SharedPtr<Corvex::Object> number(double value) {
  return value == int(value) ? Corvex::Inspector::self()->wrapInt(int(value))
                             : Corvex::Inspector::self()->wrapDouble(value);
}

/// The setTimeout() around a statement.
inline QString deferred(const char* statement) {
  return QStringLiteral("setTimeout(function(e){%1}, 100);").arg(QLatin1String(statement));
}

/// The call envelope's answer is asked for with this expression in it.
inline QString envelope(const char* expression) {
  return QStringLiteral("{'result': %1}").arg(QLatin1String(expression));
}

}  // namespace TestSupport
