#pragma once

#include <QLoggingCategory>
#include <QString>
#include <atomic>

#include "tracelib/export.h"
#include "tracelib/variablesnapshot.h"

/// Trace points on named channels.
///
/// A channel is the logging category "corvex.<channel>" at debug level. It is off by default, and is switched on from
/// outside by a rule such as QT_LOGGING_RULES="corvex.WebWrapper.debug=true", or from code by enableChannel().
namespace brantholt::tracelib {

/// One place in the source that can write to a channel. Made once per place, as a static object.
class TRACELIB_EXPORT TracePoint {
public:
  /// All texts are literals: they are kept as pointers.
  TracePoint(const char* channel, const char* file, int line, const char* function);

  TracePoint(const TracePoint&) = delete;
  TracePoint& operator=(const TracePoint&) = delete;

  bool isActive() const { return m_category.isDebugEnabled(); }
  /// How often the place was reached while its channel was on.
  int visits() const { return m_visits; }

private:
  friend bool advanceVisit(TracePoint& point);
  friend TRACELIB_EXPORT void visitTracePoint(const TracePoint&, const QString&, const VariableSnapshot&);

  const QLoggingCategory& m_category;
  const char* m_file;
  int m_line;
  const char* m_function;
  std::atomic<int> m_visits{0};
};

/// Counts a visit when the channel is on, and tells whether it is.
inline bool advanceVisit(TracePoint& point) {
  if (!point.isActive()) {
    return false;
  }
  ++point.m_visits;
  return true;
}

/// Writes the text, and after it the variables if there are any, to the point's channel.
TRACELIB_EXPORT void visitTracePoint(const TracePoint& point, const QString& text,
                                     const VariableSnapshot& variables = VariableSnapshot());

/// Switches a channel on or off for the whole process.
TRACELIB_EXPORT void enableChannel(const char* channel, bool enable = true);

}  // namespace brantholt::tracelib

/// TRACE_POINT("WebWrapper", text) or TRACE_POINT("WebWrapper", text, snapshot): writes to the channel if it is on.
/// When it is off, neither text nor snapshot is evaluated.
#define TRACE_POINT(channel, ...)                                                                   \
  do {                                                                                              \
    static ::brantholt::tracelib::TracePoint tracePointHere(channel, __FILE__, __LINE__, __func__); \
    if (::brantholt::tracelib::advanceVisit(tracePointHere))                                        \
      ::brantholt::tracelib::visitTracePoint(tracePointHere, __VA_ARGS__);                          \
  } while (false)
