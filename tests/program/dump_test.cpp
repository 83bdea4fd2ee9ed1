// Dumps of pages as the program writes them, and as a person uses them in a browser.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

// Its texts end what they stand in wherever they are taken for code or markup.
const char* const page =
    R"HTML(<title>&lt;/title&gt;&lt;script&gt;document.title='taken over'&lt;/script&gt; %DATA%</title>
<button id='b' title='&quot;&gt;&lt;img src=x onerror="document.title=1"&gt;'>Press &lt;/script&gt;&lt;script&gt;document.title='over'&lt;/script&gt;</button>
<p id='p'>One &#27;[31m&#8232;two</p><p hidden>Hidden</p><i title='twice'>1</i><i title='twice'>2</i>
<x-box></x-box><iframe srcdoc='<a href="#x" id="l">In a frame</a>'></iframe>
<script>document.querySelector('x-box').attachShadow({ mode: 'open' }).innerHTML = '<b id="deep">Deep</b>';</script>)HTML";

// What a person does with the file.
const char* const reader = R"JS(startBrowser("dump.html");
var search = "{tagName='INPUT' type='search'}", details = "{tagName='DIV' id='details'}";
function shows(text) {
  var shown = waitForObject(details).innerText;
  test.verify(shown.indexOf(text) >= 0, text + " in " + shown);
}
test.verify(pageTitle().indexOf("</title><script>document.title='taken over'") === 0, pageTitle());
typeText(search, "twice"); shows("matches"); shows("2"); shows("twice");
test.compare(waitForObject("{tagName='OUTPUT'}").simplifiedInnerText, "1 of 2");
pressKeys("<Return>");
test.compare(waitForObject("{tagName='OUTPUT'}").simplifiedInnerText, "2 of 2");
setText(search, "</script><script>"); shows("HTML_Button"); shows("onerror");
setText(search, "deep"); shows("HTML_Object"); setText(search, "In a frame"); shows("HTML_Anchor");
mouseClick("{tagName='DIV' id='tree'}", 300, 10); pressKeys("<Home>"); shows("context"); pressKeys("<Down>"); shows("HTML1");
mouseClick("{tagName='BUTTON' id='copy'}"); waitForObject("{tagName='BUTTON' simplifiedInnerText='Copied'}");
mouseClick("{tagName='DIV' id='picture'}", 20, 14); shows("HTML_Button");
test.compare(consoleMessages().filter(function (message) { return message.uncaught; }).length, 0);
)JS";

QByteArray bytesOf(const ProgramRun& program, const char* name) {
  QFile file(program.folder() + QLatin1Char('/') + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Dump, IsAPageThatShowsObjectsAndRunsNothingOfThem) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromLatin1(page));
  const ProgramResult result = program.run({"dump", "page.html"});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_TRUE(result.output.startsWith("dump.html: ")) << qPrintable(result.output);
  program.write(QStringLiteral("reader.js"), QString::fromLatin1(reader));
  const ProgramResult read = program.run({"run", "reader.js"});
  EXPECT_EQ(read.exitCode, 0) << qPrintable(read.output + read.errors);
}

TEST(Dump, IsJsonAndXmlForPrograms) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromLatin1(page));
  EXPECT_EQ(program.run({"dump", "page.html", "-o", "d.json", "--filter", "id, t*"}).exitCode, 0);
  const QJsonArray documents =
      QJsonDocument::fromJson(bytesOf(program, "d.json")).object().value("documents").toArray();
  ASSERT_EQ(documents.size(), 2);
  EXPECT_EQ(documents.at(1).toObject().value("context").toString(), "page.html.FRAME1");
  EXPECT_EQ(program.run({"dump", "page.html", "-o", "d.xml"}).exitCode, 0);
  QXmlStreamReader xml(bytesOf(program, "d.xml"));
  int objects = 0;
  while (!xml.atEnd()) {
    objects += xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("object") ? 1 : 0;
  }
  EXPECT_EQ(xml.errorString(), QString());
  EXPECT_GT(objects, 15);
}

// Grows by rule, so that depths, shadow trees and empty elements come in any order.
const char* const forest = R"HTML(<body><script>
var seed = 7;
function next(n) { seed = (seed * 16807) % 2147483647; return seed % n; }
function grow(parent, left) {
  while (left > 0) {
    var child = document.createElement(["div", "p", "ul", "b", "section"][next(5)]);
    var below = next(left);
    child.id = "n" + left;
    parent.appendChild(child);
    parent.appendChild(document.createTextNode("text"));
    grow(child.tagName === "SECTION" ? child.attachShadow({ mode: "open" }) : child, below);
    left -= below + 1;
  }
}
grow(document.body, 300);
function walk(node) {
  var own = (node.tagName || "#") + (node.id || "") + "(";
  for (var child = node.firstElementChild; child; child = child.nextElementSibling) { own += walk(child); }
  return own + (node.shadowRoot ? walk(node.shadowRoot) : "") + ")";
}
</script></body>)HTML";

const char* const walker =
    R"JS(startBrowser("forest.html"); saveTree("forest.json"); test.log("walked " + retrieveJSObject("walk(document.documentElement)"));)JS";

QString asText(const QJsonObject& object) {
  const QJsonObject properties = object.value("properties").toObject();
  const QString tag = properties.value("tagName").toString();
  QString text = (tag.isEmpty() ? QStringLiteral("#") : tag) + properties.value("id").toString() + u'(';
  for (const QJsonValue& child : object.value("children").toArray()) {
    text += asText(child.toObject());
  }
  return text + u')';
}

TEST(Dump, HoldsTheTreeThatAPlainWalkOfThePageMeets) {
  ProgramRun program;
  program.write(QStringLiteral("forest.html"), QString::fromLatin1(forest));
  program.write(QStringLiteral("walker.js"), QString::fromLatin1(walker));
  const ProgramResult result = program.run({"run", "walker.js"});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output + result.errors);
  const QString walked = result.output.section(QStringLiteral("walked "), 1).section(u'\n', 0, 0).trimmed();
  const QJsonObject document =
      QJsonDocument::fromJson(bytesOf(program, "forest.json")).object().value("documents").toArray().at(0).toObject();
  EXPECT_GT(walked.size(), 2000);
  EXPECT_EQ(asText(document.value("children").toArray().at(0).toObject()), walked);
}

TEST(Dump, HoldsPagesThatHidePropertiesAndNestDeeply) {
  ProgramRun program;
  program.write(
      QStringLiteral("page.html"),
      QStringLiteral("<title>t</title><img name=title><form><input name=title><input name=id><input name=className>"
                     "<input type=password name=secret value=hush></form><a href='#'>say container=1 now</a>"
                     "<iframe style='padding: 20px; border: 5px solid; position: absolute; left: 0; top: 100px'"
                     " srcdoc='<body style=\"margin: 0\"><button>In</button><a href=\"#\">say container=1 "
                     "now</a>'></iframe>") +
          QStringLiteral("<div>").repeated(500) +
          QStringLiteral("<script>String = function () { return 'S'; };</script>"));
  const ProgramResult result = program.run({"dump", "page.html", "-o", "d.json"});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output + result.errors.left(500));
  const QByteArray bytes = bytesOf(program, "d.json");
  const QJsonArray documents = QJsonDocument::fromJson(bytes).object().value("documents").toArray();
  ASSERT_EQ(documents.size(), 2);
  EXPECT_FALSE(bytes.contains("hush"));
  EXPECT_FALSE(bytes.contains("\"qualifiedName\": \"S\""));
  const QJsonArray inFrame = documents.at(1)
                                 .toObject()
                                 .value("children")
                                 .toArray()
                                 .at(0)
                                 .toObject()
                                 .value("children")
                                 .toArray()
                                 .at(1)
                                 .toObject()
                                 .value("children")
                                 .toArray();
  const QJsonObject button = inFrame.at(0).toObject();
  EXPECT_EQ(button.value("bounds").toObject().value("x").toInt(), 25);
  EXPECT_EQ(button.value("bounds").toObject().value("y").toInt(), 125);
  EXPECT_EQ(inFrame.at(1).toObject().value("properties").toObject().value("href").toString(), QString("#"));
}

TEST(Dump, RefusesAFileThatCannotBeWritten) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromLatin1(page));
  const ProgramResult result = program.run({"dump", "page.html", "-o", "nowhere/d.html"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_TRUE(result.errors.contains("'nowhere/d.html' cannot be written: its directory does not exist"))
      << qPrintable(result.errors);
}

}  // namespace
