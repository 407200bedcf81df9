// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

/// What a Form is for assistive tools; nullptr for anything else.
QAccessibleInterface* NewFormAccessible(const QString& className, QObject* object);
