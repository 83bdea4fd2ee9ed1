#include "shared/wait.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

using namespace Corvex;

TEST(Wait, ReturnsAtOnceForWhatIsComplete) {
  Pending pending;
  pending.complete();
  bool eventServed = false;
  QObject context;
  QMetaObject::invokeMethod(
      &context, [&] { eventServed = true; }, Qt::QueuedConnection);

  EXPECT_EQ(waitFor(pending, QDeadlineTimer(0)), WaitResult::Complete);
  EXPECT_FALSE(eventServed);
}

TEST(Wait, EndsWithTheAnswerOrTheDeadline) {
  Pending answered;
  QTimer::singleShot(0, [&] { answered.complete(); });
  EXPECT_EQ(waitFor(answered, QDeadlineTimer(QDeadlineTimer::Forever)), WaitResult::Complete);

  Pending forgotten;
  EXPECT_EQ(waitFor(forgotten, QDeadlineTimer(1)), WaitResult::TimeOver);
  forgotten.complete();
  EXPECT_EQ(waitFor(forgotten, QDeadlineTimer(0)), WaitResult::Complete);
}

TEST(Wait, AnInnerWaitEndsFirstAndNeverLaterThanTheOuterDeadline) {
  Pending outer;
  Pending inner;
  WaitResult innerResult = WaitResult::Complete;
  int innerTime = 0;
  QTimer::singleShot(0, [&] {
    innerTime = grantedTime(60000);
    innerResult = waitFor(inner, QDeadlineTimer(60000));
  });

  QElapsedTimer elapsed;
  elapsed.start();
  EXPECT_EQ(waitFor(outer, QDeadlineTimer(50)), WaitResult::TimeOver);
  EXPECT_LT(elapsed.elapsed(), 30000);
  EXPECT_EQ(innerResult, WaitResult::TimeOver);
  EXPECT_LE(innerTime, 50);
  EXPECT_EQ(grantedTime(60000), 60000);
}

TEST(Wait, AnOuterAnswerThatComesDuringAnInnerWaitIsKept) {
  Pending outer;
  Pending inner;
  WaitResult innerResult = WaitResult::TimeOver;
  QTimer::singleShot(0, [&] {
    QTimer::singleShot(0, [&] {
      outer.complete();
      inner.complete();
    });
    innerResult = waitFor(inner, QDeadlineTimer(10000));
  });

  EXPECT_EQ(waitFor(outer, QDeadlineTimer(10000)), WaitResult::Complete);
  EXPECT_EQ(innerResult, WaitResult::Complete);
}

TEST(Wait, NestedWaitsForTheSameThingAllEndWithIt) {
  Pending shared;
  WaitResult innerResult = WaitResult::TimeOver;
  QTimer::singleShot(0, [&] {
    QTimer::singleShot(0, [&] { shared.complete(); });
    innerResult = waitFor(shared, QDeadlineTimer(10000));
  });

  EXPECT_EQ(waitFor(shared, QDeadlineTimer(10000)), WaitResult::Complete);
  EXPECT_EQ(innerResult, WaitResult::Complete);
}
