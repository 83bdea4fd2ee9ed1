// corvexweb tree: what it shows of a page, compared with what the page finds when it walks through itself.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include "support/printing.h"
#include "support/programrun.h"
#include "support/testserver.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;
using TestSupport::TestServer;

// Each node as [name among its siblings, its children]: elements, and after them the shadow root.
const char* const walkingScript = R"JS(<script>
function walk(node) {
  var counts = {};
  var list = [];
  for (var child = node.firstElementChild; child; child = child.nextElementSibling) {
    counts[child.tagName] = (counts[child.tagName] || 0) + 1;
    list.push([child.tagName + counts[child.tagName], walk(child)]);
  }
  if (node.shadowRoot) { list.push(['SHADOW_ROOT', walk(node.shadowRoot)]); }
  return list;
}
function walkDocuments(w) {
  var list = [['DOCUMENT', walk(w.document)]];
  w.document.querySelectorAll('iframe, frame').forEach(function (frame) {
    try { list = list.concat(walkDocuments(frame.contentWindow)); } catch (e) { /* of another origin */ }
  });
  return list;
}
addEventListener('load', function () {
  var host = document.getElementById('host');
  host.attachShadow({mode: 'open'}).innerHTML = '<p>One<slot></slot><span id=inner>In</span></p><p>Two</p>';
  host.shadowRoot.getElementById('inner').attachShadow({mode: 'open'}).innerHTML = '<button>Deep</button>';
  var request = new XMLHttpRequest();
  request.open('GET', '/walked?' + encodeURIComponent(JSON.stringify(walkDocuments(window))), false);
  request.send();
});
</script>)JS";

const char* const treePage = R"(<title>Tree</title>
<div id=host><span>Light</span><span title='two
lines'>Again</span></div>
<iframe src=inner.html></iframe><iframe srcdoc='<ul><li>1<li>2</ul>'></iframe><iframe src='%1'></iframe>
<form><input name=id><input name=children><input name=title><select><option>a<option>b</select></form>
<svg><g><circle r=3 /></g></svg><table><tr><td>1<td>2</table>)";

/// A page with frames and shadow trees, and what it has found in itself.
class TreePage {
public:
  TreePage() {
    const QString foreign = m_server.url(QStringLiteral("/inner.html"), QStringLiteral("localhost"));
    m_server.add(QStringLiteral("/tree.html"),
                 {QByteArray("<!DOCTYPE html>") + walkingScript + QString::fromUtf8(treePage).arg(foreign).toUtf8()});
    m_server.add(QStringLiteral("/inner.html"), {"<p>Inner <b>page</b></p><iframe srcdoc='<a href=x>y</a>'></iframe>"});
    m_server.add(QStringLiteral("/walked"), {"thanks"});
  }

  ProgramResult show(const QStringList& options) {
    ProgramRun program;
    return program.run(QStringList{QStringLiteral("tree"), QStringLiteral("--browser"),
                                   qEnvironmentVariable("CORVEX_TEST_BROWSER", QStringLiteral("chromium"))} +
                       options + QStringList{m_server.url(QStringLiteral("/tree.html"))});
  }

  QJsonArray walked() const {
    for (const QString& request : m_server.requests()) {
      if (request.startsWith(QLatin1String("/walked?"))) {
        return QJsonDocument::fromJson(
                   QUrl::fromPercentEncoding(request.section(QLatin1Char('?'), 1).toUtf8()).toUtf8())
            .array();
      }
    }
    return {};
  }

private:
  TestServer m_server;
};

QJsonArray inFormOfWalk(const QJsonArray& nodes) {
  QJsonArray list;
  for (const QJsonValue& node : nodes) {
    list.append(QJsonArray{node[QStringLiteral("name")], inFormOfWalk(node[QStringLiteral("children")].toArray())});
  }
  return list;
}

int countOf(const QJsonArray& walked) {
  int count = walked.size();
  for (const QJsonValue& node : walked) {
    count += countOf(node[1].toArray());
  }
  return count;
}

std::string text(const QJsonArray& array) { return QJsonDocument(array).toJson(QJsonDocument::Compact).toStdString(); }

TEST(Tree, IsThatOfThePage) {
  TreePage page;
  const ProgramResult result = page.show({QStringLiteral("--json")});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_EQ(result.errors, QString());
  const QJsonArray documents = QJsonDocument::fromJson(result.output.toUtf8())[QStringLiteral("documents")].toArray();
  EXPECT_EQ(text(inFormOfWalk(documents)), text(page.walked()));
  QStringList contexts;
  for (const QJsonValue& document : documents) {
    contexts << document[QStringLiteral("context")].toString();
  }
  EXPECT_EQ(contexts, QStringList({"tree.html", "tree.html.FRAME1", "tree.html.FRAME1.FRAME1", "tree.html.FRAME2"}));
}

TEST(Tree, AsTextHasALineForEachObject) {
  TreePage page;
  const ProgramResult whole = page.show({});
  EXPECT_EQ(whole.output.count(QLatin1Char('\n')), countOf(page.walked()));
  EXPECT_TRUE(
      whole.output.startsWith(QLatin1String("HTML_Document DOCUMENT  DOCUMENT\n"
                                            "  HTML_Object HTML1  DOCUMENT.HTML1\n")))
      << qPrintable(whole.output);
  EXPECT_TRUE(whole.output.contains(QLatin1String("SPAN2  {visible='true' tagName='SPAN' title='two\\nlines'}\n")))
      << qPrintable(whole.output);

  EXPECT_EQ(whole.exitCode, 0) << qPrintable(whole.errors);
  EXPECT_TRUE(whole.output.contains(QLatin1String("HTML_Form FORM1  -\n"))) << qPrintable(whole.output);

  const ProgramResult top = page.show({QStringLiteral("--depth"), QStringLiteral("1")});
  EXPECT_EQ(top.exitCode, 0);
  EXPECT_EQ(top.output.count(QLatin1Char('\n')), 8) << qPrintable(top.output);
}

}  // namespace
