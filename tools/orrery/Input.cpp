#include "orrery/Input.h"

#include "orrery/Output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace orrery::tool {

std::string_view ForeignEncoding(std::string_view text) {
    const auto starts = [&](std::string_view bytes) { return text.starts_with(bytes); };
    using namespace std::literals;
    if (starts("\xFF\xFE\0\0"sv) || starts("\0\0\xFE\xFF"sv)) return "UTF-32";
    if (starts("\xFF\xFE"sv) || starts("\xFE\xFF"sv)) return "UTF-16";
    // JSON begins with ASCII, of which such encodings leave NULs.
    if (text.size() < 4) return {};
    const bool first = text[0] == '\0', second = text[1] == '\0', third = text[2] == '\0', fourth = text[3] == '\0';
    if (first && second && third && !fourth) return "UTF-32";
    if (!first && second && third && fourth) return "UTF-32";
    if ((first && !second && third && !fourth) || (!first && second && !third && fourth)) return "UTF-16";
    return {};
}

std::string NotUtf8(std::string_view encoding) {
    return "the text is " + std::string(encoding) + ", and devices speak UTF-8: 'iconv -f " + std::string(encoding)
           + " -t UTF-8' makes it so";
}

bool ReadText(const std::string& name, std::string& text, std::string& note) {
    const auto close = [](std::FILE* file) {
        if (file != stdin) std::fclose(file);
    };
    const bool isInput = name.empty() || name == "-";
    const std::string shown = isInput ? "standard input" : Printable(name);
    const std::unique_ptr<std::FILE, decltype(close)> file(isInput ? stdin : std::fopen(name.c_str(), "rb"), close);
    char chunk[1 << 16];
    std::size_t got = 0;
    while (file != nullptr && (got = std::fread(chunk, 1, sizeof chunk, file.get())) > 0)
        text.append(chunk, got);
    if (file == nullptr || std::ferror(file.get()) != 0) {
        note = "orrery: can't read " + shown + ": " + std::strerror(errno) + "\n";
        return false;
    }
    if (const std::string_view encoding = ForeignEncoding(text); !encoding.empty()) {
        note = "orrery: " + shown + ": " + NotUtf8(encoding) + "\n";
        return false;
    }
    if (text.starts_with(kByteOrderMark)) {
        text.erase(0, kByteOrderMark.size());
        note = "orrery: note: " + shown + " begins with a byte order mark, which is skipped: devices send none\n";
    }
    return true;
}

} // namespace orrery::tool
