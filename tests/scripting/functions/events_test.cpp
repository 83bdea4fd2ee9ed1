#include "corvexhook/class.h"
#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "scripting/scripttest.h"

using namespace Corvex;
using FakeModel::world;

namespace {

class FieldEvents : public SendEventDelegate {
public:
  FieldEvents() : SendEventDelegate(QStringLiteral("Field")) {}
  bool sendEvent(const Event* event, SharedPtr<Object> object, const ObjectList& arguments) const override {
    QString text = event->name() + QLatin1Char(' ') + object->objectClass()->name();
    for (const SharedPtr<Object>& argument : arguments) {
      text += QLatin1Char(' ') + argument->toString();
    }
    world().calls << text;
    if (arguments.size() == 0) {
      Inspector::self()->reportScriptError(QStringLiteral("where to?"));
    }
    return arguments.size() == 2;
  }
};

void addPing() {
  static const bool added = [] {
    GlobalClass* const global = Inspector::self()->globalClass();
    const Class* const number = Inspector::self()->primitiveType(PrimitiveType::Int);
    global->addEvent(new Event(global, QStringLiteral("ping"),
                               Signature(Argument(QStringLiteral("x"), number), Argument(QStringLiteral("y"), number)),
                               0, Event::BuiltIn));
    return true;
  }();
  Q_UNUSED(added)
}

class ScriptEvents : public FakeModel::ScriptTest {
protected:
  ScriptEvents() {
    addPing();
    world().add(s("{id='f'}"), s("Field"));
    world().add(s("{id='w'}"), s("Widget"));
  }
  const FieldEvents delegate;
};

}  // namespace

TEST_F(ScriptEvents, ReachTheDelegateOfTheObject) {
  EXPECT_EQ(
      errorOf("var f = findObject(\"{id='f'}\"); sendEvent('ping', f, 1, 2); sendEvent('ping', \"{id='f'}\", 3, 4);"),
      QString());
  EXPECT_EQ(world().calls, QStringList({s("ping Field 1 2"), s("ping Field 3 4")}));
}

TEST_F(ScriptEvents, WrongCallsSayWhatIsWrong) {
  const std::pair<const char*, const char*> cases[] = {
      {"'pong', f, 1, 2", "Unknown event type: pong. There is ping."},
      {"7, f, 1, 2", "sendEvent needs the name of an event first, but got 7."},
      {"'ping', null, 1, 2", "sendEvent needs an object or its name, but got null."},
      {"'ping'",
       "sendEvent takes 2 to 6 argument(s), but got 1. Use it as sendEvent(event, object[, x, y[, state, button]])."},
      {"'ping', 5, 1, 2", "sendEvent needs an object or its name, but got 5."},
      {"'ping', \"{id='n'}\", 1, 2", "Object '{id='n'}' not found. It was waited for during 20000 ms."},
      {"'ping', f, 1, 2, 3", "Event ping(x: int, y: int) got 3 argument(s) after the object."},
      {"'ping', f, 1, '2'", "Event ping(x: int, y: int): argument 'y' must be of type int, but got '2'."},
      {"'ping', \"{id='w'}\", 1, 2", "Widget takes no events."},
      {"'ping', f", "where to?"},
      {"'ping', f, 1", "Event 'ping' was not sent."},
  };
  for (const auto& [arguments, sentence] : cases) {
    EXPECT_EQ(errorOf(QByteArray("var f = findObject(\"{id='f'}\");\nsendEvent(") + arguments + ");"),
              QStringLiteral("2: ") + s(sentence));
  }
}
