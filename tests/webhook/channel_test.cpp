#include "webhook/channel.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QTimer>

#include "support/messagecapture.h"
#include "support/printing.h"
#include "webhook/devtools.h"
#include "webhook/faketransport.h"

using namespace Corvex::Webhook;

namespace {

const QString sessionA = QStringLiteral("A");
const QString sessionB = QStringLiteral("B");
const Command question{QStringLiteral("Test.ask"), {}};

QDeadlineTimer soon() { return QDeadlineTimer(10000); }

QByteArray answerTo(const QJsonObject& message, const char* text) {
  return QStringLiteral(R"({"id":%1,"result":{"text":"%2"}})")
      .arg(QString::number(message.value(QStringLiteral("id")).toInt()), QString::fromLatin1(text))
      .toUtf8();
}

QString textOf(const Reply& reply) { return reply.result.value(QStringLiteral("text")).toString(); }

class ChannelTest : public testing::Test {
protected:
  ChannelTest() {
    auto owned = std::make_unique<FakeTransport>();
    transport = owned.get();
    channel = std::make_unique<Channel>(std::move(owned), DevTools::dialect());
  }

  void answerEverything() {
    transport->onSend = [this](const QJsonObject& message) {
      const QByteArray method = message.value(QStringLiteral("method")).toString().toLatin1();
      transport->receiveLater(answerTo(message, method.constData()));
    };
  }

  FakeTransport* transport = nullptr;
  std::unique_ptr<Channel> channel;
};

}  // namespace

TEST_F(ChannelTest, SendsNumberedRequestsWithTheirSession) {
  channel->start({}, question);
  channel->start(sessionA, {QStringLiteral("Test.tell"), {{QStringLiteral("x"), 1}}});

  const QByteArray expected = R"([{"id":1,"method":"Test.ask","params":{}},
      {"id":2,"method":"Test.tell","params":{"x":1},"sessionId":"A"}])";
  ASSERT_EQ(transport->sent.size(), 2);
  EXPECT_EQ(QJsonArray({transport->sent[0], transport->sent[1]}), QJsonDocument::fromJson(expected).array());
}

TEST_F(ChannelTest, AnswerAndRefusalEndACall) {
  answerEverything();
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("Test.ask"));

  transport->onSend = [this](const QJsonObject&) {
    transport->receiveLater(R"({"id":2,"error":{"code":-32000,"message":"No such thing"},"sessionId":"A"})");
  };
  const Reply refused = channel->call(sessionA, question, soon());
  EXPECT_EQ(refused.status, Reply::Refused);
  EXPECT_EQ(refused.error, QStringLiteral("No such thing"));
}

TEST_F(ChannelTest, ALateAnswerReachesNoLaterCall) {
  const Reply first = channel->call(sessionA, question, QDeadlineTimer(1));
  EXPECT_EQ(first.status, Reply::TimeOver);

  transport->onSend = [this](const QJsonObject& message) {
    transport->receiveLater(answerTo(transport->sent[0], "late"));
    transport->receiveLater(answerTo(message, "right"));
  };
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("right"));
}

TEST_F(ChannelTest, UnknownNumbersAndUnreadableTextAreDropped) {
  TestSupport::MessageCapture log;
  transport->onSend = [this](const QJsonObject& message) {
    for (const char* text : {"", "{", "[1]", "nonsense", "{}", R"({"id":"1"})", R"({"id":77,"result":{}})",
                             R"({"id":77,"error":{"message":"x"}})", R"({"method":"No.subscriber","params":3})"})
      transport->receiveLater(text);
    transport->receiveLater(answerTo(message, "right"));
  };
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("right"));
}

TEST_F(ChannelTest, AClosedConnectionEndsEveryOpenRequestOnce) {
  int closedSignals = 0;
  Reply::Status statusAtSignal = Reply::Open;
  const auto other = channel->start(sessionB, question);
  QObject::connect(channel.get(), &Channel::closed, [&](const QString&) {
    ++closedSignals;
    statusAtSignal = other->reply.status;
  });
  QTimer::singleShot(0, [&] { transport->lose(QStringLiteral("it fell")); });

  const Reply reply = channel->call(sessionA, question, soon());
  EXPECT_EQ(reply.status, Reply::Lost);
  EXPECT_EQ(reply.error, QStringLiteral("it fell"));
  EXPECT_EQ(statusAtSignal, Reply::Lost);
  EXPECT_EQ(closedSignals, 1);

  EXPECT_EQ(channel->call(sessionA, question, soon()).status, Reply::Lost);
  EXPECT_EQ(transport->sent.size(), 2) << "nothing is sent into a closed connection";
}

TEST_F(ChannelTest, AnAnswerThatCameBeforeTheEndCounts) {
  transport->onSend = [this](const QJsonObject& message) {
    QTimer::singleShot(0, transport, [this, message] {
      transport->receive(answerTo(message, "last words"));
      transport->lose(QStringLiteral("it fell"));
    });
  };
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("last words"));
}

TEST_F(ChannelTest, AnEventHandlerMayAskWhileACallWaits) {
  answerEverything();
  QObject receiver;
  QString innerAnswer;
  channel->subscribe(sessionB, &receiver, [&](const QString&, const QJsonObject&) {
    innerAnswer = textOf(channel->call(sessionB, {QStringLiteral("Test.inner"), {}}, soon()));
  });
  transport->receiveLater(R"({"method":"Test.happened","params":{},"sessionId":"B"})");

  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("Test.ask"));
  EXPECT_EQ(innerAnswer, QStringLiteral("Test.inner"));
}

TEST_F(ChannelTest, AnAnswerBehindAnEventOfTheSameReadReachesACallMadeInItsHandler) {
  QObject receiver;
  QString innerAnswer;
  const auto earlier = channel->start(sessionA, question);
  channel->subscribe(sessionA, &receiver, [&](const QString&, const QJsonObject&) {
    innerAnswer = waitFor(*earlier, soon()) == WaitResult::Complete ? textOf(earlier->reply) : QStringLiteral("none");
  });
  transport->receiveTogether(
      {R"({"method":"Test.happened","params":{},"sessionId":"A"})", answerTo(transport->sent[0], "here")});
  EXPECT_EQ(innerAnswer, QStringLiteral("here"));
}

TEST_F(ChannelTest, EventsReachTheirOwnSessionAsLongAsItsReceiverLives) {
  QStringList seen;
  auto receiver = std::make_unique<QObject>();
  for (const QString& session : {QString(), sessionA}) {
    channel->subscribe(session, receiver.get(),
                       [&seen, session](const QString& method, const QJsonObject&) { seen << session + method; });
  }
  transport->receive(R"({"method":"x","params":{}})");
  transport->receive(R"({"method":"y","params":{},"sessionId":"A"})");
  transport->receive(R"({"method":"z","params":{},"sessionId":"B"})");
  receiver.reset();
  transport->receive(R"({"method":"late","params":{},"sessionId":"A"})");
  EXPECT_EQ(seen, QStringList({QStringLiteral("x"), QStringLiteral("Ay")}));
}

TEST_F(ChannelTest, CancellingASessionLeavesTheOthersAlone) {
  const auto other = channel->start(sessionB, question);
  QTimer::singleShot(0, [&] { channel->cancelSession(sessionA, QStringLiteral("a dialog is open")); });

  const Reply reply = channel->call(sessionA, question, soon());
  EXPECT_EQ(reply.status, Reply::Cancelled);
  EXPECT_EQ(reply.error, QStringLiteral("a dialog is open"));
  EXPECT_FALSE(other->isComplete());
}

TEST_F(ChannelTest, DeletingTheChannelEndsTheCallThatWaitsInIt) {
  QTimer::singleShot(0, [&] { channel.reset(); });
  EXPECT_EQ(channel->call(sessionA, question, soon()).status, Reply::Lost);
}

TEST_F(ChannelTest, AnEventHandlerMayDeleteTheChannel) {
  QObject receiver;
  channel->subscribe({}, &receiver, [&](const QString&, const QJsonObject&) { channel.reset(); });
  const QByteArray event = R"({"method":"x","params":{}})";
  transport->receiveTogether({event, event});
  EXPECT_EQ(channel, nullptr);
}

TEST_F(ChannelTest, NestedCallsEndInnermostFirstAndEachWithItsOwnAnswer) {
  QStringList answers;
  QTimer::singleShot(0, [&] {
    QTimer::singleShot(0, [&] {
      transport->receiveTogether({answerTo(transport->sent[0], "outer"), answerTo(transport->sent[1], "inner")});
    });
    answers << textOf(channel->call(sessionA, question, soon()));
  });
  answers << textOf(channel->call(sessionA, question, soon()));
  EXPECT_EQ(answers, QStringList({QStringLiteral("inner"), QStringLiteral("outer")}));
}
