// How a text reaches the caller's buffer.
#pragma once

#include "frame/Frames.h"
#include "frame/json/TextWriter.h"

#include <cstring>

namespace orrery {

inline bool Fits(Capacity capacity, std::size_t length, std::size_t room) noexcept {
    switch (capacity) {
    case Capacity::Strict:
        return length < room;
    case Capacity::Loose:
    case Capacity::Raw:
    case Capacity::Bare:
        return length <= room;
    case Capacity::OneBefore:
        return length + 1 < room;
    }
    return false;
}

// Ends a text of `length` bytes that fits in `room`.
inline void Terminate(Capacity capacity, std::size_t length, char* buffer, std::size_t room) noexcept {
    if (capacity == Capacity::Bare) return;
    if (length < room)
        buffer[length] = '\0';
    else if (capacity == Capacity::Loose)
        buffer[room - 1] = '\0';
}

// A call that fails behind its arguments' tests leaves the caller a clear buffer.
inline Outcome LeaveClear(Outcome outcome, const PackRequest& request) noexcept {
    std::memset(request.textBuffer, 0, request.textCapacity);
    return outcome;
}

// Lets `write`, an Outcome(json::TextWriter&), write straight into the caller's buffer and clears what the text leaves
// of it; a text that does not fit leaves zeros.
template <class Write>
Outcome DeliverText(const Write& write, Capacity capacity, const PackRequest& request) noexcept {
    const std::size_t room = request.textCapacity;
    char* const buffer = request.textBuffer;
    json::TextWriter out(buffer, room);
    Outcome outcome = write(out);
    if (outcome == Outcome::Done && !Fits(capacity, out.length(), room)) outcome = Outcome::TextTooLong;
    if (outcome != Outcome::Done) return LeaveClear(outcome, request);
    if (out.length() < room)
        std::memset(buffer + out.length(), 0, room - out.length());
    else
        Terminate(capacity, out.length(), buffer, room);
    return Outcome::Done;
}

} // namespace orrery
