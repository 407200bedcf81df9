// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "shared/flags.h"

#include <QString>
#include <string>
#include <vector>

/// What was asked of the recording windows, in order: "monthly.SetCal 1".
inline std::vector<std::string> calls;

inline void record(const std::string& call) {
    calls.push_back(call);
}

inline std::vector<std::string> takeCalls() {
    return std::exchange(calls, {});
}

class RecordingMonthly : public MonthlyWindow {
public:
    RecordingMonthly() : MonthlyWindow(QStringLiteral("frmMonthlyCal")) {}
    void SetTexts() override { record("monthly.SetTexts"); }
    void SetCloseTip(const QString& tip) override { closeTip = tip; }
    void SetCal(int pane) override { record("monthly.SetCal " + std::to_string(pane)); }
    void SetGrid(int pane) override { record("monthly.SetGrid " + std::to_string(pane)); }
    void SetCommonInfo() override { record("monthly.SetCommonInfo"); }
    void ReSetForm() override { record("monthly.ReSetForm"); }
    QString closeTip;
};

class RecordingYear : public YearWindow {
public:
    explicit RecordingYear(int c) : YearWindow(QStringLiteral("frmYear")), m_calendar(c) {}
    void SetTexts() override { record(name() + ".SetTexts"); }
    void SetCloseTip(const QString& tip) override { closeTip = tip; }
    void ShowYear() override { record(name() + ".ShowYear"); }
    QString closeTip;

private:
    std::string name() const { return "year" + std::to_string(m_calendar); }
    int m_calendar;
};

class RecordingMoon : public MoonWindow {
public:
    RecordingMoon() : MoonWindow(QStringLiteral("frmMoon")) {}
    void SetTexts() override { record("moon.SetTexts"); }
    void ReSetForm() override {
        record("moon.ReSetForm, CurrentWindow " + std::to_string(CurrentWindow));
    }
};

inline ChangeCals::WindowFactories recordingFactories() {
    return {
        [] { return new RecordingMonthly; },
        [](int c) { return new RecordingYear(c); },
        [] { return new RecordingMoon; },
        [] { return new Form(QStringLiteral("frmOptions")); },
        [] { return new Form(QStringLiteral("frmAbout")); },
    };
}

inline void useRecordingWindows() {
    calls.clear();
    ChangeCals::SetFactories(recordingFactories());
}
