// SPDX-License-Identifier: MIT
#include "moon/phaseshadow.h"

#include "changecals/moonage.h"
#include "platform/numbers.h"
#include "platform/twips.h"

namespace {

constexpr double quarter = ChangeCals::lunation / 4;
constexpr double nearPhase = 0.5; // days around a principal phase that are drawn as the phase

/// The area that the shadow is computed for, a little larger than the picture.
struct Area {
    double width;
    double height;
    double topShift;
};

/// A circle through the area's top and bottom centre points, moved out by
/// `beyond`, whose edge stands `bulge` from the vertical centre line.
Shadow circle(const Area& area, double bulge, double beyond, bool solid, int border) {
    const double half = area.height / 2;
    const double radius = beyond + (half * half + bulge * bulge) * 0.5 / bulge;
    const double top = (area.height - 2 * radius) / 2 - area.topShift;
    return {Shadow::Shape::Circle, solid, border, 0, top, 2 * radius, 2 * radius};
}

Shadow rectangle(double left, double width, double height) {
    return {Shadow::Shape::Rectangle, true, 1, left, 0, width, height};
}

Shadow newMoon(const Area& area) {
    return rectangle(0, area.width, area.height);
}

Shadow waxingCrescent(const Area& area, double age) {
    const double half = area.width / 2;
    const double bulge = half - half * age / quarter;
    Shadow shadow = circle(area, bulge, 0, true, 1);
    shadow.left = half - shadow.width + bulge;
    return shadow;
}

Shadow waxingGibbous(const Area& area, double age) {
    const double bulge = area.width / 2 * (age - quarter) / quarter;
    const int border = CInt(area.width / 32).value_or(1);
    Shadow shadow = circle(area, bulge, area.width / 4, false, border);
    shadow.left = area.width / 4 - bulge;
    return shadow;
}

// The waning moon is lit from the other side.
Shadow mirrored(const Area& area, Shadow shadow) {
    shadow.left = area.width - shadow.left - shadow.width;
    return shadow;
}

} // namespace

Shadow ShadowOf(float age, Twips width, Twips height) {
    constexpr double overlap = 60;     // twips, so that no lit edge is left
    constexpr double stretched = 1.02; // higher than wide
    const double pictureHeight = height.count;
    const Area area{width.count + overlap, (pictureHeight + overlap) * stretched,
                    pictureHeight / 60};
    const double half = area.width / 2;
    if (age <= nearPhase)
        return newMoon(area);
    if (age <= quarter - nearPhase)
        return waxingCrescent(area, age);
    if (age <= quarter + nearPhase)
        return rectangle(0, half, area.height);
    if (age <= 2 * quarter - nearPhase)
        return waxingGibbous(area, age);
    if (age <= 2 * quarter + nearPhase)
        return rectangle(0, 1, 1); // too small to cover anything
    if (age <= 3 * quarter - nearPhase)
        return mirrored(area, waxingGibbous(area, 4 * quarter - age));
    if (age <= 3 * quarter + nearPhase)
        return rectangle(half, half, area.height);
    if (age <= 4 * quarter - nearPhase)
        return mirrored(area, waxingCrescent(area, 4 * quarter - age));
    return newMoon(area);
}
