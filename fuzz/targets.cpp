#include "targets.h"

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "corvexhook/objectname.h"
#include "scripting/engine/scriptfiles.h"
#include "shared/settings.h"
#include "support/fakecomponent.h"
#include "webhook/backends/bidi/webdriver.h"
#include "webhook/endpoint/endpointpolicy.h"
#include "webhook/endpoint/pagemessage.h"
#include "webhook/inspect/names.h"
#include "webhook/pages/globaldeclarations.h"
#include "webhook/protocol/bidi/bidi.h"
#include "webhook/protocol/devtools/devtools.h"
#include "wrappers/web/catalogue/webobject_init.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/object/queryrectanglewithfunction.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/style/cssproperties.h"
#include "wrappers/web/values/jsobject.h"

#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace CorvexFuzz {

namespace {

using namespace Corvex;
using namespace Corvex::WebWrapper;

QString text(const QByteArray& input) { return QString::fromUtf8(input); }

/// A file with the input in it, for readers that take a path.
QString fileWith(const QByteArray& input) {
  static const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("input"));
  QFile file(path);
  require(file.open(QIODevice::WriteOnly) && file.write(input) == input.size(), "the input can be written to a file");
  return path;
}

/// A page that gives the input as its answer to everything.
class AnsweringPage : public TestSupport::FakeComponent {
public:
  explicit AnsweringPage(const QString& answer) : m_answer(answer) {}

  JavaScriptAnswer evaluateJS(const QString&, unsigned int) override { return {m_answer, false, false}; }

private:
  const QString m_answer;
};

void readName(const QByteArray& input) {
  const ObjectName name(text(input));
  const ObjectName again(name.qualifiedName());
  require(name.parseError() == again.parseError(), "the text of a name parses as the name did");
  require(name.properties().keys() == again.properties().keys(), "the text of a name has its properties");
  if (name.parseError().isEmpty()) {
    const std::list<ObjectName> parts = splitByContainer(name);
    require(parts.size() <= std::size_t(maxContainerChain), "a chain of containers has an end");
  }
}

void readObjectMap(const QByteArray& input) {
  ObjectMap* const map = ObjectMap::self();
  map->clear();
  const QString error = map->load(fileWith(input));
  require(error.isEmpty() || map->size() == 0, "a faulty map adds nothing");
}

void readSettings(const QByteArray& input) {
  Settings settings(fileWith(input));
  for (const QString& group : settings.groupList()) {
    for (const QString& key : settings.entryList(group, QString())) {
      settings.readEntry(group, key);
      settings.readListEntry(group, key);
      settings.readNumEntry(group, key);
      settings.readDoubleEntry(group, key);
      settings.readBoolEntry(group, key);
    }
  }
  settings.writeEntry(QStringLiteral("General"), QStringLiteral("added"), true);
  settings.flush();
}

void readAnswer(const QByteArray& input) {
  static const bool registered = [] {
    createWebObjectClasses();
    return true;
  }();
  Q_UNUSED(registered)
  AnsweringPage page(text(input));
  const std::unique_ptr<HTML_Object> found(htmlObjectFromJavaScriptResult(&page, QStringLiteral("x"), {}, 0).value);
  callJavaScriptFunction(&page, QStringLiteral("x"), 0);
  retrieveJSObject(&page, QStringLiteral("x"));
  parseItemViewBasedChildInfo(&page, text(input));
  const HTML_Object object(QString(), QStringLiteral("window.__corvex__object__C0"), &page);
  queryRectangleWithFunction(QStringLiteral("f"), &object);
  delete object.cssProperties().value;
  object.width();
  object.visible();
  Webhook::checkNames(page, 0);
  Inspector::self()->takeScriptError();
}

void readEscapes(const QByteArray& input) {
  const QString decoded = unescape(text(input));
  require(decoded.count(QLatin1Char('&')) == decoded.count(QLatin1String("&amp;")), "each ampersand is an entity");
  require(!escapeObjectNameForUseAsStringLiteral(text(input)).contains(QLatin1Char('\n')),
          "a literal has no line break");
}

void readMessage(const QByteArray& input) {
  const int line = input.indexOf('\n');
  Webhook::PageMessage::fromRequest(input.left(line), line < 0 ? QByteArray() : input.mid(line + 1));
  Webhook::PageMessage::fromText(text(input));
  QString error;
  Webhook::PageMessage::fromSessionQueue(text(input), &error);
  Webhook::originOf(text(input));
}

void readRequest(const QByteArray& input) {
  const QByteArrayList lines = input.split('\n');
  const auto list = [&lines](int from) { return lines.mid(from, 2); };
  Webhook::EndpointPolicy policy;
  policy.setAllowedOrigins({QStringLiteral("http://localhost:8080")});
  policy.judge({lines.value(0), lines.value(1), list(2), list(3), list(4), list(5), list(6)},
               {"127.0.0.1:1", "/secret/"}, 1000);
}

template <typename Read>
void readWith(const Webhook::Dialect& dialect, const QByteArray& input, Read read) {
  const Webhook::WireMessage message = dialect.read(input);
  read(message.content);
  // What is inside of a message that the dialect does not know.
  read(QJsonDocument::fromJson(input).object());
}

void readDevTools(const QByteArray& input) {
  using namespace Webhook;
  readWith(DevTools::dialect(), input, [](const QJsonObject& content) {
    DevTools::readTarget(content);
    DevTools::readNavigation(content);
    DevTools::readNewDocument(content);
    DevTools::readOutcome(content);
    DevTools::readZoom(content);
    DevTools::screenshot(content);
    DevTools::readScreenshot(content);
    DevTools::readDialog(content);
  });
}

void readBidi(const QByteArray& input) {
  using namespace Webhook;
  readWith(Bidi::dialect(), input, [](const QJsonObject& content) {
    Bidi::readBrowser(content);
    Bidi::readContext(content);
    Bidi::readPages(content);
    Bidi::readNavigation(content);
    Bidi::readDocument(content);
    Bidi::readNewRealm(content);
    Bidi::readGoneRealm(content);
    Bidi::readOutcome(content);
    Bidi::readScreenshot(content);
    Bidi::readDialog(content);
    Bidi::readDevToolsSession(content);
    Bidi::readThroughDevTools(content);
  });
}

void readCapabilities(const QByteArray& input) {
  Webhook::SessionOptions options;
  options.capabilities = text(input);
  Webhook::wantedCapabilities(options, QStringLiteral("firefox"));
}

void readScript(const QByteArray& input) {
  const QString path = fileWith(input);
  Scripting::ScriptFiles files(path);
  const FunctionCallResult<QString> script = files.read(path);
  require(script.failed() || !script.value.contains(QChar(0)), "a script has no NUL");
  files.traceOf(text(input));
  files.callsMember(text(input), QStringLiteral("click"));
  const QString global = Webhook::withGlobalDeclarations(text(input));
  require(global.count(QLatin1Char('\n')) == text(input).count(QLatin1Char('\n')), "lines keep their numbers");
}

}  // namespace

void require(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "corvexfuzz: it does not hold that %s\n", what);
    std::abort();
  }
}

const QVector<Target>& targets() {
  static const QVector<QByteArray> json = {"{", "}", "[", "]", ":", ",", "null", "true", "\"\"", "\"a\":"};
  static const QVector<Target> all = {
      {"names",
       {"{tagName='INPUT' name?='u*' id~='^a.b$'}",
        "{container={tagName='A' container=':map'} text='it\\'s' occurrence='2'}", "DOCUMENT.HTML1.BODY1", ":Symbol",
        "{a='&amp;' b='%20'}"},
       {"{", "}", "='", "'", "~='", "?='", "container=", "\\'", "\\\\", " "},
       readName},
      {"object map",
       {"# a\n:Basket\t{tagName='DIV'}\n\n:Second\t{a='b'}\n", ":A\tB\n:A\tC\n"},
       {":", "\t", "\n", "#", "{a='b'}"},
       readObjectMap},
      {"settings",
       {"[General]\na = \"x\"\nb = 7\n# c\n[Other/Group]\nlist = \"a,b\"\nt = true\n", "x = $HOME\n"},
       {"[", "]", "=", "\"", "\n", "/", "$", "${", "}"},
       readSettings},
      {"answers of pages",
       {R"({"refName":"top.__corvex__globalObjectRefStore[3]","type":"custom_text_Kit"})", R"({"result":[1,"a",null]})",
        R"({"error":{"name":"E","message":"m","stack":"s","line":3}})", "item_1|window.__corvex__objectI__1~a#",
        R"({"type":"object","object":"4"})", "1,2,3,4",
        R"({"result":{"color":{"red":1,"green":2,"blue":3,"alpha":1}}})"},
       json,
       readAnswer},
      {"escapes", {"a%20b%u0041&c", "%", "%u12", "it's \"quoted\"\n"}, {"%", "%u", "&", "00", "\\"}, readEscapes},
      {"page messages",
       {"logevent1234&event=click&x=1&object=%7Ba%3D'b'%7D",
        "eventHandler12&name=DialogText&kind=alert&text=a%20b\nbody",
        R"([{"payload":"debug a"},{"url":"logevent1","payload":"&x=1"}])", "https://host:8080/path"},
       {"&", "=", "%20", "%u0041", "logevent", "\n", "[", "]", "{\"payload\":"},
       readMessage},
      {"requests",
       {"GET\n/secret/?logevent\n127.0.0.1:1\nhttp://localhost:8080\nhttp://localhost:8080/p\n5\nchunked"},
       {"\n", "POST", "OPTIONS", "http://", ":", "/secret/?"},
       readRequest},
      {"DevTools",
       {R"({"id":1,"sessionId":"S","result":{"result":{"type":"string","value":"a"}}})",
        R"({"method":"Target.attachedToTarget","params":{"sessionId":"S","targetInfo":{"targetId":"T","type":"page"}}})",
        R"({"cssLayoutViewport":{"clientWidth":1},"cssContentSize":{"width":10,"height":1e9},"data":"aGk="})",
        R"({"result":{"type":"object","objectId":"1","description":"d"},"exceptionDetails":{"exception":{"type":"object"}}})"},
       json,
       readDevTools},
      {"BiDi",
       {R"({"type":"success","id":1,"result":{"type":"success","realm":"r","result":{"type":"string","value":"a"}}})",
        R"({"type":"event","method":"browsingContext.load","params":{"context":"c","url":"u","navigation":null}})",
        R"({"type":"error","id":2,"error":"no such frame","message":"m"})",
        R"({"contexts":[{"context":"c","children":[]}]})"},
       json,
       readBidi},
      {"capabilities", {R"({"alwaysMatch":{"browserName":"x"}})", "@/nowhere", "{}"}, json, readCapabilities},
      {"scripts",
       {"const A = 1;\nfunction f(){ return `a${b}`; }\nclass C {}\n", "Error\n@/tmp/a.js:3:7\nf@/tmp/b.js:1"},
       {"const ", "let ", "class ", "`", "${", "}", "{", "/", "//", "/*", "*/", "'", "\n"},
       readScript},
  };
  return all;
}

}  // namespace CorvexFuzz
