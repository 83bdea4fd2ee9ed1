// The page's parser of names on the cases that the driver's parser is tested with.

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"

namespace {

using TestSupport::HookedBrowser;

// Gives the names that are read, or written again, in another way than their rows say, one a line.
const char* const readAll = R"JS((function (rows) {
  function flat(name) {
    return name === undefined ? null : name.getPropertyNames().map(function (property) {
      var value = name.getPropertyValue(property);
      return value instanceof Corvex.RegExPropertyValue ? [property, "~=", value.regex] :
        value instanceof Corvex.WildCardPropertyValue ? [property, "?=", value.wildcard] :
        [property, "=", value instanceof Corvex.ObjectName ? flat(value) : value];
    });
  }
  return rows.map(function (row) {
    var read = window.top.__corvex.parseMultiPropertyName(row.name);
    var expected = "page" in row ? row.page : row.properties || null;
    var got = JSON.stringify(flat(read));
    if (got !== JSON.stringify(expected)) {
      return row.name + " is read as " + got;
    }
    // Empty values are not written.
    var text = "page" in row || !read || got.indexOf('""') !== -1 ? "" : read.toString();
    return text && text !== (row.text || row.name) ? row.name + " is written as " + text : "";
  }).filter(Boolean).join("\n");
})(%1))JS";

TEST(Grammar, NamesAreReadAsTheRowsSay) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.load(QString());
  const QByteArray rows = TestSupport::readFile(TestSupport::testFile(QStringLiteral("names/grammar_cases.json")));
  ASSERT_GT(rows.size(), 1000);
  EXPECT_EQ(browser.evaluate(QString::fromUtf8(readAll).arg(QString::fromUtf8(rows))).toString(), QString());
}

}  // namespace
