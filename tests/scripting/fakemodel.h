#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "corvexhook/class.h"
#include "corvexhook/hostservices.h"

/// A small object model for scripts to run on: widgets under a root, found by
/// their whole names.
namespace FakeModel {

/// The native object behind every script object of the model.
struct Thing {
  QString className;
  QString name;
  QString value;
  /// The name of the thing that it lies in; empty for none.
  QString parent;
  bool enabled = true;
  /// How often a readiness check still says no.
  int notReadyFor = 0;
};

/// What the framework is told of the model.
class Services : public Corvex::HostServices {
public:
  QString whyNotGoOn() const override { return gone ? gone() : QString(); }
  QString whyNotUse(const Corvex::SharedPtr<Corvex::Object>&) const override { return unusable; }
  QString whyNeverFound(const QString& name) const override {
    return name.contains(QLatin1String("bad")) ? QStringLiteral("it is bad") : QString();
  }
  Corvex::FunctionCallResult<bool> isReady(const Corvex::SharedPtr<Corvex::Object>& object) const override;
  Corvex::ObjectList findAll(const std::vector<Corvex::SharedPtr<Corvex::Object>>& roots,
                             const Corvex::ObjectName& name) const override {
    return all ? all(roots, name) : HostServices::findAll(roots, name);
  }

  std::function<QString()> gone;
  QString unusable;
  std::function<Corvex::ObjectList(const std::vector<Corvex::SharedPtr<Corvex::Object>>&, const Corvex::ObjectName&)>
      all;
};

/// What a test sees and steers. There is one for the whole process.
struct World {
  QHash<QString, std::shared_ptr<Thing>> things;
  /// Calls of native functions, as texts.
  QStringList calls;
  /// Names that were looked up.
  QStringList lookups;
  Services services;
  /// Objects of the model that exist.
  int alive = 0;

  Thing& add(const QString& name, const QString& className);
};

World& world();

/// Brings up the classes once, and an empty world with a root each time.
void reset();
/// Leaves the framework without a root.
void tearDown();

}  // namespace FakeModel
