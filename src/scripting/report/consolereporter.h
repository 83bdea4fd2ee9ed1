#pragma once

#include <cstdio>
#include <functional>
#include <system_error>

#include "scripting/report/progressline.h"

namespace Corvex::Scripting {

/// Prints each script, step and check as it happens; the last line is the
/// summary of all. Texts are made visible, and further lines of a text are
/// indented, so that none passes for a line of the report. What stands in groups is indented, too.
class CORVEXSCRIPTING_EXPORT ConsoleReporter : public ScriptListener {
public:
  enum class Detail { Steps, ObjectCalls };

  /// Borrows the stream.
  explicit ConsoleReporter(std::FILE* out, Detail detail = Detail::Steps);
  /// Colours are on at first when the stream is a terminal that has them and the environment variable NO_COLOR is not
  /// set.
  void setColours(bool on) { m_colours = on; }
  /// Lines are printed around this one; borrowed.
  void setProgress(ProgressLine* progress) { m_progress = progress; }
  /// Called once, when the stream takes no more. Nothing is written from then on.
  void setOutputEnd(const std::function<void()>& outputEnd) { m_outputEnd = outputEnd; }
  /// Why the stream takes no more; none as long as it does.
  std::error_code error() const { return m_error; }

  void scriptStarted(const QString& path) override;
  void step(const Step& step) override;
  void objectCall(const Step& call) override;
  void check(const Check& check) override;
  void log(const QString& text) override;
  /// Only what a page did not catch is printed.
  void pageMessage(const PageMessage& message) override;
  void groupStarted(const QString& title) override;
  void groupFinished(const QString& title, const QString& error, qint64 durationMs) override;
  void functionStarted(const QString& name) override;
  void functionFinished(const FunctionResult& result) override;
  void scriptFinished(const ScriptResult& result) override;
  void runFinished(const RunSummary& summary) override;

private:
  enum class Colour { Plain, Dim, Green, Yellow, Red };

  void print(const QString& text, Colour colour = Colour::Plain);
  void printError(const Outcome& outcome);
  void printVerdict(const QString& name, const Outcome& outcome);

  std::FILE* m_out;
  Detail m_detail;
  bool m_colours;
  ProgressLine* m_progress = nullptr;
  std::function<void()> m_outputEnd;
  std::error_code m_error;
  /// In how many groups the script is.
  int m_depth = 0;
  int m_attempt = 1;
};

}  // namespace Corvex::Scripting
