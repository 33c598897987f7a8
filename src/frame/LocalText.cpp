#include "frame/LocalText.h"

#include "frame/LocalTextSteps.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <iconv.h>
#include <langinfo.h>

namespace orrery {

using namespace local_text;

namespace {

// Codesets whose bytes below 128 are ASCII wherever they stand alone: pure ASCII texts, most of what devices send,
// need no conversion there. Shift_JIS and the national ISO 646 sets are not among them.
constexpr std::string_view kAsciiFamilies[] = {"GB", "BIG5", "EUC-", "ISO-8859-", "KOI8-", "CP125"};

// iconv works from slice to slice. A character that it cannot convert makes it begin its slice again, so after one the
// slices are short, and while all goes well they grow.
constexpr std::size_t kShortSlice = 16;
constexpr std::size_t kLongSlice = 512;

// Converts a slice, or without `in` what the converter held back to see what follows. It writes nothing of the
// caller's: what a converter writes past the room that it was told of stays in the slack.
[[gnu::noinline]] std::size_t PutSlice(iconv_t descriptor, char** in, std::size_t* length, Room& room,
                                       bool& fits) noexcept {
    constexpr std::size_t kSlack = 32;
    char buffer[1024 + kSlack];
    char* end = buffer;
    std::size_t left = sizeof buffer - kSlack;
    errno = 0;
    const std::size_t result = iconv(descriptor, in, length, &end, &left);
    const int why = errno;
    fits = room.Put(buffer, static_cast<std::size_t>(end - buffer));
    errno = why;
    return result;
}

// Fills at most `size` bytes at `destination`; returns how many. What does not fit is cut in mid-character.
std::size_t Convert(iconv_t descriptor, bool fromUtf8, const char* source, std::size_t length, char* destination,
                    std::size_t size) noexcept {
    iconv(descriptor, nullptr, nullptr, nullptr, nullptr); // the text before this one may have ended in any state
    char* in = const_cast<char*>(source);                  // iconv takes it so, and leaves it alone
    Room room{destination, size};
    bool fits = true;
    std::size_t slice = kLongSlice;
    while (length > 0 && room.left > 0) {
        const std::size_t given = std::min(slice, length);
        std::size_t left = given;
        const bool isDone = PutSlice(descriptor, &in, &left, room, fits) != static_cast<std::size_t>(-1);
        const bool isCut = !isDone && (errno == E2BIG || (errno == EINVAL && given < length));
        const bool moved = left < given;
        length -= given - left;
        if (!fits) return size;
        if ((isDone || isCut) && moved) {
            slice = std::min(2 * slice, kLongSlice);
            continue;
        }
        if (isCut && errno == EINVAL && slice < kLongSlice) { // a character longer than the slice
            slice = kLongSlice;
            continue;
        }
        // What iconv took and refused counts as one; what it left begins with what it refuses.
        PutSlice(descriptor, nullptr, nullptr, room, fits);
        if (!fits || !room.Put("?", 1)) return size;
        if (length == 0) break;
        const std::size_t step = fromUtf8 ? Utf8Step(in, length) : 1;
        in += step;
        length -= step;
        slice = kShortSlice;
    }
    PutSlice(descriptor, nullptr, nullptr, room, fits);
    return size - room.left;
}

} // namespace

LocalText::LocalText(Arena& arena) noexcept : arena_(arena) {
    // Kept as a copy: the text that nl_langinfo points to goes with its locale.
    const std::string_view name = nl_langinfo(CODESET);
    isCopy_ = name == "UTF-8" || name == "ANSI_X3.4-1968" || name == "US-ASCII";
    if (isCopy_) return;
    const std::size_t size = std::min(name.size(), sizeof codeset_ - 1);
    std::memcpy(codeset_, name.data(), size);
    codeset_[size] = '\0';
    for (const std::string_view family : kAsciiFamilies)
        keepsAscii_ |= name.substr(0, family.size()) == family;
}

LocalText::~LocalText() {
    if (toLocal_ != nullptr) iconv_close(toLocal_);
    if (toUtf8_ != nullptr) iconv_close(toUtf8_);
}

bool LocalText::IsAscii(std::string_view text) noexcept {
    const char* next = text.data();
    std::size_t left = text.size();
    std::uint64_t bits = 0;
    for (; left >= 8; left -= 8, next += 8) {
        std::uint64_t word;
        std::memcpy(&word, next, 8);
        bits |= word;
    }
    for (; left > 0; --left)
        bits |= static_cast<unsigned char>(*next++);
    return (bits & 0x8080808080808080u) == 0;
}

void* LocalText::Open(void*& slot, const char* to, const char* from) noexcept {
    if (slot != nullptr) return slot;
    // A codeset that is not known and a module for whose loading there is no memory give the same error: memory that is
    // there for a second attempt tells them apart.
    for (int attempt = 0; attempt < 2; ++attempt) {
        const iconv_t descriptor = iconv_open(to, from);
        if (descriptor != reinterpret_cast<iconv_t>(-1)) return slot = descriptor;
        constexpr std::size_t kModule = std::size_t{64} << 10;
        void* const memory = errno == EINVAL ? std::malloc(kModule) : nullptr;
        if (memory == nullptr) {
            arena_.MarkFailed();
            return nullptr;
        }
        std::free(memory);
    }
    isCopy_ = true;
    return nullptr;
}

int LocalText::ConvertUtf8ToLocal(const char* source, int length, char* destination, int capacity) noexcept {
    if (IsNothing(source, length, destination, capacity)) return 0;
    const auto size = static_cast<std::size_t>(length);
    if (isCopyOf({source, size})) return CopyBounded(source, length, destination, capacity);
    std::size_t count = 0;
    if (void* const descriptor = Open(toLocal_, codeset_, "UTF-8"); descriptor != nullptr) {
        count = Convert(descriptor, true, source, size, destination, static_cast<std::size_t>(capacity - 1));
    } else if (isCopy_) {
        return CopyBounded(source, length, destination, capacity);
    }
    destination[count] = '\0';
    return static_cast<int>(count);
}

int LocalText::ConvertLocalToUtf8(const char* source, int length, char* destination, int capacity) noexcept {
    if (IsNothing(source, length, destination, capacity)) return 0;
    const auto size = static_cast<std::size_t>(length);
    if (isCopyOf({source, size})) return CopyBounded(source, length, destination, capacity);
    std::size_t count = 0;
    if (void* const descriptor = Open(toUtf8_, "UTF-8", codeset_); descriptor != nullptr) {
        count = Convert(descriptor, false, source, size, destination, static_cast<std::size_t>(capacity - 1));
    } else if (isCopy_) {
        return CopyBounded(source, length, destination, capacity);
    }
    destination[count] = '\0';
    return static_cast<int>(count);
}

} // namespace orrery
