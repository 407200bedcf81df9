// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// A local date of the Gregorian calendar.
struct SystemDate {
    int day;
    int month;
    int year;
    bool operator==(const SystemDate& other) const = default;
};

/// Today by the computer's clock, in local time.
SystemDate Today();

/// Replaces the clock that Today reads; an empty function puts the computer's
/// back.
void SetClock(std::function<SystemDate()> clock);

/// A period of days as the clock counts it. Moments are taken from the monotonic
/// clock, which nobody sets back.
inline std::chrono::duration<double> Days(double days) {
    return std::chrono::duration<double>(days * 86400);
}
