// SPDX-License-Identifier: MIT
#include "moon/phaseshadow.h"

#include "platform/twips.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr Twips pictureSide{3000};
constexpr double width = 3060;
constexpr double height = 3121.2;
constexpr float quarter = 29.530588F / 4;

enum class Case {
    New,
    WaxingCrescent,
    FirstQuarter,
    WaxingGibbous,
    Full,
    WaningGibbous,
    LastQuarter,
    WaningCrescent
};

// Which row of the drawing a shadow belongs to.
Case caseOf(const Shadow& shadow) {
    const bool circle = shadow.shape == Shadow::Shape::Circle;
    const double middle = shadow.left + shadow.width / 2;
    if (circle && shadow.solid)
        return middle < width / 2 ? Case::WaxingCrescent : Case::WaningCrescent;
    if (circle)
        return middle > width / 2 ? Case::WaxingGibbous : Case::WaningGibbous;
    if (shadow.width <= 1)
        return Case::Full;
    if (shadow.width > width * 0.75)
        return Case::New;
    return shadow.left > 0 ? Case::LastQuarter : Case::FirstQuarter;
}

TEST(MoonShadow, CasesAndTheirBounds) {
    const float justAfter = 0.001F;
    const struct {
        float age;
        Case expected;
    } rows[] = {
        {0.0F, Case::New},
        {0.3F, Case::New},
        {0.5F, Case::New},
        {0.5F + justAfter, Case::WaxingCrescent},
        {quarter - 0.5F - justAfter, Case::WaxingCrescent},
        {quarter - 0.5F + justAfter, Case::FirstQuarter},
        {7.4F, Case::FirstQuarter},
        {quarter + 0.5F - justAfter, Case::FirstQuarter},
        {quarter + 0.5F + justAfter, Case::WaxingGibbous},
        {2 * quarter - 0.5F - justAfter, Case::WaxingGibbous},
        {2 * quarter - 0.5F + justAfter, Case::Full},
        {14.8F, Case::Full},
        {2 * quarter + 0.5F - justAfter, Case::Full},
        {2 * quarter + 0.5F + justAfter, Case::WaningGibbous},
        {3 * quarter - 0.5F - justAfter, Case::WaningGibbous},
        {3 * quarter - 0.5F + justAfter, Case::LastQuarter},
        {22.1F, Case::LastQuarter},
        {3 * quarter + 0.5F - justAfter, Case::LastQuarter},
        {3 * quarter + 0.5F + justAfter, Case::WaningCrescent},
        {4 * quarter - 0.5F - justAfter, Case::WaningCrescent},
        {4 * quarter - 0.5F + justAfter, Case::New},
        {29.2F, Case::New},
        {-0.1F, Case::New},
        {100.0F, Case::New},
        {std::nanf(""), Case::New},
        // On a bound, where single precision has it.
        {quarter - 0.5F, Case::WaxingCrescent},
        {quarter + 0.5F, Case::FirstQuarter},
        {2 * quarter - 0.5F, Case::WaxingGibbous},
        {2 * quarter + 0.5F, Case::Full},
        {4 * quarter - 0.5F, Case::WaningCrescent},
    };
    for (const auto& row : rows)
        EXPECT_EQ(caseOf(ShadowOf(row.age, pictureSide, pictureSide)), row.expected) << row.age;
}

TEST(MoonShadow, CirclesAtKnownAges) {
    const struct {
        float age;
        double size, top, left;
        bool solid;
        int border;
    } rows[] = {{4, 4175.17, -576.98, -1944.14, true, 1},
                {11, 5528.40, -1253.60, 15.33, false, 96},
                {18, 5222.79, -1100.80, -2068.16, false, 96},
                {26, 3849.09, -413.95, 731.69, true, 1}};
    for (const auto& row : rows) {
        const Shadow shadow = ShadowOf(row.age, pictureSide, pictureSide);
        EXPECT_EQ(shadow.shape, Shadow::Shape::Circle);
        EXPECT_NEAR(shadow.height, row.size, 0.01) << row.age;
        EXPECT_EQ(shadow.width, shadow.height);
        EXPECT_NEAR(shadow.top, row.top, 0.01) << row.age;
        EXPECT_NEAR(shadow.left, row.left, 0.01) << row.age;
        EXPECT_EQ(shadow.solid, row.solid);
        EXPECT_EQ(shadow.border, row.border);
    }
}

TEST(MoonShadow, RectanglesCoverAllHalfOrNothing) {
    const struct {
        float age;
        double left, width, height;
    } rows[] = {{0.3F, 0, width, height},
                {7.4F, 0, width / 2, height},
                {14.8F, 0, 1, 1},
                {22.1F, width / 2, width / 2, height},
                {29.2F, 0, width, height}};
    for (const auto& row : rows) {
        const Shadow shadow = ShadowOf(row.age, pictureSide, pictureSide);
        EXPECT_EQ(shadow.shape, Shadow::Shape::Rectangle);
        EXPECT_EQ(shadow.border, 1);
        EXPECT_DOUBLE_EQ(shadow.left, row.left);
        EXPECT_DOUBLE_EQ(shadow.top, 0);
        EXPECT_DOUBLE_EQ(shadow.width, row.width);
        EXPECT_DOUBLE_EQ(shadow.height, row.height);
        EXPECT_EQ(shadow.solid, true);
    }
}

// Where the shadow's edge crosses the horizontal middle line.
double terminator(const Shadow& shadow) {
    const double ring = shadow.solid ? 0 : width / 4;
    const bool fromRight =
        caseOf(shadow) == Case::WaxingCrescent || caseOf(shadow) == Case::WaningGibbous;
    return fromRight ? shadow.left + shadow.width - ring : shadow.left + ring;
}

TEST(MoonShadow, TheTerminatorMovesSteadilyFromEdgeToEdge) {
    double before = width;
    for (int tenths = 6; tenths < 142; ++tenths) {
        const float age = static_cast<float>(tenths) / 10;
        const Shadow shadow = ShadowOf(age, pictureSide, pictureSide);
        if (shadow.shape != Shadow::Shape::Circle)
            continue;
        const double edge = terminator(shadow);
        EXPECT_LT(edge, before) << age;
        before = edge;
    }
    EXPECT_LT(before, width * 0.1);
}

TEST(MoonShadow, ThePhasesMirrorEachOther) {
    for (int halves = 16; halves < 28; ++halves) {
        const float days = static_cast<float>(halves) / 2;
        const Shadow waxing = ShadowOf(days, pictureSide, pictureSide);
        const Shadow waning = ShadowOf(4 * quarter - days, pictureSide, pictureSide);
        EXPECT_NEAR(waxing.height, waning.height, 0.1) << days;
        EXPECT_NEAR(waxing.left, width - waning.left - waning.width, 0.1) << days;
        EXPECT_NEAR(waxing.top, waning.top, 0.1) << days;
    }
}

} // namespace
