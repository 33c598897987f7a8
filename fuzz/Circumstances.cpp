#include "Circumstances.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

extern "C" {
// Of the leak checker, where there is one.
[[gnu::weak]] void __lsan_disable();
[[gnu::weak]] void __lsan_enable();

// Freed blocks are kept from use for a while, but not so many that each input has fresh pages.
const char* __asan_default_options();
const char* __asan_default_options() {
    return "quarantine_size_mb=16";
}
}

namespace orrery::fuzz {

namespace {

// Codesets of each kind: double bytes, single bytes, bytes that are not ASCII, a converter that looks ahead, one that
// takes what it refuses, and one that nobody knows.
constexpr std::array kLocales = {"GBK", "ISO-8859-1", "SHIFT_JIS", "BIG5-HKSCS", "ISO-2022-CN-EXT", "NOWHERE-1"};

std::array<locale_t, kLocales.size()> Open() {
    std::array<locale_t, kLocales.size()> all;
    setenv("LOCPATH", ORRERY_FUZZ_LOCALES, 0);
    if (__lsan_disable != nullptr) __lsan_disable(); // newlocale never frees the LOCPATH that it took apart
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::string name = std::string("xx_XX.") + kLocales[i];
        all[i] = newlocale(LC_CTYPE_MASK, name.c_str(), nullptr);
        if (all[i] == nullptr) {
            std::fprintf(stderr, "no locale %s in %s\n", name.c_str(), ORRERY_FUZZ_LOCALES);
            std::abort();
        }
    }
    if (__lsan_enable != nullptr) __lsan_enable();
    return all;
}

// Prints every line, as a host's would.
class PrintingSink final : public LogSink {
  public:
    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override {}
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char* format, char*& arguments) override {
        Print(format, arguments);
    }
    void TraceOutW(int, int, const wchar_t*, char*&) override {}
    void TraceOut(int, int, const char* format, char*& arguments) override { Print(format, arguments); }
    void SetMaxSizeKB(int) override {}
    void SetFileCount(int) override {}
    void SetPrintLevel(E_LOG_LEVEL) override {}
    void SetPrintStrategy(int) override {}
    void SetPosition(const char* file, int, E_LOG_LEVEL) override {
        if (file == nullptr || std::strlen(file) == 0) std::abort();
    }

  private:
    static void Print(const char* format, char*& arguments) {
        char line[512];
        if (std::vsnprintf(line, sizeof line, format, LogOne_VaList(arguments)) <= 0) std::abort();
    }
};

} // namespace

Choice ChoiceBehind(std::string_view input, std::string_view& text) {
    const std::size_t end = input.find('\0');
    text = input.substr(0, end);
    const std::string_view bytes = end == std::string_view::npos ? std::string_view() : input.substr(end + 1);
    const auto at = [&](std::size_t i) { return i < bytes.size() ? static_cast<std::uint8_t>(bytes[i]) : 0; };
    return {static_cast<std::uint8_t>(at(0)), static_cast<std::uint8_t>(at(1)),
            static_cast<std::uint16_t>(at(2) | at(3) << 8)};
}

Circumstances::Circumstances(const Choice& choice) : listens_((choice.flags & 1) != 0) {
    static const auto locales = Open();
    static PrintingSink sink;
    const std::size_t which = choice.locale % (locales.size() + 1);
    former_ = uselocale(which == 0 ? locale_t{} : locales[which - 1]);
    if (listens_) LogOne_SetSink(&sink);
    heap_.emplace();
    if ((choice.flags & 4) != 0)
        heap_->FailFrom(1 + choice.allocation % 64u);
    else if ((choice.flags & 2) != 0)
        heap_->FailOnly(1 + choice.allocation % 64u);
}

Circumstances::~Circumstances() {
    heap_.reset();
    uselocale(former_);
    if (listens_) LogOne_SetSink(nullptr);
}

bool Circumstances::Calm() {
    heap_->FailNone();
    return heap_->liveBlocks() == 0;
}

} // namespace orrery::fuzz
