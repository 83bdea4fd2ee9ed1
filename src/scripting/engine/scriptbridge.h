#pragma once

#include <QJSValue>
#include <QObject>

#include "scripting/engine/evaluation.h"
#include "scripting/engine/interruption.h"
#include "scripting/engine/scripterrors.h"
#include "scripting/engine/scriptfiles.h"
#include "scripting/functions/checks.h"
#include "scripting/functions/globalfunctions.h"
#include "scripting/functions/waits.h"
#include "scripting/objects/membercalls.h"
#include "scripting/objects/values.h"
#include "scripting/scriptfunction.h"

class QJSEngine;

namespace Corvex::Scripting {

/// The native side of one running script: what the prelude calls. An operation
/// that fails raises a script error. A `stack` is the text of the calls that led
/// to the operation.
class ScriptBridge : public QObject {
  Q_OBJECT

public:
  /// Borrows all but the functions of the host.
  ScriptBridge(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
               ScriptFiles* files, Interruption* interruption);
  ~ScriptBridge() override;

  Checks& checks() { return m_checks; }

  /// The names of the functions that the global object has, in no order.
  QStringList globalFunctions() const;
  Evaluation callGlobalFunction(const QString& name);

  /// Tells the listener what there is to see, if the host shows it.
  void look(Moment moment, const SharedPtr<Object>& about = nullptr);

  /// The calls that led to the function in which the script was ended from outside; empty when it was not in one.
  const QString& stackOfEnd() const { return m_stackOfEnd; }

  /// What a thrown value says to people.
  Q_INVOKABLE QString errorText(const QJSValue& thrown) const;

  /// `names` gives the names of the global functions, `run` calls one: it answers what `source` does.
  Q_INVOKABLE void setRunner(const QJSValue& names, const QJSValue& run);

  /// `wrap` makes a script object around a handle, `handleOf` gives the handle
  /// behind a script object, or undefined.
  Q_INVOKABLE void setWrappers(const QJSValue& wrap, const QJSValue& handleOf);
  Q_INVOKABLE QJSValue describeClass(int classNumber);
  Q_INVOKABLE QJSValue callMethod(const QJSValue& handle, const QString& name, const QJSValue& arguments);
  Q_INVOKABLE QJSValue readProperty(const QJSValue& handle, const QString& name);
  Q_INVOKABLE void writeProperty(const QJSValue& handle, const QString& name, const QJSValue& value);
  Q_INVOKABLE void unknownMember(const QJSValue& handle, const QString& name);
  /// Whether a member of this name is about to be called, as far as the script's text tells.
  Q_INVOKABLE bool isCalled(const QString& name, const QString& stack) const;
  Q_INVOKABLE QString textOf(const QJSValue& handle) const;

  /// See `globalClasses`.
  Q_INVOKABLE QJSValue classNames() const;
  Q_INVOKABLE QJSValue staticMethods(const QString& className) const;
  /// An object: the value of each item by its name.
  Q_INVOKABLE QJSValue enumItems(const QString& className) const;
  Q_INVOKABLE QJSValue callStatic(const QString& className, const QString& name, const QJSValue& arguments);

  Q_INVOKABLE QJSValue functionNames() const;
  Q_INVOKABLE QJSValue callFunction(const QString& name, const QJSValue& arguments);
  /// Whether something happened beside the script; tells it to the listener, as what came at this place.
  Q_INVOKABLE bool hasNews();
  Q_INVOKABLE void tellNews(const QString& stack);
  Q_INVOKABLE QJSValue checkNames() const;
  Q_INVOKABLE QJSValue callCheck(const QString& name, const QJSValue& arguments, const QString& stack);
  /// Counts a check that the prelude has made.
  Q_INVOKABLE bool noteCheck(bool passed, const QString& text, const QString& stack);
  Q_INVOKABLE void beginGroup(const QString& title);
  /// `error` is empty for a group that ran to its end.
  Q_INVOKABLE void endGroup(const QString& error);
  Q_INVOKABLE QJSValue scriptFacts() const;
  Q_INVOKABLE QJSValue environment() const;
  /// The rows of a table, as an array of objects; of a JSON file its text.
  Q_INVOKABLE QJSValue readTable(const QString& path);
  /// Throws what is wrong with the arguments of a function that waits.
  Q_INVOKABLE void checkWait(const QString& name, const QJSValue& arguments);
  /// See `Waits::wait`. The steps of the attempts are not told.
  Q_INVOKABLE QJSValue wait(const QString& name, const QJSValue& arguments, const QJSValue& attempt);
  Q_INVOKABLE bool areEqual(const QJSValue& a, const QJSValue& b);
  /// Runs another script file in the same scope. Answers an object: whether it
  /// `failed`, and the `error` that it threw.
  Q_INVOKABLE QJSValue source(const QString& path, const QString& stack);

private:
  QJSValue scriptArray(const QStringList& texts) const;
  QJSValue scriptObject(const QMap<QString, QString>& texts) const;
  FunctionCallResult<ObjectList> argumentsFor(const ScriptFunction* function, const QJSValue& arguments);
  QJSValue finished(const ObjectResult& result);
  void tellStep(const QString& name, const QJSValue& arguments, qint64 durationMs, const QString& error);
  SharedPtr<Object> objectOfStep(const QJSValue& arguments) const;
  QString stackHere() const;
  /// Where the script is; of many calls the innermost.
  ScriptTrace here() const;
  QString stepText(const QString& name, const QJSValue& arguments) const;

  QJSEngine* m_engine;
  Values m_values;
  MemberCalls* m_calls;
  ScriptListener* m_listener;
  ScriptFiles* m_files;
  Interruption* m_interruption;
  QString m_stackOfEnd;
  QMap<QString, QString> m_arguments;
  QJSValue m_namesOfFunctions;
  QJSValue m_runFunction;
  ScriptErrors m_errors;
  GlobalFunctions m_functions;
  Checks m_checks;
  Waits m_waits;
  std::function<std::vector<HostNews>()> m_takeNews;
  decltype(ScriptHost::look) m_look;
  std::vector<HostNews> m_news;
  int m_waiting = 0;
};

}  // namespace Corvex::Scripting
