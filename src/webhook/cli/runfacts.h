#pragma once

#include "scripting/scriptevents.h"

#include <QStringList>

namespace Corvex::Webhook {

/// What a report says of the run itself: program, date, machine, and the arguments it was started with, in which
/// nothing secret is shown.
QVector<Scripting::Fact> runFacts(const QStringList& arguments);

/// The arguments of a command as a report may show them: without the values of those that may hold passwords.
QStringList withoutSecrets(const QStringList& arguments);

}  // namespace Corvex::Webhook
