// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

/// What a MSFlexGrid is for assistive tools; nullptr for anything else.
QAccessibleInterface* NewGridAccessible(const QString& className, QObject* object);
