#pragma once

namespace Corvex::Scripting {

/// How much of its pages a run leaves in a report, so that one in which everything fails is still a file that opens.
struct ReportLimits {
  static const int mostFailurePictures = 50;
  static const int mostTrees = 10;
  static const int mostStepPictures = 1000;
  /// Of one script.
  static const int mostObjectCalls = 5000;
};

}  // namespace Corvex::Scripting
