// Weeks of time sections as text.
#pragma once

#include <string>
#include <vector>

namespace orrery::test {

inline const std::string kNoSection = R"("0 00:00:00-00:00:00")";

// A section at a row and a column; all others are zero.
struct SectionAt {
    int row;
    int column;
    std::string text;
};

inline std::string WeekText(int rows, const std::vector<SectionAt>& sections = {}) {
    std::string week = "[ ";
    for (int row = 0; row < rows; ++row) {
        week += row == 0 ? "[ " : ", [ ";
        for (int column = 0; column < 6; ++column) {
            std::string cell = kNoSection;
            for (const SectionAt& at : sections) {
                if (at.row == row && at.column == column) cell = '"' + at.text + '"';
            }
            week += (column == 0 ? "" : ", ") + cell;
        }
        week += " ]";
    }
    return week + " ]";
}

} // namespace orrery::test
