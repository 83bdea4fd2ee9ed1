#include "corvexhook/hostservices.h"

#include "corvexhook/inspector.h"

namespace Corvex {

HostServices::~HostServices() = default;

QString HostServices::whyNotGoOn() const { return QString(); }

QString HostServices::whyNotLookUp(const QString&) const { return QString(); }

QString HostServices::whyNotAsk(const SharedPtr<Object>&) const { return QString(); }

QString HostServices::whyNotUse(const SharedPtr<Object>&) const { return QString(); }

QString HostServices::whyNeverFound(const QString&) const { return QString(); }

QString HostServices::whyNotFound(const QString&) const { return QString(); }

SharedPtr<Object> HostServices::lookUpToUse(const std::function<SharedPtr<Object>()>& lookUp) const { return lookUp(); }

FunctionCallResult<bool> HostServices::isReady(const SharedPtr<Object>&) const {
  return FunctionCallResult<bool>::success(true);
}

ObjectList HostServices::findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const {
  return Inspector::self()->firstInRoots(roots, name);
}

}  // namespace Corvex
