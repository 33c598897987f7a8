#include "orrery/Words.h"

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

std::vector<std::string> RuleWords(const Table& table, const Field& field) {
    std::vector<std::string> words;
    const auto add = [&](bool holds, const std::string& word) {
        if (holds) words.push_back(word);
    };
    const auto slot = [&](const char* word, const Slot& where) {
        if (where.exists()) words.push_back(Call(word, SlotName(table, where)));
    };
    add(field.writtenAs != field.kind, Call("WrittenAs", KindWord(field.writtenAs)));
    add(field.always, "Always");
    add(field.hasDefault, Call("Absent", std::to_string(field.defaultValue)));
    add(field.fromRoot, "FromRoot");
    add(!field.readable, "WriteOnly");
    add(!field.writable && !field.fromRoot, "ReadOnly");
    add(field.writable && field.fromRoot, "Writable");
    add(field.only != OnlyType::Any, Call("Only", Word(field.only, kOnlyWords)));
    slot("SetsAndNeeds", field.flag);
    slot(field.countUncapped ? "CountUncapped" : "Count", field.count);
    slot(field.lent ? "Lent" : "Capacity", field.capacity);
    add(field.anyShape, "AnyShape");
    add(field.exactly, "Exactly");
    add(field.atLeast != 0, Call("AtLeast", std::to_string(field.atLeast)));
    add(field.owned, "Owned");
    add(field.keyed && !field.amongKeys, "Keyed");
    add(field.amongKeys, "AmongKeys");
    add(field.untilEmpty, "UntilEmpty");
    add(field.zeroed, "Zeroed");
    add(field.single, "Single");
    add(field.allOrNone, "AllOrNone");
    add(field.counted, "CountsWithoutArray");
    add(field.nulls != Nulls::Count, Call("NullElement", Word(field.nulls, kNullsWords)));
    add(field.refused != Nulls::Count, Call("RefusedElement", Word(field.refused, kNullsWords)));
    slot("ReadIf", field.readCondition);
    add(field.firstBytes != 0, Call("FirstBytes", std::to_string(field.firstBytes)));
    add(field.trueAtOne, "TrueAtOne");
    add(field.hasUnless, Call("WriteUnless", std::to_string(field.unless)));
    add(field.notNegative, "WriteUnlessNegative");
    add(field.atMost != Field::kNoLimit, Call("WriteAtMost", std::to_string(field.atMost)));
    slot("WriteIf", field.condition);
    add(field.when != nullptr, "WriteIf(function)");
    add(field.linkage, "WriteIfLinked");
    add(field.empty != Empty::NoKey, Call("WriteEmpty", Word(field.empty, kEmptyWords)));
    add(field.skipped != Skipped::StaysNull, Call("WriteSkipped", Word(field.skipped, kSkippedWords)));
    add(field.unlessBare, "WriteUnlessBare");
    add(field.keepsObject, "KeepsObject");
    add(field.fullCapacity, "WritesCapacity");
    add(field.alias, "Alias");
    if (field.custom != nullptr) {
        add(field.custom->read != nullptr, "read(function)");
        add(field.custom->write != nullptr, "write(function)");
    }
    return words;
}

std::vector<std::string> RuleSentences(const Table& table, const Field& field) {
    std::vector<std::string> rules;
    const auto add = [&](bool holds, const std::string& rule) {
        if (holds) rules.push_back(rule);
    };
    if (field.custom != nullptr) {
        add(field.custom->read != nullptr && field.custom->write != nullptr,
            "read and written by a function of its own");
        add(field.custom->read != nullptr && field.custom->write == nullptr, "read only, by a function of its own");
        add(field.custom->read == nullptr && field.custom->write != nullptr, "written only, by a function of its own");
    }
    add(field.alias, "a second key of the field");
    add(field.always, "read also when absent, as nothing");
    add(field.hasDefault, std::to_string(field.defaultValue) + " when absent");
    add(field.fromRoot, "its key starts at the whole reply");
    add(!field.readable, "written only");
    add(!field.writable, "read only");
    add(field.only == OnlyType::String, "read from texts only");
    add(field.only == OnlyType::Bool, "read from true and false only");
    add(field.only == OnlyType::Integer, "read from whole numbers only");
    add(field.only == OnlyType::Unsigned, "read from whole numbers above 2147483647 only");
    add(field.only == OnlyType::Integral, "read from whole numbers, true and false only");
    add(field.only == OnlyType::Array, "read from lists only");
    if (field.flag.exists()) {
        const std::string flag = SlotName(table, field.flag);
        rules.push_back(Joined({"sets ", flag, " when read; written only when ", flag, " is set"}));
    }
    if (field.count.exists()) {
        rules.push_back("elements in use: " + SlotName(table, field.count)
                        + (field.countUncapped ? ", which may exceed the room" : ""));
    }
    add(field.capacity.exists(),
        Joined({field.lent ? "elements asked for: " : "room behind the pointer: ", SlotName(table, field.capacity)}));
    add(field.zeroed, "each element is cleared before it is read");
    add(field.single, "one record of the caller's; neither read nor written when the pointer is null");
    add(field.allOrNone, "more elements than room end the call, with none of them read");
    add(field.counted, "elements are counted also when the pointer is null");
    add(field.anyShape, "any value is read, as empty when it is no list");
    add(field.exactly, "read only with exactly as many elements");
    add(field.atLeast != 0, Joined({"read only with at least ", std::to_string(field.atLeast), " elements"}));
    add(field.owned, "in a block of its own, null when absent");
    add(field.keyed && !field.amongKeys, "an object in the text, one member an element");
    add(field.amongKeys, "each a member of the object beside its keys");
    add(field.untilEmpty, "written up to the first empty one");
    add(field.nulls == Nulls::LeaveHole, "a null element keeps its place and does not count");
    add(field.nulls == Nulls::CloseUp, "null elements are passed over");
    add(field.nulls == Nulls::Stop, "a null element ends the list");
    add(field.nulls == Nulls::Named, "a null member is an element by its name");
    add(field.refused == Nulls::LeaveHole, "an element of the wrong shape keeps its place and does not count");
    add(field.refused == Nulls::CloseUp, "elements of the wrong shape are passed over");
    add(field.refused == Nulls::Stop, "an element of the wrong shape ends the list");
    add(field.readCondition.exists(), Joined({"read only when ", SlotName(table, field.readCondition), " is set"}));
    add(field.firstBytes != 0, Joined({"cut at ", std::to_string(field.firstBytes), " bytes before it is converted"}));
    add(field.trueAtOne, "true at exactly 1");
    add(field.hasUnless, Joined({"not written at ", std::to_string(field.unless)}));
    add(field.notNegative, "not written when negative");
    add(field.atMost != Field::kNoLimit, Joined({"written as ", std::to_string(field.atMost), " when larger"}));
    add(field.condition.exists(), Joined({"written only when ", SlotName(table, field.condition), " is set"}));
    add(field.when != nullptr, "written only when a function of the record says so");
    add(field.empty == Empty::Array, "written as [ ] when empty");
    add(field.empty == Empty::Null, "written as null when empty");
    add(field.skipped == Skipped::Hole, "elements not written leave a null, but none at the end");
    add(field.skipped == Skipped::ClosesUp, "elements not written leave no place");
    add(field.unlessBare, "not written without a key inside");
    add(field.fullCapacity, "written to the end of the room, whatever the count");
    add(field.writtenAs != field.kind, std::string("written as ") + KindWord(field.writtenAs));
    return rules;
}

std::string FrameWord(Command::Frame frame) {
    return Word(frame, {"none", "table", "family", "own"});
}

std::string FrameWord(const Command& command) {
    if (!command.packs() || command.pack == command.parse) return FrameWord(command.parse);
    if (!command.parses()) return FrameWord(command.pack);
    return FrameWord(command.parse) + "/" + FrameWord(command.pack);
}

namespace {

std::string TableFrameWords(const TableFrame& frame) {
    std::string words = " dimension=" + std::to_string(frame.dimension);
    if (frame.arrayForm) words += " arrayForm";
    if (frame.zeroBuffer) words += " zeroBuffer";
    if (frame.alwaysArray) words += " alwaysArray";
    return words;
}

} // namespace

std::string ParseWords(const Command& command) {
    std::string words = FrameWord(command.parse);
    if (command.parse == Command::Frame::Table) return words + TableFrameWords(command.tableFrame);
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
    if (command.pack == Command::Frame::Table) return words + TableFrameWords(command.tableFrame);
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
