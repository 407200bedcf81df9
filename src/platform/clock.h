// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <functional>

/// Today by the computer's clock, in local time; another clock may take its place.
inline std::function<QDate()> Today = [] { return QDate::currentDate(); };
