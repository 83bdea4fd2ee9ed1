#pragma once

#include "corvexhook/object.h"
#include "shared/functioncallresult.h"
#include "shared/javascriptanswer.h"
#include "webhook/protocol/inputstep.h"

#include <QPointF>
#include <functional>
#include <optional>

namespace Corvex {
namespace WebWrapper {
class HTML_Object;
}

namespace Webhook {

class Connection;

/// The element that a person's action is for, found by a name or given. All waiting of one action shares one time, the
/// default time of lookups.
class ActionTarget {
public:
  /// `action` is what is done, for sentences: "clicked".
  ActionTarget(const SharedPtr<Object>& argument, const char* action, bool isStrict);

  /// Waits until a named object is there and ready. With strict names it has to be the only one. Answers an error.
  QString find();

  /// Waits until the element can be reached at `place`, from its corner, or else at a point of its own, has stopped
  /// moving and stands in view. `act` is called with the point in the page's view and answers an error. Where it
  /// presses a button, and the press met something else, that was kept from the page, and the wait goes on.
  QString reach(const std::optional<QPointF>& place, bool presses, const std::function<QString(const QPointF&)>& act);

  /// Whether `reach` found an element that the browser shows in a way of its own, so that `act` was not called.
  bool needsPage() const { return m_needsPage; }

  /// Valid after find().
  WebWrapper::HTML_Object& element() const { return *m_element; }
  Connection& connection() const;
  /// Evaluates code with the element's reference at its "%1".
  JavaScriptAnswer ask(const QString& code) const;
  QString perform(const InputSteps& steps) const;

  /// What is left of the time, 0 or more.
  int remainingMs() const;

  /// The name that it was found by, or one that finds it.
  QString name() const;
  /// "The object '...' could not be ...: " and why.
  QString failure(const QString& why) const;

private:
  QString takeObject(const SharedPtr<Object>& object);
  QString whyNotUnique() const;
  QString attempt(const std::optional<QPointF>& place, bool presses, const std::function<QString(const QPointF&)>& act,
                  int number);
  QString reasonFor(const QString& state) const;

  SharedPtr<Object> m_argument;
  const char* m_action;
  bool m_isStrict;
  QString m_givenName;
  SharedPtr<Object> m_object;
  WebWrapper::HTML_Object* m_element = nullptr;
  qint64 m_end;
  bool m_needsPage = false;
  bool m_isDone = false;
};

}  // namespace Webhook
}  // namespace Corvex
