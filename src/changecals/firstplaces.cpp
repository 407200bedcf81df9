// SPDX-License-Identifier: MIT
#include "changecals/firstplaces.h"

#include <QSize>
#include <algorithm>

namespace {

using Places = Table<QPoint, mainWindowCount>;

// What a desktop's frame usually adds; nobody knows before a window is shown.
constexpr int frameWidth = 12;
constexpr int frameHeight = 36;

constexpr int yearHeight = 518 + frameHeight;
constexpr int yearWidth = 389 + frameWidth;
constexpr int jewishYearWidth = 507 + frameWidth; // a leap year
constexpr QSize moonSize{290 + frameWidth, 309 + frameHeight};

// A title and the year selector of the window behind.
constexpr QPoint cascadeStep{84, frameHeight};
constexpr int cascadeWidth = 3 * cascadeStep.x() + yearWidth;

int widthOf(int c) {
    return c == Jewish ? jewishYearWidth : yearWidth;
}

void placeRow(Places& places, QPoint start, int first, int last) {
    for (int c = first; c <= last; ++c) {
        places(c) = start;
        start.rx() += widthOf(c);
    }
}

constexpr int allYearsWidth = 3 * yearWidth + jewishYearWidth;
constexpr int twoYearsWidth = yearWidth + jewishYearWidth;

// The window of the last calendar lies behind the others, as all of them are
// opened from the last to the first.
void placeCascade(Places& places, const QRect& desk) {
    const int beside =
        std::min(desk.x() + monthlyFrameWidth, desk.x() + desk.width() - cascadeWidth);
    QPoint place(std::max(desk.x(), beside), desk.y() + frameHeight);
    for (int c = calendarCount; c >= 1; --c) {
        places(c) = place;
        place += cascadeStep;
    }
}

QPoint lowerRight(const QRect& desk, const QSize& window) {
    return {std::max(desk.x(), desk.x() + desk.width() - window.width()),
            std::max(desk.y(), desk.y() + desk.height() - window.height())};
}

} // namespace

QRect DeskOfFirstPlaces(const std::vector<QRect>& desks) {
    for (const QRect& desk : desks)
        if ((desk & storableDesk).width() >= monthlyFrameWidth)
            return desk & storableDesk;
    const QRect narrow = desks.front() & storableDesk;
    return narrow.isEmpty() ? storableDesk : narrow;
}

Places FirstPlaces(const QRect& desk, int monthlyHeight) {
    const int monthlyFrameHeight = monthlyHeight + frameHeight;
    const QPoint below = desk.topLeft() + QPoint(0, monthlyFrameHeight);
    const QPoint beside = desk.topLeft() + QPoint(monthlyFrameWidth, 0);
    Places places;
    places(MonthlyWindowNumber) = desk.topLeft();
    if (desk.width() >= allYearsWidth && desk.height() >= monthlyFrameHeight + yearHeight) {
        placeRow(places, below, Julian, Moslem);
        places(MoonWindowNumber) = beside;
    } else if (desk.width() >= monthlyFrameWidth + twoYearsWidth &&
               desk.height() >= 2 * yearHeight) {
        placeRow(places, beside, Julian, Gregorian);
        placeRow(places, beside + QPoint(0, yearHeight), Jewish, Moslem);
        places(MoonWindowNumber) = below;
    } else {
        placeCascade(places, desk);
        places(MoonWindowNumber) = lowerRight(desk, moonSize);
    }
    return places;
}
