// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// The rows of a table of tests/data without the names of the columns.
inline std::vector<std::vector<std::string>> readTable(const std::string& name) {
    std::ifstream file(std::string(TEST_DATA_DIR "/") + name);
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(file, line); // the column names
    while (std::getline(file, line)) {
        std::vector<std::string> row;
        std::istringstream cells(line + ",");
        for (std::string cell; std::getline(cells, cell, ',');)
            row.push_back(cell);
        rows.push_back(row);
    }
    return rows;
}
