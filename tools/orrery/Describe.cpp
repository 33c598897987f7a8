#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"

#include "events/EventMap.h"
#include "events/TypedText.h"

#include <algorithm>

namespace orrery::tool {

using namespace record;

namespace {

std::string Padded(std::string text, std::size_t width) {
    if (text.size() < width) text.append(width - text.size(), ' ');
    return text;
}

std::string Joined(const std::vector<std::string>& parts, const char* separator) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : separator) + part;
    return text;
}

const char* KindSentence(Kind kind) {
    switch (kind) {
    case Kind::Size:
        return "the record's size";
    case Kind::Presence:
        return "1 when the key is there";
    case Kind::MemberName:
    case Kind::MemberCode:
        return "the name under which the record stands";
    case Kind::Bool:
        return "true or false";
    case Kind::FullText:
        return "text; may fill the field without a terminator";
    case Kind::RawText:
        return "text, bytes as they stand";
    case Kind::TimeSection:
        return "\"1 08:00:00-17:30:00\"";
    case Kind::Schedule:
        return "rows of \"1 08:00:00-17:30:00\"";
    case Kind::HolidaySchedule:
        return "7 or 8 rows of \"1 08:00:00-17:30:00\"";
    case Kind::SectionList:
        return "a list of \"1 08:00:00-17:30:00\"";
    case Kind::NetTime:
        return "\"2026-11-20 09:30:00\"";
    case Kind::NetTimeEx:
        return "\"2026-11-20 09:30:00.250\"";
    case Kind::ClockTime:
        return "\"09:30:00\"";
    case Kind::Date:
        return "\"2026-11-20\"";
    case Kind::UtcTime:
        return "seconds since 1970";
    case Kind::SplitMode:
        return "a split mode, \"Split9\"";
    case Kind::BitMask:
    case Kind::BitMaskLoose:
        return "a list of numbers, a bit each";
    case Kind::Switches:
        return "a list of numbers, an element each";
    default:
        return "";
    }
}

std::string NamesLine(const NameTable& names) {
    std::string text;
    for (const Name* row = names.rows; row != names.rows + names.count; ++row)
        text += (text.empty() ? "" : ", ") + std::to_string(row->code) + "=" + Quoted(row->text);
    if (!names.unknownLeaves) text += "; other texts read as " + std::to_string(names.unknownCode);
    if (names.unknownLeaves) text += "; other texts leave the field";
    if (names.outside == NameTable::Outside::Text) text += "; other codes write " + Quoted(names.outsideText);
    if (names.outside == NameTable::Outside::Null) text += "; other codes write null";
    return text;
}

// Breaks at blanks; all lines behind the same indent.
std::string Wrapped(std::string_view text, std::size_t indent) {
    constexpr std::size_t kWidth = 116;
    std::string out;
    while (!text.empty()) {
        std::size_t end = std::min(text.size(), kWidth - indent);
        if (end < text.size()) {
            const std::size_t blank = text.rfind(' ', end);
            if (blank != std::string_view::npos && blank > 0) end = blank;
        }
        out.append(indent, ' ');
        out += text.substr(0, end);
        out += '\n';
        text.remove_prefix(std::min(text.size(), end));
        while (!text.empty() && text[0] == ' ')
            text.remove_prefix(1);
    }
    return out;
}

std::string DescribeTable(const Tables& tables, const Table& table) {
    std::string text = tables.LabelOf(table) + ", " + std::to_string(table.size) + " bytes";
    if (table.shape == Shape::Tuple) text += "; in the text a list of exactly its keyless values";
    if (table.shape == Shape::LooseTuple) text += "; in the text a list of its values, missing ones read as nothing";
    if (table.guarded) text += "; used only while its size word is right";
    if (table.takesFirst) text += "; also the first element of a list";
    if (table.clearsFlags) text += "; the flags of absent keys become 0";
    if (table.writes != nullptr) text += "; a function tells which are written";
    if (table.afterRead != nullptr) text += "; a function completes what was read";
    text += "\n";
    std::size_t nameWidth = 5;
    std::size_t typeWidth = 4;
    for (const Field& field : table) {
        if (field.size == 0) continue;
        nameWidth = std::max(nameWidth, std::string_view(field.name).size());
        typeWidth = std::max(typeWidth, TypeOf(field).size());
    }
    text += "  " + Padded("offset", 8) + Padded("type", typeWidth + 2) + Padded("field", nameWidth + 2) + "key\n";
    for (const Field& field : table) {
        text += "  " + Padded(field.size == 0 ? "-" : std::to_string(field.offset), 8)
                + Padded(field.size == 0 ? "-" : TypeOf(field), typeWidth + 2)
                + Padded(field.size == 0 ? "-" : field.name, nameWidth + 2);
        if (field.key == nullptr)
            text += "-";
        else if (field.key[0] == '\0')
            text += "(the value itself)";
        else
            text += Quoted(field.key);
        std::vector<std::string> rules = RuleSentences(table, field);
        if (KindSentence(field.kind)[0] != '\0') rules.insert(rules.begin(), KindSentence(field.kind));
        text += "\n";
        constexpr std::size_t kIndent = 10;
        if (!rules.empty()) text += Wrapped(Joined(rules, "; "), kIndent);
        if (field.names != nullptr) text += Wrapped(NamesLine(*field.names), kIndent);
    }
    return text;
}

std::string DescribeCommand(const Command& command) {
    std::string text = std::string(command.name) + "\n";
    if (command.parses()) text += "  parse: " + ParseWords(command) + "\n";
    if (command.packs()) text += "  pack: " + PackWords(command) + "\n";
    if (command.table == nullptr) text += "  no record of fixed layout\n";
    return text;
}

} // namespace

std::string CommandList() {
    std::size_t width = 7;
    std::size_t recordWidth = 6;
    const auto recordOf = [](const Command& command) {
        return std::string(command.table != nullptr ? command.table->record : "-");
    };
    for (const Command& command : Commands()) {
        width = std::max(width, command.name.size());
        recordWidth = std::max(recordWidth, recordOf(command).size());
    }
    std::string text =
        Padded("command", width + 2) + Padded("does", 13) + Padded("record", recordWidth + 2) + "frame\n";
    for (const Command& command : Commands()) {
        const char* const does = !command.packs() ? "parse" : !command.parses() ? "pack" : "parse, pack";
        text += Padded(std::string(command.name), width + 2) + Padded(does, 13)
                + Padded(recordOf(command), recordWidth + 2) + FrameWord(command) + "\n";
    }
    return text;
}

std::optional<std::string> Describe(std::string_view name) {
    const Tables tables;
    std::string text;
    const auto add = [&](const std::string& part) { text += (text.empty() ? "" : "\n") + part; };
    // A configuration and an event may share a name, as "AccessControl" does: both are shown.
    if (const Command* const command = FindCommand(name)) {
        add(DescribeCommand(*command));
        if (command->table != nullptr) add(DescribeTable(tables, *command->table));
        if (command->otherTable != nullptr) {
            add("or, told by the exact size of the buffer:\n\n" + DescribeTable(tables, *command->otherTable));
        }
    }
    for (const events::EventRow& event : events::Events()) {
        if (!EqualsFolded(event.name, name)) continue;
        add(std::string(event.name) + "\n  event " + std::to_string(event.code)
            + (event.needsNoData ? ", delivered also without \"Data\"" : "") + "\n\n"
            + DescribeTable(tables, *event.table));
        break;
    }
    for (const events::TypedRow& typed : events::TypedRows()) {
        if (!EqualsFolded(typed.name, name)) continue;
        add(std::string(typed.name) + "\n  typed text " + std::to_string(typed.code)
            + (typed.isList ? ", a list of records" : "") + "\n\n" + DescribeTable(tables, *typed.table));
    }
    if (!text.empty()) return text;
    for (const Table* table : tables.Of(name))
        add(DescribeTable(tables, *table));
    if (text.empty()) return std::nullopt;
    return text;
}

} // namespace orrery::tool
