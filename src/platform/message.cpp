// SPDX-License-Identifier: MIT
#include "platform/message.h"

#include "platform/pointer.h"
#include "platform/program.h"

#include <QApplication>
#include <QMessageBox>

void MsgBox(const QString& text) {
    QMessageBox box(QMessageBox::Warning, ProgramTitle(), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::NoTextInteraction);
    const PointerShape normal(Qt::ArrowCursor); // also amid work under the hourglass
    box.exec();
}

QString WithEmptyLine(const QString& first, const QString& second) {
    return first + LineBreak() + LineBreak() + second;
}
