// SPDX-License-Identifier: MIT
#include "changecals/placing.h"

#include "platform/form.h"
#include "platform/twips.h"
#include "shared/settings.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

// The designed positions, in twips: a cascade, the monthly window first.
constexpr int cascadeStart = 900;
constexpr int cascadeStep = 450;

ChangeCals::Position designedPlace(int number) {
    const int step = number == MonthlyWindowNumber ? 0 : number;
    const int offset = cascadeStart + step * cascadeStep;
    return {offset, offset};
}

bool isOnScreen(int left, int top) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    return top < ToTwips(screen.height()) && left < ToTwips(screen.width());
}

} // namespace

ChangeCals::Position ChangeCals::PlaceOf(int number) {
    const int top = FormTop(number);
    const int left = FormLeft(number);
    const bool stored = top != noPosition && left != noPosition;
    return stored && isOnScreen(left, top) ? Position{left, top} : designedPlace(number);
}

void ChangeCals::PlaceForm(Form& form, int number) {
    const Position place = PlaceOf(number);
    form.Move(place.left, place.top);
}
