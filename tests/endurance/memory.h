// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// Closes the dialogs, opens all six windows, unfolds every list and goes to a day and back, so
/// that all that is made when it is first used is there; then the bytes that are allocated. Memory
/// that a sanitizer holds back after it was freed does not count.
std::size_t BytesAtRest();
