#include <QCoreApplication>

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/objectname.h"
#include "scripting/scripttest.h"
#include "support/memory.h"

using namespace Corvex;
using FakeModel::world;

namespace {

class ScriptTree : public FakeModel::ScriptTest {
protected:
  ScriptTree() {
    world().add(s("{id='box'}"), s("Widget"));
    for (const char* name : {"{id='a'}", "{id='b'}"}) {
      world().add(s(name), s("Field")).parent = s("{id='box'}");
    }
  }
};

}  // namespace

TEST_F(ScriptTree, IsWalkedDownAndUp) {
  EXPECT_EQ(errorOf(R"(
    var box = findObject("{id='box'}");
    var found = children(box);
    test.compare(found.length, 2);
    test.compare(found.map(function (child) { return objectName(child); }), ["{id='a'}", "{id='b'}"]);
    test.verify(sameObject(parent(found[1]), box));
    test.compare(parent("{id='box'}"), null);
    test.compare(children("{id='a'}"), []);
  )"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
}

TEST_F(ScriptTree, SameObjectsAreTheSameHoweverTheyAreGiven) {
  EXPECT_EQ(errorOf(R"(
    var a = findObject("{id='a'}");
    test.verify(sameObject(a, "{id='a'}") && sameObject("{id='a'}", findObject("{id='a'}")));
    test.verify(!sameObject(a, "{id='b'}") && !sameObject(parent("{id='box'}"), a) && sameObject(null, undefined));
  )"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_EQ(errorOf("sameObject(5, null)"), QString());
  EXPECT_EQ(errorOf("sameObject(5, \"{id='a'}\")"), s("1: sameObject needs an object or its name, but got 5."));
}

TEST_F(ScriptTree, HiddenObjectsCountToo) {
  world().things.value(s("{id='box'}"))->notReadyFor = 1000000;
  EXPECT_EQ(errorOf("test.compare(children(\"{id='box'}\").length, 2);"), QString());
  EXPECT_EQ(clock.nowMs, 0);
}

TEST_F(ScriptTree, WrongCallsAreSentences) {
  world().things.value(s("{id='a'}"))->value = s("nameless");
  const struct {
    const char* script;
    const char* error;
  } cases[] = {
      {"children(null)", "children needs an object or its name, but got null."},
      {"parent(7)", "parent needs an object or its name, but got 7."},
      {"objectName(\"{id='none'}\")", "Object '{id='none'}' not found."},
      {"objectName(\"{id='a'}\")", "objectName: the page gave no name for a Field."},
      {"findAllObjects(null)", "findAllObjects needs the name of an object, but got null."},
      {"findAllObjects(\"{id='a\")",
       "Invalid object name '{id='a': the closing quote of the property 'id' is missing at position 7."},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(errorOf(one.script), s("1: ") + s(one.error)) << one.script;
  }
  world().services.unusable = s("It is gone.");
  for (const char* function : {"children", "parent", "objectName"}) {
    EXPECT_EQ(errorOf(QByteArray("var a = findObject(\"{id='a'}\"); ") + function + "(a);"), s("1: It is gone."));
  }
}

TEST_F(ScriptTree, AllObjectsOfANameComeFromTheEmbeddingProcess) {
  ObjectMap::self()->insert(s(":Fields"), s("{type='field'}"));
  world().services.all = [this](const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) {
    world().calls << QStringLiteral("%1 in %2").arg(name.qualifiedName()).arg(roots.size());
    ObjectList found;
    if (name.qualifiedName() == s("{type='field'}")) {
      found.push_back(Inspector::self()->lookup(s("{id='a'}")));
      found.push_back(Inspector::self()->lookup(s("{id='b'}")));
    }
    return found;
  };
  EXPECT_EQ(errorOf("test.compare(findAllObjects(':Fields').length, 2);"
                    "test.compare(findAllObjects(\"{type='x &amp; y'}\"), []);"
                    "test.compare(findAllObjects('plain'), []);"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_EQ(world().calls,
            QStringList({s("{type='field'} in 1"), s("{type='x &amp; y'} in 1"), s("{type='x & y'} in 1")}));
  EXPECT_EQ(errorOf("findAllObjects(\"{type='bad'}\")"), s("1: Invalid object name '{type='bad'}': it is bad."));
}

TEST_F(ScriptTree, ManyLookupsLeaveNoMemoryBehind) {
  if (TestSupport::freedMemoryStays) {
    GTEST_SKIP() << "freed memory stays resident in this build";
  }
  qint64 before = 0;
  host.functions.push_back({s("mark"), s("mark()"), 0, 0, [&](const ObjectList&) {
                              before = TestSupport::residentBytes();
                              return FunctionCallResult<SharedPtr<Object>>::success(nullptr);
                            }});
  // Script objects go in the event loop, in which a page's answer is waited for.
  host.functions.push_back({s("serve"), s("serve()"), 0, 0, [&](const ObjectList&) {
                              QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                              world().lookups.clear();
                              return FunctionCallResult<SharedPtr<Object>>::success(nullptr);
                            }});
  Scripting::ScriptListener silent;
  Scripting::ScriptEngine engine(host, &silent);
  const QString script = write(R"(
    function lookUp(times) {
      for (var i = 0; i < times; ++i) {
        findObject("{id='a'}");
        if (i % 100 === 0) {
          serve();
        }
      }
    }
    lookUp(1000);
    mark();
    lookUp(99000);
  )");
  EXPECT_EQ(engine.runFile(script).error, QString());
  ASSERT_GT(before, 0);
  EXPECT_LT(TestSupport::residentBytes() - before, 10 << 20);
  EXPECT_EQ(world().alive, 0);
}
