// What scripts get from outside: tables of test data, their arguments, the environment.

#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class ScriptTables : public FakeModel::ScriptTest {};

}  // namespace

TEST_F(ScriptTables, AreReadAsObjectsByTheirColumns) {
  const struct {
    const char* file;
    const char* content;
    const char* rows;
  } cases[] = {
      {"a.csv", "name,price\r\nTea,3\r\n\r\n\"a \"\"b\"\", c\",\"two\nlines\"\r\n",
       "[{name: 'Tea', price: '3'}, {name: 'a \"b\", c', price: 'two\\nlines'}]"},
      {"b.csv", "\xef\xbb\xbfname,\"the price\"\n,", "[{name: '', 'the price': ''}]"},
      {"c.CSV", "name", "[]"},
      {"d.tsv", "a\tb\n1,5\t\"x\ty\"", "[{a: '1,5', b: 'x\\ty'}]"},
      {"e.json", "[{\"b\": 1, \"a\": [true, null]}]", "[{b: 1, a: [true, null]}]"},
  };
  for (const auto& one : cases) {
    write(one.content, one.file);
    EXPECT_EQ(errorOf(QByteArray("test.compare(readTable('") + one.file + "'), " + one.rows + ")"), QString());
  }
  EXPECT_EQ(listener.lines.filter(s("passed")).size(), 5) << qPrintable(listener.lines.join(QLatin1Char('\n')));
}

TEST_F(ScriptTables, BadOnesAreSentencesThatNameTheLine) {
  const struct {
    const char* file;
    const char* content;
    const char* error;
  } cases[] = {
      {"a.csv", "a,b\n\"1\n2\",3\n4", "line 4: there are 1 values for 2 columns"},
      {"b.csv", "a\n1\n\"2\n", "line 3: the quote that begins a value here is never closed"},
      {"c.csv", "a\n\"1\n2\"x", "line 3: after the closing quote of a value there is 'x'"},
      {"d.csv", "a\n5\" pipe", "line 2: a value with a quote in it has to stand in quotes"},
      {"e.csv", "a,b,a\n", "line 1: two columns have the name 'a'"},
      {"f.csv", "a,,c\n", "line 1: the column number 2 has no name"},
      {"g.csv", "", "it is empty"},
      {"h.csv", "a\n\xff\n", "line 2 is no UTF-8 text"},
      {"i.json", "[{\n\"a\": }]", "line 2: "},
      {"j.json", "{}", "it holds no array of objects"},
      {"k.json", "[{}, 5]", "the entry number 2 of the array is no object"},
      {"l.txt", "a", "its name does not end in .csv, .tsv or .json"},
  };
  for (const auto& one : cases) {
    write(one.content, one.file);
    const QString error = errorOf(QByteArray("\nreadTable('") + one.file + "')");
    EXPECT_TRUE(error.startsWith(s("2: Cannot read the table '%1': %2").arg(s(one.file), s(one.error))))
        << qPrintable(error);
  }
  EXPECT_EQ(errorOf("readTable('none.csv')"), s("1: Cannot read the table 'none.csv': No such file or directory."));
  write("a\n" + QByteArray("1\n").repeated(1000001), "large.csv");
  EXPECT_EQ(errorOf("readTable('large.csv')"),
            s("1: Cannot read the table 'large.csv': line 1000001: there are more than 1000000 values."));
}

TEST_F(ScriptTables, AScriptKnowsItsArgumentsAndTheEnvironment) {
  host.arguments = {{s("server"), s("a=b")}};
  qputenv("CORVEX_SCRIPT_TEST", "\xc3\xa4");
  EXPECT_EQ(errorOf("test.compare(script.arguments, {server: 'a=b'}); test.compare(script.name, 'test');\n"
                    "test.compare(script.path, '" +
                    path().toUtf8() +
                    "');\n"
                    "test.compare(environment.CORVEX_SCRIPT_TEST, '\xc3\xa4');\n"
                    "environment.CORVEX_SCRIPT_TEST = 'x'; script.arguments.more = 'x';\n"
                    "test.compare(environment.CORVEX_SCRIPT_TEST, '\xc3\xa4');\n"
                    "test.compare(script.arguments.more, undefined);"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("passed")).size(), 6);
}
