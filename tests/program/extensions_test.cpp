// Extension scripts of toolkits, good and bad, as a user puts them into the folder.

#include <gtest/gtest.h>

#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

class Extensions : public testing::Test {
protected:
  Extensions() { m_program.setEnvironment(QStringLiteral("CORVEX_PREFIX"), m_program.folder()); }

  void write(const char* name, const char* text) {
    m_program.write(QStringLiteral("lib/extensions/web/") + QLatin1String(name), QLatin1String(text));
  }
  ProgramResult run(const char* script) {
    m_program.write(QStringLiteral("test.js"), QLatin1String(script));
    return m_program.run({QStringLiteral("run"), QStringLiteral("--browser"),
                          qEnvironmentVariable("CORVEX_TEST_BROWSER", QStringLiteral("chromium")),
                          QStringLiteral("test.js")});
  }

private:
  ProgramRun m_program;
};

}  // namespace

TEST_F(Extensions, DeclareGlobally) {
  write("kit.js",
        "const KitExtension = { getValue: function () { return widgetText; } };\n"
        "let widgetText = 'from the kit';\n"
        "class Widget { static type() { return 'custom_text_Kit'; } }\n"
        "Corvex.addTypeOfHook(function (node) { return node.id === 'kit' ? Widget.type() : undefined; });\n");
  const ProgramResult result =
      run("startBrowser(\"data:text/html,<p id='kit'>x</p>\");\n"
          "var field = findObject(\"{tagName='P' id='kit'}\");\n"
          "test.compare(field.invoke('ownerDocument.defaultView.KitExtension.getValue'), 'from the kit');\n"
          "test.compare(field.property('ownerDocument.defaultView.widgetText'), 'from the kit');\n");
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output);
}

TEST_F(Extensions, AnswerForWidgets) {
  write("kit.js",
        "var date = new Date(2024, 11, 31, 23, 59), done = 30;\n"
        "var KitExtension = {\n"
        "  getValue: function (bar) { return bar.title + done; },\n"
        "  getMinimum: function () { return 'none'; },\n"
        "  setValue: function (bar, value) { done = value; },\n"
        "  getDate: function () { return date; },\n"
        "  setDate: function (chooser, value) { date = value; }\n"
        "};\n"
        "Corvex.addTypeOfHook(function (node) { return node.id ? node.id + '_Kit' : undefined; });\n");
  const ProgramResult result =
      run("startBrowser(\"data:text/html,<p id='progressbar' title='1'>x</p><p id='datechooser'>x</p>\");\n"
          "function failure(call) { try { return call(); } catch (e) { return e.message; } }\n"
          "var bar = findObject(\"{tagName='P' id='progressbar'}\");\n"
          "test.compare(bar.value, 130);\n"
          "bar.value = 70;\n"
          "test.compare(bar.value, 170);\n"
          "test.compare(failure(function () { return bar.minimum; }), "
          "\"Error: cannot convert 'none' into minimum number\");\n"
          "test.verify(failure(function () { return bar.maximum; }).indexOf("
          "'Error while fetching maximum: TypeError') === 0);\n"
          "var chooser = findObject(\"{tagName='P' id='datechooser'}\");\n"
          "var d = chooser.date;\n"
          "test.compare([d.year, d.month, d.day, d.hours, d.minutes], [2024, 12, 31, 23, 59]);\n"
          "chooser.setDate(new Date(2023, 1, 5, 8, 7));\n"
          "d = chooser.date;\n"
          "test.compare([d.year, d.month, d.day, d.hours, d.minutes], [2023, 2, 5, 8, 7]);\n"
          "chooser.date = new Date(2022, 0, 1);\n"
          "test.compare(chooser.date.year, 2022);\n");
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.output);
}

TEST_F(Extensions, TheOneToBlameIsNamed) {
  const struct {
    const char* text;
    const char* error;
  } faults[] = {{"noSuchFunction();", "ReferenceError: noSuchFunction is not defined"},
                {"var x = {;", "SyntaxError: "}};
  write("a.js", "Corvex.addTypeOfHook(function () {});");
  for (const auto& fault : faults) {
    write("b.js", fault.text);
    const ProgramResult result = run("startBrowser('about:blank');");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.output.contains(QLatin1String("b.js' failed: ") + QLatin1String(fault.error)))
        << qPrintable(result.output);
    EXPECT_FALSE(result.output.contains(QLatin1String("a.js' failed")));
  }
}
