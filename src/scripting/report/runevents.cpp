#include "scripting/report/runevents.h"

#include <QJsonArray>

namespace Corvex::Scripting {

namespace {

using Json = QJsonObject;

QString key(const char* name) { return QString::fromLatin1(name); }

QString textOf(const Json& json, const char* name) { return json.value(key(name)).toString(); }

QStringList textsOf(const Json& json, const char* name) {
  QStringList texts;
  for (const QJsonValue& text : json.value(key(name)).toArray()) {
    texts << text.toString();
  }
  return texts;
}

// JSON numbers are exact up to 2^53, longer than any run.
qint64 numberOf(const Json& json, const char* name) { return static_cast<qint64>(json.value(key(name)).toDouble()); }

int countOf(const Json& json, const char* name) { return json.value(key(name)).toInt(); }

bool flagOf(const Json& json, const char* name) { return json.value(key(name)).toBool(); }

QJsonArray asJson(const ScriptTrace& trace) {
  QJsonArray locations;
  for (const ScriptLocation& location : trace) {
    locations.append(Json{{key("file"), location.file},
                          {key("line"), location.line},
                          {key("function"), location.function},
                          {key("text"), location.sourceLine}});
  }
  return locations;
}

ScriptTrace traceOf(const Json& json) {
  ScriptTrace trace;
  for (const QJsonValue& each : json.value(key("trace")).toArray()) {
    const Json location = each.toObject();
    trace.push_back(
        {textOf(location, "file"), countOf(location, "line"), textOf(location, "function"), textOf(location, "text")});
  }
  return trace;
}

Json asJson(const Step& step) {
  return {{key("text"), step.text},
          {key("durationMs"), step.durationMs},
          {key("trace"), asJson(step.trace)},
          {key("error"), step.error}};
}

Step stepOf(const Json& json) {
  return {textOf(json, "text"), numberOf(json, "durationMs"), traceOf(json), textOf(json, "error")};
}

Json asJson(const Outcome& outcome) {
  QJsonArray failed;
  for (const FailedCheck& check : outcome.failedChecks) {
    failed.append(Json{{key("text"), check.text},
                       {key("trace"), asJson(check.trace)},
                       {key("groups"), QJsonArray::fromStringList(check.groups)}});
  }
  return {{key("error"), outcome.error},
          {key("trace"), asJson(outcome.trace)},
          {key("checksPassed"), outcome.checksPassed},
          {key("failedChecks"), failed},
          {key("isSkipped"), outcome.isSkipped},
          {key("skipReason"), outcome.skipReason},
          {key("durationMs"), outcome.durationMs}};
}

void read(const Json& json, Outcome* outcome) {
  outcome->error = textOf(json, "error");
  outcome->trace = traceOf(json);
  outcome->checksPassed = countOf(json, "checksPassed");
  for (const QJsonValue& each : json.value(key("failedChecks")).toArray()) {
    const Json check = each.toObject();
    outcome->failedChecks.push_back({textOf(check, "text"), traceOf(check), textsOf(check, "groups")});
  }
  outcome->isSkipped = flagOf(json, "isSkipped");
  outcome->skipReason = textOf(json, "skipReason");
  outcome->durationMs = numberOf(json, "durationMs");
}

Json asJson(const FunctionResult& result) {
  Json json = asJson(static_cast<const Outcome&>(result));
  json.insert(key("name"), result.name);
  return json;
}

FunctionResult functionOf(const Json& json) {
  FunctionResult result;
  read(json, &result);
  result.name = textOf(json, "name");
  return result;
}

Json asJson(const ScriptResult& result) {
  QJsonArray functions;
  for (const FunctionResult& function : result.functions) {
    functions.append(asJson(function));
  }
  Json json = asJson(static_cast<const Outcome&>(result));
  json.insert(key("path"), result.path);
  json.insert(key("interrupted"), result.interrupted);
  json.insert(key("attempt"), result.attempt);
  json.insert(key("runsAgain"), result.runsAgain);
  json.insert(key("functions"), functions);
  return json;
}

ScriptResult scriptOf(const Json& json) {
  ScriptResult result;
  read(json, &result);
  result.path = textOf(json, "path");
  result.interrupted = flagOf(json, "interrupted");
  result.attempt = countOf(json, "attempt");
  result.runsAgain = flagOf(json, "runsAgain");
  for (const QJsonValue& function : json.value(key("functions")).toArray()) {
    result.functions.push_back(functionOf(function.toObject()));
  }
  return result;
}

Check checkOf(const Json& json) {
  Check check = {flagOf(json, "passed"), textOf(json, "text"), traceOf(json), {}};
  if (json.contains(key("expected"))) {
    check.comparison = {textOf(json, "actual"), textOf(json, "expected")};
  }
  return check;
}

Picture pictureOf(const Json& json) {
  Picture picture;
  picture.purpose =
      textOf(json, "purpose") == QLatin1String("step") ? Picture::Purpose::Step : Picture::Purpose::Failure;
  picture.mimeType = textOf(json, "mimeType");
  picture.missing = textOf(json, "missing");
  picture.size = {countOf(json, "width"), countOf(json, "height")};
  const QJsonArray marked = json.value(key("marked")).toArray();
  picture.marked = {marked.at(0).toInt(), marked.at(1).toInt(), marked.at(2).toInt(), marked.at(3).toInt()};
  picture.bytes = QByteArray::fromBase64(textOf(json, "bytes").toLatin1());
  return picture;
}

QVector<Fact> factsOf(const Json& json) {
  QVector<Fact> facts;
  for (const QJsonValue& each : json.value(key("facts")).toArray()) {
    const Json fact = each.toObject();
    facts.append({textOf(fact, "name"), textOf(fact, "value")});
  }
  return facts;
}

RunSummary summaryOf(const Json& json) {
  RunSummary summary;
  summary.scripts = countOf(json, "scripts");
  summary.passed = countOf(json, "passed");
  summary.flaky = countOf(json, "flaky");
  summary.skipped = countOf(json, "skipped");
  summary.checks = countOf(json, "checks");
  summary.checksFailed = countOf(json, "checksFailed");
  summary.durationMs = numberOf(json, "durationMs");
  summary.notRun = textsOf(json, "notRun");
  return summary;
}

struct Reader {
  const char* event;
  void (*tell)(const Json& json, ScriptListener* listener);
};

const Reader readers[] = {
    {"environment", [](const Json& json, ScriptListener* listener) { listener->environment(factsOf(json)); }},
    {"scriptStarted",
     [](const Json& json, ScriptListener* listener) { listener->scriptStarted(textOf(json, "path")); }},
    {"step", [](const Json& json, ScriptListener* listener) { listener->step(stepOf(json)); }},
    {"objectCall", [](const Json& json, ScriptListener* listener) { listener->objectCall(stepOf(json)); }},
    {"check", [](const Json& json, ScriptListener* listener) { listener->check(checkOf(json)); }},
    {"log", [](const Json& json, ScriptListener* listener) { listener->log(textOf(json, "text")); }},
    {"pageMessage",
     [](const Json& json, ScriptListener* listener) {
       listener->pageMessage({textOf(json, "kind"), textOf(json, "text")});
     }},
    {"picture", [](const Json& json, ScriptListener* listener) { listener->picture(pictureOf(json)); }},
    {"tree", [](const Json& json, ScriptListener* listener) { listener->tree(textOf(json, "json").toUtf8()); }},
    {"groupStarted", [](const Json& json, ScriptListener* listener) { listener->groupStarted(textOf(json, "title")); }},
    {"groupFinished",
     [](const Json& json, ScriptListener* listener) {
       listener->groupFinished(textOf(json, "title"), textOf(json, "error"), numberOf(json, "durationMs"));
     }},
    {"functionStarted",
     [](const Json& json, ScriptListener* listener) { listener->functionStarted(textOf(json, "name")); }},
    {"functionFinished",
     [](const Json& json, ScriptListener* listener) { listener->functionFinished(functionOf(json)); }},
    {"scriptFinished", [](const Json& json, ScriptListener* listener) { listener->scriptFinished(scriptOf(json)); }},
    {"runFinished", [](const Json& json, ScriptListener* listener) { listener->runFinished(summaryOf(json)); }},
};

}  // namespace

void EventWriter::write(const char* event, QJsonObject fields) const {
  fields.insert(key("event"), QString::fromLatin1(event));
  m_sink(fields);
}

void EventWriter::environment(const QVector<Fact>& facts) {
  QJsonArray array;
  for (const Fact& fact : facts) {
    array.append(Json{{key("name"), fact.name}, {key("value"), fact.value}});
  }
  write("environment", {{key("facts"), array}});
}

void EventWriter::scriptStarted(const QString& path) { write("scriptStarted", {{key("path"), path}}); }

void EventWriter::step(const Step& step) { write("step", asJson(step)); }

void EventWriter::objectCall(const Step& call) { write("objectCall", asJson(call)); }

void EventWriter::check(const Check& check) {
  Json json{{key("passed"), check.passed}, {key("text"), check.text}, {key("trace"), asJson(check.trace)}};
  if (check.comparison) {
    json.insert(key("actual"), check.comparison->actual);
    json.insert(key("expected"), check.comparison->expected);
  }
  write("check", json);
}

void EventWriter::log(const QString& text) { write("log", {{key("text"), text}}); }

void EventWriter::pageMessage(const PageMessage& message) {
  write("pageMessage", {{key("kind"), message.kind}, {key("text"), message.text}});
}

void EventWriter::picture(const Picture& picture) {
  const QRect& marked = picture.marked;
  write("picture", {{key("purpose"), key(picture.purpose == Picture::Purpose::Step ? "step" : "failure")},
                    {key("mimeType"), picture.mimeType},
                    {key("missing"), picture.missing},
                    {key("width"), picture.size.width()},
                    {key("height"), picture.size.height()},
                    {key("marked"), QJsonArray{marked.x(), marked.y(), marked.width(), marked.height()}},
                    {key("bytes"), QString::fromLatin1(picture.bytes.toBase64())}});
}

void EventWriter::tree(const QByteArray& json) { write("tree", {{key("json"), QString::fromUtf8(json)}}); }

void EventWriter::groupStarted(const QString& title) { write("groupStarted", {{key("title"), title}}); }

void EventWriter::groupFinished(const QString& title, const QString& error, qint64 durationMs) {
  write("groupFinished", {{key("title"), title}, {key("error"), error}, {key("durationMs"), durationMs}});
}

void EventWriter::functionStarted(const QString& name) { write("functionStarted", {{key("name"), name}}); }

void EventWriter::functionFinished(const FunctionResult& result) { write("functionFinished", asJson(result)); }

void EventWriter::scriptFinished(const ScriptResult& result) { write("scriptFinished", asJson(result)); }

void EventWriter::runFinished(const RunSummary& summary) {
  write("runFinished", {{key("scripts"), summary.scripts},
                        {key("passed"), summary.passed},
                        {key("flaky"), summary.flaky},
                        {key("skipped"), summary.skipped},
                        {key("checks"), summary.checks},
                        {key("checksFailed"), summary.checksFailed},
                        {key("durationMs"), summary.durationMs},
                        {key("notRun"), QJsonArray::fromStringList(summary.notRun)}});
}

bool replay(const QJsonObject& event, ScriptListener* listener) {
  const QString name = textOf(event, "event");
  for (const Reader& reader : readers) {
    if (name == QLatin1String(reader.event)) {
      reader.tell(event, listener);
      return true;
    }
  }
  return false;
}

}  // namespace Corvex::Scripting
