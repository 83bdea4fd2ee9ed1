#pragma once

#include <QJSValue>
#include <QStringList>

#include "scripting/objects/values.h"
#include "scripting/scriptlistener.h"
#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// The functions of the global object `test`. Other than the global functions they take script values as they are, and
/// know where in the script they were called.
class Checks {
public:
  using Answer = FunctionCallResult<QJSValue>;

  /// Borrows all.
  Checks(const Values& values, ScriptListener* listener, ScriptResult* result)
      : m_values(values), m_listener(listener), m_result(result) {}

  /// "test.verify" and so on.
  static QStringList names();
  /// A check that fails without the script.
  void fail(const QString& text, const ScriptTrace& trace) { checked(false, text, trace); }
  Answer call(const QString& name, const QJSValueList& arguments, const ScriptTrace& trace);

private:
  struct Call {
    const QJSValueList& arguments;
    const ScriptTrace& trace;
  };
  struct Row {
    const char* name;
    const char* usage;
    int minArguments;
    int maxArguments;
    Answer (Checks::*run)(const Call& call);
  };
  static const std::vector<Row>& rows();

  Answer verify(const Call& call);
  Answer compare(const Call& call);
  Answer log(const Call& call);
  Answer checked(bool passed, const QString& text, const ScriptTrace& trace);

  const Values& m_values;
  ScriptListener* m_listener;
  ScriptResult* m_result;
};

}  // namespace Corvex::Scripting
