// SPDX-License-Identifier: MIT
#include "printing/print.h"

#include "calc/range.h"
#include "printing/printing_test.h"
#include "support/fulldisk.h"
#include "support/usualrights.h"

#include <QDir>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>

namespace {

class PrintedPages : public PrintingTest {
protected:
    QString inFolder(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    static void printInto(const QString& file) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        Printing::PrintPage(Printing::YearPage(Jewish), printer);
    }

    /// What is done with the print dialog as soon as it is shown.
    void answerDialog(const std::function<void(QPrintDialog&)>& answer) {
        m_messages.answerOther([this, answer](QWidget& modal) {
            auto* dialog = qobject_cast<QPrintDialog*>(&modal);
            ASSERT_NE(dialog, nullptr);
            ++m_dialogs;
            answer(*dialog);
        });
    }

    void acceptWith(const QString& file) {
        answerDialog([file](QPrintDialog& dialog) {
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(file);
            dialog.done(QDialog::Accepted);
        });
    }

    int m_dialogs = 0;
};

/// The state and the texts, with what the state's snapshot leaves out.
struct Everything {
    StateSnapshot state;
    TextTables texts;
    decltype(MinJD) minJD = MinJD;
    decltype(MaxJD) maxJD = MaxJD;
    bool operator==(const Everything& other) const = default;
};

TEST_F(PrintedPages, LeavesEveryTableAsItIs) {
    for (const int type : {1, 2}) {
        // Of 2461101 the Jewish year is common, at the end of the Gregorian one it is not.
        for (const int day :
             {1721319, 1721500, 1948440, 2461365, 2461000, 2461101, 2817152, 2817404}) {
            resetState(type);
            Names(QStringLiteral("English")).Choose();
            goToDay(day);
            const Everything before;
            for (int c = 1; c <= calendarCount; ++c) {
                if (!isWithinRange(c))
                    continue;
                EXPECT_FALSE(Printing::YearPage(c).title.isEmpty());
                EXPECT_TRUE(before == Everything()) << day << " in calendar " << c;
                EXPECT_FALSE(Printing::MonthPage(c).title.isEmpty());
                EXPECT_TRUE(before == Everything()) << day << " in calendar " << c;
            }
        }
    }
}

// A page stays as it was when another day is chosen before it is printed.
TEST_F(PrintedPages, PrintsWhatWasAskedFor) {
    const Printing::Page page = Printing::MonthPage(Gregorian);
    goToDay(2451545);
    print(page);
    EXPECT_EQ(lines()[0], QStringLiteral("Gregorian calendar November 2026"));
}

TEST_F(PrintedPages, EmbedsItsFontsAndNamesItself) {
    print(Printing::YearPage(Jewish));
    const QStringList fonts =
        QString::fromUtf8(output(QStringLiteral("pdffonts"), {pdfPath()})).split(u'\n').sliced(2);
    for (const QString& font : fonts) {
        if (!font.isEmpty()) {
            EXPECT_TRUE(font.contains(QRegularExpression(QStringLiteral(" yes +(no|yes) +yes "))))
                << font.toStdString();
        }
    }
    const QString about = QString::fromUtf8(output(QStringLiteral("pdfinfo"), {pdfPath()}));
    for (const char* fact : {"Title: +Jewish calendar 5787\n", "Creator: +Orvalen Years Calendar\n",
                             "Pages: +1\n", "Page size: +595 x 842 pts \\(A4\\)"})
        EXPECT_TRUE(about.contains(QRegularExpression(QLatin1String(fact)))) << fact;
}

TEST_F(PrintedPages, HaveTheSizeAndTheMarginsThatAreAskedFor) {
    for (const auto& [asked, margin] : {std::pair(60.0, 60.0), std::pair(0.0, 40.0)}) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdfPath());
        printer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                          {asked, asked, asked, asked}, QPageLayout::Point));
        Printing::PrintPage(Printing::MonthPage(Gregorian), printer);
        const auto found = words();
        double right = 0;
        for (const Word& word : found)
            right = std::max(right, word.room.right());
        EXPECT_EQ(found[0].text, QStringLiteral("Gregorian"));
        EXPECT_NEAR(found[0].room.left(), margin, 0.1);
        EXPECT_GT(right, 612 - margin - 4);
        EXPECT_LT(right, 612 - margin + 0.1);
        const QByteArray about = output(QStringLiteral("pdfinfo"), {pdfPath()});
        EXPECT_TRUE(about.contains("612 x 792 pts (letter)")) << about.toStdString();
    }
}

// 490 by 642 points are left: 0.8425 of the size on A4.
TEST_F(PrintedPages, HaveEachMarginThatIsAskedFor) {
    choose({Gregorian, 2026, 8}); // 31 days, five of which begin a week: the page is full
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdfPath());
    printer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                      {50, 60, 72, 90}, QPageLayout::Point));
    Printing::PrintPage(Printing::MonthPage(Gregorian), printer);
    const QImage page = picture(360);
    expectRule(page, 472, 250, 2700);  // below the title
    expectRule(page, 3510, 250, 2700); // below the last row
}

// Of Legal paper 532 of 515 points of width limit them, of Letter 712 of 762 of height.
TEST_F(PrintedPages, HaveLettersAsLargeAsThePaperAllows) {
    const auto titleOn = [this](QPageSize::PageSizeId paper) {
        print(Printing::MonthPage(Gregorian), paper);
        return words()[0].room.height();
    };
    EXPECT_NEAR(titleOn(QPageSize::Legal) / titleOn(QPageSize::Letter), 1.10555, 0.0005);
}

// A4 of 150 dots to the inch across and 300 down.
TEST_F(PrintedPages, FitPaperWhoseDotsAreNotSquare) {
    QImage page(1240, 3508, QImage::Format_RGB32);
    page.setDotsPerMeterX(5906);
    page.setDotsPerMeterY(11811);
    page.fill(Qt::white);
    QPainter painter(&page);
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    Printing::Paint(Printing::YearPage(Gregorian), painter, layout);
    painter.end();
    expectRule(page, 337, 83, 1156); // below the title
}

// Errors

TEST_F(PrintedPages, SaysWhichFileCannotBeWritten) {
    ASSERT_TRUE(QDir().mkdir(inFolder("locked")));
    for (const char* name : {"nowhere/page.pdf", "locked/page.pdf"}) {
        const UsualRights rights; // its folder is another user's where this one may do all
        QFile::setPermissions(inFolder("locked"), QFile::ReadOwner | QFile::ExeOwner);
        printInto(inFolder(name));
        EXPECT_EQ(m_messages.take().join(u'|').toStdString(),
                  inFolder(name).toStdString() + "\r\n\r\nThe file cannot be written.");
    }
    EXPECT_TRUE(QDir(inFolder("locked")).isEmpty());
}

// A folder stands in the file's place, as /dev/full is not a file that is replaced.
TEST_F(PrintedPages, LeavesWhatStandsInTheFilesPlace) {
    const QString folder = inFolder("folder.pdf");
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/inside")));
    printInto(folder);
    EXPECT_EQ(m_messages.take().size(), 1);
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(QStringLiteral("inside")));
}

TEST_F(PrintedPages, LeavesTheOldFileWhereTheDiskIsFull) {
    writeFile(pdfPath(), "former");
    {
        const FullDisk disk(1000);
        printInto(pdfPath());
    }
    EXPECT_EQ(m_messages.take().join(u'|').toStdString(),
              pdfPath().toStdString() + "\r\n\r\nThe file cannot be written.");
    EXPECT_EQ(readFile(pdfPath()), "former");
    EXPECT_EQ(QDir(m_folder.path()).entryList({QStringLiteral("page.pdf*")}).size(), 1);
}

TEST_F(PrintedPages, TakesTheOldFilesPlaceAtOnce) {
    writeFile(pdfPath(), "former");
    print(Printing::YearPage(Jewish));
    EXPECT_TRUE(readFile(pdfPath()).startsWith("%PDF-"));
    EXPECT_TRUE(readFile(pdfPath()).trimmed().endsWith("%%EOF"));
    EXPECT_EQ(QDir(m_folder.path()).entryList({QStringLiteral("page.pdf*")}).size(), 1);
}

// Without any printer the toolkit prints into a file, whether it has a name or not.
TEST_F(PrintedPages, SaysThatNeitherPrinterNorFileIsChosen) {
    printInto(QString());
    EXPECT_EQ(m_messages.take(),
              QStringList(QStringLiteral("Jewish calendar 5787\r\n\r\n"
                                         "There is no printer, and no file was chosen.")));
}

// The dialog

TEST_F(PrintedPages, AsksForThePrinterAndProposesTheTitleAsName) {
    QString name;
    QPointer<QPrintDialog> shown;
    answerDialog([&](QPrintDialog& dialog) {
        shown = &dialog;
        name = dialog.printer()->docName();
        dialog.reject();
    });
    const Everything before;
    Printing::Print(Paper::Month, Gregorian);
    EXPECT_EQ(name, QStringLiteral("Gregorian calendar November 2026"));
    Printing::Print(Paper::Year, Jewish);
    EXPECT_EQ(name, QStringLiteral("Jewish calendar 5787"));
    EXPECT_EQ(m_dialogs, 2);
    EXPECT_TRUE(shown.isNull()) << "no dialog stays behind";
    EXPECT_TRUE(before == Everything());
}

TEST_F(PrintedPages, PrintsWhatTheDialogAccepts) {
    acceptWith(pdfPath());
    Printing::Print(Paper::Year, Moslem);
    EXPECT_EQ(lines()[0], QStringLiteral("Moslem calendar 1448"));
}

TEST_F(PrintedPages, LeavesEveryTableAsItIsWhetherItPrintsOrFails) {
    const Everything before;
    for (const char* file : {"page.pdf", "nowhere/page.pdf", ""}) {
        acceptWith(*file == 0 ? QString() : inFolder(file));
        Printing::Print(Paper::Year, Jewish);
        Printing::Print(Paper::Month, Gregorian);
        EXPECT_TRUE(before == Everything()) << file;
    }
    EXPECT_EQ(m_messages.take().size(), 4);
    EXPECT_EQ(m_dialogs, 6);
}

TEST_F(PrintedPages, OffersAFileAndTheSizeOfThePaper) {
    QAbstractPrintDialog::PrintDialogOptions options;
    answerDialog([&options](QPrintDialog& dialog) {
        options = dialog.options();
        dialog.reject();
    });
    Printing::Print(Paper::Year, Jewish);
    EXPECT_EQ(options, QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
}

TEST_F(PrintedPages, BeepsWhereThereIsNothingToPrint) {
    answerDialog([](QPrintDialog& dialog) { dialog.reject(); });
    Printing::Print(Paper::Month, 0);
    goToDay(1721319); // before all but the Jewish calendar
    Printing::Print(Paper::Year, Moslem);
    goToDay(2817404); // after all others
    Printing::Print(Paper::Month, Julian);
    EXPECT_EQ(m_beeps, 3);
    EXPECT_EQ(m_dialogs, 0);
}

// Ink

bool isInk(const QImage& picture, int x, int y) {
    return picture.constScanLine(y)[x] < 160; // a byte for each
}

/// Pages as a printer of 300 dots to the inch makes them.
class InkOnPaper : public PrintingTest, public testing::WithParamInterface<PageCase> {
protected:
    static constexpr double dots = 300.0 / 72;

    /// What the figures of a number cover: no font of the test's reaches below the
    /// line with figures, nor above three quarters of its size.
    static QRect figuresOf(const Word& word) {
        constexpr double figureHeight = 0.63;
        const QRectF room = word.room;
        const double height = room.height() * figureHeight;
        return QRectF(room.left() * dots, (LineOf(room) - height) * dots, room.width() * dots,
                      height * dots)
            .toAlignedRect();
    }

    static void expectMarginsAreBlank(const QImage& picture) {
        const int margin = static_cast<int>(38 * dots);
        const int width = picture.width();
        const int height = picture.height();
        for (const QRect side :
             {QRect(0, 0, width, margin), QRect(0, height - margin, width, margin),
              QRect(0, 0, margin, height), QRect(width - margin, 0, margin, height)}) {
            int ink = 0;
            for (int y = side.top(); y <= side.bottom(); ++y) {
                for (int x = side.left(); x <= side.right(); ++x)
                    ink += isInk(picture, x, y) ? 1 : 0;
            }
            EXPECT_EQ(ink, 0) << side.x() << ", " << side.y();
        }
    }

    void expectNumbersAreApart(const QImage& picture) const {
        std::vector<QRect> numbers;
        for (const Word& word : words()) {
            if (word.text.contains(QRegularExpression(QStringLiteral("^[0-9.]+$"))))
                numbers.push_back(figuresOf(word));
        }
        ASSERT_GT(numbers.size(), 100U);
        for (std::size_t one = 0; one < numbers.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other)
                EXPECT_FALSE(numbers[one].intersects(numbers[other])) << one << " and " << other;
            expectIsWhole(picture, numbers[one]);
        }
    }

    // Ink within, and a border without any: nothing is cut off and nothing touches.
    static void expectIsWhole(const QImage& picture, const QRect& number) {
        const QRect around = number.adjusted(-2, -3, 1, 2);
        int within = 0;
        int border = 0;
        for (int y = around.top(); y <= around.bottom(); ++y) {
            for (int x = around.left(); x <= around.right(); ++x) {
                const bool isBorder = y == around.top() || y == around.bottom();
                if (isInk(picture, x, y))
                    ++(isBorder ? border : within);
            }
        }
        EXPECT_GT(within, 10);
        EXPECT_EQ(border, 0) << number.x() << ", " << number.y();
    }
};

TEST_P(InkOnPaper, IsWithinTheMarginsAndNothingTouches) {
    choose(GetParam());
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        for (const auto& page :
             {Printing::YearPage(GetParam().calendar), Printing::MonthPage(GetParam().calendar)}) {
            print(page, paper);
            const QImage drawn = picture();
            ASSERT_EQ(drawn.format(), QImage::Format_Grayscale8);
            expectMarginsAreBlank(drawn);
            expectNumbersAreApart(drawn);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, InkOnPaper,
                         testing::Values(PageCase{Jewish, 5787},
                                         PageCase{Jewish, 5787, 1, QStringLiteral("Hebrew")},
                                         PageCase{Gregorian, 2026, 11, QStringLiteral("German")},
                                         PageCase{Moslem, 1448, 12, QStringLiteral("Persian")},
                                         PageCase{Julian, 3000, 12, QStringLiteral("Indonesian")}));

// Whole words at their places where every language has its longest.
TEST_F(PrintedPages, StaysWithinTheMarginsInEveryLanguage) {
    for (const char* language :
         {"Arabic", "French", "German", "Hebrew", "Indonesian", "Italian", "Persian", "Polish",
          "Russian", "Spanish", "Turkish", "Ukrainian"}) {
        Names(QLatin1String(language)).Choose();
        for (const auto& page : {Printing::YearPage(Gregorian), Printing::MonthPage(Jewish)}) {
            print(page, QPageSize::Letter);
            for (const Word& word : words()) {
                EXPECT_GE(word.room.left(), 39.9) << language << " " << word.text.toStdString();
                EXPECT_LE(word.room.right(), 572.1) << language << " " << word.text.toStdString();
            }
        }
    }
}

} // namespace
