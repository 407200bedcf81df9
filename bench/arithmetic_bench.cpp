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

constexpr int firstDay = 1948440;
constexpr int days = 2817152 - firstDay;

// One day after another, as a user steps through them.
int nextDay(int i) {
    return firstDay + i % days;
}

// Days all over the range, in an order that nothing foresees.
int someDay(int i) {
    return firstDay + static_cast<int>(static_cast<long long>(i) * 7919 % days);
}

using DayOf = int (*)(int i);

void ourFourCalendars(benchmark::State& state, DayOf dayOf) {
    Calc::FillConstantRows();
    Calc::SetMoslemType();
    int i = 0;
    for ([[maybe_unused]] auto _ : state) {
        CurJD = dayOf(i++);
        ChangeCals::ChangeJD();
        benchmark::DoNotOptimize(CurDate(Moslem, Day));
    }
}
BENCHMARK_CAPTURE(ourFourCalendars, next, nextDay);
BENCHMARK_CAPTURE(ourFourCalendars, scattered, someDay);

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

void icuFourCalendars(benchmark::State& state, DayOf dayOf) {
    const std::vector<Calendar> calendars = icuCalendars();
    UErrorCode status = U_ZERO_ERROR;
    int i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double time = (dayOf(i++) - unixEpoch) * millisecondsPerDay;
        for (const Calendar& calendar : calendars) {
            calendar->setTime(time, status);
            for (const auto field :
                 {UCAL_YEAR, UCAL_MONTH, UCAL_DATE, UCAL_DAY_OF_YEAR, UCAL_WEEK_OF_YEAR})
                benchmark::DoNotOptimize(calendar->get(field, status));
        }
    }
}
BENCHMARK_CAPTURE(icuFourCalendars, next, nextDay);
BENCHMARK_CAPTURE(icuFourCalendars, scattered, someDay);

// Qt has no Jewish calendar: three of the four.
void qtThreeCalendars(benchmark::State& state, DayOf dayOf) {
    const QCalendar calendars[] = {QCalendar(QCalendar::System::Julian),
                                   QCalendar(QCalendar::System::Gregorian),
                                   QCalendar(QCalendar::System::IslamicCivil)};
    int i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const QDate day = QDate::fromJulianDay(dayOf(i++));
        for (const QCalendar& calendar : calendars) {
            benchmark::DoNotOptimize(calendar.partsFromDate(day));
            benchmark::DoNotOptimize(day.dayOfYear(calendar));
        }
    }
}
BENCHMARK_CAPTURE(qtThreeCalendars, next, nextDay);
BENCHMARK_CAPTURE(qtThreeCalendars, scattered, someDay);

void chronoGregorian(benchmark::State& state, DayOf dayOf) {
    int i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const std::chrono::sys_days day{std::chrono::days{dayOf(i++) - unixEpoch}};
        benchmark::DoNotOptimize(std::chrono::year_month_day{day});
    }
}
BENCHMARK_CAPTURE(chronoGregorian, next, nextDay);
BENCHMARK_CAPTURE(chronoGregorian, scattered, someDay);

} // namespace
