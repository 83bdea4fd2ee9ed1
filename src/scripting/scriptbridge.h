#pragma once

#include <QHash>
#include <QJSValue>
#include <QObject>

#include "scripting/membercalls.h"
#include "scripting/scriptfile.h"
#include "scripting/scriptfunction.h"
#include "scripting/values.h"

class QJSEngine;

namespace Corvex::Scripting {

/// The native side of one running script: what prelude.js calls. An operation
/// that fails raises a script error.
class ScriptBridge : public QObject {
  Q_OBJECT

public:
  /// Borrows all but the functions.
  ScriptBridge(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
               ScriptResult* result);

  /// Runs the file of the result to its end, or to its first error.
  void run();

  Q_INVOKABLE QJSValue functionNames() const;
  Q_INVOKABLE QJSValue describeClass(int classNumber);
  Q_INVOKABLE QJSValue callFunction(const QString& name, const QJSValue& arguments);
  Q_INVOKABLE QJSValue callMethod(const QJSValue& handle, const QString& name, const QJSValue& arguments);
  Q_INVOKABLE QJSValue readProperty(const QJSValue& handle, const QString& name);
  Q_INVOKABLE void writeProperty(const QJSValue& handle, const QString& name, const QJSValue& value);
  Q_INVOKABLE void unknownMember(const QJSValue& handle, const QString& name);
  Q_INVOKABLE QString textOf(const QJSValue& handle) const;
  Q_INVOKABLE bool areEqual(const QJSValue& a, const QJSValue& b) const;
  Q_INVOKABLE bool verify(bool condition, const QJSValue& message, const QString& stack);
  Q_INVOKABLE bool compare(const QJSValue& actual, const QJSValue& expected, const QJSValue& message,
                           const QString& stack);
  Q_INVOKABLE void log(const QString& text);
  /// Runs another script file in the same scope. Answers an object: whether it
  /// `failed`, and the `error` that it threw.
  Q_INVOKABLE QJSValue source(const QString& path, const QString& stack);

private:
  struct Evaluation {
    QJSValue thrown;
    bool failed = false;
  };

  bool loadPrelude();
  QJSValue scriptArray(const QStringList& texts) const;
  Evaluation evaluate(const QString& absolutePath);
  QJSValue finished(const ObjectResult& result);
  ObjectResult callByName(const QString& name, const ObjectList& arguments);
  void fail(const QString& error, const ScriptLocation& location);
  bool checked(bool passed, const QString& text, const QString& stack);
  QString stepText(const QString& name, const QJSValue& arguments) const;

  QJSEngine* m_engine;
  Values m_values;
  MemberCalls* m_calls;
  ScriptListener* m_listener;
  ScriptResult* m_result;
  ScriptFiles m_files;
  QStringList m_names;
  QHash<QString, ScriptFunction> m_functions;
  QHash<QString, QString> m_memberErrors;
};

}  // namespace Corvex::Scripting
