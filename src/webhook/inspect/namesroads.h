#pragma once

#include "webhook/inspect/names.h"

#include <QJsonArray>
#include <QString>

namespace Corvex::Webhook {

/// How a look-up asks the page for a name. It takes one road after the other until one finds something. A road has a
/// `name`, and either names to be found `below` it one inside the other, or the `path` through the object tree.
struct NameRoads {
  QJsonArray roads;
  QString refusal;  ///< Why look-ups refuse the name by rule, as part of a sentence.
  QString error;    ///< What is wrong with a name that cannot be read.
};

NameRoads roadsOfName(const QString& name);

NameKind kindOfName(const QString& name);

}  // namespace Corvex::Webhook
