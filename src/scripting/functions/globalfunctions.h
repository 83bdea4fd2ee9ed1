#pragma once

#include <QHash>
#include <QStringList>

#include "scripting/functions/functiontable.h"
#include "scripting/scriptfunction.h"

namespace Corvex::Scripting {

/// The sentence for a call with a wrong number of arguments; empty for one of those that `function` takes.
QString countError(const QString& function, const QString& usage, int minArguments, int maxArguments, int got);

/// The global functions of a script, by their names: the standard ones, those of the host, and the global methods of
/// the object model. A host's function takes the place of a standard one, both that of a global method.
class GlobalFunctions {
public:
  /// Borrows what is in the context.
  GlobalFunctions(const ScriptHost& host, const FunctionContext& context);

  const QStringList& names() const { return m_names; }
  /// Null for a global method of the object model.
  const ScriptFunction* find(const QString& name) const;
  /// A name that is not among `names` is an error.
  ObjectResult call(const QString& name, const ObjectList& arguments) const;

  GlobalFunctions(const GlobalFunctions&) = delete;
  GlobalFunctions& operator=(const GlobalFunctions&) = delete;

private:
  void add(const ScriptFunction& function);
  const ScriptFunction& functionFor(const ScriptFunction& function, const ObjectList& arguments) const;

  FunctionContext m_context;
  QStringList m_names;
  QHash<QString, ScriptFunction> m_functions;
  QHash<QString, ScriptFunction> m_replaced;
};

}  // namespace Corvex::Scripting
