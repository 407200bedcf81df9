// SPDX-License-Identifier: MIT
#include "platform/beep.h"

#include <QApplication>

namespace {

std::function<void()> replacedBeep;

} // namespace

void Beep() {
    if (replacedBeep)
        replacedBeep();
    else
        QApplication::beep();
}

void SetBeep(std::function<void()> beep) {
    replacedBeep = std::move(beep);
}
