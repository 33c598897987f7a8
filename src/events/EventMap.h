// The map of the event decoder: one row an event code, with its name, its record and what is irregular about it.
#pragma once

#include "events/EventContext.h"

#include <span>

namespace orrery::events {

struct EventRow {
    std::uint32_t code;
    std::string_view name; // as RuleCodeFromName knows it; empty for a code that only another event turns into
    const Table* table;
    std::uint32_t recordSize;
    std::uint32_t reportedSize;     // what the callback is told
    bool needsNoData = false;       // delivered also without "Data"
    const char* noMemory = nullptr; // what the log says when there is no memory for the record
    // What the log says before the record is made, before it is read, and before that when there is a "TrafficCar".
    const char* making = nullptr;
    const char* reading = nullptr;
    const char* readingCar = nullptr;
    // The code under which an event of this name is delivered; null: its own.
    std::uint32_t (*rename)(const json::Value& data) noexcept = nullptr;

    constexpr EventRow Reports(std::uint32_t size) const { return With(*this, &EventRow::reportedSize, size); }
    constexpr EventRow NeedsNoData() const { return With(*this, &EventRow::needsNoData, true); }
    constexpr EventRow WithoutMemoryLogs(const char* line) const { return With(*this, &EventRow::noMemory, line); }
    constexpr EventRow Logs(const char* beforeMaking, const char* beforeReading,
                            const char* beforeReadingCar = nullptr) const {
        auto row = *this;
        row.making = beforeMaking;
        row.reading = beforeReading;
        row.readingCar = beforeReadingCar;
        return row;
    }
    constexpr EventRow Renamed(std::uint32_t (*function)(const json::Value& data) noexcept) const {
        return With(*this, &EventRow::rename, function);
    }
};

template <class R>
constexpr EventRow Event(std::uint32_t code, std::string_view name, const TypedTable<R>& table) {
    return {code, name, &table, sizeof(R), sizeof(R)};
}

// All events, ascending by code.
std::span<const EventRow> Events() noexcept;
// The row of a code; null when the decoder knows no such event.
const EventRow* FindEvent(std::uint32_t code) noexcept;

} // namespace orrery::events
