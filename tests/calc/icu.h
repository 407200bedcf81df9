// SPDX-License-Identifier: MIT
#pragma once

#include "calc/calc_test.h"

#include <memory>
#include <string>
#include <unicode/gregocal.h>

using IcuCalendar = std::unique_ptr<icu::Calendar>;

inline IcuCalendar icuCalendar(const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale(name);
    IcuCalendar calendar(
        icu::Calendar::createInstance(icu::TimeZone::createTimeZone("GMT"), locale, status));
    EXPECT_TRUE(U_SUCCESS(status));
    return calendar;
}

/// The date of a Julian Day, months from 1.
inline Date icuDate(icu::Calendar& calendar, int julianDay) {
    constexpr double millisecondsPerDay = 86400000.0;
    UErrorCode status = U_ZERO_ERROR;
    calendar.setTime((julianDay - unixEpoch) * millisecondsPerDay, status);
    const Date date{calendar.get(UCAL_DATE, status), calendar.get(UCAL_MONTH, status) + 1,
                    calendar.get(UCAL_YEAR, status)};
    EXPECT_TRUE(U_SUCCESS(status));
    return date;
}

inline std::string icuName() {
    return "ICU " U_ICU_VERSION;
}
