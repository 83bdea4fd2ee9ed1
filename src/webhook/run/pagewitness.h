#pragma once

#include "scripting/scriptfunction.h"

#include <QByteArray>
#include <QPointer>

namespace Corvex::Webhook {

class BrowserControl;
class BrowserSession;

/// Shows reports the page as it is at the moments of a run: its picture with the place of what it was about, and its
/// objects. Costs nothing until something fails, unless each step is wanted. A browser that gives none costs some
/// seconds, but not for each failure; what does not work is a sentence in the report, and no error of the script.
class PageWitness {
public:
  explicit PageWitness(BrowserControl& control, bool showsSteps) : m_control(control), m_showsSteps(showsSteps) {}

  void look(Scripting::Moment moment, const SharedPtr<Object>& about, Scripting::ScriptListener* listener);

private:
  bool isSilent() const;
  void noteAnswer(bool isAnswered);
  void showStep(Scripting::ScriptListener* listener);
  void showFailure(const SharedPtr<Object>& about, bool withTree, Scripting::ScriptListener* listener);
  void showTree(Scripting::ScriptListener* listener);

  BrowserControl& m_control;
  bool m_showsSteps;
  int m_stepPictures = 0;
  int m_failurePictures = 0;
  int m_trees = 0;
  /// The last thing that was shown is a failed step, without its objects.
  bool m_isStepShown = false;
  QByteArray m_lastStep;
  /// A browser that gave no picture, and how often in a row.
  QPointer<const BrowserSession> m_silentBrowser;
  int m_silences = 0;
};

}  // namespace Corvex::Webhook
