#pragma once

#include "wrappers/web/glue/scriptclass.h"

#include <QMap>
#include <QStringList>

#include <json/value.h>

namespace Corvex::WebWrapper {

/// The names of the style properties that `CSSProperties` has, in camel case and alphabetical order.
const QStringList& cssPropertyNames();

/// The computed style of an element as it was when it was read: each property with its value, and colours as records of
/// their components.
struct CSSProperties {
  static constexpr const char* ScriptName = "CSSProperties";

  QMap<QString, Json::Value> values;
};

extern const ClassMembers CSSProperties_Class;

}  // namespace Corvex::WebWrapper
