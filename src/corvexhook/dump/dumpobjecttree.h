#pragma once

#include "corvexhook/dump/dumpobjecttreedelegate.h"
#include "shared/functioncallresult.h"

#include <memory>

namespace Corvex {

/// The delegate of the object's class; null for no object, and for one whose class has none.
CORVEXHOOK_EXPORT const DumpObjectTreeDelegate* dumpDelegate(const SharedPtr<Object>& object);

/// The object and all that is below it, as its class's delegate reads them.
CORVEXHOOK_EXPORT FunctionCallResult<std::shared_ptr<UIAbstraction::UIElement>> dumpObjectTree(
    const SharedPtr<Object>& object, const DumpFilter& filters);

/// The walk: adds one object to `parentElement` with its name, bounds, image and, with `includeProperties`, the
/// properties that the filter of its class lets through; then its children, each by the delegate of its class. Null for
/// an object without a delegate.
CORVEXHOOK_EXPORT UIAbstraction::UIElement* dumpObjectTreeImpl(const SharedPtr<Object>& object, bool includeProperties,
                                                               const DumpFilter& filters,
                                                               UIAbstraction::UIElement* parentElement);

}  // namespace Corvex
