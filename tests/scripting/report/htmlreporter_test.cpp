#include "scripting/report/htmlreporter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include "scripting/reportlimits.h"
#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class HtmlReport : public FakeModel::ScriptTest {
protected:
  QString text() const { return QString::fromUtf8(TestSupport::readFile(path("report.html"))); }

  /// The events that the file holds, as its viewer reads them.
  QList<QJsonObject> events() const {
    static const QRegularExpression element(s("<script type=\"application/json\" class=\"event\">(.*?)</script>\\n"));
    QList<QJsonObject> events;
    for (auto matches = element.globalMatch(text()); matches.hasNext();) {
      events << QJsonDocument::fromJson(matches.next().captured(1).toUtf8()).object();
    }
    return events;
  }

  const QByteArray viewer = "<p></p><script>let data = '%DATA%';</script>";
};

}  // namespace

TEST_F(HtmlReport, IsWrittenAsItGoesAndNoTextEndsItsElements) {
  HtmlReporter reporter(path("report.html"), viewer);
  ASSERT_EQ(reporter.open(), QString());
  const int elements = text().count(s("<script"));
  reporter.scriptStarted(s("a.js"));
  reporter.log(s("</script><script>alert(1)</script><!-- \u0001\u202e\u0000"));
  // Nothing was closed or ended.
  ASSERT_EQ(events().size(), 2);
  EXPECT_EQ(events().at(1).value(s("text")).toString(), s("</script><script>alert(1)</script><!-- \\u0001\\u202e"));
  EXPECT_EQ(text().count(s("<script")), elements + 2);
  EXPECT_EQ(text().count(s("</script")), elements + 2);
  EXPECT_FALSE(text().contains(s("<!--")));
  reporter.picture({Picture::Purpose::Failure, "\x89PNG", s("image/png"), {3, 4}, {}, {}});
  EXPECT_EQ(QByteArray::fromBase64(events().at(2).value(s("bytes")).toString().toLatin1()), "\x89PNG");
}

TEST_F(HtmlReport, TakesBoundedNumbersOfPicturesTreesAndUsesOfObjects) {
  HtmlReporter reporter(path("report.html"), viewer);
  ASSERT_EQ(reporter.open(), QString());
  for (int i = 0; i <= ReportLimits::mostFailurePictures; ++i) {
    reporter.picture({Picture::Purpose::Failure, "x", s("image/png"), {3, 4}, {}, {}});
  }
  EXPECT_EQ(events().at(ReportLimits::mostFailurePictures - 1).value(s("bytes")).toString(), s("eA=="));
  EXPECT_EQ(events().last().value(s("bytes")).toString(), QString());
  EXPECT_EQ(events().last().value(s("missing")).toString(),
            s("The report has 50 pictures of failures, and takes no more."));
  for (int i = 0; i <= ReportLimits::mostTrees; ++i) {
    reporter.tree("{}");
  }
  EXPECT_EQ(events().last().value(s("json")).toString(), QString());
  reporter.scriptStarted(s("a.js"));
  const int before = events().size();
  for (int i = 0; i < ReportLimits::mostObjectCalls + 100; ++i) {
    reporter.objectCall({s("Field.text"), 1, {}, {}});
  }
  reporter.objectCall({s("Field.text"), 1, {}, s("It failed.")});
  EXPECT_EQ(events().size(), before + ReportLimits::mostObjectCalls + 2);
}

TEST_F(HtmlReport, ThatCannotBeWrittenIsToldBeforehand) {
  const QString nowhere = path("none/report.html");
  EXPECT_EQ(HtmlReporter(nowhere, viewer).open(),
            QStringLiteral("Cannot write the report '%1': No such file or directory. Choose a file in a directory that "
                           "exists and that you may write to.")
                .arg(nowhere));
  EXPECT_EQ(HtmlReporter(s("/dev/full"), viewer).open(),
            s("Cannot write the report '/dev/full': No space left on device."));
}

TEST_F(HtmlReport, HoldsWhereStepsStandAndWhatChecksCompare) {
  FakeModel::world().add(s("{id='f'}"), s("Field"));
  HtmlReporter reporter(path("report.html"), viewer);
  ASSERT_EQ(reporter.open(), QString());
  write(
      "function look() {\n"
      "  setFocus(\"{id='f'}\");\n"
      "}\n"
      "look();\n"
      "test.compare('a', 'b');\n"
      "try { findObject(\"{id='none'}\"); } catch (e) {}\n");
  ScriptEngine(host, &reporter).runFile(path());
  QMap<QString, QList<QJsonObject>> byName;
  for (const QJsonObject& event : events()) {
    byName[event.value(s("event")).toString()] << event;
  }
  const QJsonArray trace = byName[s("step")].value(0).value(s("trace")).toArray();
  ASSERT_EQ(trace.size(), 2);
  EXPECT_EQ(trace.at(0).toObject().value(s("text")).toString(), s("setFocus(\"{id='f'}\");"));
  EXPECT_EQ(trace.at(1).toObject().value(s("line")).toInt(), 4);
  EXPECT_EQ(byName[s("objectCall")].value(0).value(s("trace")).toArray().at(0).toObject().value(s("line")).toInt(), 2);
  EXPECT_EQ(byName[s("step")].value(0).value(s("error")).toString(), QString());
  EXPECT_EQ(byName[s("step")].value(1).value(s("error")).toString(), s("Object '{id='none'}' not found."));
  EXPECT_EQ(byName[s("check")].value(0).value(s("actual")).toString(), s("'a'"));
  EXPECT_EQ(byName[s("check")].value(0).value(s("expected")).toString(), s("'b'"));
}

TEST_F(HtmlReport, IsShownThePageWhereSomethingFails) {
  FakeModel::world().add(s("{id='f'}"), s("Field"));
  QStringList looks;
  host.look = [&looks](Moment moment, const Corvex::SharedPtr<Corvex::Object>& about, ScriptListener*) {
    static const char* const names[] = {"step", "failed step", "failed check", "failed code"};
    looks << s(names[static_cast<int>(moment)]) + (about ? s(" ") + about->objectClass()->name() : QString());
  };
  run("var field = findObject(\"{id='f'}\");\n"
      "test.compare(field.value, 'other');\n"
      "test.verify(false);\n"
      "test.verify(true);\n"
      "try { findObject(\"{id='none'}\"); } catch (e) {}\n"
      "field.nothing();\n");
  EXPECT_EQ(looks, QStringList({s("step string"), s("failed check Field"), s("failed check"), s("failed step string"),
                                s("failed code")}));
  looks.clear();
  run("waitFor(function () { return findObject(\"{id='f'}\"); });");
  EXPECT_EQ(looks, QStringList(s("step")));
}
