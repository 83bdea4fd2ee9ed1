#include "scripting/functions/globalfunctions.h"

#include "corvexhook/inspector.h"

namespace Corvex::Scripting {

QString countError(const QString& function, const QString& usage, int minArguments, int maxArguments, int got) {
  if (got >= minArguments && got <= maxArguments) {
    return QString();
  }
  const QString expected = minArguments == maxArguments
                               ? QString::number(minArguments)
                               : QStringLiteral("%1 to %2").arg(minArguments).arg(maxArguments);
  return QStringLiteral("%1 takes %2 argument(s), but got %3. Use it as %4.")
      .arg(function, expected, QString::number(got), usage);
}

namespace {

QString nullError(const ScriptFunction& function, const ObjectList& arguments) {
  for (int i = 0; i < function.minArguments && !function.takesNull; ++i) {
    if (!arguments[i] || arguments[i]->isNull()) {
      return QStringLiteral("%1 got null for argument number %2. Use it as %3.")
          .arg(function.name, QString::number(i + 1), function.usage);
    }
  }
  return QString();
}

}  // namespace

GlobalFunctions::GlobalFunctions(const ScriptHost& host, const FunctionContext& context) : m_context(context) {
  for (const FunctionTable& family :
       {lookupFunctions(), treeFunctions(), inputFunctions(), eventFunctions(), waitingFunctions()}) {
    for (const FunctionRow& row : family) {
      add({QString::fromLatin1(row.name), QString::fromLatin1(row.usage), row.minArguments, row.maxArguments,
           [this, row](const ObjectList& arguments) {
             return row.run({row.name, m_context, arguments});
           },
           true});
    }
  }
  for (const ScriptFunction& function : host.functions) {
    add(function);
  }
  for (const GlobalMethod* method : Inspector::self()->globalClass()->methods()) {
    if (!m_names.contains(method->name())) {
      m_names << method->name();
    }
  }
}

void GlobalFunctions::add(const ScriptFunction& function) {
  if (!m_names.contains(function.name)) {
    m_names << function.name;
  }
  const auto standing = m_functions.constFind(function.name);
  if (standing != m_functions.constEnd()) {
    m_replaced.insert(function.name, *standing);
  }
  m_functions.insert(function.name, function);
}

const ScriptFunction& GlobalFunctions::functionFor(const ScriptFunction& function, const ObjectList& arguments) const {
  const auto replaced = m_replaced.constFind(function.name);
  return function.yields && replaced != m_replaced.constEnd() && function.yields(arguments) ? *replaced : function;
}

const ScriptFunction* GlobalFunctions::find(const QString& name) const {
  const auto found = m_functions.constFind(name);
  return found == m_functions.constEnd() ? nullptr : &*found;
}

ObjectResult GlobalFunctions::call(const QString& name, const ObjectList& arguments) const {
  const auto found = m_functions.constFind(name);
  if (found == m_functions.constEnd()) {
    return m_context.calls->callGlobalMethod(name, arguments);
  }
  QString error = countError(name, found->usage, found->minArguments, found->maxArguments, arguments.size());
  error = error.isEmpty() ? nullError(*found, arguments) : error;
  if (!error.isEmpty()) {
    return ObjectResult::failure(error);
  }
  const ObjectResult result = functionFor(*found, arguments).call(arguments);
  const QString reported = Inspector::self()->takeScriptError();
  return result.failed() || reported.isEmpty() ? result : ObjectResult::failure(reported);
}

}  // namespace Corvex::Scripting
