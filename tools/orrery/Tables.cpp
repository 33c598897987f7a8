#include "orrery/Tables.h"

#include "Commands.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/JsonParser.h"
#include "frame/PackedItems.h"
#include "orrery/Words.h"

#include <algorithm>

namespace orrery::tool {

using namespace record;

Tables::Tables() {
    for (const Command& command : Commands()) {
        if (command.table != nullptr) Meet(*command.table, std::string(command.name));
        if (command.otherTable != nullptr) Meet(*command.otherTable, std::string(command.name));
    }
    for (const events::EventRow& event : events::Events())
        Meet(*event.table, std::string(event.name));
    for (const events::TypedRow& typed : events::TypedRows())
        Meet(*typed.table, std::string(typed.name));
    for (const TemplateRow& row : Templates())
        Meet(*row.table, std::string(row.name));
    std::stable_sort(all.begin(), all.end(), [](const Table* left, const Table* right) {
        return std::string_view(left->record) < std::string_view(right->record);
    });
    std::sort(names.begin(), names.end(),
              [&](const NameTable* left, const NameTable* right) { return LabelOf(*left) < LabelOf(*right); });
}

void Tables::Meet(const Table& table, const std::string& where) {
    if (tableLabels_.contains(&table)) return;
    const bool isFirst = Of(table.record).empty();
    tableLabels_[&table] = isFirst ? table.record : std::string(table.record) + "@" + where;
    all.push_back(&table);
    for (const Field& field : table) {
        const std::string place = std::string(table.record) + "." + field.name;
        if (field.table != nullptr && !PointsToNumbers(field)) Meet(*field.table, place);
        if (field.names != nullptr && nameLabels_.try_emplace(field.names, place).second) names.push_back(field.names);
    }
    if (const PackedItems* const items = ItemsBehind(table)) {
        for (std::uint32_t i = 0; i < items->typeCount; ++i)
            Meet(*items->typeAt(i).table, std::string(table.record));
    }
}

std::vector<const Table*> Tables::Of(std::string_view record) const {
    std::vector<const Table*> found;
    for (const Table* table : all) {
        if (EqualsFolded(table->record, record)) found.push_back(table);
    }
    return found;
}

std::vector<std::string_view> Tables::Records() const {
    std::vector<std::string_view> records;
    for (const Table* table : all) {
        if (records.empty() || records.back() != table->record) records.emplace_back(table->record);
    }
    return records;
}

} // namespace orrery::tool
