#include "webhook/recorder/pagemoves.h"

#include <cstdlib>
#include <utility>

namespace Corvex::Webhook {

namespace {

// Longer than pages take to come. Some do not come: an answer may be without content.
const int longestLoadMs = 30000;

// A page can make as many as it likes; the oldest are asked for least.
const int mostEntries = 1000;
const int mostSteps = 50;

}  // namespace

void PageMoves::noteLeaving() { m_pageMoves.setRemainingTime(longestLoadMs); }

PageMoves::Calls PageMoves::noteArrived(const WebWrapper::EventMap& data) {
  const auto item = [&data](const char* key) { return data.value(QLatin1String(key)); };
  const QString entry = item("key");
  const QString before = std::exchange(m_current, entry);
  const bool isPageMove = !std::exchange(m_pageMoves, QDeadlineTimer(0)).hasExpired();
  const int place = m_entries.indexOf(entry);
  const int placeBefore = m_entries.indexOf(before);
  if (place < 0) {
    m_entries.append(entry);
    m_entries = m_entries.mid(qMax(0, m_entries.size() - mostEntries));
  }
  const bool isReload = item("how") == QLatin1String("reload");
  const bool isFirst = before.isEmpty() || (item("first") == QLatin1String("true") && !isReload);
  const bool isByPage = item("who") == QLatin1String("page") || (isPageMove && item("who").isEmpty());
  if (isFirst || isByPage) {
    return {};
  }
  if (isReload) {
    return {"reload", 1};
  }
  const int steps = item("steps").toInt();
  if (item("how") != QLatin1String("traverse") || (steps == 0 && place < 0)) {
    return {"openUrl", 1};
  }
  const bool isBack = steps != 0 ? steps < 0 : place < placeBefore;
  return {isBack ? "goBack" : "goForward", qBound(1, std::abs(steps), mostSteps)};
}

}  // namespace Corvex::Webhook
