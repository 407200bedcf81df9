// SPDX-License-Identifier: MIT
#include "platform/message.h"

#include "platform/pointer.h"
#include "platform/program.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QStyle>

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

} // namespace

void MsgBox(const QString& text, QWidget* owner) {
    QMessageBox box(QMessageBox::Warning, ProgramTitle(), text, QMessageBox::Ok,
                    owner != nullptr ? owner : QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::NoTextInteraction);
    widenToTitle(box);
    const PointerShape normal(Qt::ArrowCursor); // also amid work under the hourglass
    box.exec();
}

QString WithEmptyLine(const QString& first, const QString& second) {
    return first + LineBreak() + LineBreak() + second;
}
