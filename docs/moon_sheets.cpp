// SPDX-License-Identifier: MIT
// Draws the moon as its window does: the nine cases of the shadow on one sheet,
// and a lunation day by day on another.
#include "moon/moonpicture.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "platform/twips.h"

#include <QApplication>
#include <QPainter>
#include <cstdio>
#include <vector>

namespace {

constexpr int side = 140; // pixels
constexpr int labelHeight = 22;
constexpr int gap = 10;

QPixmap moonAt(float age, const QImage& picture) {
    MoonPicture moon(QStringLiteral("Picture1"), nullptr);
    moon.setFixedSize(side, side);
    moon.SetPicture(picture);
    moon.SetShadow(ShadowOf(age, ToTwips(side), ToTwips(side)));
    return moon.grab();
}

QImage sheetOf(const std::vector<float>& ages, int columns, const QImage& picture) {
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
    for (int day = 0; day < 30; ++day)
        ages.push_back(static_cast<float>(day) * 29.5F / 29.0F);
    return ages;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fputs("usage: moon_sheets FOLDER\n", stderr);
        return 1;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QImage picture = LoadMoonPicture(ProgramFile(QStringLiteral("Moon.bmp")));
    const std::vector<float> cases{0.3F, 4, 7.4F, 11, 14.8F, 18, 22.1F, 26, 29.2F};
    const bool saved =
        sheetOf(cases, 9, picture).save(folder + QStringLiteral("/moon-cases.png")) &&
        sheetOf(lunationDays(), 10, picture).save(folder + QStringLiteral("/moon-lunation.png"));
    if (!saved)
        std::fprintf(stderr, "The pictures cannot be saved in %s\n", qPrintable(folder));
    return saved ? 0 : 1;
}
