// SPDX-License-Identifier: MIT
#include "platform/message.h"

#include "platform/program.h"

#include <QApplication>
#include <QMessageBox>

void MsgBox(const QString& text) {
    QMessageBox box(QMessageBox::Warning, ProgramTitle(), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::NoTextInteraction);
    box.exec();
}

QString WithEmptyLine(const QString& first, const QString& second) {
    return first + LineBreak() + LineBreak() + second;
}
