// The XPath evaluator of the hook script against the browser's own.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "support/hookedbrowser.h"

namespace {

using TestSupport::HookedBrowser;

QByteArray contents(const QString& path) {
  QFile file(TestSupport::testFile(path));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Gives the two answers as [ours, theirs] where they differ; numbers are compared as numbers, node sets node by node.
const char* const comparison = R"JS(
  (function (expression, contexts) {
    var differences = [];
    function theirs(node) {
      var r = document.evaluate(expression, node, null, XPathResult.ANY_TYPE, null);
      if (r.resultType === XPathResult.NUMBER_TYPE) { return ['number', r.numberValue]; }
      if (r.resultType === XPathResult.STRING_TYPE) { return ['string', r.stringValue]; }
      if (r.resultType === XPathResult.BOOLEAN_TYPE) { return ['boolean', r.booleanValue]; }
      var nodes = [];
      r = document.evaluate(expression, node, null, XPathResult.ORDERED_NODE_ITERATOR_TYPE, null);
      for (var n = r.iterateNext(); n; n = r.iterateNext()) { nodes.push(n); }
      return ['node-set', nodes];
    }
    function ours(node) {
      var r = xpathDomEval(expression, node);
      var value = { number: 'numberValue', string: 'stringValue', 'boolean': 'booleanValue' }[r.type];
      return [r.type, value ? r[value]() : r.nodeSetValue()];
    }
    function same(a, b) {
      if (a[0] !== b[0]) { return false; }
      if (a[0] !== 'node-set') { return Object.is(a[1], b[1]) || a[1] === b[1]; }
      return a[1].length === b[1].length && a[1].every(function (n, i) {
        return n === b[1][i];
      });
    }
    contexts.forEach(function (selector) {
      var node = document.querySelector(selector) || document;
      var expected = theirs(node);
      var got;
      try { got = ours(node); } catch (e) { got = ['error', String(e)]; }
      if (!same(got, expected)) { differences.push([selector, String(got), String(expected)]); }
    });
    return differences;
  })(%1[0], ['nothing', 'body', '#middle'])
)JS";

TEST(XPath, AgreesWithTheBrowser) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.server().add(QStringLiteral("/xpath.html"), {contents(QStringLiteral("pages/xpath.html"))});
  ASSERT_EQ(browser.connection().navigate(browser.server().url(QStringLiteral("/xpath.html"))), QString());
  const QStringList expressions = QString::fromUtf8(contents(QStringLiteral("wrappers/web/hook/xpath_expressions.txt")))
                                      .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_GT(expressions.size(), 300);
  for (const QString& expression : expressions) {
    const QString quoted = QString::fromUtf8(QJsonDocument(QJsonArray{expression}).toJson(QJsonDocument::Compact));
    const QJsonValue differences = browser.evaluate(QString::fromUtf8(comparison).arg(quoted));
    EXPECT_EQ(QJsonDocument(QJsonArray{differences}).toJson(QJsonDocument::Compact).toStdString(), "[[]]")
        << qPrintable(expression);
  }
}

}  // namespace
