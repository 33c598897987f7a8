// A protocol unit: a message to a device that becomes a text and reads its answer from one. Units live for one call and
// belong to it alone.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orrery {

class IPDU {
  public:
    IPDU() noexcept = default;
    IPDU(const IPDU&) = delete;
    IPDU& operator=(const IPDU&) = delete;

    // Virtual operations in the order of their slots.
    virtual ~IPDU() = default;
    // The message's text, which lives as long as the unit and until the next call, and its length; null when it could
    // not be written.
    virtual const char* serialize(std::size_t& length) noexcept = 0;
    // 1 when the text is JSON, else 0. It ends at its terminator: `length` is not looked at.
    virtual std::int32_t deserialize(const char* text, std::size_t length) noexcept = 0;
    virtual std::uint32_t getSequence() const noexcept { return nSequence; }
    virtual std::uint32_t getFlags() const noexcept { return nFlags; }

    std::uint32_t nRequestType = 0; // selects the message
    std::uint32_t nPacketId = 0;    // "id"
    std::uint32_t nSequence = 0;
    std::uint32_t nFlags = 0;
};

} // namespace orrery
