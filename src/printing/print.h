// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"

class QPrinter;

namespace Printing {

struct Page;

/// Shows the desktop's print dialog and prints what is chosen there; beeps instead
/// where calendar c, which need not be one, cannot show the chosen day.
void Print(Paper paper, int c);

/// Prints on a printer or into its file, which is whole or as it was before. What
/// fails is told.
void PrintPage(const Page& page, QPrinter& printer);

} // namespace Printing
