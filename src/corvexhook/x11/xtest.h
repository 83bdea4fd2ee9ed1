#pragma once

#include <QString>

namespace Corvex {

class XConnection;

/// Why the X server takes no input from programs. If it does, other programs cannot keep it from doing so.
QString whyNoXInput(XConnection& connection);

}  // namespace Corvex
