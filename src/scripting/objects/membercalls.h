#pragma once

#include <QSet>
#include <functional>
#include <utility>

#include "corvexhook/class.h"
#include "scripting/scriptlistener.h"
#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

using ObjectResult = FunctionCallResult<SharedPtr<Object>>;

/// Uses the members of objects and the global methods of the object model, by
/// their names. What the framework reports during a call is its error.
class MemberCalls {
public:
  explicit MemberCalls(ScriptListener* listener) : m_listener(listener) {}

  /// Tells where the script is that runs, for reports.
  void setPlace(const std::function<ScriptTrace()>& place) { m_place = place; }

  ObjectResult callMethod(const SharedPtr<Object>& object, const QString& name, const ObjectList& arguments);
  /// A method that needs no object.
  ObjectResult callStatic(const Class* cls, const QString& name, const ObjectList& arguments);
  ObjectResult callGlobalMethod(const QString& name, const ObjectList& arguments);
  ObjectResult readProperty(const SharedPtr<Object>& object, const QString& name);
  /// Answers an error, or an empty text.
  QString writeProperty(const SharedPtr<Object>& object, const QString& name, const SharedPtr<Object>& value);

  /// The object that was used last, since this was asked before; null without one.
  SharedPtr<Object> takeLastUsed() { return std::exchange(m_lastUsed, nullptr); }

  static bool hasMethod(const SharedPtr<Object>& object, const QString& name);
  static std::vector<const Method*> globalMethodsNamed(const QString& name);
  /// The sentence for a member that the class lacks, with the name that comes
  /// nearest to it.
  static QString unknownMemberError(const Class* cls, const QString& name);

private:
  ObjectResult call(const Class* cls, const SharedPtr<Object>& object, const QString& name,
                    const ObjectList& arguments);
  void warnIfDeprecated(const Method* method);
  ObjectResult observed(const QString& text, const std::function<SharedPtr<Object>()>& call);

  ScriptListener* m_listener;
  std::function<ScriptTrace()> m_place;
  SharedPtr<Object> m_lastUsed;
  QSet<const Method*> m_warned;
};

}  // namespace Corvex::Scripting
