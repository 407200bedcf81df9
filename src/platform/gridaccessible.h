// SPDX-License-Identifier: MIT
#pragma once

class QAccessibleInterface;
class QObject;
class QString;

/// What a MSFlexGrid is for assistive tools; nullptr for anything else.
QAccessibleInterface* NewGridAccessible(const QString& className, QObject* object);
