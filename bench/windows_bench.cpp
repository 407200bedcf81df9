// SPDX-License-Identifier: MIT
// From a change to the painted pixels, beside the toolkit's own widgets.
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/moonage.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/program.h"
#include "shared/english.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "start/language.h"
#include "start/start.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDir>
#include <QFocusEvent>
#include <QHeaderView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

constexpr int someDay = 2451545;

void paint() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void hideAll() {
    for (const MainWindowNumber number : mainWindows) {
        if (Form* window = ChangeCals::LoadedWindow(number))
            window->Hide();
    }
    paint();
}

void showMonthly() {
    ChangeCals::ShowMonthlyWindow();
    paint();
}

void showTwo() {
    showMonthly();
    ChangeCals::OpenYearWindow(Gregorian);
    paint();
}

void showSix() {
    showMonthly();
    ChangeCals::OpenYearWindowsOfPanes();
    ChangeCals::ShowMoonWindow();
    paint();
}

void showYear() {
    ChangeCals::OpenYearWindow(Gregorian);
    paint();
}

void goTo(int julianDay) {
    CurJD = julianDay;
    ChangeCals::ChangeJD();
    paint();
}

void nextDay() {
    goTo(CurJD + 1);
}

void nextMonth() {
    CurDate(Gregorian, Month) = CurDate(Gregorian, Month) % 12 + 1;
    ChangeCals::ChangeCal(Gregorian);
    paint();
}

// From the start again before the range ends.
void nextYear() {
    CurDate(Gregorian, Year) =
        CurDate(Gregorian, Year) < 2900 ? CurDate(Gregorian, Year) + 1 : 1000;
    ChangeCals::ChangeCal(Gregorian);
    paint();
}

void steps(benchmark::State& state, void (*show)(), void (*step)()) {
    show();
    goTo(someDay);
    for ([[maybe_unused]] auto _ : state)
        step();
    hideAll();
}
BENCHMARK_CAPTURE(steps, day of one, showMonthly, nextDay)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, day of two, showTwo, nextDay)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, day of six, showSix, nextDay)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, month of one, showMonthly, nextMonth)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, month of two, showTwo, nextMonth)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, month of six, showSix, nextMonth)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, year of one, showMonthly, nextYear)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, year of two, showTwo, nextYear)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, year of six, showSix, nextYear)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(steps, year of a year window, showYear, nextYear)->Unit(benchmark::kMillisecond);

void fourCalendarWidgets(benchmark::State& state, int days, int months, int years) {
    QWidget window;
    for (int i = 0; i < 4; ++i) {
        auto* calendar = new QCalendarWidget(&window);
        calendar->setGeometry(i * 250, 0, 250, 200);
    }
    window.show();
    paint();
    const QDate first = QDate::fromJulianDay(someDay);
    QDate day = first;
    for ([[maybe_unused]] auto _ : state) {
        day = day.year() < 2900 ? day.addDays(days).addMonths(months).addYears(years) : first;
        for (auto* calendar : window.findChildren<QCalendarWidget*>())
            calendar->setSelectedDate(day);
        paint();
    }
}
BENCHMARK_CAPTURE(fourCalendarWidgets, day, 1, 0, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fourCalendarWidgets, month, 0, 1, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fourCalendarWidgets, year, 0, 0, 1)->Unit(benchmark::kMillisecond);

void firstUseOfAListOf3000Years(benchmark::State& state) {
    showMonthly();
    goTo(someDay);
    auto* years = ChangeCals::LoadMonthly().findChild<ComboBox*>(QStringLiteral("Combo2_2"));
    for ([[maybe_unused]] auto _ : state) {
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(years, &focus); // fills it
        state.PauseTiming();
        ChangeCals::UpdateWindows(); // empties the list again
        paint();
        state.ResumeTiming();
    }
    hideAll();
}
BENCHMARK(firstUseOfAListOf3000Years)->Unit(benchmark::kMillisecond);

void fillTable(QTableWidget& table, int shift) {
    table.setUpdatesEnabled(false);
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            table.item(row, column)->setText(QString::number((row + column + shift) % 31 + 1));
    }
    table.setUpdatesEnabled(true);
}

// Of the size of a year grid, without headers.
void shape(QTableWidget& table) {
    for (QHeaderView* header : {table.horizontalHeader(), table.verticalHeader()}) {
        header->setMinimumSectionSize(1);
        header->hide();
    }
    table.horizontalHeader()->setDefaultSectionSize(20);
    table.verticalHeader()->setDefaultSectionSize(14);
    table.setFixedSize(387, 466);
}

void fillWithItems(QTableWidget& table) {
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            table.setItem(row, column, new QTableWidgetItem);
    }
}

void filledAndPaintedTableWidget(benchmark::State& state) {
    QTableWidget table(32, 19);
    shape(table);
    fillWithItems(table);
    table.show();
    paint();
    int shift = 0;
    for ([[maybe_unused]] auto _ : state) {
        fillTable(table, ++shift);
        paint();
    }
}
BENCHMARK(filledAndPaintedTableWidget)->Unit(benchmark::kMillisecond);

void redrawnMoon(benchmark::State& state) {
    ChangeCals::ShowMoonWindow();
    paint();
    for ([[maybe_unused]] auto _ : state) {
        ++CurJD;
        ChangeCals::SetMoonAge();
        ChangeCals::LoadMoon().ReSetForm();
        paint();
    }
    hideAll();
}
BENCHMARK(redrawnMoon)->Unit(benchmark::kMillisecond);

void readLanguageFile(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        std::string name = "Russian";
        LoadLanguage(name);
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}
BENCHMARK(readLanguageFile)->Unit(benchmark::kMillisecond);

void languageAppliedToAllWindows(benchmark::State& state) {
    showSix();
    goTo(someDay);
    bool russian = false;
    for ([[maybe_unused]] auto _ : state) {
        russian = !russian;
        std::string name = russian ? "Russian" : englishLanguage;
        LoadLanguage(name);
        ChangeCals::SetAllTexts();
        ChangeCals::RebuildWindows({true, true, true, true});
        paint();
    }
    hideAll();
}
BENCHMARK(languageAppliedToAllWindows)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    EndProgram = [](int) {};
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    if (!Start::Main())
        return 1;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    ChangeCals::EndRun();
    return 0;
}
