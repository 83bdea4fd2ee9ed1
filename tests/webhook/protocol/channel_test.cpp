#include "webhook/protocol/transport/channel.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QTimer>

#include "support/messagecapture.h"
#include "support/printing.h"
#include "webhook/protocol/bidi/bidi.h"
#include "webhook/protocol/devtools/devtools.h"
#include "webhook/protocol/faketransport.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

const QString sessionA = QStringLiteral("A");
const QString sessionB = QStringLiteral("B");
const Command question{QStringLiteral("Test.ask"), {}};

QString q(const char* text) { return QString::fromUtf8(text); }

QDeadlineTimer soon() { return QDeadlineTimer(10000); }

/// How a protocol's browser speaks. %1 is a number, a session or a method, %2 a text.
struct Protocol {
  const char* name;
  const Dialect& (*dialect)();
  const char* answer;
  const char* refusal;
  const char* event;
  const char* eventOfBrowser;
  const char* requests;  ///< What two requests look like, the second one of session A.
};

const Protocol protocols[] = {
    {"DevTools", DevTools::dialect, R"({"id":%1,"result":{"text":"%2"}})",
     R"({"id":%1,"error":{"code":-32000,"message":"%2"},"sessionId":"A"})",
     R"({"method":"%2","params":{},"sessionId":"%1"})", R"({"method":"%2","params":{}})",
     R"([{"id":1,"method":"Test.ask","params":{}},{"id":2,"method":"Test.tell","params":{"x":1},"sessionId":"A"}])"},
    {"BiDi", Bidi::dialect, R"({"type":"success","id":%1,"result":{"text":"%2"}})",
     R"({"type":"error","id":%1,"error":"unknown error","message":"%2","stacktrace":""})",
     R"({"type":"event","method":"%2","params":{"context":"%1"}})", R"({"type":"event","method":"%2","params":{}})",
     R"([{"id":1,"method":"Test.ask","params":{}},{"id":2,"method":"Test.tell","params":{"x":1}}])"},
};

void PrintTo(const Protocol& protocol, std::ostream* stream) { *stream << protocol.name; }

QByteArray filled(const char* pattern, const QString& first, const QString& second) {
  return QString::fromLatin1(pattern).arg(first, second).toUtf8();
}

QString textOf(const Reply& reply) { return reply.result.value(QStringLiteral("text")).toString(); }

class ChannelTest : public testing::TestWithParam<Protocol> {
protected:
  ChannelTest() {
    auto owned = std::make_unique<FakeTransport>();
    transport = owned.get();
    channel = std::make_unique<Channel>(std::move(owned), GetParam().dialect());
  }

  static QByteArray answerTo(const QJsonObject& message, const char* text) {
    return filled(GetParam().answer, QString::number(message.value(QStringLiteral("id")).toInt()),
                  QString::fromLatin1(text));
  }

  static QByteArray event(const QString& session, const char* method) {
    if (session.isEmpty()) {
      return QByteArray(GetParam().eventOfBrowser).replace("%2", method);
    }
    return filled(GetParam().event, session, QString::fromLatin1(method));
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

TEST_P(ChannelTest, SendsNumberedRequestsWithTheirSession) {
  channel->start({}, question);
  channel->start(sessionA, {QStringLiteral("Test.tell"), {{QStringLiteral("x"), 1}}});

  ASSERT_EQ(transport->sent.size(), 2);
  EXPECT_EQ(QJsonArray({transport->sent[0], transport->sent[1]}), QJsonDocument::fromJson(GetParam().requests).array());
}

TEST_P(ChannelTest, AnswerAndRefusalEndACall) {
  answerEverything();
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("Test.ask"));

  transport->onSend = [this](const QJsonObject&) {
    transport->receiveLater(filled(GetParam().refusal, q("2"), q("No such thing")));
  };
  const Reply refused = channel->call(sessionA, question, soon());
  EXPECT_EQ(refused.status, Reply::Refused);
  EXPECT_EQ(refused.error, QStringLiteral("No such thing"));
}

TEST_P(ChannelTest, ALateAnswerReachesNoLaterCall) {
  const Reply first = channel->call(sessionA, question, QDeadlineTimer(1));
  EXPECT_EQ(first.status, Reply::TimeOver);

  transport->onSend = [this](const QJsonObject& message) {
    transport->receiveLater(answerTo(transport->sent[0], "late"));
    transport->receiveLater(answerTo(message, "right"));
  };
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("right"));
}

TEST_P(ChannelTest, UnknownNumbersAndUnreadableTextAreDropped) {
  TestSupport::MessageCapture log;
  transport->onSend = [this](const QJsonObject& message) {
    for (const char* text : {"", "{", "[1]", "nonsense", "{}", R"({"id":"1"})", R"({"id":77,"result":{}})",
                             R"({"id":77,"error":{"message":"x"}})", R"({"method":"No.subscriber","params":3})",
                             R"({"type":"success","id":77,"result":{}})", R"({"type":"error","id":null,"error":"x"})",
                             R"({"type":"event"})", R"({"type":"event","method":"No.subscriber","params":3})"}) {
      transport->receiveLater(text);
    }
    transport->receiveLater(answerTo(message, "right"));
  };
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("right"));
}

TEST_P(ChannelTest, AClosedConnectionEndsEveryOpenRequestOnce) {
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

TEST_P(ChannelTest, AnAnswerThatCameBeforeTheEndCounts) {
  transport->onSend = [this](const QJsonObject& message) {
    QTimer::singleShot(0, transport, [this, message] {
      transport->receive(answerTo(message, "last words"));
      transport->lose(QStringLiteral("it fell"));
    });
  };
  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("last words"));
}

TEST_P(ChannelTest, AnEventHandlerMayAskWhileACallWaits) {
  answerEverything();
  QObject receiver;
  QString innerAnswer;
  channel->subscribe(sessionB, &receiver, [&](const QString&, const QJsonObject&) {
    innerAnswer = textOf(channel->call(sessionB, {QStringLiteral("Test.inner"), {}}, soon()));
  });
  transport->receiveLater(event(sessionB, "Test.happened"));

  EXPECT_EQ(textOf(channel->call(sessionA, question, soon())), QStringLiteral("Test.ask"));
  EXPECT_EQ(innerAnswer, QStringLiteral("Test.inner"));
}

TEST_P(ChannelTest, AnAnswerBehindAnEventOfTheSameReadReachesACallMadeInItsHandler) {
  QObject receiver;
  QString innerAnswer;
  const auto earlier = channel->start(sessionA, question);
  channel->subscribe(sessionA, &receiver, [&](const QString&, const QJsonObject&) {
    innerAnswer = waitFor(*earlier, soon()) == WaitResult::Complete ? textOf(earlier->reply) : QStringLiteral("none");
  });
  transport->receiveTogether({event(sessionA, "Test.happened"), answerTo(transport->sent[0], "here")});
  EXPECT_EQ(innerAnswer, QStringLiteral("here"));
}

TEST_P(ChannelTest, EventsReachTheirOwnSessionAsLongAsItsReceiverLives) {
  QStringList seen;
  auto receiver = std::make_unique<QObject>();
  for (const QString& session : {QString(), sessionA}) {
    channel->subscribe(session, receiver.get(),
                       [&seen, session](const QString& method, const QJsonObject&) { seen << session + method; });
  }
  transport->receive(event({}, "x"));
  transport->receive(event(sessionA, "y"));
  transport->receive(event(sessionB, "z"));
  receiver.reset();
  transport->receive(event(sessionA, "late"));
  EXPECT_EQ(seen, QStringList({QStringLiteral("x"), QStringLiteral("Ay")}));
}

TEST_P(ChannelTest, CancellingASessionLeavesTheOthersAlone) {
  const auto other = channel->start(sessionB, question);
  QTimer::singleShot(0, [&] { channel->cancelSession(sessionA, QStringLiteral("a dialog is open")); });

  const Reply reply = channel->call(sessionA, question, soon());
  EXPECT_EQ(reply.status, Reply::Cancelled);
  EXPECT_EQ(reply.error, QStringLiteral("a dialog is open"));
  EXPECT_FALSE(other->isComplete());
}

TEST_P(ChannelTest, DeletingTheChannelEndsTheCallThatWaitsInIt) {
  QTimer::singleShot(0, [&] { channel.reset(); });
  EXPECT_EQ(channel->call(sessionA, question, soon()).status, Reply::Lost);
}

TEST_P(ChannelTest, AnEventHandlerMayDeleteTheChannel) {
  QObject receiver;
  channel->subscribe({}, &receiver, [&](const QString&, const QJsonObject&) { channel.reset(); });
  const QByteArray twice = event({}, "x");
  transport->receiveTogether({twice, twice});
  EXPECT_EQ(channel, nullptr);
}

TEST_P(ChannelTest, NestedCallsEndInnermostFirstAndEachWithItsOwnAnswer) {
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

INSTANTIATE_TEST_SUITE_P(Protocols, ChannelTest, testing::ValuesIn(protocols),
                         [](const auto& row) { return std::string(row.param.name); });
