// Calls of a command in memory that ends at an unreadable page, with what every call promises about its buffers.
#pragma once

#include "Commands.h"
#include "support/CallerMemory.h"
#include "support/GuardedBuffer.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::test {

// Bytes in front of a buffer that a call has to leave alone, and what they hold.
inline constexpr std::size_t kFront = 64;
inline constexpr std::byte kUntouched{0xA5};

// A text behind whose terminator begins an unreadable page.
class GuardedText {
  public:
    explicit GuardedText(std::string_view text) : buffer_(text.size() + 1) {
        std::memcpy(buffer_.data(), text.data(), text.size());
        buffer_.data()[text.size()] = '\0';
    }
    const char* get() const { return buffer_.data(); }

  private:
    GuardedBuffer buffer_;
};

// Whether parsing clears the whole buffer first.
bool ClearsBuffer(const Command& command);

// Parses into buffers of one command.
class ParseCalls {
  public:
    // Room for buffers of up to `most` bytes.
    ParseCalls(const Command& command, std::size_t most);
    explicit ParseCalls(const Command& command) : ParseCalls(command, command.table->size) {}

    // Fills the buffer, prepares it as a caller would, parses, and fails the test if a byte in front of the buffer has
    // changed or if a failure left in it anything but what it should.
    Outcome Run(const char* text, std::size_t size, std::byte filling = kUntouched);
    Outcome Run(const char* text) { return Run(text, buffer_.size() - kFront); }

    // Of the last call.
    std::span<const std::byte> bytes() const { return bytes_; }
    const std::byte* record() const { return bytes_.data(); }
    std::uint32_t length() const { return length_; }

  private:
    const Command& command_;
    GuardedBuffer buffer_;
    CallerMemory memory_;
    std::span<std::byte> bytes_;
    std::vector<std::byte> before_;
    std::uint32_t length_ = 0;
};

struct Packed {
    Outcome outcome;
    std::string text;
};

// Whether the reply length may be more than the buffer: commands whose length is that of what a whole one would hold.
bool TellsMoreThanItFills(const Command& command);

// Whether the outcome is that of a command that tests its caller's record: a reply may leave one that says nothing.
inline bool MayTurnAway(const Command& command, Outcome outcome) {
    const bool tests = command.pack == Command::Frame::Own || command.packFrame.accepts != nullptr;
    return tests && outcome == Outcome::NotAccepted;
}

// Packs into a buffer that is large enough for any text of the record.
Packed Pack(const Command& command, const void* record, std::size_t size);

// What is wrong with a text that packing gave: keys out of order or twice, brackets that do not match, no newline at
// its end. Empty when nothing is.
std::string FlawOf(std::string_view packed);
// The same, and whether the referee takes it for JSON.
std::string FlawOfJson(std::string_view packed);

// The rows, as 'path: why', in which two records differ though the words of their table promise that what was written
// from the first reads back into the second.
std::vector<std::string> Differences(const record::Table& table, const std::byte* written, const std::byte* read);

} // namespace orrery::test
