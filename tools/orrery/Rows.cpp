#include "orrery/Rows.h"

#include "orrery/Terminal.h"

#include <algorithm>
#include <array>

namespace orrery::tool {

namespace {

std::string CsvCell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

// Texts get a column of so many characters: what comes later is not known yet when the first row is printed.
std::size_t WidthOf(std::string_view column) {
    constexpr std::size_t kNames = 28, kTexts = 12, kNumbers = 6, kLeast = 5;
    constexpr std::array<std::string_view, 5> kShort = {"code", "size", "action", "index", "line"};
    if (column == "name") return kNames;
    if (column == "file") return kTexts;
    if (std::ranges::find(kShort, column) != kShort.end()) return std::max(column.size(), kLeast);
    const std::size_t dot = column.rfind('.');
    const bool isNumber = column.substr(dot == std::string_view::npos ? 0 : dot + 1).starts_with('n');
    return std::max(column.size(), isNumber ? kNumbers : kTexts);
}

} // namespace

std::string CellOf(const std::optional<Node>& member) {
    if (!member) return {};
    const Node* const name = member->Find("code") != nullptr ? member->Find("name") : nullptr;
    return name != nullptr ? name->Bare() : member->Bare();
}

std::string Row(Format format, std::size_t width, const std::vector<std::string>& columns,
                const std::function<std::string(const std::string& column)>& cellAt) {
    std::string row;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string cell = cellAt(columns[i]);
        if (format == Format::Csv) {
            row += (i > 0 ? "," : "") + CsvCell(cell);
            continue;
        }
        const std::size_t most = WidthOf(columns[i]);
        const bool isLast = i + 1 == columns.size();
        const std::string shown = width > 0 && !isLast ? CutTo(Printable(cell), most) : Printable(cell);
        row += (i > 0 ? "  " : "") + shown;
        if (!isLast) row.append(most - std::min(most, Columns(shown)), ' ');
    }
    while (format == Format::Table && row.ends_with(' '))
        row.pop_back();
    return (format == Format::Table ? CutTo(row, width) : row) + "\n";
}

std::string RowOfNames(Format format, std::size_t width, const std::vector<std::string>& columns) {
    return Row(format, width, columns, [](const std::string& column) { return column; });
}

} // namespace orrery::tool
