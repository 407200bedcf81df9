// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// A picture of assets/ by its path there without the ending: "buttons/today".
/// Vector drawings, drawn anew for every size and device pixel ratio, and in
/// the style's way for disabled controls. One that cannot be drawn is empty; a
/// message names it, once as long as an icon of it is kept.
QIcon Picture(const QString& name);

/// The same for a button: paler where the theme's buttons are dark.
QIcon ButtonPicture(const QString& name);
