#pragma once

#include "corvexhook/objectname.h"
#include "wrappers/web/export.h"

#include <list>

namespace Corvex::WebWrapper {

/// The longest chain that `splitByContainer` gives. Only an object map whose containers go round in a circle has more.
constexpr int maxContainerChain = 100;

/// The chain of names from the outermost container down to the name itself, each without its container. A container
/// that stands in the object map is taken from there.
CORVEX_WEBWRAPPER_EXPORT std::list<ObjectName> splitByContainer(ObjectName name);

/// Whether `parts`, the split `name`, is of that length, which is then reported to the script.
bool isEndlessChain(const std::list<ObjectName>& parts, const ObjectName& name);

/// The reverse of `splitByContainer`.
CORVEX_WEBWRAPPER_EXPORT ObjectName joinByContainer(const std::list<ObjectName>& names);

/// The name with `container` around its outermost container.
CORVEX_WEBWRAPPER_EXPORT ObjectName setObjectNameContainer(ObjectName name, QString container);

}  // namespace Corvex::WebWrapper
