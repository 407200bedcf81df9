// SPDX-License-Identifier: MIT
// From a change to the painted pixels, beside the toolkit's own widgets.
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/program.h"
#include "shared/flags.h"
#include "shared/settings.h"
#include "start/language.h"
#include "start/rebuilding.h"
#include "start/start.h"
#include "yearcals/yearcals.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDir>
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
    for (int number = 1; number <= mainWindowCount; ++number) {
        if (Form* window = ChangeCals::LoadedWindow(number))
            window->Hide();
    }
    paint();
}

void showMonthly() {
    ChangeCals::ShowMonthlyWindow();
    paint();
}

void showAll() {
    showMonthly();
    ChangeCals::OpenYearWindowsOfPanes();
    paint();
}

void goTo(int julianDay) {
    CurJD = julianDay;
    ChangeCals::ChangeJD();
    paint();
}

void stepDays(benchmark::State& state) {
    goTo(someDay);
    for (auto _ : state)
        goTo(CurJD + 1);
    hideAll();
}

// To and fro, so that a long run stays in the range.
void stepYears(benchmark::State& state) {
    goTo(someDay);
    int by = 1;
    for (auto _ : state) {
        if (CurDate(Gregorian, Year) >= 2900 || CurDate(Gregorian, Year) <= 1000)
            by = -by;
        CurDate(Gregorian, Year) += by;
        ChangeCals::ChangeCal(Gregorian);
        paint();
    }
    hideAll();
}

void dayStepOfTheMonthlyWindow(benchmark::State& state) {
    showMonthly();
    stepDays(state);
}
BENCHMARK(dayStepOfTheMonthlyWindow)->Unit(benchmark::kMillisecond);

void dayStepOfFourCalendarWidgets(benchmark::State& state) {
    QWidget window;
    for (int i = 0; i < 4; ++i) {
        auto* calendar = new QCalendarWidget(&window);
        calendar->setGeometry(i * 250, 0, 250, 200);
    }
    window.show();
    paint();
    QDate day = QDate::fromJulianDay(someDay);
    for (auto _ : state) {
        day = day.addDays(1);
        for (auto* calendar : window.findChildren<QCalendarWidget*>())
            calendar->setSelectedDate(day);
        paint();
    }
}
BENCHMARK(dayStepOfFourCalendarWidgets)->Unit(benchmark::kMillisecond);

void yearStepOfTheMonthlyWindow(benchmark::State& state) {
    showMonthly();
    stepYears(state);
}
BENCHMARK(yearStepOfTheMonthlyWindow)->Unit(benchmark::kMillisecond);

void firstUseOfAListOf3000Years(benchmark::State& state) {
    showMonthly();
    goTo(someDay);
    auto* years = ChangeCals::Monthly().findChild<ComboBox*>(QStringLiteral("Combo2_2"));
    for (auto _ : state) {
        Q_EMIT years->BeforeUse();
        state.PauseTiming();
        ChangeCals::UpdateWindows(); // empties the list again
        paint();
        state.ResumeTiming();
    }
    hideAll();
}
BENCHMARK(firstUseOfAListOf3000Years)->Unit(benchmark::kMillisecond);

void filledAndPaintedYearGrid(benchmark::State& state) {
    ChangeCals::OpenYearWindow(Gregorian);
    stepYears(state);
}
BENCHMARK(filledAndPaintedYearGrid)->Unit(benchmark::kMillisecond);

void fillTable(QTableWidget& table, int shift) {
    table.setUpdatesEnabled(false);
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            table.item(row, column)->setText(QString::number((row + column + shift) % 31 + 1));
    }
    table.setUpdatesEnabled(true);
}

void filledAndPaintedTableWidget(benchmark::State& state) {
    QTableWidget table(32, 19);
    table.horizontalHeader()->setMinimumSectionSize(1);
    table.verticalHeader()->setMinimumSectionSize(1);
    table.horizontalHeader()->hide();
    table.verticalHeader()->hide();
    table.horizontalHeader()->setDefaultSectionSize(20);
    table.verticalHeader()->setDefaultSectionSize(14);
    for (int row = 0; row < 32; ++row) {
        for (int column = 0; column < 19; ++column)
            table.setItem(row, column, new QTableWidgetItem);
    }
    table.setFixedSize(387, 466);
    table.show();
    paint();
    int shift = 0;
    for (auto _ : state) {
        fillTable(table, ++shift);
        paint();
    }
}
BENCHMARK(filledAndPaintedTableWidget)->Unit(benchmark::kMillisecond);

void yearStepOfAllWindows(benchmark::State& state) {
    showAll();
    stepYears(state);
}
BENCHMARK(yearStepOfAllWindows)->Unit(benchmark::kMillisecond);

void dayStepOfAllWindows(benchmark::State& state) {
    showAll();
    stepDays(state);
}
BENCHMARK(dayStepOfAllWindows)->Unit(benchmark::kMillisecond);

void redrawnMoon(benchmark::State& state) {
    ChangeCals::ShowMoonWindow();
    paint();
    for (auto _ : state) {
        ++CurJD;
        ChangeCals::SetMoonAge();
        ChangeCals::Moon().ReSetForm();
        paint();
    }
    hideAll();
}
BENCHMARK(redrawnMoon)->Unit(benchmark::kMillisecond);

void readLanguageFile(benchmark::State& state) {
    for (auto _ : state) {
        std::string name = "Russian";
        LoadLanguage(name);
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}
BENCHMARK(readLanguageFile)->Unit(benchmark::kMillisecond);

void languageAppliedToAllWindows(benchmark::State& state) {
    showAll();
    ChangeCals::ShowMoonWindow();
    goTo(someDay);
    bool russian = false;
    for (auto _ : state) {
        russian = !russian;
        std::string name = russian ? "Russian" : englishLanguage;
        LoadLanguage(name);
        ChangeCals::SetAllTexts();
        YearCals::ForgetShownYears();
        RebuildVisibleWindows();
        paint();
    }
    hideAll();
}
BENCHMARK(languageAppliedToAllWindows)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    SetEndProgram([](int) {});
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    if (!Start::Main())
        return 1;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    ChangeCals::DestroyAllWindows();
    return 0;
}
