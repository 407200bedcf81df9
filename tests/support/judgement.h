// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <string>

/// Puts into the test's report who judged, what was asked and how many answers
/// were the same, for the page on verification. Called when all were.
inline void recordJudgement(const std::string& judge, const std::string& asked, long long answers) {
    testing::Test::RecordProperty("judge", judge);
    testing::Test::RecordProperty("asked", asked);
    testing::Test::RecordProperty("answers", std::to_string(answers));
}

/// Puts into the test's report what the program went through unharmed, and how
/// many times.
inline void recordWithstood(const std::string& what, long long times) {
    testing::Test::RecordProperty("withstood", what);
    testing::Test::RecordProperty("times", std::to_string(times));
}
