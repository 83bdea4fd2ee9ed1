#include "webhook/recorder/scriptline.h"

#include "corvexhook/datetime.h"
#include "corvexhook/primitives.h"
#include "shared/visibletext.h"

#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace Corvex::Webhook {

namespace {

/// What the name of a call is, where that is no object of a page.
struct FunctionRow {
  const char* function;
  /// Whether the name is the first argument; otherwise it is none.
  bool takesName;
};

const FunctionRow functionsWithoutObject[] = {
    {"startBrowser", true},  {"waitForContextExists", true},
    {"setContext", true},    {"closeWindow", false},
    {"openUrl", true},       {"goBack", false},
    {"goForward", false},    {"reload", false},
    {"//", false},           {"closeAlert", false},
    {"closeConfirm", false}, {"closePrompt", false},
    {"pressKeys", false},
};

const FunctionRow* rowOf(const EventData& call) {
  const auto row = std::find_if(std::begin(functionsWithoutObject), std::end(functionsWithoutObject),
                                [&call](const FunctionRow& each) { return call.functionName() == each.function; });
  return row == std::end(functionsWithoutObject) ? nullptr : row;
}

struct CharacterRow {
  char character;
  const char* literal;
};

constexpr CharacterRow shortForms[] = {{'"', "\\\""}, {'\\', "\\\\"}, {'\n', "\\n"}, {'\r', "\\r"}, {'\t', "\\t"}};

QString shown(const QString& character) {
  for (const CharacterRow& row : shortForms) {
    if (character == QLatin1Char(row.character)) {
      return QLatin1String(row.literal);
    }
  }
  const uint code = character.toUcs4().at(0);
  const QChar::Category category = QChar::category(code);
  const bool breaksLines = category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
  if (QChar::isPrint(code) && !breaksLines) {
    return character;
  }
  QString result;
  for (const QChar unit : character) {
    result += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
  }
  return result;
}

/// Browsers do not tell in which folder a chosen file lies. A page that makes one up would get another file.
QString fileLiteral(const QString& value) {
  const QString hidden = QStringLiteral("C:\\fakepath\\");
  const QString name = value.mid(hidden.size()).section(QLatin1Char('/'), -1);
  return value.startsWith(hidden) ? QStringLiteral("scriptPath(%1)").arg(scriptLiteral(name)) : QString();
}

QString argumentText(const SharedPtr<Object>& argument, const QString& function) {
  if (!argument) {
    return QStringLiteral("null");
  }
  if (argument->isA(objectModelDateTimeClass())) {
    const QDate date = unwrapDateTime(argument).value().date();
    return QStringLiteral("new Date(%1, %2, %3)").arg(date.year()).arg(date.month() - 1).arg(date.day());
  }
  if (primitiveValue(argument).type() != QVariant::String) {
    return argument->toString();
  }
  const QString text = argument->toString();
  const QString file = function == QLatin1String("setText") ? fileLiteral(text) : QString();
  return file.isEmpty() ? scriptLiteral(text) : file;
}

}  // namespace

QString scriptLiteral(const QString& text) {
  QString result = QStringLiteral("\"");
  for (const uint character : text.toUcs4()) {
    result += shown(QString::fromUcs4(&character, 1));
  }
  return result + QLatin1Char('"');
}

bool namesAnObject(const EventData& call) { return !rowOf(call); }

QString scriptLineWithSecret(const EventData& call, const QString& objectName, const QString& variable) {
  return QStringLiteral("%1(%2, environment.%3);").arg(call.functionName(), scriptLiteral(objectName), variable);
}

QString scriptLine(const EventData& call, const QString& objectName) {
  if (call.functionName() == QLatin1String("//")) {
    return QStringLiteral("// ") + visibleText(call.arguments().at(0)->toString(), LineBreaks::Shown);
  }
  if (call.functionName() == QLatin1String("test.compare")) {
    return QStringLiteral("test.compare(waitForObject(%1).%2, %3);")
        .arg(scriptLiteral(objectName), call.arguments().at(0)->toString(),
             argumentText(call.arguments().at(1), call.functionName()));
  }
  const FunctionRow* const row = rowOf(call);
  QStringList arguments;
  if (!row || row->takesName) {
    arguments << scriptLiteral(objectName);
  }
  for (const SharedPtr<Object>& argument : call.arguments()) {
    arguments << argumentText(argument, call.functionName());
  }
  return QStringLiteral("%1(%2);").arg(call.functionName(), arguments.join(QLatin1String(", ")));
}

}  // namespace Corvex::Webhook
