#include "orrery/Terminal.h"

#include "orrery/System.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace orrery::tool {

namespace {

constexpr std::string_view kPlain = "\033[0m";
constexpr std::string_view kKey = "\033[36m";
constexpr std::string_view kText = "\033[32m";
constexpr std::string_view kNumber = "\033[33m";
constexpr std::string_view kPlace = "\033[1m";
constexpr std::string_view kBad = "\033[31m";
constexpr std::string_view kNote = "\033[34m";

void Paint(std::string& out, std::string_view colour, std::string_view text) {
    out += colour;
    out += text;
    out += kPlain;
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xc0) == 0x80;
}

} // namespace

std::size_t TerminalWidth(int stream) {
    if (!IsTerminal(stream)) return 0;
    if (const char* const told = std::getenv("COLUMNS"); told != nullptr) {
        const long columns = std::strtol(told, nullptr, 10);
        if (columns > 0) return static_cast<std::size_t>(columns);
    }
    const std::size_t columns = TerminalColumns(stream);
    return columns > 0 ? columns : 80;
}

bool UsesColour(std::string_view when, int stream) {
    if (when == "always") return true;
    if (when == "never") return false;
    const char* const no = std::getenv("NO_COLOR");
    const char* const kind = std::getenv("TERM");
    if (no != nullptr && no[0] != '\0') return false;
    return IsTerminal(stream) && kind != nullptr && std::string_view(kind) != "dumb";
}

std::string ColouredJson(std::string_view json) {
    std::string out;
    for (std::size_t at = 0; at < json.size();) {
        const char c = json[at];
        std::size_t end = at + 1;
        if (c == '"') {
            while (end < json.size() && json[end] != '"')
                end += json[end] == '\\' ? 2 : 1;
            end = std::min(end + 1, json.size());
            Paint(out, end < json.size() && json[end] == ':' ? kKey : kText, json.substr(at, end - at));
        } else if (c == '-' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z')) {
            while (end < json.size() && json[end] != ',' && json[end] != ' ' && json[end] != ']' && json[end] != '\n')
                ++end;
            Paint(out, kNumber, json.substr(at, end - at));
        } else {
            out += c;
        }
        at = end;
    }
    return out;
}

std::string ColouredFindings(std::string_view lines) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kWords = {
        {{": note: ", kNote}, {": lost: ", kBad}, {": refused: ", kBad}}};
    std::string out;
    while (!lines.empty()) {
        const std::size_t end = std::min(lines.find('\n'), lines.size() - 1) + 1;
        const std::string_view line = lines.substr(0, end);
        lines.remove_prefix(end);
        std::size_t first = line.size();
        std::string_view word;
        std::string_view colour;
        for (const auto& [each, its] : kWords) {
            const std::size_t at = line.find(each);
            if (at >= first) continue;
            first = at;
            word = each;
            colour = its;
        }
        if (word.empty()) {
            out += line;
            continue;
        }
        Paint(out, kPlace, line.substr(0, first));
        out += ": ";
        Paint(out, colour, word.substr(2, word.size() - 4));
        out += line.substr(first + word.size() - 2);
    }
    return out;
}

std::size_t Columns(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

std::string CutTo(std::string_view line, std::size_t width) {
    if (width == 0 || Columns(line) <= width) return std::string(line);
    std::size_t end = 0;
    for (std::size_t column = 0; end < line.size(); ++end) {
        if (IsContinuation(line[end])) continue;
        if (column++ == width - 1) break;
    }
    return std::string(line.substr(0, end)) + "…";
}

Progress::Progress(std::string name, std::uint64_t total, bool isShown) : name_(std::move(name)), total_(total) {
    constexpr std::uint64_t kLong = std::uint64_t{4} << 20; // what is read before anybody asks
    if (isShown && total > kLong) width_ = TerminalWidth(kErrors);
}

std::string Progress::Line(std::string_view name, std::uint64_t done, std::uint64_t total, std::size_t width) {
    done = std::min(done, total);
    const auto tenths = [](std::uint64_t bytes) {
        const std::uint64_t all = bytes / 100'000;
        return std::to_string(all / 10) + "." + std::to_string(all % 10);
    };
    const std::string percent = std::to_string(total == 0 ? 100 : done * 100 / total);
    const std::string behind = std::string(percent.size() < 3 ? 3 - percent.size() : 0, ' ') + percent + "%  "
                               + tenths(done) + " of " + tenths(total) + " MB";
    const std::size_t taken = Columns(behind) + 4;
    if (width <= taken + 10) return CutTo(behind, width);
    const std::string front = CutTo(name, (width - taken) / 2);
    const std::size_t bar = std::min<std::size_t>(40, width - taken - Columns(front) - 1);
    const std::size_t full = total == 0 ? bar : static_cast<std::size_t>(done * bar / total);
    return front + " " + std::string(full, '#') + std::string(bar - full, '.') + " " + behind;
}

void Progress::Reached(std::uint64_t bytes) {
    const auto now = std::chrono::steady_clock::now();
    if (width_ == 0 || now < next_) return;
    next_ = now + std::chrono::milliseconds(100);
    std::fprintf(stderr, "\r%s\033[K", Line(name_, bytes, total_, width_ - 1).c_str());
    std::fflush(stderr);
    isThere_ = true;
}

void Progress::Clear() {
    if (!isThere_) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    isThere_ = false;
}

} // namespace orrery::tool
