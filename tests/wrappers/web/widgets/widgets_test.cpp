#include "corvexhook/datetime.h"
#include "wrappers/web/webtest.h"
#include "wrappers/web/widgets/datetext.h"
#include "wrappers/web/widgets/html_datechooser.h"
#include "wrappers/web/widgets/html_progressbar.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class Widgets : public WebTest {};

DateTime dateAt(int year, int month, int day, int hour, int minute) {
  return DateTime(QDateTime(QDate(year, month, day), QTime(hour, minute)));
}

}  // namespace

TEST_F(Widgets, AProgressBarAsksItsScriptForNumbers) {
  const SharedPtr<Object> bar = wrapped<HTML_ProgressBar>("my");
  const std::pair<const char*, const char*> members[] = {
      {"value", "getValue"}, {"minimum", "getMinimum"}, {"maximum", "getMaximum"}};
  for (const auto& [member, function] : members) {
    const QString code = QStringLiteral("myExtension.%1(ref);").arg(QLatin1String(function));
    page.answer(code, "40");
    EXPECT_EQ(get(bar, member)->toInt(), 40);
    EXPECT_EQ(call(bar, member)->toInt(), 40);
    page.answer(code, "much");
    call(bar, member);
    EXPECT_EQ(scriptError(), QStringLiteral("Error: cannot convert 'much' into %1 number").arg(member));
    page.fail(code, "no such function");
    get(bar, member);
    EXPECT_EQ(scriptError(), QStringLiteral("Error while fetching %1: no such function").arg(member));
  }
}

TEST_F(Widgets, AProgressBarIsSetByText) {
  const SharedPtr<Object> bar = wrapped<HTML_ProgressBar>("my");
  page.answer("myExtension.setValue(ref, '70');", "");
  call(bar, "setValue", {number(70)});
  EXPECT_TRUE(set(bar, "value", number(70)));
  page.fail("setValue(", "stuck");
  call(bar, "setValue", {number(-1)});
  EXPECT_EQ(scriptError(), QString("Error setting value to  '-1': stuck"));
}

TEST_F(Widgets, ADateChooserTellsItsDate) {
  const SharedPtr<Object> chooser = wrapped<HTML_DateChooser>("my");
  page.answer("__corvex__convertJSDateToDateTimeString( myExtension.getDate(ref));", "2024,2,29,8,5");
  for (const SharedPtr<Object>& date : {get(chooser, "date"), call(chooser, "date")}) {
    EXPECT_EQ(unwrapDateTime(date).value(), dateAt(2024, 2, 29, 8, 5).value());
  }
  page.answer("getDate", "undefined");
  get(chooser, "date");
  EXPECT_EQ(scriptError(), QString("Error obtaining date: Could not parse date string 'undefined'."));
  page.fail("getDate", "gone");
  get(chooser, "date");
  EXPECT_EQ(scriptError(), QString("Error obtaining date: gone"));
}

TEST_F(Widgets, ADateChooserTakesADate) {
  const SharedPtr<Object> chooser = wrapped<HTML_DateChooser>("my");
  const SharedPtr<Object> date = wrapDateTime(dateAt(2024, 2, 9, 8, 5));
  page.answer("myExtension.setDate( ref, (new Date(2024,2-1,9,8,5)));", "");
  call(chooser, "setDate", {date});
  EXPECT_TRUE(set(chooser, "date", date));
  page.fail("setDate(", "closed");
  call(chooser, "setDate", {date});
  EXPECT_EQ(scriptError(), QString("Error setting date '2024/2/9 8:5': closed"));
  page.takeCodes();
  call(chooser, "setDate", {wrapDateTime(DateTime())});
  EXPECT_EQ(scriptError(), QString("Error setting date 'invalid': This is no date."));
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(Widgets, DatesAreReadPartByPart) {
  EXPECT_EQ(parseDate("2024,12,31,23,59").value.value(), dateAt(2024, 12, 31, 23, 59).value());
  EXPECT_EQ(parseDate(",2024,,1,1,0,0,").value.value(), dateAt(2024, 1, 1, 0, 0).value());
  for (const char* text : {"", "2024,1,1,0", "2024,1,1,0,0,0", "2024,13,1,0,0", "2024,1,1,24,0"}) {
    EXPECT_EQ(parseDate(text).error, QStringLiteral("Could not parse date string '%1'.").arg(text));
  }
  const char* const parts[] = {"year", "month", "day", "hour", "minute"};
  for (int i = 0; i < 5; ++i) {
    QStringList fields{"2024", "1", "1", "0", "0"};
    fields[i] = "x";
    const QString text = fields.join(',');
    EXPECT_EQ(parseDate(text).error, QStringLiteral("Could not parse %1 in date string '%2'.").arg(parts[i], text));
  }
}
