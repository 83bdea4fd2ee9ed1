#include <QFile>

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/primitives.h"
#include "scripting/scripttest.h"

using namespace Corvex;
using namespace Corvex::Scripting;
using FakeModel::world;

namespace {

class ScriptFunctions : public FakeModel::ScriptTest {
protected:
  ScriptFunctions() {
    world().add(s("{id='f'}"), s("Field"));
    world().add(s("{id='c'}"), s("Choice"));
  }
};

SharedPtr<Object> noteByText(void** arguments, const Class*) {
  const auto* values = static_cast<SharedPtr<Object>**>(static_cast<void*>(arguments));
  world().calls << QStringLiteral("byText ") + (*values[0])->toString();
  return Inspector::self()->wrapVoid();
}

SharedPtr<Object> noteByObject(void**, const Class*) {
  world().calls << QStringLiteral("byObject");
  return Inspector::self()->wrapVoid();
}

void addPoke() {
  static const bool added = [] {
    const Inspector* inspector = Inspector::self();
    const QString name = QStringLiteral("poke");
    const Argument nothing(inspector->primitiveType(PrimitiveType::Void), {});
    auto* byText = new GlobalMethod(
        noteByText, nothing, name,
        Signature(Argument(QStringLiteral("name"), inspector->primitiveType(PrimitiveType::String))), true);
    auto* byObject = new GlobalMethod(
        noteByObject, nothing, name,
        Signature(Argument(QStringLiteral("object"), inspector->classByName(QStringLiteral("Widget")))), true);
    byText->deprecate(QStringLiteral("poke is deprecated."));
    inspector->globalClass()->addMethod(byText);
    inspector->globalClass()->addMethod(byObject);
    return true;
  }();
  Q_UNUSED(added)
}

}  // namespace

TEST_F(ScriptFunctions, FindObjectTriesOnce) {
  EXPECT_EQ(errorOf("\nvar o = findObject(\"{id='none'}\");"), s("2: Object '{id='none'}' not found."));
  EXPECT_EQ(world().lookups.size(), 1);
  EXPECT_EQ(clock.nowMs, 0);
  EXPECT_EQ(listener.lines, QStringList(s("step findObject {id='none'}")));
}

TEST_F(ScriptFunctions, WaitForObjectWaitsUntilFoundAndReady) {
  clock.onSleep = [this] {
    if (clock.nowMs >= 100 && !world().things.contains(s("{id='late'}"))) {
      world().add(s("{id='late'}"), s("Field")).notReadyFor = 2;
    }
  };
  EXPECT_EQ(errorOf("waitForObject(\"{id='late'}\").focus();"), QString());
  EXPECT_EQ(world().calls, QStringList(s("{id='late'}.focus()")));
  EXPECT_GE(clock.nowMs, 140);
  EXPECT_LT(clock.nowMs, 1000);
}

TEST_F(ScriptFunctions, WaitForObjectEndsWhenTheTimeIsOver) {
  EXPECT_EQ(errorOf("waitForObject(\"{id='none'}\", 300);"),
            s("1: Object '{id='none'}' not found. It was waited for during 300 ms."));
  EXPECT_GE(clock.nowMs, 300);
  EXPECT_LT(clock.nowMs, 400);

  world().things.value(s("{id='f'}"))->notReadyFor = 1000000;
  EXPECT_EQ(errorOf("waitForObject(\"{id='f'}\", 100);"),
            s("1: The object '{id='f'}' was found, but was not ready within "
              "100 ms: it is hidden or disabled."));

  clock.nowMs = 0;
  EXPECT_NE(errorOf("waitForObject(\"{id='none'}\");"), QString());
  EXPECT_GE(clock.nowMs, Inspector::self()->defaultTimeout());
}

TEST_F(ScriptFunctions, ObjectExistsAnswersAndRefusesBadNames) {
  EXPECT_EQ(errorOf("test.compare(exists(\"{id='f'}\"), true);"
                    "test.compare(exists(\"{id='none'}\"), false);"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_TRUE(errorOf("exists(\"{id='f\")").startsWith(s("1: Invalid object name '{id='f': ")));
}

TEST_F(ScriptFunctions, NamesComeFromTheObjectMapAndMayHoldAmpersandEntities) {
  ObjectMap::self()->insert(s(":Field"), s("{id='f'}"));
  world().add(s("{text='a & b'}"), s("Widget"));
  EXPECT_EQ(errorOf("setFocus(':Field');"
                    "mouseClick(\"{text='a &amp; b'}\");"),
            QString());
  EXPECT_EQ(world().calls, QStringList({s("{id='f'}.focus()"), s("{text='a & b'}.click()")}));
  EXPECT_EQ(errorOf("findObject(':Nobody')"), s("1: The symbolic name ':Nobody' is not in the object map. Add it "
                                                "there, or use a real name."));
}

TEST_F(ScriptFunctions, ActionsTakeNamesAndObjects) {
  EXPECT_EQ(errorOf(R"(
    var field = findObject("{id='f'}");
    typeText(field, "typed");
    setText("{id='f'}", "set");
    setFocus(field);
    clickButton("{id='c'}");
    selectOption("{id='c'}", "second");
    mouseClick(field);
    mouseClick(field, 4);
    mouseClick(field, 5, 6);
    mouseClick("{id='f'}", 5, 6, 2, 4);
  )"),
            QString());
  EXPECT_EQ(
      world().calls,
      QStringList({s("{id='f'}.setValue(typed)"), s("{id='f'}.setValue(set)"), s("{id='f'}.focus()"),
                   s("{id='c'}.click()"), s("{id='c'}.setSelectedOption(second)"), s("{id='f'}.click()"),
                   s("{id='f'}.click(4, 0, 0, 1)"), s("{id='f'}.click(0, 5, 6, 1)"), s("{id='f'}.click(2, 5, 6, 4)")}));
  EXPECT_EQ(listener.lines.value(1), s("step typeText {id='f'}, 'typed'"));
}

TEST_F(ScriptFunctions, WrongCallsAreSentences) {
  const struct {
    const char* script;
    const char* error;
  } cases[] = {
      {"typeText(\"{id='c'}\", 'x')", "typeText needs an object with setValue, but '{id='c'}' is a Choice."},
      {"typeText(findObject(\"{id='c'}\"), 'x')",
       "typeText needs an object with setValue, but '{id='c'}' is a Choice."},
      {"typeText(\"{id='f'}\")",
       "typeText takes 2 argument(s), but got 1. Use it as typeText(object, "
       "text)."},
      {"mouseClick(null)", "mouseClick needs an object or its name, but got null."},
      {"mouseClick(\"{id='f'}\", 'left')",
       "mouseClick: positions, modifiers and button must be whole numbers, but "
       "got 'left'."},
      {"findObject(5)", "findObject needs the name of an object, but got 5."},
      {"waitForObject('x', -1)",
       "waitForObject: the time to wait must be a number of milliseconds, but "
       "got -1."},
      {"findObject('')", "Invalid object name '': it is empty."},
      {"pause('long')", "pause needs a number of seconds from 0 to 86400, but got 'long'."},
      {"pause(NaN)", "pause needs a number of seconds from 0 to 86400, but got nan."},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(errorOf(one.script), s("1: ") + s(one.error)) << one.script;
  }
}

TEST_F(ScriptFunctions, PauseSleepsAtLeastAsLongAsItSays) {
  EXPECT_EQ(errorOf("pause(1.25); pause(0);"), QString());
  // A millisecond more, since the clock rounds down.
  EXPECT_EQ(clock.nowMs, 1251);
}

TEST_F(ScriptFunctions, PauseEndsWhenNothingCanGoOn) {
  world().services.gone = [this] { return clock.nowMs < 500 ? QString() : s("The browser is gone."); };
  EXPECT_EQ(errorOf("pause(100);"), s("1: The browser is gone."));
  EXPECT_LT(clock.nowMs, 700);
  EXPECT_EQ(errorOf("pause(0.2);"), QString());
}

TEST_F(ScriptFunctions, TheEmbeddingProcessAddsFunctions) {
  QStringList urls;
  host.functions.push_back({s("startBrowser"), s("startBrowser(url)"), 1, 1, [&](const ObjectList& arguments) {
                              urls << arguments[0]->toString();
                              using Result = FunctionCallResult<SharedPtr<Object>>;
                              return urls.size() > 1 ? Result::failure(s("One is enough.")) : Result::success(nullptr);
                            }});
  EXPECT_EQ(errorOf("startBrowser('about:blank');\nstartBrowser('second');"), s("2: One is enough."));
  EXPECT_EQ(urls, QStringList({s("about:blank"), s("second")}));
  for (const char* null : {"startBrowser(null);", "startBrowser(undefined);"}) {
    EXPECT_EQ(errorOf(null), s("1: startBrowser got null for argument number 1. Use it as startBrowser(url)."));
  }
  EXPECT_EQ(urls.size(), 2);
}

TEST_F(ScriptFunctions, GlobalMethodsAreFunctionsWithOverloads) {
  addPoke();
  EXPECT_EQ(errorOf("poke('x'); poke('y'); poke(findObject(\"{id='f'}\"));"), QString());
  EXPECT_EQ(world().calls, QStringList({s("byText x"), s("byText y"), s("byObject")}));
  EXPECT_EQ(listener.lines.filter(s("log")), QStringList(s("log poke is deprecated.")));
}
