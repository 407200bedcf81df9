// SPDX-License-Identifier: MIT
#include "monthly/panecalendars.h"

#include "shared/settings.h"

int ExchangeCalendars(int pane, int c) {
    int other = 0;
    for (int candidate = 1; candidate <= paneCount && other == 0; ++candidate)
        other = CalendarOrder(candidate) == c ? candidate : 0;
    if (other != 0)
        CalendarOrder(other) = CalendarOrder(pane);
    CalendarOrder(pane) = c;
    return other;
}
