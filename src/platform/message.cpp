// SPDX-License-Identifier: MIT
#include "platform/message.h"

#include "platform/pointer.h"
#include "platform/program.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QShortcut>
#include <QStyle>
#include <algorithm>

namespace {

// A title bar holds the title, in bold on many desktops, between an icon and up
// to three buttons.
int titleBarWidth(const QMessageBox& box) {
    QFont font = box.font();
    font.setBold(true);
    const int button = box.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &box);
    return QFontMetrics(font).horizontalAdvance(box.windowTitle()) + 4 * button;
}

// The box fixes its own size by its layout.
void widenToTitle(QMessageBox& box) {
    auto* layout = qobject_cast<QGridLayout*>(box.layout());
    if (layout != nullptr)
        layout->addItem(new QSpacerItem(titleBarWidth(box), 0), layout->rowCount(), 0, 1, -1);
}

constexpr std::size_t longestTold = 60; // letters

char32_t seen(char32_t letter) {
    constexpr char32_t controlPictures = 0x2400;
    if (letter < U' ')
        return controlPictures + letter;
    const bool isBlank = QChar::isSpace(letter) && letter != U' ';
    return QChar::isPrint(letter) && !isBlank ? letter : char32_t{QChar::ReplacementCharacter};
}

} // namespace

void MsgBox(const QString& text, QWidget* owner) {
    QMessageBox box(QMessageBox::Warning, ProgramTitle(), text, QMessageBox::Ok,
                    owner != nullptr ? owner : QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::NoTextInteraction);
    widenToTitle(box);
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_Q}) // as in the windows, which wait meanwhile
        new QShortcut(Qt::CTRL | key, &box, &box, &QDialog::accept);
    const PointerShape normal(Qt::ArrowCursor); // also amid work under the hourglass
    box.exec();
}

QString Told(const QString& text) {
    constexpr char32_t ellipsis = 0x2026;
    std::u32string letters = text.toStdU32String();
    if (letters.size() > longestTold)
        letters.replace(longestTold, letters.npos, 1, ellipsis);
    std::transform(letters.begin(), letters.end(), letters.begin(), seen);
    return QString::fromStdU32String(letters);
}

QString WithEmptyLine(const QString& first, const QString& second) {
    return first + LineBreak() + LineBreak() + second;
}
