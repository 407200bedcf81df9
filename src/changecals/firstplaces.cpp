// SPDX-License-Identifier: MIT
#include "changecals/firstplaces.h"

#include <algorithm>

namespace {

using Places = Table<QPoint, mainWindowCount>;

// What a desktop's frame usually adds; nobody knows before a window is shown.
constexpr QSize frame{12, 36};

// Right of, and below, the title and the year selector of a window behind.
constexpr QPoint cascadeStep{84, 83};

// The arrangements begin at 0, 0.

QRect extentOf(const Places& places, const WindowSizes& frames, int first, int last) {
    QRect all;
    for (int number = first; number <= last; ++number)
        all |= QRect(places(number), frames(number));
    return all;
}

void placeRow(Places& places, const WindowSizes& frames, QPoint start, int first, int last) {
    for (int number = first; number <= last; ++number) {
        places(number) = start;
        start.rx() += frames(number).width();
    }
}

Places yearsBelow(const WindowSizes& frames) {
    Places places;
    placeRow(places, frames, {0, frames(MonthlyWindowNumber).height()}, Julian, Moslem);
    placeRow(places, frames, {}, MonthlyWindowNumber, MoonWindowNumber);
    const int free = extentOf(places, frames, Julian, Moslem).width() -
                     extentOf(places, frames, MonthlyWindowNumber, MoonWindowNumber).width();
    places(MonthlyWindowNumber).rx() += free / 2;
    places(MoonWindowNumber).rx() += free / 2;
    return places;
}

Places yearsBeside(const WindowSizes& frames) {
    const QSize monthly = frames(MonthlyWindowNumber);
    Places places;
    placeRow(places, frames, {monthly.width(), 0}, Julian, Gregorian);
    placeRow(places, frames, {monthly.width(), frames(Julian).height()}, Jewish, Moslem);
    places(MoonWindowNumber) = {0, monthly.height()};
    return places;
}

// Where the monthly window and the moon overlap, the moon stands above: it covers
// a title, no control. The window of the last calendar lies behind the others, as
// all of them are opened from the last to the first.
Places cascade(const WindowSizes& frames, const QSize& room, int rows) {
    const QSize monthly = frames(MonthlyWindowNumber);
    const int below = std::max(0, room.height() - monthly.height());
    const bool apart = below >= frames(MoonWindowNumber).height();
    Places places;
    places(apart ? MoonWindowNumber : MonthlyWindowNumber) = {0, apart ? monthly.height() : below};
    for (int c = calendarCount; c >= 1; --c) {
        const int behind = calendarCount - c;
        places(c) = {behind / rows * cascadeStep.x(), behind % rows * cascadeStep.y()};
    }
    const int width = extentOf(places, frames, Julian, Moslem).width();
    for (int c = 1; c <= calendarCount; ++c)
        places(c).rx() += std::clamp(room.width() - width, 0, monthly.width());
    return places;
}

// The last one is for a desk on which nothing fits.
Places arranged(const WindowSizes& frames, const QSize& room) {
    const Places arrangements[] = {yearsBelow(frames), yearsBeside(frames),
                                   cascade(frames, room, 2), cascade(frames, room, 1)};
    for (const Places& places : arrangements)
        if (QRect({}, room).contains(extentOf(places, frames, 1, mainWindowCount)))
            return places;
    return arrangements[3];
}

// Where something begins that is to stand in the middle of `all`, but in `part`.
int beginning(int length, int all, int allLength, int part, int partLength) {
    const int last = part + partLength - length;
    return std::max(part, std::min(all + (allLength - length) / 2, last));
}

} // namespace

QRect DeskOfFirstPlaces(const std::vector<QRect>& desks, const WindowSizes& sizes) {
    const int width = sizes(MonthlyWindowNumber).width() + frame.width();
    for (const QRect& desk : desks)
        if ((desk & storableDesk).width() >= width)
            return desk;
    return desks.front().intersects(storableDesk) ? desks.front() : storableDesk;
}

Places FirstPlaces(const QRect& desk, const WindowSizes& sizes) {
    WindowSizes frames = sizes;
    for (int number = 1; number <= mainWindowCount; ++number)
        frames(number) += frame;
    const QRect room = desk & storableDesk;
    Places places = arranged(frames, room.size());
    const QSize all = extentOf(places, frames, 1, mainWindowCount).size();
    const QPoint corner(beginning(all.width(), desk.x(), desk.width(), room.x(), room.width()),
                        beginning(all.height(), desk.y(), desk.height(), room.y(), room.height()));
    for (int number = 1; number <= mainWindowCount; ++number)
        places(number) += corner;
    return places;
}
