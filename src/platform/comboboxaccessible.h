// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

/// What a ComboBox is for assistive tools; nullptr for anything else.
QAccessibleInterface* NewComboBoxAccessible(const QString& className, QObject* object);
