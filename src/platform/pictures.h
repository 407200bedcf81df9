// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// A picture of assets/ by its path there without the ending: "buttons/today".
/// Vector drawings, sharp at every size.
QIcon Picture(const QString& name);
