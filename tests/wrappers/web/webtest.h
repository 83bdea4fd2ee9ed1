#pragma once

#include "corvexhook/inspector.h"
#include "support/fakecomponent.h"
#include "support/printing.h"
#include "wrappers/web/catalogue/webobject_init.h"
#include "wrappers/web/input/sharedobjectmodelfunctions.h"
#include "wrappers/web/object/wraphtmlobject.h"

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

  FakeComponent page;
};

/// The setTimeout() around a statement.
inline QString deferred(const char* statement) {
  return QStringLiteral("setTimeout(function(e){%1}, 100);").arg(QLatin1String(statement));
}

/// The call envelope's answer is asked for with this expression in it.
inline QString envelope(const char* expression) {
  return QStringLiteral("{'result': %1}").arg(QLatin1String(expression));
}

}  // namespace TestSupport
