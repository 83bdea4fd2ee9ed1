#pragma once

#include "corvexhook/export.h"
#include "corvexhook/object.h"
#include "shared/functioncallresult.h"

#include <QString>

#include <functional>
#include <vector>

namespace Corvex {

class ObjectName;

/// What the framework asks of the process that embeds it. Until an operation is overridden all is well, and nothing
/// more is known. The questions answer with a sentence, or with an empty text when there is nothing against it.
class CORVEXHOOK_EXPORT HostServices {
public:
  virtual ~HostServices();

  /// Why nothing can go on any more, whatever is waited for.
  virtual QString whyNotGoOn() const;
  /// Why a real name cannot be looked up now.
  virtual QString whyNotLookUp(const QString& name) const;
  /// Why an object can no longer be used.
  virtual QString whyNotUse(const SharedPtr<Object>& object) const;
  /// Why the page of an object cannot be asked now.
  virtual QString whyNotAsk(const SharedPtr<Object>& object) const;
  /// What is wrong with a real name that was not found, if it can never be found whatever there is.
  virtual QString whyNeverFound(const QString& name) const;
  /// Why a real name was not found.
  virtual QString whyNotFound(const QString& name) const;

  /// Runs a look-up whose object is asked right after whether it is ready, so that a page can be asked for both at
  /// once.
  virtual SharedPtr<Object> lookUpToUse(const std::function<SharedPtr<Object>()>& lookUp) const;
  /// Whether an object can take input now.
  virtual FunctionCallResult<bool> isReady(const SharedPtr<Object>& object) const;
  /// All objects that a multi-property name fits, below roots in the order of lookups. Failures are reported to the
  /// script. Until it is overridden, names lead to one object at most.
  virtual ObjectList findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const;
};

}  // namespace Corvex
