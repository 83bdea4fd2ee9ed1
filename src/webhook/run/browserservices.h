#pragma once

#include "corvexhook/hostservices.h"

namespace Corvex::Webhook {

class BrowserControl;
class WebModel;

/// What the framework learns of the browser that a script drives.
class BrowserServices : public HostServices {
public:
  /// Both outlive this object.
  BrowserServices(BrowserControl& control, WebModel& model) : m_control(control), m_model(model) {}

  QString whyNotGoOn() const override;
  QString whyNotLookUp(const QString& name) const override;
  QString whyNotUse(const SharedPtr<Object>& object) const override;
  QString whyNotAsk(const SharedPtr<Object>& object) const override;
  QString whyNeverFound(const QString& name) const override;
  QString whyNotFound(const QString& name) const override;
  SharedPtr<Object> lookUpToUse(const std::function<SharedPtr<Object>()>& lookUp) const override;
  FunctionCallResult<bool> isReady(const SharedPtr<Object>& object) const override;
  ObjectList findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const override;

private:
  BrowserControl& m_control;
  WebModel& m_model;
};

}  // namespace Corvex::Webhook
