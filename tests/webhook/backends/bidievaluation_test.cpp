#include "webhook/backends/bidi/bidievaluation.h"

#include <gtest/gtest.h>

#include "support/printing.h"
#include "webhook/protocol/faketransport.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

struct Row {
  const char* refusal;  ///< The answer to code for the document that goes.
  const char* text;
  int evaluations;
};

class LeavingPage : public testing::TestWithParam<Row> {};

}  // namespace

TEST_P(LeavingPage, RunsCodeInTheNextDocumentUnlessItMayHaveRun) {
  auto owned = std::make_unique<FakeTransport>();
  FakeTransport* const transport = owned.get();
  Channel channel(std::move(owned), Bidi::dialect());
  transport->onSend = [&](const QJsonObject& message) {
    const QJsonObject target = message.value(q("params")).toObject().value(q("target")).toObject();
    const char* const answer = target.value(q("realm")).toString() == q("old")
                                   ? R"({"type":"error","id":%1,"error":"%2"})"
                                   : R"({"type":"success","id":%1,"result":{"type":"success","result":{"type":"string",
                                         "value":"new"}}})";
    transport->receiveLater(QByteArray(answer)
                                .replace("%1", QByteArray::number(message.value(q("id")).toInt()))
                                .replace("%2", GetParam().refusal));
  };
  PageCall call(&channel, {}, 5000);
  int asked = 0;
  const auto places = [&asked](PageCall&) {
    return FunctionCallResult<Bidi::Place>{{q("page"), asked++ == 0 ? q("old") : q("new")}, {}};
  };

  EXPECT_EQ(evaluateInPage(call, places, q("document.title")).text, q(GetParam().text));
  EXPECT_EQ(transport->sent.size(), GetParam().evaluations);
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, LeavingPage,
    testing::Values(Row{R"(unknown error","message":"Cannot find context with specified id)", "new", 2},
                    Row{R"(no such frame","message":"Realm {} not found)", "new", 2},
                    Row{R"(unknown error","message":"Execution context was destroyed)",
                        "The page was replaced by another one before it answered. Ask again.", 1}));
