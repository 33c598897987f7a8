// The two translations as the companion runs them: everything is done before anything is printed.
#pragma once

#include "orrery/Filter.h"
#include "orrery/Rows.h"

#include "Commands.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

inline constexpr int kDone = 0;
inline constexpr int kRefused = 1;
inline constexpr int kUsage = 2;
inline constexpr int kFound = 3; // done, but not all of what was given went through

struct Result {
    int exit = kDone;
    std::string out;
    std::string err; // lines, each with its newline
};

struct ParseOptions {
    std::optional<std::uint32_t> records{}; // room for so many; else as many as the reply holds
    std::optional<std::uint32_t> bytes{};   // a buffer of exactly so many bytes
    bool all = false;
    bool brief = false;
    bool pack = false;
    bool table = false;       // the text is the bare value, without the reply around it
    std::size_t width = 0;    // of the terminal that is printed to; 0: to none
    std::string_view start{}; // JSON of the record that the buffer holds before the call
    // Other than Pretty: a line a record, with the file that it comes from and its index there.
    Format format = Format::Pretty;
    std::vector<std::string> fields{}; // these members of the records only
    std::vector<Filter> filters{};     // all of which a record must pass
    std::string file = "-";
};

struct PackOptions {
    std::optional<std::uint32_t> capacity{}; // of the text buffer; else as much as the text takes
    // Tells also what of the records leaves no trace in the text, and of fields that no record has; without it, and
    // without `strict`, such a field is refused, as nobody would hear of it.
    bool warn = false;
    bool strict = false;                    // kFound when there is anything to tell
    bool json = false;                      // it is told as an object a line
    std::string file = "-";                 // where the records come from
    std::optional<std::uint32_t> request{}; // the whole request that sets it, with this id
};

Result ParseText(const Command& command, std::string_view text, const ParseOptions& options = {});
Result PackText(const Command& command, std::string_view json, const PackOptions& options = {});
// The columns of records as rows.
std::vector<std::string> ColumnsOf(const ParseOptions& options);
// By the command's name.
Result ParseText(std::string_view command, std::string_view text, const ParseOptions& options = {});
Result PackText(std::string_view command, std::string_view json, const PackOptions& options = {});

} // namespace orrery::tool
