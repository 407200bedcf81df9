// SPDX-License-Identifier: MIT
#include "controls/tips.h"

#include "shared/settings.h"
#include "shared/texts.h"
#include "support/widget_test.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

class Tips : public WidgetTest {
protected:
    Tips() { startToday(); }
    QWidget control;
};

TEST_F(Tips, AreNamesWithoutWhatTheMouseDoesAndWithoutSchemes) {
    const struct {
        int text;
        const char* tip;
        const char* name;
    } rows[] = {
        {YearText, "Year", "Year"},
        {MonthText, "Year month number/Number of months in the year. Month", "Month"},
        {DayOfYearText, "Year day number/Number of days in the year", "Year day number"},
        {WeekOfYearText, "Year week number/Number of weeks in the year", "Year week number"},
        {MonthGridText, "Monthly calendar (Double-click to show year calendar)",
         "Monthly calendar"},
        {YearGridText, "Year calendar (Double-click to show monthly calendars)", "Year calendar"},
        {MoonPictureText, "Moon (Double-click to show monthly calendars)", "Moon"},
        {CloseOrExitText, "Left mouse button \u2014 Close window. Right mouse button \u2014 Exit",
         "Close"}};
    for (const auto& row : rows) {
        Controls::SetTip(&control, row.text);
        EXPECT_EQ(control.toolTip(), QString::fromUtf8(row.tip));
        EXPECT_EQ(control.accessibleName(), QLatin1String(row.name));
    }
}

TEST_F(Tips, NameTheirCalendarToThoseWhoDoNotSeeWhereTheyAre) {
    Controls::SetTip(&control, YearText, Jewish);
    EXPECT_EQ(control.toolTip(), QStringLiteral("Year"));
    EXPECT_EQ(control.accessibleName(), QStringLiteral("Jewish calendar, Year"));
    Controls::SetTip(&control, QStringLiteral("Any"), Moslem);
    EXPECT_EQ(control.toolTip(), QStringLiteral("Any"));
    EXPECT_EQ(control.accessibleName(), QStringLiteral("Moslem calendar, Any"));
}

TEST_F(Tips, NameNoCalendarWhereThereIsNone) {
    for (const int noCalendar : {-1, 0, 5}) {
        Controls::SetTip(&control, YearText, noCalendar);
        EXPECT_EQ(control.accessibleName(), QStringLiteral("Year")) << noCalendar;
    }
}

TEST_F(Tips, AreSwitchedOffAndNamesAreNot) {
    ShowTips = 0;
    Controls::SetTip(&control, YearText);
    EXPECT_EQ(control.toolTip(), QString());
    EXPECT_EQ(control.accessibleName(), QStringLiteral("Year"));
}

TEST_F(Tips, NameTheFieldInAListAsTheList) {
    QComboBox list;
    list.setEditable(true);
    Controls::SetTip(&list, JulianDayText);
    EXPECT_EQ(list.lineEdit()->accessibleName(), QStringLiteral("Julian Day"));
}

TEST_F(Tips, AreShownAsTheyStand) {
    Controls::SetTip(&control, QStringLiteral("<b>Any</b>"), 0);
    EXPECT_EQ(control.toolTip(), QStringLiteral("&lt;b&gt;Any&lt;/b&gt;"));
}

} // namespace
