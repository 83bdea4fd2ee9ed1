#pragma once

#include <QString>

namespace Corvex::Webhook {

/// A TypeScript declaration file of everything that test scripts have: the functions, as `declarations` describes them,
/// and the script classes of the object model. The classes have to be registered.
QString typings();

}  // namespace Corvex::Webhook
