#include "webhook/run/inputfunctions.h"

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "webhook/run/pointeractions.h"
#include "webhook/run/typing.h"
#include "webhook/run/windowcall.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <QVariant>

#include <cmath>

namespace Corvex::Webhook {

namespace {

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

const int rightButtonBit = 16;

bool isNumber(const SharedPtr<Object>& value) {
  const QVariant::Type type = primitiveValue(value).type();
  return type == QVariant::Int || type == QVariant::Double;
}

PointerButton buttonOf(int value) {
  return value == 2 ? PointerButton::Right : value == 4 ? PointerButton::Middle : PointerButton::Left;
}

struct Call {
  BrowserControl& control;
  const char* function;
  const ObjectList& arguments;

  PointerActions pointer() const { return PointerActions(control.input().strictNames); }
  Typing typing() const { return Typing(control.input().strictNames); }
  const SharedPtr<Object>& object() const { return arguments[0]; }
  double number(int index) const { return arguments[index]->toDouble(); }
};

struct UseResult {
  PointerUse use;
  QString error;
};

/// Reads (object[, modifiers]) and (object, x, y[, modifiers[, button]]).
UseResult readUse(const Call& call) {
  const int count = call.arguments.size();
  for (int i = 1; i < count; ++i) {
    if (!isNumber(call.arguments[i]) || !std::isfinite(call.number(i))) {
      return {{},
              QStringLiteral("%1: positions, modifiers and button must be numbers, but argument number %2 is none.")
                  .arg(QLatin1String(call.function), QString::number(i + 1))};
    }
  }
  UseResult result;
  const int modifiersAt = count == 2 ? 1 : 3;
  const int modifiers = count > modifiersAt ? static_cast<int>(call.number(modifiersAt)) : 0;
  if (count > 2) {
    result.use.place = QPointF(call.number(1), call.number(2));
  }
  result.use.button = count > 4 ? buttonOf(static_cast<int>(call.number(4))) : PointerButton::Left;
  if (modifiers & rightButtonBit) {
    result.use.button = PointerButton::Right;
  }
  result.use.modifierState = modifiers & ~rightButtonBit;
  return result;
}

template <typename Action>
QString withUse(const Call& call, const Action& action) {
  const UseResult read = readUse(call);
  return read.error.isEmpty() ? action(read.use) : read.error;
}

QString click(const Call& call) {
  return withUse(call, [&call](const PointerUse& use) { return call.pointer().click(call.object(), use); });
}

QString doubleClick(const Call& call) {
  return withUse(call, [&call](const PointerUse& use) { return call.pointer().click(call.object(), use, 2); });
}

QString openContextMenu(const Call& call) {
  return withUse(call, [&call](PointerUse use) {
    use.button = PointerButton::Right;
    return call.pointer().click(call.object(), use);
  });
}

/// Recorded ones have a button, and no modifiers, after the position.
QString nativeMouseClick(const Call& call) {
  return withUse(call, [&call](PointerUse use) {
    use.button = buttonOf(std::exchange(use.modifierState, 0));
    return call.pointer().click(call.object(), use);
  });
}

QString hover(const Call& call) {
  return withUse(call, [&call](const PointerUse& use) { return call.pointer().hover(call.object(), use); });
}

QString mouseDown(const Call& call) {
  return withUse(call, [&call](const PointerUse& use) { return call.pointer().press(call.object(), use); });
}

QString mouseUp(const Call& call) {
  return withUse(call, [&call](const PointerUse& use) { return call.pointer().release(call.object(), use); });
}

QString mouseWheel(const Call& call) {
  if (!isNumber(call.arguments[1]) || !isNumber(call.arguments[2])) {
    return QStringLiteral("mouseWheel: the pixels to scroll must be numbers.");
  }
  return call.pointer().turnWheel(call.object(), {call.number(1), call.number(2)});
}

QString dragTo(const Call& call) { return call.pointer().drag(call.object(), call.arguments[1]); }

QString setChecked(const Call& call) {
  if (primitiveValue(call.arguments[1]).type() != QVariant::Bool) {
    return QStringLiteral("setChecked takes true or false as its second argument.");
  }
  return call.pointer().setChecked(call.object(), call.arguments[1]->toBool());
}

QString typeText(const Call& call) { return call.typing().typeText(call.object(), call.arguments[1]->toString()); }

QString setText(const Call& call) { return call.typing().setText(call.object(), call.arguments[1]->toString()); }

QString pressKeys(const Call& call) {
  const QString why = call.control.whyNotAskPage();
  return why.isEmpty() ? Typing::pressKeys(*call.control.windows()->current(), call.object()->toString()) : why;
}

QString useInput(const Call& call) {
  const QString road = call.object()->toString();
  if (road != QLatin1String("browser") && road != QLatin1String("page")) {
    return QStringLiteral("useInput takes \"browser\" or \"page\", but got \"%1\".").arg(road);
  }
  call.control.input().inPage = road == QLatin1String("page");
  return {};
}

QString useStrictNames(const Call& call) {
  call.control.input().strictNames = call.object()->toBool();
  return {};
}

enum Road { ByPerson, OnlyByPerson, Setting };

struct Row {
  const char* name;
  const char* usage;
  int minArguments;
  int maxArguments;
  Road road;
  QString (*run)(const Call& call);
};

const Row rows[] = {
    {"mouseClick",
     "mouseClick(object), mouseClick(object, modifiers) or mouseClick(object, x, y[, modifiers[, button]])", 1, 5,
     ByPerson, click},
    {"doubleClick", "doubleClick(object), doubleClick(object, modifiers) or doubleClick(object, x, y[, modifiers])", 1,
     4, ByPerson, doubleClick},
    {"clickButton", "clickButton(object)", 1, 1, ByPerson, click},
    {"openContextMenu", "openContextMenu(object[, x, y[, modifiers]])", 1, 4, ByPerson, openContextMenu},
    {"nativeMouseClick", "nativeMouseClick(object[, x, y[, button]])", 1, 4, OnlyByPerson, nativeMouseClick},
    {"hover", "hover(object[, x, y])", 1, 3, OnlyByPerson, hover},
    {"mouseMove", "mouseMove(object[, x, y])", 1, 3, OnlyByPerson, hover},
    {"mouseDown", "mouseDown(object[, x, y[, modifiers[, button]]])", 1, 5, OnlyByPerson, mouseDown},
    {"mouseUp", "mouseUp(object[, x, y[, modifiers[, button]]])", 1, 5, OnlyByPerson, mouseUp},
    {"mouseWheel", "mouseWheel(object, right, down)", 3, 3, OnlyByPerson, mouseWheel},
    {"dragTo", "dragTo(from, to)", 2, 2, OnlyByPerson, dragTo},
    {"typeText", "typeText(object, text)", 2, 2, ByPerson, typeText},
    {"setText", "setText(object, text)", 2, 2, ByPerson, setText},
    {"pressKeys", "pressKeys(text)", 1, 1, OnlyByPerson, pressKeys},
    {"setChecked", "setChecked(object, checked)", 2, 2, OnlyByPerson, setChecked},
    {"useInput", "useInput(\"browser\") or useInput(\"page\")", 1, 1, Setting, useInput},
    {"useStrictNames", "useStrictNames(strict)", 1, 1, Setting, useStrictNames},
};

ScriptValue run(const Row& row, BrowserControl& control, const ObjectList& arguments) {
  const auto call = [&]() -> ScriptValue {
    if (row.road == OnlyByPerson && control.input().inPage) {
      return ScriptValue::failure(QStringLiteral("%1 needs the browser's own input: call useInput(\"browser\") first, "
                                                 "or leave out --input page.")
                                      .arg(QLatin1String(row.name)));
    }
    return {nullptr, row.run({control, row.name, arguments})};
  };
  return row.road == Setting ? call() : withWindow(control, call);
}

}  // namespace

std::vector<Scripting::ScriptFunction> inputFunctions(BrowserControl& control) {
  std::vector<Scripting::ScriptFunction> functions;
  for (const Row& row : rows) {
    Scripting::ScriptFunction function;
    function.name = QLatin1String(row.name);
    function.usage = QLatin1String(row.usage);
    function.minArguments = row.minArguments;
    function.maxArguments = row.maxArguments;
    function.call = [&control, &row](const ObjectList& arguments) { return run(row, control, arguments); };
    if (row.road == ByPerson) {
      function.yields = [&control](const ObjectList&) { return control.input().inPage; };
    }
    functions.push_back(function);
  }
  return functions;
}

}  // namespace Corvex::Webhook
