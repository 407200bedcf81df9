// SPDX-License-Identifier: MIT
#pragma once

class QAccessibleInterface;
class QObject;
class QString;

/// What a Form is for assistive tools; nullptr for anything else.
QAccessibleInterface* NewFormAccessible(const QString& className, QObject* object);
