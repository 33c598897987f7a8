#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "explain/headers/HeaderWords.h"

#include <algorithm>
#include <charconv>
#include <set>

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
std::string Wrapped(std::string_view text, std::size_t indent, std::size_t width) {
    std::string out;
    while (!text.empty()) {
        const std::size_t most = std::max<std::size_t>(width, indent + 20) - indent;
        std::size_t end = std::min(text.size(), most);
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

// What the header says of a member, without the key that stands before it.
std::string DocOf(const Table& table, const Field& field) {
    const headers::Member* const member = headers::FindMember(table.record, field.name);
    if (member == nullptr) return {};
    std::string doc = member->doc;
    if (field.key == nullptr) return doc;
    std::string key = Quoted(field.key); // "A"."B", of the key A/B
    for (std::size_t at = 0; (at = key.find('/', at)) != std::string::npos;)
        key.replace(at, 1, "\".\"");
    if (doc == key) return {};
    if (doc.starts_with(key + ": ")) doc.erase(0, key.size() + 2);
    return doc;
}

class Describer {
  public:
    explicit Describer(std::size_t width) : width_(width == 0 ? kWidth : width) {}

    bool ByName(std::string_view name);
    bool ByCode(std::string_view text);
    bool ByKey(std::string_view key);
    std::string Take() { return std::move(text_); }

  private:
    static constexpr std::size_t kWidth = 116;

    void Add(const std::string& part) { text_ += (text_.empty() ? "" : "\n") + part; }
    void Add(const Command& command);
    void Add(const events::EventRow& event);
    void Add(const RuleBody& rule);
    std::string Of(const Table& table) const;

    Tables tables_;
    std::size_t width_;
    std::string text_;
};

std::string Describer::Of(const Table& table) const {
    std::string text = tables_.LabelOf(table) + ", " + std::to_string(table.size) + " bytes";
    if (table.shape == Shape::Tuple) text += "; in the text a list of exactly its keyless values";
    if (table.shape == Shape::LooseTuple) text += "; in the text a list of its values, missing ones read as nothing";
    if (table.guarded) text += "; used only while its size word is right";
    if (table.takesFirst) text += "; also the first element of a list";
    if (table.clearsFlags) text += "; the flags of absent keys become 0";
    if (table.writes != nullptr) text += "; a function tells which are written";
    if (table.afterRead != nullptr) text += "; a function completes what was read";
    text += "\n";
    if (const headers::Record* const record = headers::FindRecord(table.record))
        if (record->doc[0] != '\0') text += Wrapped(record->doc, 2, width_);
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
        text += Wrapped(DocOf(table, field), kIndent, width_);
        if (!rules.empty()) text += Wrapped(Joined(rules, "; "), kIndent, width_);
        if (field.names != nullptr) text += Wrapped(NamesLine(*field.names), kIndent, width_);
    }
    return text;
}

void Describer::Add(const Command& command) {
    std::string text = std::string(command.name) + "\n";
    if (command.parses()) text += Wrapped("parse: " + Joined(ParseSentences(command), "; "), 2, width_);
    if (command.packs()) text += Wrapped("pack: " + Joined(PackSentences(command), "; "), 2, width_);
    if (command.table == nullptr) text += "  no record of fixed layout\n";
    Add(text);
    if (command.table != nullptr) Add(Of(*command.table));
    if (command.otherTable != nullptr) Add("or, told by the exact size of the buffer:\n\n" + Of(*command.otherTable));
}

void Describer::Add(const events::EventRow& event) {
    Add(std::string(event.name) + "\n  event " + std::to_string(event.code) + ", of "
        + std::to_string(event.reportedSize) + " bytes" + (event.needsNoData ? ", delivered also without \"Data\"" : "")
        + "\n\n" + Of(*event.table));
}

void Describer::Add(const RuleBody& rule) {
    Add(std::string(RuleNameOf(static_cast<std::int32_t>(rule.code), false)) + "\n  rule " + std::to_string(rule.code)
        + ", of " + std::to_string(rule.size) + " bytes" + (rule.isRead ? "" : "; written only") + "\n\n"
        + Of(*rule.table));
}

bool Describer::ByName(std::string_view name) {
    // A configuration, an event and a rule may share a name: all are shown.
    if (const Command* const command = FindCommand(name)) Add(*command);
    for (const events::EventRow& event : events::Events())
        if (EqualsFolded(event.name, name)) Add(event);
    for (const RuleBody& rule : RuleBodies())
        if (EqualsFolded(RuleNameOf(static_cast<std::int32_t>(rule.code), false), name)) Add(rule);
    for (const events::TypedRow& typed : events::TypedRows()) {
        if (!EqualsFolded(typed.name, name)) continue;
        Add(std::string(typed.name) + "\n  typed text " + std::to_string(typed.code)
            + (typed.isList ? ", a list of records" : "") + "\n\n" + Of(*typed.table));
    }
    for (const TemplateRow& row : Templates()) {
        if (!EqualsFolded(row.name, name)) continue;
        Add(std::string(row.name) + "\n  template" + (row.isByClass ? ", under the name of a class of rules" : "")
            + "\n\n" + Of(*row.table));
    }
    if (text_.empty())
        for (const Table* table : tables_.Of(name))
            Add(Of(*table));
    return !text_.empty();
}

bool Describer::ByCode(std::string_view text) {
    std::uint32_t code = 0;
    const bool isHex = text.starts_with("0x");
    if (isHex) text.remove_prefix(2);
    const auto read = std::from_chars(text.data(), text.data() + text.size(), code, isHex ? 16 : 10);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return false;
    if (const events::EventRow* const event = events::FindEvent(code)) Add(*event);
    if (const RuleBody* const rule = FindRuleBody(code)) Add(*rule);
    return !text_.empty();
}

// Every member that reads or writes the key, which may be the last of a path.
bool Describer::ByKey(std::string_view key) {
    std::set<std::string> told;
    std::string text;
    std::size_t count = 0;
    for (const Table* table : tables_.all) {
        for (const Field& field : *table) {
            if (field.key == nullptr || field.key[0] == '\0') continue;
            const std::string_view path = field.key;
            const bool isIt = EqualsFolded(path, key)
                              || (path.size() > key.size() && path[path.size() - key.size() - 1] == '/'
                                  && EqualsFolded(path.substr(path.size() - key.size()), key));
            const std::string member = std::string(table->record) + (field.name[0] == '\0' ? "" : ".") + field.name;
            if (!isIt || !told.insert(member).second) continue;
            ++count;
            text += "  " + member + "  " + TypeOf(field) + (path == key ? "" : "  " + Quoted(path)) + "\n";
            text += Wrapped(DocOf(*table, field), 10, width_);
        }
    }
    if (count == 0) return false;
    Add("key " + Quoted(key) + ", of " + std::to_string(count) + (count == 1 ? " member\n" : " members\n") + text);
    return true;
}

} // namespace

std::optional<std::string> Describe(std::string_view name, std::size_t width) {
    Describer describer(width);
    if (describer.ByName(name) || describer.ByCode(name) || describer.ByKey(name)) return describer.Take();
    return std::nullopt;
}

std::vector<std::string_view> AllNames() {
    std::vector<std::string_view> names;
    for (const Command& command : Commands())
        names.push_back(command.name);
    for (const events::EventRow& event : events::Events())
        if (!event.name.empty()) names.push_back(event.name);
    for (const RuleBody& rule : RuleBodies())
        names.push_back(RuleNameOf(static_cast<std::int32_t>(rule.code), false));
    for (const events::TypedRow& typed : events::TypedRows())
        names.push_back(typed.name);
    for (const TemplateRow& row : Templates())
        names.push_back(row.name);
    for (const std::string_view record : Tables().Records())
        names.push_back(record);
    return names;
}

} // namespace orrery::tool
