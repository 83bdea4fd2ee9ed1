#pragma once

#include <QString>

namespace Corvex::Webhook {

class MemberDescriptions;

/// TypeScript declarations of the script classes that the object model has now. Classes that are not described come
/// last, under a heading of their own. Where a property and a method have one name, only the property is there, as for
/// scripts.
QString classDeclarations(const MemberDescriptions& descriptions);

}  // namespace Corvex::Webhook
