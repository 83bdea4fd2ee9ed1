#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "corvexhook/class.h"

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

/// What a test sees and steers. There is one for the whole process.
struct World {
  QHash<QString, std::shared_ptr<Thing>> things;
  /// Calls of native functions, as texts.
  QStringList calls;
  /// Names that were looked up.
  QStringList lookups;
  /// The clock of the framework, moved by its sleeps alone.
  qint64 nowMs = 0;
  /// What happens when a sleep begins.
  std::function<void()> onSleep;
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
