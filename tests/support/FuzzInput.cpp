#include "support/FuzzInput.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <map>

namespace orrery::test {

std::uint32_t FuzzNumberOf(std::string_view commandName) {
    std::uint32_t number = 2166136261u; // FNV-1a
    for (const char c : commandName)
        number = (number ^ static_cast<unsigned char>(c)) * 16777619u;
    return number;
}

const Command& FuzzCommand(std::uint32_t number) {
    static const auto commands = [] {
        std::map<std::uint32_t, Command> byNumber;
        for (const Command& command : AllCommands())
            byNumber.emplace(FuzzNumberOf(command.name), command);
        return byNumber;
    }();
    const auto command = commands.lower_bound(number);
    return command == commands.end() ? commands.begin()->second : command->second;
}

std::optional<std::size_t> FirstItems(const record::Table& table) {
    if (BareItemsBehind(table) != nullptr) return 0;
    for (const record::Field& field : table) {
        if (field.cell != record::Cell::Record) continue;
        if (const auto inside = FirstItems(*field.table)) return field.offset + *inside;
    }
    return std::nullopt;
}

void RaiseCounts(const record::Table& table, std::byte* record) {
    for (const record::Field& field : table) {
        if (field.count.exists() && record::LoadSlot(field.count, record) == 0)
            record::StoreSlot(field.count, record, 1);
        if (field.cell == record::Cell::Record && field.size > 0) RaiseCounts(*field.table, record + field.offset);
    }
}

} // namespace orrery::test
