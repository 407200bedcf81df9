// SPDX-License-Identifier: MIT
#include "platform/assistive.h"

#include "platform/comboboxaccessible.h"
#include "platform/formaccessible.h"
#include "platform/gridaccessible.h"

#include <QAccessible>

void InstallAssistiveInterfaces() {
    for (const auto factory : {NewComboBoxAccessible, NewFormAccessible, NewGridAccessible})
        QAccessible::installFactory(factory);
}
