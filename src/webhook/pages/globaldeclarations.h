#pragma once

#include <QString>

namespace Corvex::Webhook {

/// The script with `const`, `let` and `class` at its top level turned into `var`, so that what they declare is global
/// wherever the text is evaluated: in a block, or by a function, which is all that some browsers have for the scripts
/// of a document's start. A text that is no script comes back as it is or with other faults, at the same lines.
QString withGlobalDeclarations(const QString& script);

}  // namespace Corvex::Webhook
