// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

/// The seed of a random walk: that of the environment's ORVALEN_SEED, so that a
/// walk can be taken again, otherwise a new one.
inline std::uint32_t walkSeed() {
    const char* asked = std::getenv("ORVALEN_SEED");
    return asked != nullptr ? static_cast<std::uint32_t>(std::strtoul(asked, nullptr, 10))
                            : std::random_device{}();
}

/// Told with a failure.
inline std::string againWith(std::uint32_t seed) {
    return "to take this walk again, set ORVALEN_SEED=" + std::to_string(seed);
}
