// SPDX-License-Identifier: MIT
#include "moonsheets.h"

#include "moon/moonfile.h"
#include "moon/moonpicture.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "platform/twips.h"

#include <QPainter>
#include <vector>

namespace {

constexpr int side = 140; // pixels
constexpr int labelHeight = 22;
constexpr int gap = 10;
constexpr int daysOfSheet = 30;

QPixmap moonAt(float age, const QImage& picture) {
    MoonPicture moon(QStringLiteral("Picture1"), nullptr);
    moon.setFixedSize(side, side);
    moon.SetPicture(picture);
    moon.SetShadow(ShadowOf(age, ToTwips(side), ToTwips(side)));
    return moon.grab();
}

QImage sheetOf(const std::vector<float>& ages, int columns) {
    const QImage picture = LoadMoonPicture(ProgramFile(QStringLiteral("Moon.bmp"))).picture;
    const int rows = (static_cast<int>(ages.size()) + columns - 1) / columns;
    QImage sheet(columns * (side + gap) + gap, rows * (side + labelHeight + gap) + gap,
                 QImage::Format_RGB32);
    sheet.fill(QColor(24, 26, 36));
    QPainter painter(&sheet);
    painter.setPen(QColor(255, 236, 170));
    for (int i = 0; i < static_cast<int>(ages.size()); ++i) {
        const float age = ages[static_cast<std::size_t>(i)];
        const int x = gap + i % columns * (side + gap);
        const int y = gap + i / columns * (side + labelHeight + gap);
        painter.drawPixmap(x, y, moonAt(age, picture));
        painter.drawText(QRect(x, y + side, side, labelHeight), Qt::AlignCenter,
                         FormatOneDecimal(age));
    }
    return sheet;
}

std::vector<float> lunationDays() {
    std::vector<float> ages;
    ages.reserve(daysOfSheet);
    for (int day = 0; day < daysOfSheet; ++day)
        ages.push_back(static_cast<float>(day) * 29.5F / 29.0F);
    return ages;
}

} // namespace

QImage MoonCasesSheet() {
    return sheetOf({0.3F, 4, 7.4F, 11, 14.8F, 18, 22.1F, 26, 29.2F}, 9);
}

QImage LunationSheet() {
    return sheetOf(lunationDays(), 10);
}
