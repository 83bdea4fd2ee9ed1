#include "scripting/scripttest.h"

using FakeModel::world;

namespace {

class ScriptObjects : public FakeModel::ScriptTest {
protected:
  ScriptObjects() {
    world().add(s("{id='f'}"), s("Field")).value = s("old");
    world().add(s("{id='w'}"), s("Widget"));
  }
};

}  // namespace

TEST_F(ScriptObjects, ReadAndWriteProperties) {
  EXPECT_EQ(errorOf(R"(
    var field = findObject("{id='f'}");
    test.compare(field.value, "old");
    test.compare(field.width, 42);
    test.compare(field.ratio, 0.5);
    test.compare(field.enabled, true);
    field.value = "new";
    field.enabled = false;
    test.compare(field.value, "new");
    test.compare(field.enabled, false);
    test.verify("width" in field && !("nothing" in field));
  )"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_EQ(world().things.value(s("{id='f'}"))->value, s("new"));
  EXPECT_TRUE(listener.objectCalls.contains(s("Field.value = 'new'")));
}

TEST_F(ScriptObjects, WrongMembersAreSentences) {
  const struct {
    const char* script;
    const char* error;
  } cases[] = {
      {"o.width = 3", "Field.width is read-only."},
      {"o.setValue = 3", "Field.setValue is a method: call it, do not assign to it."},
      {"o.valeu = 'x'", "Field has no member 'valeu'. Did you mean 'value'?"},
      {"o.unheardOf", "Field has no member 'unheardOf'."},
      {"o.enabled = 1", "Field.enabled must be of type bool, but got 1."},
      {"o.enabled = null", "Field.enabled must be of type bool, but got null."},
      {"o.setValue()",
       "Field.setValue takes 1 argument(s), but got 0. Use it as "
       "setValue(text: string): void."},
      {"o.click(1)", "Field.click takes 0 or 4 argument(s), but got 1."},
      {"o.click(0, 1.5, 0, 1)", "Field.click: argument 'x' must be of type int, but got 1.5."},
      {"o.find(null)",
       "Field.find does not take (null). Use it as find(index: int): void or "
       "find(label: string): void."},
      {"o.adopt(5)", "Field.adopt: argument 'child' must be of type Widget, but got 5."},
      {"o.setValue({})",
       "setValue: A plain script object cannot be passed to this function: "
       "pass a number, a text, true or false, null, an array or an object that "
       "was looked up."},
      {"o.fail()", "The page said no."},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(errorOf(QByteArray("var o = findObject(\"{id='f'}\");\n") + one.script), s("2: ") + s(one.error))
        << one.script;
  }
  EXPECT_EQ(world().calls, QStringList());
}

TEST_F(ScriptObjects, OverloadsAreChosenByArguments) {
  EXPECT_EQ(errorOf(R"(
    var field = findObject("{id='f'}");
    field.find(3);
    field.find("3");
    field.click();
    field.click(1, 2, 3, 4);
    field.setValue(12);
    field.adopt(null);
    field.adopt(field);
  )"),
            QString());
  EXPECT_EQ(world().calls,
            QStringList({s("{id='f'}.findByIndex(3)"), s("{id='f'}.findByLabel(3)"), s("{id='f'}.click()"),
                         s("{id='f'}.click(1, 2, 3, 4)"), s("{id='f'}.setValue(12)"), s("{id='f'}.adopt(null)"),
                         s("{id='f'}.adopt(field {id='f'})")}));
}

TEST_F(ScriptObjects, ArraysAndNullsPassBothWays) {
  EXPECT_EQ(errorOf(R"(
    var field = findObject("{id='f'}");
    var result = field.words(["x", 1, null, [true]]);
    test.verify(Array.isArray(result));
    test.compare(result.length, 3);
    test.compare(result.slice(0, 2), ["a", 2]);
    test.compare(result[2].value, "old");
    test.compare(field.parent(), null);
    test.compare(field.click(), undefined);
  )"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_EQ(world().calls.value(0), s("{id='f'}.words(x,1,,true)"));
}

TEST_F(ScriptObjects, ArraysThatHoldThemselvesAreRefused) {
  EXPECT_EQ(errorOf("var a = [1]; a.push(a);\n"
                    "test.verify(!test.compare(a, [1]));\n"
                    "findObject(\"{id='f'}\").words(a);"),
            s("3: words: An array is too long, or too deeply nested."));
  EXPECT_EQ(errorOf("var a = []; a.push(a, a); findObject(\"{id='f'}\").words(a);"),
            s("1: words: An array is too long, or too deeply nested."));
  EXPECT_EQ(errorOf("var a = [1]; for (var i = 0; i < 19; ++i) { a = [a, a, a]; } findObject(\"{id='f'}\").words(a);"),
            s("1: words: An array is too long, or too deeply nested."));
  EXPECT_EQ(errorOf("findObject(\"{id='f'}\").words(new Array(4000000000));"),
            s("1: words: An array is too long, or too deeply nested."));
}

TEST_F(ScriptObjects, TextAndIdentity) {
  EXPECT_EQ(errorOf(R"(
    var one = findObject("{id='f'}"), two = findObject("{id='f'}");
    var other = findObject("{id='w'}");
    test.compare(String(one), "field {id='f'}");
    test.compare("" + other, "[object Widget]");
    test.compare(JSON.stringify([one]), "[\"field {id='f'}\"]");
    test.verify(sameObject(one, two) && !sameObject(one, other));
    test.compare(one, two);
    test.verify(one instanceof Object && typeof one === "object");
  )"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
}

TEST_F(ScriptObjects, DoNotOutliveTheScript) {
  const int before = world().alive;
  EXPECT_EQ(errorOf("for (var i = 0; i < 3000; ++i) { var o = findObject(\""
                    "{id='f'}\"); o.value; }"),
            QString());
  EXPECT_EQ(world().alive, before);
}

TEST_F(ScriptObjects, ScriptsDoNotSeeEachOther) {
  EXPECT_EQ(errorOf("var left = 1; Object.prototype.trace = 2;"), QString());
  EXPECT_EQ(errorOf("test.compare(typeof left, 'undefined');"
                    "test.compare(({}).trace, undefined);"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
}
