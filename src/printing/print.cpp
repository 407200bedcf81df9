// SPDX-License-Identifier: MIT
#include "printing/print.h"

#include "calc/range.h"
#include "platform/beep.h"
#include "platform/message.h"
#include "platform/program.h"
#include "platform/system.h"
#include "platform/text.h"
#include "printing/sheet.h"
#include "shared/texts.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>

namespace {

Printing::Page pageOf(Paper paper, int c) {
    return paper == Paper::Year ? Printing::YearPage(c) : Printing::MonthPage(c);
}

// The dialog goes with the window that it belongs to.
bool isAccepted(QPrinter& printer) {
    const QPointer<QPrintDialog> dialog = new QPrintDialog(&printer, QApplication::activeWindow());
    dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    delete dialog;
    return accepted;
}

QByteArray pdfOf(const Printing::Page& page, const QPageLayout& layout) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(page.title);
    writer.setCreator(ProgramTitle());
    writer.setPageLayout(layout);
    QPainter painter(&writer);
    Printing::Paint(page, painter, layout);
    painter.end(); // the last bytes are written now
    return buffer.data();
}

// Each says why it failed, nothing where it did not. The new file takes the old one's
// place when it is known to be on disk.
QString printToFile(const Printing::Page& page, const QPrinter& printer) {
    QPageLayout layout = printer.pageLayout();
    layout.setMode(QPageLayout::FullPageMode);
    const QByteArray pdf = pdfOf(page, layout);
    QSaveFile file(printer.outputFileName());
    const bool written = file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() &&
                         BringToDisk(file) && file.commit();
    return written ? QString() : QStringLiteral("The file cannot be written.");
}

QString printOnPaper(const Printing::Page& page, QPrinter& printer) {
    printer.setFullPage(true);
    QPainter painter;
    bool printed = printer.isValid() && painter.begin(&printer);
    if (printed) {
        Printing::Paint(page, painter, printer.pageLayout());
        printed = painter.end() && printer.printerState() != QPrinter::Error;
    }
    return printed ? QString() : QStringLiteral("The printer does not take the page.");
}

} // namespace

void Printing::Print(Paper paper, int c) {
    if (!IsCalendar(c) || Calc::IsBeforeRange(c) || Calc::IsAfterRange(c))
        return Beep();
    const Page page = pageOf(paper, c);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(page.title);
    if (isAccepted(printer))
        PrintPage(page, printer);
}

void Printing::PrintPage(const Page& page, QPrinter& printer) {
    const QString file = printer.outputFileName();
    QString failure;
    if (printer.outputFormat() != QPrinter::PdfFormat)
        failure = printOnPaper(page, printer);
    else if (file.isEmpty()) // as a printer is where there is none
        failure = QStringLiteral("There is no printer, and no file was chosen.");
    else
        failure = printToFile(page, printer);
    if (!failure.isEmpty())
        MsgBox(WithEmptyLine(file.isEmpty() ? page.title : file, failure));
}

void Printing::Paint(const Page& page, QPainter& painter, const QPageLayout& layout) {
    page.write(Sheet(painter, layout, Text(CalendarNames(Julian)).isRightToLeft()));
}
