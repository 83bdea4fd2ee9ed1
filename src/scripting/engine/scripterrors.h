#pragma once

#include <QHash>
#include <QJSValue>
#include <QString>
#include <QStringList>

#include "corvexhook/object.h"

namespace Corvex::Scripting {

/// Says what a script threw. Where the script engine only knows that something is no function, and more is known here,
/// the sentence is one of our own.
class ScriptErrors {
public:
  /// An object was found to lack a member of this name; `sentence` says so.
  void noteLackedMember(const QString& name, const QString& sentence) { m_lacked.insert(name, sentence); }
  /// This property was the last that the script read.
  void noteReadProperty(const SharedPtr<Object>& object, const QString& name) { m_lastRead = {object, name}; }

  /// `functions` are the names of the global functions.
  QString textOf(const QJSValue& thrown, const QStringList& functions) const;

private:
  struct Member {
    SharedPtr<Object> object;
    QString name;
  };

  QString sentenceFor(const QString& message, const QStringList& functions) const;

  QHash<QString, QString> m_lacked;
  Member m_lastRead;
};

}  // namespace Corvex::Scripting
