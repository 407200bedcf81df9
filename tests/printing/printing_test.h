// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/changecals.h"
#include "endurance/reckoning.h"
#include "printing/names.h"
#include "printing/print.h"
#include "support/texttables.h"
#include "support/widget_test.h"

#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <vector>

inline const QString english = QStringLiteral("English");
inline const QString german = QStringLiteral("German");
inline const QString hebrew = QStringLiteral("Hebrew");
inline const QString persian = QStringLiteral("Persian");

/// A word of a page as the PDF has it, with the room that its font gives to it.
struct Word {
    QString text;
    QRectF room; ///< in points from the upper left corner of the paper
};

/// Where the line of a word lies on which its letters stand, in the fonts of the tests.
inline double LineOf(const QRectF& room) {
    return room.top() + room.height() * 0.797;
}

/// A page to be printed into a file and read back.
struct PageCase {
    int calendar;
    int year;
    int month = 1; ///< of a month's page
    QString language = english;
    QPageSize::PageSizeId paper = QPageSize::A4;
    int moslemType = 1;
    int firstWeekDay = Sunday;
};

inline std::ostream& operator<<(std::ostream& out, const PageCase& page) {
    return out << "calendar " << page.calendar << ", " << page.month << "/" << page.year << ", "
               << page.language.toStdString() << ", paper " << page.paper << ", variant "
               << page.moslemType << ", weeks from " << page.firstWeekDay;
}

class PrintingTest : public WidgetTest {
protected:
    PrintingTest() { startToday(); }

    QString pdfPath() const { return m_folder.filePath(QStringLiteral("page.pdf")); }

    /// Brings the program to the case: its first day of the month is chosen.
    void choose(const PageCase& page) {
        resetState(page.moslemType);
        for (int c = 1; c <= calendarCount; ++c)
            FirstWeekDay(c) = page.firstWeekDay;
        Names(page.language).Choose();
        setDate(page.calendar, 1, page.month, page.year);
        ChangeCals::ChangeCal(page.calendar);
    }

    static void goToDay(int julianDay) {
        CurJD = julianDay;
        ChangeCals::ChangeJD();
    }

    void print(const Printing::Page& page, QPageSize::PageSizeId paper = QPageSize::A4) const {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdfPath());
        printer.setPageSize(QPageSize(paper));
        Printing::PrintPage(page, printer);
    }

    static QByteArray output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }

    /// The lines of the page that are not empty, runs of blanks as one, letters in
    /// their usual form and without marks of direction.
    QStringList lines() const {
        const QByteArray text = output(QStringLiteral("pdftotext"),
                                       {QStringLiteral("-layout"), pdfPath(), QStringLiteral("-")});
        QString plain = QString::fromUtf8(text).normalized(QString::NormalizationForm_KC);
        plain.remove(QRegularExpression(QStringLiteral("[\u200e\u200f\u202a-\u202e\f]")));
        QStringList found;
        for (const QString& line : plain.split(u'\n')) {
            if (!line.trimmed().isEmpty())
                found.append(line.simplified());
        }
        return found;
    }

    std::vector<Word> words() const {
        const QByteArray text = output(QStringLiteral("pdftotext"),
                                       {QStringLiteral("-bbox"), pdfPath(), QStringLiteral("-")});
        static const QRegularExpression word(QStringLiteral(
            "<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">(.*)</word>"));
        std::vector<Word> found;
        for (const auto& match : word.globalMatch(QString::fromUtf8(text)))
            found.push_back(
                {match.captured(5),
                 QRectF(QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()),
                        QPointF(match.captured(3).toDouble(), match.captured(4).toDouble()))});
        return found;
    }

    /// The page in grey. At 360 dots to the inch there are 5 to the point.
    QImage picture(int dotsPerInch = 300) const {
        output(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(dotsPerInch),
                                            QStringLiteral("-gray"), QStringLiteral("-singlefile"),
                                            pdfPath(), m_folder.filePath(QStringLiteral("page"))});
        return QImage(m_folder.filePath(QStringLiteral("page.pgm")));
    }

    static bool isDark(const QImage& page, int x, int y) { return qGray(page.pixel(x, y)) < 128; }

    /// Dark dots in a column around a rule.
    static int thicknessAt(const QImage& page, int x, int y) {
        int dots = 0;
        for (int at = y - 10; at < y + 10; ++at)
            dots += isDark(page, x, at) ? 1 : 0;
        return dots;
    }

    /// That a rule covers these dots of a row, and one or two more at the most.
    static void expectRule(const QImage& page, int y, int left, int right) {
        EXPECT_TRUE(isDark(page, left + 2, y)) << y;
        EXPECT_TRUE(isDark(page, right - 3, y)) << y;
        EXPECT_FALSE(isDark(page, left - 3, y)) << y;
        EXPECT_FALSE(isDark(page, right + 2, y)) << y;
    }

    /// The upper edges of the rules that cross the page, in points.
    std::vector<double> rules() const {
        const QImage page = picture();
        std::vector<double> found;
        int former = -2;
        for (int y = 0; y < page.height(); ++y) {
            int ink = 0;
            for (int x = 0; x < page.width(); ++x)
                ink += isDark(page, x, y) ? 1 : 0;
            if (ink <= page.width() * 3 / 4)
                continue;
            if (y != former + 1)
                found.push_back(y * 72 / 300.0);
            former = y;
        }
        return found;
    }
};
