// Any text: where both this library's reader and jsoncpp's accept it, they have read the same tree. Whatever was read
// can be walked and written, and reads the same again.
#include "frame/json/Reader.h"
#include "frame/json/TextWriter.h"
#include "support/JsoncppReferee.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

using namespace orrery;

[[noreturn]] void Report(std::string_view what, std::string_view text) {
    std::fprintf(stderr, "%.*s\nin: %.*s\n", static_cast<int>(what.size()), what.data(), static_cast<int>(text.size()),
                 text.data());
    std::abort();
}

bool HasCutKey(const Json::Value& value) {
    if (value.isArray()) {
        for (const Json::Value& element : value) {
            if (HasCutKey(element)) return true;
        }
    }
    if (value.type() == Json::objectValue) {
        for (auto member = value.begin(); member != value.end(); ++member) {
            if (member.name().find('\0') != std::string::npos || HasCutKey(*member)) return true;
        }
    }
    return false;
}

std::string Written(const json::Value& value, Arena& arena) {
    json::TextWriter measure(nullptr, 0);
    if (!measure.Write(value, arena)) std::abort();
    // Of exactly the length, so that the sanitizer sees a byte too many.
    const auto buffer = std::make_unique<char[]>(measure.length());
    json::TextWriter writer(buffer.get(), measure.length());
    if (!writer.Write(value, arena) || !writer.fits() || writer.length() != measure.length()) std::abort();
    return {buffer.get(), measure.length()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Callers hand over C strings. The copy has no byte to spare behind it.
    const auto* const terminator = static_cast<const std::uint8_t*>(size > 0 ? std::memchr(data, 0, size) : nullptr);
    if (terminator != nullptr) size = static_cast<std::size_t>(terminator - data);
    const auto copy = std::make_unique<char[]>(size);
    if (size > 0) std::memcpy(copy.get(), data, size);
    const std::string_view text(copy.get(), size);

    StackArena<512> arena;
    json::Value ours;
    json::SyntaxError error;
    if (!json::Parse(text, arena, ours, &error)) {
        if (error.message == nullptr || error.offset > size) Report("no reason given", text);
        return 0;
    }
    for (const unsigned shift : {0U, 4U})
        json::ArrayDepth(ours, shift, arena);
    const std::string written = Written(ours, arena);
    // Sixteen digits need not lead back to the same real, and an infinity has no JSON; all else reads as it was.
    if (written.find('.') == std::string::npos && written.find("inf") == std::string::npos) {
        StackArena<512> again;
        json::Value reread;
        if (!json::Parse(written, again, reread)) Report("not readable when written", text);
        if (Written(reread, again) != written) Report("other when written twice", text);
    }

    const auto theirs = test::JsoncppRead(text);
    if (!theirs || HasCutKey(*theirs) || test::HasLoneHighSurrogate(text)) return 0;
    if (const auto difference = test::FirstDifference(*theirs, ours)) Report(*difference, text);
    return 0;
}
