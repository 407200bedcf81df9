// SPDX-License-Identifier: MIT
#pragma once

class Form;

/// Puts a dialog in the middle of the primary screen's width and at a third of
/// the height that it leaves free.
void PlaceDialog(Form& dialog);
