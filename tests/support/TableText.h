// Device replies made from a command's record table alone: they set every key that the table can read, so whoever
// sweeps the command map needs no sample of any command.
#pragma once

#include "Commands.h"
#include "support/JsonTree.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orrery::test {

enum class Values : std::uint8_t {
    Typical, // what devices send; everything that a table lets out again comes back the same
    Limits,  // right types at and beyond their limits: lists and texts too long, unknown names, numbers of any size
    Wild,    // any type anywhere
};

struct TextOptions {
    Values values = Values::Typical;
    std::uint64_t seed = 1;
    unsigned most = 2;    // elements in a list at the most, where the table leaves it open
    unsigned records = 2; // in a reply that may hold several
};

// The value of one record.
JsonTree RecordTree(const record::Table& table, const TextOptions& options);
// A whole reply that the command's frame takes.
JsonTree ReplyTree(const Command& command, const TextOptions& options);
inline std::string ReplyText(const Command& command, const TextOptions& options = {}) {
    return ReplyTree(command, options).Text();
}

// Whether the command's frame reads several records from one reply.
bool TakesMany(const Command& command);
// Whether these stand as an object's members.
bool TakesMembers(const Command& command);
// The reply around a value that stands for the command's record or records.
JsonTree Envelope(const Command& command, JsonTree value);
// The reply in which a device would send back what packing gave.
std::string ReplyAround(const Command& command, std::string_view packed);

} // namespace orrery::test
