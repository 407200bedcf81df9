// SPDX-License-Identifier: MIT
#include "platform/assistive.h"

#include "platform/comboboxaccessible.h"
#include "platform/formaccessible.h"
#include "platform/gridaccessible.h"

void InstallAssistiveInterfaces() {
    ComboBoxAccessible::Install();
    FormAccessible::Install();
    GridAccessible::Install();
}
