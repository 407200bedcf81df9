// SPDX-License-Identifier: MIT
#pragma once

#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/windows.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QString>
#include <string>
#include <utility>
#include <vector>

/// What was asked of the recording windows, in order: "monthly.SetCal 1".
inline std::vector<std::string> calls;

inline void record(const std::string& call) {
    calls.push_back(call);
}

inline std::vector<std::string> takeCalls() {
    return std::exchange(calls, {});
}

/// What one recording window was asked to do.
struct Record {
    int texts = 0;
    int rebuilt = 0;
    int refilled = 0; ///< one part of it
    int forgotten = 0;
    QString tip; ///< as it was to be at the last SetTexts
    QString closeTip;
};

inline void recordTexts(MainWindow& window, Record& record, const std::string& caption) {
    ++record.texts;
    window.SetCaption(Text(caption));
    record.tip = ShowTips != 0 ? Text(StringTexts(TodayText)) : QString();
    record.closeTip.clear();
}

class RecordingMonthly : public MonthlyWindow {
public:
    RecordingMonthly() : MonthlyWindow(QStringLiteral("frmMonthlyCal")) {}
    void SetTexts() override {
        ::record("monthly.SetTexts");
        recordTexts(*this, record, CalendarNames(monthlyCalendarsName));
    }
    void SetCloseTip(int text) override { record.closeTip = Text(StringTexts(text)); }
    void SetCal(int pane) override { refill("SetCal", pane); }
    void SetGrid(int pane) override { refill("SetGrid", pane); }
    void SetCommonInfo() override {
        ::record("monthly.SetCommonInfo");
        ++record.refilled;
    }
    void ReSetForm() override {
        ::record("monthly.ReSetForm");
        ++record.rebuilt;
    }

    Record record;

private:
    void refill(const std::string& part, int pane) {
        ::record("monthly." + part + " " + std::to_string(pane));
        ++record.refilled;
    }
};

class RecordingYear : public YearWindow {
public:
    explicit RecordingYear(int c) : YearWindow(QStringLiteral("frmYear")), m_calendar(c) {}
    void SetTexts() override {
        ::record(name() + ".SetTexts");
        recordTexts(*this, record, CalendarNames(m_calendar));
    }
    void SetCloseTip(int text) override { record.closeTip = Text(StringTexts(text)); }
    void ShowYear() override {
        ::record(name() + ".ShowYear");
        ++record.rebuilt;
    }
    void ForgetYear() override { ++record.forgotten; }

    Record record;

private:
    std::string name() const { return "year" + std::to_string(m_calendar); }
    int m_calendar;
};

class RecordingMoon : public MoonWindow {
public:
    RecordingMoon() : MoonWindow(QStringLiteral("frmMoon")) {}
    void SetTexts() override {
        ::record("moon.SetTexts");
        recordTexts(*this, record, LabelTexts(MoonLabel));
    }
    void ReSetForm() override {
        ::record("moon.ReSetForm, CurrentWindow " + std::to_string(CurrentWindow));
        ++record.rebuilt;
    }

    Record record;
};

inline ChangeCals::WindowFactories recordingFactories() {
    return {
        [] { return new RecordingMonthly; },
        [](int c) { return new RecordingYear(c); },
        [] { return new RecordingMoon; },
        [] { return new Form(QStringLiteral("frmOptions")); },
        [] { return new Form(QStringLiteral("frmAbout")); },
        [](Paper paper, int c) {
            record((paper == Paper::Year ? "print year " : "print month ") + std::to_string(c));
        },
        {{389, 518}, {389, 518}, {507, 518}, {389, 518}, {656, 400}, {290, 309}},
    };
}

inline void useRecordingWindows() {
    calls.clear();
    ChangeCals::BeginRun(recordingFactories());
}

/// Chooses a day by its number; what that asks of the windows is not kept.
inline void goTo(int julianDay) {
    CurJD = julianDay;
    ChangeCals::ChangeJD();
    calls.clear();
}
