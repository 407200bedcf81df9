// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"

/// What a window that stands in for a real one was asked to do.
struct Record {
    int texts = 0;
    int rebuilt = 0;
    int refilled = 0; ///< one part of it
    QString tip;      ///< as it was to be at the last SetTexts
    QString closeTip;
};

inline void setRecordedTexts(MainWindow& window, Record& record, const std::string& caption) {
    ++record.texts;
    window.SetCaption(Text(caption));
    record.tip = ShowTips != 0 ? Text(StringTexts(TodayText)) : QString();
    record.closeTip.clear();
}

class RecordingMonthly : public MonthlyWindow {
public:
    RecordingMonthly() : MonthlyWindow(QStringLiteral("frmMonthlyCal")) {}
    void SetTexts() override {
        setRecordedTexts(*this, record, CalendarNames(monthlyCalendarsName));
    }
    void SetCloseTip(const QString& tip) override { record.closeTip = tip; }
    void SetCal(int) override { ++record.refilled; }
    void SetGrid(int) override { ++record.refilled; }
    void SetCommonInfo() override { ++record.refilled; }
    void ReSetForm() override { ++record.rebuilt; }

    Record record;
};

class RecordingYear : public YearWindow {
public:
    explicit RecordingYear(int c) : YearWindow(QStringLiteral("frmYear")), m_calendar(c) {}
    void SetTexts() override { setRecordedTexts(*this, record, CalendarNames(m_calendar)); }
    void SetCloseTip(const QString& tip) override { record.closeTip = tip; }
    void ShowYear() override { ++record.rebuilt; }

    Record record;

private:
    int m_calendar;
};

class RecordingMoon : public MoonWindow {
public:
    RecordingMoon() : MoonWindow(QStringLiteral("frmMoon")) {}
    void SetTexts() override { setRecordedTexts(*this, record, LabelTexts(MoonLabel)); }
    void ReSetForm() override { ++record.rebuilt; }

    Record record;
};
