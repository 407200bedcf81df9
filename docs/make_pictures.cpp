// SPDX-License-Identifier: MIT
// Draws the pictures of the documentation into a folder: the program's windows,
// as they are on a screen at 200 %, on 20 November 2026 with the standard
// settings, what it prints then, and the phases of the moon.
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "moonsheets.h"
#include "partsheet.h"
#include "platform/clock.h"
#include "printing/print.h"
#include "shared/calendars.h"
#include "shared/colors.h"
#include "start/frmabout.h"
#include "start/start.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPageLayout>
#include <QPainter>
#include <QStyle>
#include <QTemporaryDir>
#include <cstdio>

namespace {

/// The screens, fonts, settings, language and clock of this computer make no difference.
void makeStage(const QTemporaryDir& settings) {
    // A copy, as the platform reads no letter beyond Latin-1 in its path.
    const QString screen = settings.filePath(QStringLiteral("screen.json"));
    QFile::copy(QStringLiteral(SCREEN_FILE), screen);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toLocal8Bit());
    qputenv("FONTCONFIG_FILE", FONTS_FILE);
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    Today = [] { return QDate(2026, 11, 20); };
}

void setLook() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
}

QImage monthlyParts() {
    return PartsSheet(
        ChangeCals::LoadMonthly(),
        {{Qt::LeftEdge,
          {"Combo1_1", "Combo2_1", "Combo3_1", "MSFlexGrid1_1", "Combo4_1", "Combo5_1"}},
         {Qt::BottomEdge,
          {"Combo6", "Combo7", "Command2_0", "Combo8", "Command1_1", "Command1_2", "Command1_3",
           "Command1_4", "Command1_5"}}});
}

QImage yearParts(int c) {
    return PartsSheet(
        ChangeCals::LoadYear(c),
        {{Qt::TopEdge,
          {"Combo1", "Command1_1", "Command1_2", "Command1_3", "Command2_0", "Command1_7",
           "Command1_8", "Command1_9", "Command1_4", "Command1_5", "Command1_6"}},
         {Qt::LeftEdge, {"MSFlexGrid1"}}});
}

QImage moonParts() {
    return PartsSheet(ChangeCals::LoadMoon(), {{Qt::LeftEdge, {"Picture1", "Label1"}}});
}

QImage optionsParts() {
    return PartsSheet(ChangeCals::LoadOptions(), {{Qt::LeftEdge, {"Option1_1"}},
                                                  {Qt::BottomEdge, {"Combo1_4"}},
                                                  {Qt::RightEdge, {"Combo2", "Combo3"}},
                                                  {Qt::LeftEdge, {"Check1"}},
                                                  {Qt::BottomEdge, {"Command1_1", "Command1_2"}}});
}

QImage aboutParts() {
    return PartsSheet(ChangeCals::LoadAbout(),
                      {{Qt::LeftEdge, {"Image1"}},
                       {Qt::RightEdge, {"Label1_1", "Label1_2", "Label1_3"}},
                       {Qt::BottomEdge, {"cmdOK"}}});
}

QImage splash() {
    frmAbout splash;
    splash.BecomeSplash(CalendarColors(Gregorian)); // as before the monthly window
    splash.Show();
    return WindowSheet(splash);
}

/// A page on A4 as it is printed, with a thin frame around it.
QImage paper(const Printing::Page& page) {
    constexpr int dotsInInch = 600;
    constexpr double dotsInMetre = dotsInInch / 0.0254;
    constexpr int width = 1240;
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {});
    QImage drawn(layout.fullRectPixels(dotsInInch).size(), QImage::Format_RGB32);
    drawn.setDotsPerMeterX(qRound(dotsInMetre));
    drawn.setDotsPerMeterY(qRound(dotsInMetre));
    drawn.fill(Qt::white);
    QPainter onPaper(&drawn);
    Printing::Paint(page, onPaper, layout);
    onPaper.end();
    QImage sheet = drawn.scaledToWidth(width, Qt::SmoothTransformation);
    QPainter painter(&sheet);
    painter.setPen(Qt::gray);
    painter.drawRect(sheet.rect().adjusted(0, 0, -1, -1));
    return sheet;
}

void showWindows() {
    ChangeCals::OpenYearWindow(Gregorian);
    ChangeCals::OpenYearWindow(Jewish);
    ChangeCals::ShowMoonWindow();
    ChangeCals::LoadOptions().Show();
    ChangeCals::LoadAbout().Show();
    QApplication::processEvents();
}

bool saveAll(const QDir& folder) {
    const auto save = [&folder](const QImage& sheet, const char* name) {
        return sheet.save(folder.filePath(QString::fromLatin1(name)));
    };
    return save(WindowSheet(ChangeCals::LoadMonthly()), "monthly.png") &&
           save(RowOfSheets({WindowSheet(ChangeCals::LoadYear(Gregorian)),
                             WindowSheet(ChangeCals::LoadMoon())}),
                "year-and-moon.png") &&
           save(monthlyParts(), "monthly-parts.png") &&
           save(yearParts(Gregorian), "year-parts.png") &&
           save(yearParts(Jewish), "jewish-year-parts.png") &&
           save(moonParts(), "moon-parts.png") && save(optionsParts(), "options-parts.png") &&
           save(paper(Printing::YearPage(Jewish)), "year-on-paper.png") &&
           save(paper(Printing::MonthPage(Gregorian)), "month-on-paper.png") &&
           save(aboutParts(), "about-parts.png") && save(splash(), "splash.png") &&
           save(MoonCasesSheet(), "moon-cases.png") && save(LunationSheet(), "moon-lunation.png");
}

} // namespace

int main(int argc, char* argv[]) {
    const QTemporaryDir settings;
    makeStage(settings);
    QApplication app(argc, argv);
    setLook();
    if (argc != 2) {
        std::fputs("usage: make_pictures FOLDER\n", stderr);
        return 1;
    }
    if (!Start::Main())
        return 1;
    showWindows();
    const bool saved = saveAll(QDir(QString::fromLocal8Bit(argv[1])));
    if (!saved)
        std::fprintf(stderr, "The pictures cannot be saved in %s\n", argv[1]);
    ChangeCals::EndRun();
    return saved ? 0 : 1;
}
