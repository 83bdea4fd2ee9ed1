#pragma once

#include "corvexhook/object.h"
#include "corvexhook/objectname.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;

/// One attempt to find an object by evaluating `code` in the page; `name` is what was asked for. A null pointer when
/// there is no such object, and when the lookup failed, which is reported to the script. The environment variable
/// CORVEX_WEB_OBJECT_LOOKUP_TIMEOUT has the time limit in milliseconds, 5000 without it.
SharedPtr<Object> findObjectWithJsFunction(const QString& code, const QString& name, HTMLComponent* component);

/// The same for code without a reference, which looks from the root of whatever document is there.
SharedPtr<Object> findFromRootWithJsFunction(const QString& code, const QString& name, HTMLComponent* component);

/// The time limit of a lookup in milliseconds, from the environment.
unsigned int objectLookupTimeout();

/// Passes on what the container's delegate found; an object that is there has no unmatched container.
SharedPtr<Object> foundInContainer(const SharedPtr<Object>& object, const ObjectName& name);

}  // namespace Corvex::WebWrapper
