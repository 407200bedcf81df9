// SPDX-License-Identifier: MIT
#pragma once

/// From now on assistive tools see forms, grids and lists by the interfaces of
/// this program. Called once, before the first of them is shown.
void InstallAssistiveInterfaces();
