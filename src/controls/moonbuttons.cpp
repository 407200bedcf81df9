// SPDX-License-Identifier: MIT
#include "controls/moonbuttons.h"

#include "changecals/opening.h"
#include "controls/tips.h"
#include "platform/commandbutton.h"
#include "shared/texts.h"

namespace {

constexpr int lastPhase = 8;

QStringList phasePictures() {
    QStringList pictures;
    for (int phase = 0; phase <= lastPhase; ++phase)
        pictures.append(QStringLiteral("moon/phase%1").arg(phase));
    return pictures;
}

} // namespace

MoonButtons::MoonButtons(QWidget* parent)
    : ButtonStack(QStringLiteral("Command2"), phasePictures(), parent) {
    connect(this, &ButtonStack::Click, this, &ChangeCals::ShowMoonWindow);
}

void MoonButtons::SetTexts(int c) {
    for (CommandButton* button : Buttons())
        Controls::SetTip(button, MoonText, c);
}
