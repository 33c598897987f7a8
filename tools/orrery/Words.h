// The tables' vocabulary as words: short ones for machines and reviews, sentences for people.
#pragma once

#include "Commands.h"
#include "frame/record/Table.h"

#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

const char* TypeWord(record::Cell cell);
const char* KindWord(record::Kind kind);

// Array levels of a member; a text's capacity is the last of them.
std::vector<std::uint32_t> DimsOf(const record::Field& field);
// A pointer that leads to a text rather than to records.
inline bool PointsToText(const record::Field& field) {
    return field.cell == record::Cell::Pointer && field.table == nullptr;
}
// A pointer that leads to plain numbers: to tables without a record of the headers, named for the numbers that they
// hold.
inline bool PointsToNumbers(const record::Field& field) {
    if (field.cell != record::Cell::Pointer || field.table == nullptr) return false;
    const std::string_view name = field.table->record;
    return name == "Int32" || name == "UInt32" || name == "UInt8";
}
// The type of those numbers.
inline record::Cell NumberBehind(const record::Field& field) {
    return field.table->rows[0].cell;
}
// A pointer that leads to one record at the most.
inline bool PointsToOne(const record::Field& field) {
    const bool isOne = field.single || (!field.count.exists() && !field.capacity.exists());
    return field.cell == record::Cell::Pointer && isOne;
}
// "i32", "char[64]", "CFG_POINT[8][2]", "CFG_ITEM*".
std::string TypeOf(const record::Field& field);

// The name of the member that a slot is.
std::string SlotName(const record::Table& table, const record::Slot& slot);

// A row that stores something: rows without storage and second keys of a field are none.
inline bool IsStored(const record::Field& field) {
    return field.size > 0 && !field.alias;
}
// A row with functions of its own.
bool IsIrregular(const record::Field& field);
bool IsIrregular(const record::Table& table);
bool IsIrregular(const Command& command);

// What differs from the plain reading and writing of a row: "Always", "Flag(abLevel)", "Absent(-1)".
std::vector<std::string> RuleWords(const record::Table& table, const record::Field& field);
// The same for people: "sets abLevel when present; written only when abLevel is set".
std::vector<std::string> RuleSentences(const record::Table& table, const record::Field& field);

// What a command does in each direction.
std::vector<std::string> ParseSentences(const Command& command);
std::vector<std::string> PackSentences(const Command& command);
// The same in short words.
std::string ParseWords(const Command& command);
std::string PackWords(const Command& command);
std::string FrameWord(Command::Frame frame);
// "family"; when the two directions differ, "table/own".
std::string FrameWord(const Command& command);

} // namespace orrery::tool
