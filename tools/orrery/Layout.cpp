#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"

#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include <set>

namespace orrery::tool {

using namespace record;

namespace {

std::string RowLine(const Tables& tables, const Table& table, const Field& field) {
    std::string line = "  " + std::to_string(field.offset) + " " + std::to_string(field.size) + " ";
    line += field.size == 0 ? "virtual" : TypeWord(field.cell);
    if (field.table != nullptr)
        line += ":" + (PointsToNumbers(field) ? TypeWord(NumberBehind(field)) : tables.LabelOf(*field.table));
    line += " ";
    if (field.size == 0 || DimsOf(field).empty()) line += "-";
    if (field.size > 0) {
        for (const std::uint32_t dim : DimsOf(field))
            line += "[" + std::to_string(dim) + "]";
    }
    line += std::string(" ") + (field.name[0] != '\0' ? field.name : "-");
    line += " " + (field.key == nullptr ? "-" : Quoted(field.key));
    line += std::string(" ") + KindWord(field.kind);
    if (field.names != nullptr) line += "(" + tables.LabelOf(*field.names) + ")";
    for (const std::string& word : RuleWords(table, field))
        line += " " + word;
    return line + "\n";
}

std::string TableText(const Tables& tables, const Table& table) {
    std::string text = "record " + tables.LabelOf(table) + " size=" + std::to_string(table.size);
    if (table.shape == Shape::Tuple) text += " Tuple";
    if (table.shape == Shape::LooseTuple) text += " LooseTuple";
    if (table.guarded) text += " Guarded";
    if (table.takesFirst) text += " TakesFirst";
    if (table.clearsFlags) text += " ClearsFlags";
    if (table.startsWhenRead) text += " StartsWhenRead";
    if (table.writes != nullptr) text += " Writes(function)";
    if (table.afterRead != nullptr) text += " AfterRead(function)";
    text += "\n";
    for (const Field& field : table)
        text += RowLine(tables, table, field);
    return text;
}

std::string NamesText(const Tables& tables, const NameTable& names) {
    std::string text = "names " + tables.LabelOf(names);
    text += names.compare == Compare::Folded ? " Folded" : " Exact";
    if (names.lastWins) text += " LastWins";
    text += names.unknownLeaves ? " UnknownLeaves" : " Unknown(" + std::to_string(names.unknownCode) + ")";
    if (names.outside == NameTable::Outside::Text) text += " OutsideWrites(" + Quoted(names.outsideText) + ")";
    if (names.outside == NameTable::Outside::Null) text += " OutsideWritesNull";
    text += "\n";
    for (const Name* row = names.rows; row != names.rows + names.count; ++row) {
        text += "  " + std::to_string(row->code) + " " + Quoted(row->text);
        if (row->compare != names.compare && row->compare == Compare::Exact) text += " Exact";
        text += "\n";
    }
    return text;
}

} // namespace

Regularity CountRegularity() {
    Regularity count;
    std::set<const CustomCodec*> shared;
    for (const Table* table : Tables().all) {
        ++count.tables;
        count.functionTables += IsIrregular(*table);
        for (const Field& field : *table) {
            ++count.rows;
            const bool custom = field.kind == Kind::Custom || field.writtenAs == Kind::Custom;
            // A row that many tables share is one row's work.
            count.virtualRows += field.size == 0 && shared.insert(field.custom).second;
            count.customRows += custom && field.size > 0;
            count.guardedRows += !custom && field.size > 0 && field.when != nullptr;
        }
    }
    for (const Command& command : Commands()) {
        ++count.commands;
        count.ownCommands += IsIrregular(command);
    }
    return count;
}

std::string RegularityLine() {
    const Regularity count = CountRegularity();
    const auto number = [](std::size_t value) { return std::to_string(value); };
    return "irregular: " + number(count.customRows + count.virtualRows + count.guardedRows) + " of "
           + number(count.rows) + " rows (" + number(count.customRows) + " custom, " + number(count.virtualRows)
           + " virtual, " + number(count.guardedRows) + " written on a function's word), "
           + number(count.functionTables) + " of " + number(count.tables) + " tables with functions, "
           + number(count.ownCommands) + " of " + number(count.commands) + " commands with frames of their own\n";
}

std::string Layout() {
    const Tables tables;
    std::string text = RegularityLine();
    text += "\n# records: offset size type dims field key kind rules\n";
    for (const Table* table : tables.all)
        text += TableText(tables, *table);
    text += "\n# names: code text\n";
    for (const NameTable* names : tables.names)
        text += NamesText(tables, *names);
    text += "\n# commands\n";
    for (const Command& command : Commands()) {
        text += "command " + std::string(command.name) + " "
                + (command.table != nullptr ? tables.LabelOf(*command.table) : std::string("-"))
                + (command.otherTable != nullptr ? " or " + tables.LabelOf(*command.otherTable) : std::string()) + "\n";
        if (command.parses()) text += "  parse " + ParseWords(command) + "\n";
        if (command.packs()) text += "  pack " + PackWords(command) + "\n";
    }
    text += "\n# events: code name record rules\n";
    for (const events::EventRow& event : events::Events()) {
        text += "event " + std::to_string(event.code) + " " + (event.name.empty() ? "-" : std::string(event.name)) + " "
                + tables.LabelOf(*event.table);
        if (event.reportedSize != event.recordSize) text += " Reports(" + std::to_string(event.reportedSize) + ")";
        if (event.needsNoData) text += " NeedsNoData";
        if (event.rename != nullptr) text += " Renamed(function)";
        text += "\n";
    }
    text += "\n# typed texts: code key record\n";
    for (const events::TypedRow& typed : events::TypedRows()) {
        text += "typed " + std::to_string(typed.code) + " " + std::string(typed.name) + " "
                + tables.LabelOf(*typed.table) + (typed.isList ? " List" : "") + "\n";
    }
    text += "\n# templates: command record\n";
    for (const TemplateRow& row : Templates()) {
        text += "template " + std::string(row.name) + " " + tables.LabelOf(*row.table)
                + (row.isByClass ? " ByClass" : "") + "\n";
    }
    return text;
}

} // namespace orrery::tool
