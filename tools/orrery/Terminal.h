// What is different for eyes: colour, lines that fit, a bar that moves.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orrery::tool {

// Columns of the terminal that a stream leads to; 0: it leads to none. COLUMNS in the environment wins.
std::size_t TerminalWidth(int stream);

// "always", "never", or anything else: on a terminal, unless NO_COLOR is set or the terminal is dumb.
bool UsesColour(std::string_view when, int stream);

// JSON with its keys, texts and numbers in colours.
std::string ColouredJson(std::string_view json);
// Lines of findings, "FILE:LINE:COLUMN: lost: ...", with places and words in colours.
std::string ColouredFindings(std::string_view lines);

// At most `width` columns of a line; what is cut off shows as one "…". 0: all of it.
std::string CutTo(std::string_view line, std::size_t width);
// Characters, of which each takes a column here.
std::size_t Columns(std::string_view text);

// "###.......  34%  12.1 of 95.4 MB" on standard error while a long file is read.
class Progress {
  public:
    Progress(std::string name, std::uint64_t total, bool isShown);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { Clear(); }

    void Reached(std::uint64_t bytes);
    // Takes the bar away, so that something else can be printed.
    void Clear();

    static std::string Line(std::string_view name, std::uint64_t done, std::uint64_t total, std::size_t width);

  private:
    std::string name_;
    std::uint64_t total_;
    std::size_t width_ = 0; // 0: not shown
    bool isThere_ = false;
    std::chrono::steady_clock::time_point next_{};
};

} // namespace orrery::tool
