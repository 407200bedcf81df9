// SPDX-License-Identifier: MIT
#pragma once

class QAccessibleInterface;
class QObject;
class QString;

/// What a ComboBox is for assistive tools; nullptr for anything else.
QAccessibleInterface* NewComboBoxAccessible(const QString& className, QObject* object);
