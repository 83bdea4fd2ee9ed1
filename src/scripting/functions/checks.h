#pragma once

#include <QElapsedTimer>
#include <QJSValue>
#include <QStringList>

#include "scripting/functions/functiontable.h"
#include "scripting/objects/values.h"
#include "scripting/scriptfunction.h"
#include "scripting/scriptlistener.h"
#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// What the checks work with; pointers and references are borrowed.
struct CheckContext {
  const Values& values;
  FunctionContext functions;
  ScriptListener* listener;
  /// Where relative paths of the script start.
  QString folder;
  decltype(ScriptHost::pictureOf) pictureOf;
  /// Told of each check that does not hold.
  std::function<void()> onFailure;
  /// Ends the code that runs now.
  std::function<void()> endCode;
};

/// The functions of the global object `test`. Other than the global functions they take script values as they are, and
/// know where in the script they were called.
class Checks {
public:
  using Answer = FunctionCallResult<QJSValue>;

  explicit Checks(const CheckContext& context) : m_context(context) {}

  /// Where what is checked from now on is counted; borrowed. Needed before anything else.
  void setOutcome(Outcome* outcome) { m_outcome = outcome; }

  /// "test.verify" and so on.
  static QStringList names();
  /// A check that fails without the script.
  void fail(const QString& text, const ScriptTrace& trace) { note({false, text, trace, {}}); }
  Answer call(const QString& name, const QJSValueList& arguments, const ScriptTrace& trace);
  /// Counts a check; answers whether it has passed.
  bool note(const Check& check);

  void beginGroup(const QString& title);
  void endGroup(const QString& error);
  /// Ends the groups that code has left open which did not run to its end.
  void closeGroups();
  /// Whether the code that was running ended itself by `test.skip`; only once.
  bool takeSkip();

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
  struct Group {
    QString title;
    QElapsedTimer timer;
  };
  static const std::vector<Row>& rows();

  Answer verify(const Call& call);
  Answer compare(const Call& call);
  Answer compareScreenshot(const Call& call);
  Answer fail(const Call& call);
  Answer skip(const Call& call);
  Answer log(const Call& call);
  Answer checked(bool passed, const QString& text, const ScriptTrace& trace) {
    return Answer::success(QJSValue(note({passed, text, trace, {}})));
  }
  FunctionCallResult<QImage> pictureOf(const QJSValue& object) const;

  CheckContext m_context;
  Outcome* m_outcome = nullptr;
  std::vector<Group> m_groups;
  bool m_hasSkipped = false;
};

}  // namespace Corvex::Scripting
