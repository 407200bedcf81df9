// SPDX-License-Identifier: MIT
// The day carried to four calendars with all their tables, beside what libraries
// take for the plain dates of the same days.
#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/changecals.h"

#include <QCalendar>
#include <QDate>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <unicode/gregocal.h>
#include <vector>

namespace {

constexpr int unixEpoch = 2440588;
constexpr double millisecondsPerDay = 86400000.0;

// Days all over the range, in an order that no cache foresees.
int dayNumber(int i) {
    constexpr int first = 1948440;
    constexpr int days = 2817152 - first;
    return first + static_cast<int>(static_cast<long long>(i) * 7919 % days);
}

void ourFourCalendars(benchmark::State& state) {
    Calc::FillConstantRows();
    Calc::SetMoslemType();
    int i = 0;
    for (auto _ : state) {
        CurJD = dayNumber(i++);
        ChangeCals::ChangeJD();
        benchmark::DoNotOptimize(CurDate(Moslem, Day));
    }
}
BENCHMARK(ourFourCalendars);

using Calendar = std::unique_ptr<icu::Calendar>;

Calendar icuCalendar(const char* locale) {
    UErrorCode status = U_ZERO_ERROR;
    return Calendar(icu::Calendar::createInstance(icu::TimeZone::createTimeZone("GMT"),
                                                  icu::Locale(locale), status));
}

std::vector<Calendar> icuCalendars() {
    std::vector<Calendar> calendars;
    calendars.push_back(icuCalendar("en@calendar=gregorian"));
    calendars.push_back(icuCalendar("en@calendar=gregorian"));
    calendars.push_back(icuCalendar("en@calendar=hebrew"));
    calendars.push_back(icuCalendar("en@calendar=islamic-civil"));
    UErrorCode status = U_ZERO_ERROR;
    const double never = 8.64e15; // a Gregorian calendar that never begins is Julian
    dynamic_cast<icu::GregorianCalendar&>(*calendars.front()).setGregorianChange(never, status);
    return calendars;
}

void icuFourCalendars(benchmark::State& state) {
    const std::vector<Calendar> calendars = icuCalendars();
    UErrorCode status = U_ZERO_ERROR;
    int i = 0;
    for (auto _ : state) {
        const double time = (dayNumber(i++) - unixEpoch) * millisecondsPerDay;
        for (const Calendar& calendar : calendars) {
            calendar->setTime(time, status);
            for (const auto field :
                 {UCAL_YEAR, UCAL_MONTH, UCAL_DATE, UCAL_DAY_OF_YEAR, UCAL_WEEK_OF_YEAR})
                benchmark::DoNotOptimize(calendar->get(field, status));
        }
    }
}
BENCHMARK(icuFourCalendars);

// Qt has no Jewish calendar: three of the four.
void qtThreeCalendars(benchmark::State& state) {
    const QCalendar calendars[] = {QCalendar(QCalendar::System::Julian),
                                   QCalendar(QCalendar::System::Gregorian),
                                   QCalendar(QCalendar::System::IslamicCivil)};
    int i = 0;
    for (auto _ : state) {
        const QDate day = QDate::fromJulianDay(dayNumber(i++));
        for (const QCalendar& calendar : calendars) {
            benchmark::DoNotOptimize(calendar.partsFromDate(day));
            benchmark::DoNotOptimize(day.dayOfYear(calendar));
        }
    }
}
BENCHMARK(qtThreeCalendars);

void chronoGregorian(benchmark::State& state) {
    int i = 0;
    for (auto _ : state) {
        const std::chrono::sys_days day{std::chrono::days{dayNumber(i++) - unixEpoch}};
        benchmark::DoNotOptimize(std::chrono::year_month_day{day});
    }
}
BENCHMARK(chronoGregorian);

} // namespace
