#include "orrery/Words.h"

#include "frame/PackedItems.h"

#include <initializer_list>
#include <string_view>

namespace orrery::tool {

using namespace record;

namespace {

// Names of an enumeration's values, counted from 0.
template <class Enum, std::size_t N>
const char* Word(Enum value, const char* const (&words)[N]) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? words[index] : "?";
}

std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string joined;
    for (const std::string_view part : parts)
        joined += part;
    return joined;
}

std::string Call(std::string_view word, std::string_view argument) {
    return Joined({word, "(", argument, ")"});
}

constexpr const char* kOnlyWords[] = {"Any", "String", "Bool", "Integer", "Unsigned", "Integral", "Array"};
constexpr const char* kNullsWords[] = {"Count", "LeaveHole", "CloseUp", "Stop", "Named"};
constexpr const char* kSkippedWords[] = {"StaysNull", "Hole", "ClosesUp"};
constexpr const char* kEmptyWords[] = {"NoKey", "Array", "Null"};
constexpr const char* kStrideWords[] = {"Record", "SizeWord", "SizeWordByField"};

} // namespace

std::string SlotName(const Table& table, const Slot& slot) {
    for (const Field& field : table) {
        if (IsStored(field) && field.rank == 0 && field.offset == slot.offset && field.cell == slot.cell)
            return field.name;
    }
    return Joined({"offset ", std::to_string(slot.offset)});
}

const char* TypeWord(Cell cell) {
    return Word(cell, {"i8", "u8", "i16", "u16", "i32", "u32", "i64", "u64", "f32", "f64", "char", "ptr", "record"});
}

const char* KindWord(Kind kind) {
    return Word(kind, {"None",    "Size",         "Presence",    "MemberName", "MemberCode",      "Bool",
                       "Int",     "UInt",         "Real",        "Text",       "RawText",         "FullText",
                       "Names",   "Record",       "TimeSection", "Schedule",   "HolidaySchedule", "SectionList",
                       "NetTime", "NetTimeEx",    "ClockTime",   "Date",       "UtcTime",         "SplitMode",
                       "BitMask", "BitMaskLoose", "Switches",    "Supplied",   "Custom"});
}

std::vector<std::uint32_t> DimsOf(const Field& field) {
    std::vector<std::uint32_t> dims(field.dims, field.dims + field.rank);
    if (field.cell == Cell::Char) dims.push_back(field.elementSize);
    return dims;
}

std::string TypeOf(const Field& field) {
    std::string type = TypeWord(field.cell);
    if (field.cell == Cell::Record || field.cell == Cell::Pointer)
        type = PointsToText(field)      ? "char"
               : PointsToNumbers(field) ? TypeWord(NumberBehind(field))
                                        : field.table->record;
    if (field.cell == Cell::Pointer) type += "*";
    for (const std::uint32_t dim : DimsOf(field))
        type += Joined({"[", std::to_string(dim), "]"});
    return type;
}

bool IsIrregular(const Field& field) {
    return field.kind == Kind::Custom || field.writtenAs == Kind::Custom || field.when != nullptr;
}
bool IsIrregular(const Table& table) {
    return table.writes != nullptr || table.afterRead != nullptr;
}
bool IsIrregular(const Command& command) {
    return command.parse == Command::Frame::Own || command.pack == Command::Frame::Own;
}

namespace {

// Each word of a row: `tell(short word, sentence)`, either of which may be empty.
template <class Tell>
void ForEachWord(const Table& table, const Field& field, const Tell& tell) {
    const auto say = [&](bool holds, std::string_view word, std::string_view sentence) {
        if (holds) tell(std::string(word), std::string(sentence));
    };
    const auto number = [&](bool holds, std::string_view word, std::int64_t value, std::string_view before,
                            std::string_view behind) {
        const std::string digits = std::to_string(value);
        if (holds) tell(Call(word, digits), Joined({before, digits, behind}));
    };
    const auto slot = [&](std::string_view word, const Slot& where, std::string_view before, std::string_view behind) {
        if (!where.exists()) return;
        const std::string name = SlotName(table, where);
        tell(Call(word, name), Joined({before, name, behind}));
    };
    const auto nulls = [&](std::string_view word, Nulls rule, std::string_view element) {
        const std::string_view does = rule == Nulls::LeaveHole ? " keeps its place and does not count"
                                      : rule == Nulls::CloseUp ? " is passed over"
                                      : rule == Nulls::Stop    ? " ends the list"
                                                               : " is an element by its name";
        if (rule != Nulls::Count) tell(Call(word, Word(rule, kNullsWords)), Joined({element, does}));
    };
    const CustomCodec* const own = field.custom;
    const bool ownRead = own != nullptr && own->read != nullptr;
    const bool ownWrite = own != nullptr && own->write != nullptr;
    constexpr const char* kOnlySentences[] = {"",
                                              "read from texts only",
                                              "read from true and false only",
                                              "read from whole numbers only",
                                              "read from whole numbers above 2147483647 only",
                                              "read from whole numbers, true and false only",
                                              "read from lists only"};

    say(ownRead && ownWrite, "", "read and written by a function of its own");
    say(ownRead && !ownWrite, "", "read only, by a function of its own");
    say(!ownRead && ownWrite, "", "written only, by a function of its own");
    say(field.alias, "Alias", "a second key of the field");
    say(field.writtenAs != field.kind, Call("WrittenAs", KindWord(field.writtenAs)),
        Joined({"written as ", KindWord(field.writtenAs)}));
    say(field.always, "Always", "read also when absent, as nothing");
    number(field.hasDefault, "Absent", field.defaultValue, "", " when absent");
    say(field.fromRoot, field.writable ? "FromRoot, Writable" : "FromRoot", "its key starts at the whole reply");
    say(!field.readable, "WriteOnly", "written only");
    say(!field.writable, field.fromRoot ? "" : "ReadOnly", "read only");
    say(field.only != OnlyType::Any, Call("Only", Word(field.only, kOnlyWords)), Word(field.only, kOnlySentences));
    if (field.flag.exists()) {
        const std::string flag = SlotName(table, field.flag);
        tell(Call("SetsAndNeeds", flag), Joined({"sets ", flag, " when read; written only when ", flag, " is set"}));
    }
    slot(field.countUncapped ? "CountUncapped" : "Count", field.count,
         "elements in use: ", field.countUncapped ? ", which may exceed the room" : "");
    if (table.items != nullptr && field.cell == Cell::Pointer && field.offset == table.items->pointer) {
        const PackedItems& items = *table.items;
        const std::string count = SlotName(table, items.count), bytes = SlotName(table, items.bytes);
        if (items.head != nullptr)
            tell(Call("Items", Joined({count, " ", bytes})),
                 Joined({"items of any type, each a ", items.head->record,
                         " and the record of its type; their number: ", count, "; bytes behind the pointer: ", bytes}));
        else
            tell(Call("Items",
                      Joined({SlotName(table, items.code), " ", SlotName(table, items.size), " ", count, " ", bytes})),
                 Joined({"records of the type that ", SlotName(table, items.code), " tells, ",
                         SlotName(table, items.size), " bytes from one to the next; their number: ", count,
                         "; bytes behind the pointer: ", bytes}));
    }
    slot(field.lent ? "Lent" : "Capacity", field.capacity,
         field.lent ? "elements asked for: " : "room behind the pointer: ", "");
    say(field.single, "Single", "one record of the caller's; neither read nor written when the pointer is null");
    say(field.allOrNone, "AllOrNone", "more elements than room end the call, with none of them read");
    say(field.counted, "CountsWithoutArray", "elements are counted also when the pointer is null");
    say(field.anyShape, "AnyShape", "any value is read, as empty when it is no list");
    say(field.exactly, "Exactly", "read only with exactly as many elements");
    number(field.atLeast != 0, "AtLeast", field.atLeast, "read only with at least ", " elements");
    say(field.owned, "Owned", "in a block of its own, null when absent");
    say(field.keyed && !field.amongKeys, "Keyed", "an object in the text, one member an element");
    say(field.amongKeys, "AmongKeys", "each a member of the object beside its keys");
    say(field.untilEmpty, "UntilEmpty", "written up to the first empty one");
    say(field.zeroed, "Zeroed", "each element is cleared before it is read");
    nulls("NullElement", field.nulls, "a null element");
    nulls("RefusedElement", field.refused, "an element of the wrong shape");
    slot("ReadIf", field.readCondition, "read only when ", " is set");
    number(field.firstBytes != 0, "FirstBytes", field.firstBytes, "cut at ", " bytes before it is converted");
    say(field.trueAtOne, "TrueAtOne", "true at exactly 1");
    number(field.hasUnless, "WriteUnless", field.unless, "not written at ", "");
    say(field.notNegative, "WriteUnlessNegative", "not written when negative");
    number(field.atMost != Field::kNoLimit, "WriteAtMost", field.atMost, "written as ", " when larger");
    slot("WriteIf", field.condition, "written only when ", " is set");
    say(field.when != nullptr, "WriteIf(function)", "written only when a function of the record says so");
    say(field.linkage, "WriteIfLinked", "");
    say(field.empty != Empty::NoKey, Call("WriteEmpty", Word(field.empty, kEmptyWords)),
        field.empty == Empty::Array ? "written as [ ] when empty" : "written as null when empty");
    say(field.skipped != Skipped::StaysNull, Call("WriteSkipped", Word(field.skipped, kSkippedWords)),
        field.skipped == Skipped::Hole ? "elements not written leave a null, but none at the end"
                                       : "elements not written leave no place");
    say(field.unlessBare, "WriteUnlessBare", "not written without a key inside");
    say(field.keepsObject, "KeepsObject", "");
    say(field.fullCapacity, "WritesCapacity", "written to the end of the room, whatever the count");
    say(field.convertedRoom != 0, Call("ConvertedRoom", std::to_string(field.convertedRoom)),
        "the name is cut where its UTF-8 leaves this room");
    say(ownRead, "read(function)", "");
    say(ownWrite, "write(function)", "");
}

} // namespace

std::vector<std::string> RuleWords(const Table& table, const Field& field) {
    std::vector<std::string> words;
    ForEachWord(table, field, [&](const std::string& word, const std::string&) {
        if (!word.empty()) words.push_back(word);
    });
    return words;
}

std::vector<std::string> RuleSentences(const Table& table, const Field& field) {
    std::vector<std::string> rules;
    ForEachWord(table, field, [&](const std::string&, const std::string& rule) {
        if (!rule.empty()) rules.push_back(rule);
    });
    return rules;
}

std::string FrameWord(Command::Frame frame) {
    return Word(frame, {"none", "generic", "family", "own"});
}

std::string FrameWord(const Command& command) {
    if (!command.packs() || command.pack == command.parse) return FrameWord(command.parse);
    if (!command.parses()) return FrameWord(command.pack);
    return FrameWord(command.parse) + "/" + FrameWord(command.pack);
}

namespace {

std::string GenericWords(const GenericFrame& frame) {
    std::string words = " dimension=" + std::to_string(frame.dimension);
    if (frame.arrayForm) words += " arrayForm";
    if (frame.zeroBuffer) words += " zeroBuffer";
    if (frame.alwaysArray) words += " alwaysArray";
    return words;
}

} // namespace

std::string ParseWords(const Command& command) {
    std::string words = FrameWord(command.parse);
    if (command.parse == Command::Frame::Generic) return words + GenericWords(command.genericFrame);
    if (command.parse != Command::Frame::Family) return words;
    const ParseFrame& frame = command.parseFrame;
    words += std::string(" From(") + Word(frame.source, {"Table", "Caps", "CapsOrParams", "Params", "Top", "Result"});
    if (frame.name[0] != '\0') words += std::string(" ") + frame.name;
    words += ") ";
    words += Call("Result", Word(frame.result, {"MustBeTrue", "FalseRefuses", "NotTested", "ExactBool",
                                                "IntegerNonZero", "TextTrue", "Verdict"}));
    words +=
        " "
        + Call("Takes", Word(frame.take, {"One", "OneOrMany", "AnyOrMany", "Many", "ManyOrNone", "List", "ListOrNone",
                                          "ListOrLists", "ListOrListsOrBlank", "ByMember", "ByMemberOrNone", "Text"}));
    words += " " + Call("Null", Word(frame.nullValue, {"Fails", "LengthZero", "LengthUntouched", "OneRecord"}));
    words += " " + Call("Clears", Word(frame.clearing, {"Buffer", "Record", "Read", "Kept"}));
    words +=
        " " + Call("Length", Word(frame.length, {"OneRecord", "PerRecord", "PerFilled", "OneOfList", "Told", "None"}));
    words += " " + Call("Strides", Word(frame.stride, kStrideWords));
    if (frame.exactSize) words += " ExactSize";
    if (frame.anySize) words += " AnySize";
    if (frame.zeroesLength) words += " ZeroesLength";
    if (frame.needsText) words += " NeedsText";
    if (frame.takesNoJson) words += " TakesNoJson";
    if (frame.takesEmptyLists) words += " TakesEmptyLists";
    if (frame.accepts != nullptr) words += " Accepts(function)";
    if (frame.readsNulls) words += " ReadsNulls";
    if (frame.rootKeysFirst) words += " RootKeysFirst";
    if (frame.allMustFit) words += " AllMustFit";
    if (frame.takesBy != nullptr) words += " TakesBy(function)";
    if (frame.lengthBy != nullptr) words += " LengthBy(function)";
    if (frame.parsed != nullptr) words += " OnceParsed(function)";
    return words;
}

std::string PackWords(const Command& command) {
    std::string words = FrameWord(command.pack);
    if (command.pack == Command::Frame::Generic) return words + GenericWords(command.genericFrame);
    if (command.pack != Command::Frame::Family) return words;
    const PackFrame& frame = command.packFrame;
    words +=
        " "
        + Call("As", Word(frame.form, {"One", "Array", "BareIfOne", "BareIfExact", "ByMember", "Nothing", "NoText"}));
    words += " " + Call("Fits", Word(frame.capacity, {"Strict", "Loose", "Raw", "OneBefore", "Bare"}));
    words += " " + Call("Strides", Word(frame.stride, kStrideWords));
    if (frame.quotedKey[0] != '\0') words += " " + Call("Under", frame.quotedKey);
    if (frame.exactSize) words += " ExactSize";
    if (frame.keepsText) words += " KeepsText";
    if (frame.formBy != nullptr) words += " FormBy(function)";
    if (frame.accepts != nullptr) words += " Accepts(function)";
    return words;
}

} // namespace orrery::tool
