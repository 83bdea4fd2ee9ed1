#include "tracelib/tracepoint.h"

#include <QDebug>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace brantholt::tracelib {

namespace {

struct Channel {
  explicit Channel(const char* channel) : name(std::string("corvex.") + channel), category(name.c_str(), QtInfoMsg) {}

  // The category keeps a pointer to its name.
  std::string name;
  QLoggingCategory category;
};

QLoggingCategory& channelCategory(const char* name) {
  // Never freed: trace points in static objects are visited until the very end of the process.
  static auto& channels = *new std::map<std::string, std::unique_ptr<Channel>>;
  static auto& mutex = *new std::mutex;
  const std::lock_guard<std::mutex> lock(mutex);
  auto& channel = channels[name];
  if (!channel) {
    channel = std::make_unique<Channel>(name);
  }
  return channel->category;
}

}  // namespace

TracePoint::TracePoint(const char* channel, const char* file, int line, const char* function)
    : m_category(channelCategory(channel)), m_file(file), m_line(line), m_function(function) {}

void visitTracePoint(const TracePoint& point, const QString& text, const VariableSnapshot& variables) {
  QDebug output = QMessageLogger(point.m_file, point.m_line, point.m_function, point.m_category.categoryName()).debug();
  output.noquote().nospace() << text;
  if (variables.size() > 0) {
    output << ": " << variables.toString();
  }
}

void enableChannel(const char* channel, bool enable) { channelCategory(channel).setEnabled(QtDebugMsg, enable); }

}  // namespace brantholt::tracelib
