#pragma once

#include <QString>

/// Text that keeps start scripts out of frames, for browsers that run them there, too.
namespace Corvex::Webhook::StartScript {

/// Comes before every other start script of a page.
QString frameGuard();

/// `script` as it is given to the browser: where the guard found a frame, it fails as a whole, before it declares or
/// runs anything.
QString forTopPage(const QString& script);

}  // namespace Corvex::Webhook::StartScript
