#pragma once

namespace Corvex::Webhook {

/// How the functions of scripts that act as a person does go about it.
struct InputSettings {
  /// Clicks and texts are made in the page, for views that no protocol gives input.
  bool inPage = false;
  /// A name that fits several objects is none to act on.
  bool strictNames = false;
};

}  // namespace Corvex::Webhook
