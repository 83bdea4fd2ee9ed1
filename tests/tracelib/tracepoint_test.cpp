#include "tracelib/tracepoint.h"

#include <gtest/gtest.h>

#include "support/messagecapture.h"
#include "support/printing.h"

using namespace brantholt::tracelib;
using TestSupport::MessageCapture;

namespace {

int evaluations = 0;

QString counted(const char* text) {
  ++evaluations;
  return QLatin1String(text);
}

void visit(const char* text) { TRACE_POINT("TestChannel", counted(text)); }

}  // namespace

TEST(TracePoint, IsSilentAndEvaluatesNothingUntilItsChannelIsOn) {
  const MessageCapture capture;
  visit("before");
  EXPECT_EQ(evaluations, 0);
  enableChannel("OtherChannel");
  visit("still off");
  enableChannel("TestChannel");
  visit("first");
  visit("second");
  enableChannel("TestChannel", false);
  visit("after");
  EXPECT_EQ(capture.messages(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
  EXPECT_EQ(capture.categories().value(0), QStringLiteral("corvex.TestChannel"));
}

TEST(TracePoint, IsSwitchedOnByALoggingRule) {
  const MessageCapture capture;
  QLoggingCategory::setFilterRules(QStringLiteral("corvex.RuleChannel.debug=true"));
  TRACE_POINT("RuleChannel", QStringLiteral("heard"));
  QLoggingCategory::setFilterRules(QString());
  TRACE_POINT("RuleChannel", QStringLiteral("not heard"));
  EXPECT_EQ(capture.messages(), QStringList(QStringLiteral("heard")));
}

TEST(TracePoint, CountsVisitsOfAnActiveChannelOnly) {
  TracePoint point("CountChannel", __FILE__, __LINE__, "here");
  EXPECT_FALSE(advanceVisit(point));
  enableChannel("CountChannel");
  EXPECT_TRUE(advanceVisit(point));
  EXPECT_TRUE(advanceVisit(point));
  EXPECT_EQ(point.visits(), 2);
}

TEST(TracePoint, WritesItsVariables) {
  const MessageCapture capture;
  enableChannel("SnapshotChannel");
  VariableSnapshot snapshot;
  snapshot.add(QStringLiteral("name"), QStringLiteral("a b")).add(QStringLiteral("count"), -3);
  ASSERT_EQ(snapshot.size(), 2u);
  EXPECT_FALSE(snapshot[0].value.isNumber());
  EXPECT_EQ(snapshot[1].value.convertToString(), QStringLiteral("-3"));
  TRACE_POINT("SnapshotChannel", QStringLiteral("found"), snapshot);
  EXPECT_EQ(capture.messages(), QStringList(QStringLiteral("found: name = a b, count = -3")));
}
