#include "orrery/ShowEvents.h"

#include "orrery/Diagnose.h"
#include "orrery/EventSurvey.h"
#include "orrery/Input.h"
#include "orrery/PrintRecord.h"
#include "orrery/Terminal.h"

#include "analyse/RuleFrame.h"
#include "events/EventMap.h"
#include "events/ReqRealPicture.h"
#include "events/TypedText.h"

#include <algorithm>
#include <new>
#include <span>

namespace orrery::tool {

namespace {

using json::Value;

// What is delivered: an event, or what a text tells by a key of its own.
struct Item {
    std::uint32_t code;
    std::string_view name;
    std::uint32_t size;
    const EventPlace* place; // null: it has none
    const record::Table* table;
    const std::byte* first;
    bool isList = false;
    std::size_t count = 1;
};

constexpr std::string_view kAround[] = {"code", "name", "size", "action", "index", "file", "line"};

// "code" and what else stands around the record.
std::optional<Node> AroundOf(const Item& item, std::string_view name, const EventOptions& options) {
    if (name == "code") return Node::Unsigned(item.code);
    if (name == "name") return Node::Text(item.name);
    if (name == "size") return Node::Unsigned(item.size);
    if (name == "action" && item.place != nullptr && !item.place->action.empty()) return Node::Text(item.place->action);
    if (name == "index" && item.place != nullptr) return Node::Unsigned(item.place->index);
    if (name == "file" && !options.file.empty()) return Node::Text(options.file);
    if (name == "line" && !options.file.empty()) return Node::Unsigned(options.line);
    return std::nullopt;
}

std::optional<Node> MemberOf(const Item& item, std::string_view path, const EventOptions& options) {
    if (std::ranges::find(kAround, path) != std::end(kAround)) return AroundOf(item, path, options);
    return PrintMember(*item.table, item.first, path, PrintOptions{options.all, options.brief});
}

std::vector<std::string> ColumnsOf(const EventOptions& options) {
    std::vector<std::string> columns;
    for (const std::string_view around : kAround)
        if (around != "size") columns.emplace_back(around);
    columns.insert(columns.end(), options.fields.begin(), options.fields.end());
    return columns;
}

struct Shown {
    const EventOptions& options;
    std::span<const EventPlace> places; // of the events that will be delivered
    bool isTyped;
    LineWriter& out;
    std::uint32_t count = 0;
    std::size_t next = 0; // of the places
    bool ranOut = false;

    bool Takes(const Item& item) const;
    void Add(const Item& item);
    void AddLine(const Item& item);
    void AddPretty(const Item& item);
};

bool Shown::Takes(const Item& item) const {
    return std::ranges::all_of(options.filters, [&](const Filter& filter) {
        const std::optional<Node> member = MemberOf(item, filter.path(), options);
        return filter.Takes(member ? &*member : nullptr);
    });
}

void Shown::AddLine(const Item& item) {
    const PrintOptions print{options.all, options.brief};
    out.Append(R"({ "code": )");
    out.Integer(item.code);
    out.Append(R"(, "name": )");
    out.Text(item.name);
    out.Append(R"(, "size": )");
    out.Integer(item.size);
    if (item.place != nullptr && !item.place->action.empty()) {
        out.Append(R"(, "action": )");
        out.Text(item.place->action);
    }
    if (item.place != nullptr) {
        out.Append(R"(, "index": )");
        out.Integer(item.place->index);
    }
    if (!options.file.empty()) {
        out.Append(R"(, "file": )");
        out.Text(options.file);
        out.Append(R"(, "line": )");
        out.Integer(static_cast<std::int64_t>(options.line));
    }
    if (options.fields.empty()) {
        out.Append(item.isList ? R"(, "records": )" : R"(, "record": )");
        if (item.isList)
            AppendRecords(out, *item.table, item.first, item.count, print);
        else
            AppendRecord(out, *item.table, item.first, print);
    }
    for (const std::string& field : options.fields) {
        if (std::ranges::find(kAround, field) != std::end(kAround)) continue;
        const auto member = PrintMember(*item.table, item.first, field, print);
        out.Append(", ");
        out.Append(Quoted(Printable(field)));
        out.Append(": ");
        out.Token(member ? member->OneLine() : "null");
    }
    out.Append(" }\n");
}

void Shown::AddPretty(const Item& item) {
    const PrintOptions print{options.all, options.brief};
    Node node = Node::Object();
    for (const std::string_view name : kAround)
        if (auto around = AroundOf(item, name, options)) node.Add(name, std::move(*around));
    if (options.fields.empty() && item.isList)
        node.Add("records", PrintRecords(*item.table, item.first, item.count, print));
    else if (options.fields.empty())
        node.Add("record", PrintRecord(*item.table, item.first, print));
    for (const std::string& field : options.fields) {
        if (std::ranges::find(kAround, field) != std::end(kAround)) continue;
        auto member = PrintMember(*item.table, item.first, field, print);
        node.Add(field, member ? std::move(*member) : Node::Null());
    }
    out.Append(node.Print(options.width == 0 ? Node::kWidest : options.width));
}

void Shown::Add(const Item& item) {
    const bool isRow = IsRows(options.format);
    if (item.isList && (isRow || !options.fields.empty() || !options.filters.empty())) {
        Item one = item;
        one.isList = false;
        for (std::size_t i = 0; i < item.count; ++i, one.first += item.table->size)
            Add(one);
        return;
    }
    if (!Takes(item)) return;
    if (isRow)
        out.Append(Row(options.format, options.width, ColumnsOf(options),
                       [&](const std::string& column) { return CellOf(MemberOf(item, column, options)); }));
    else if (options.format == Format::Pretty)
        AddPretty(item);
    else
        AddLine(item);
}

// The library knows no exceptions: none may pass through it.
std::int32_t Show(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t,
                  void* user) noexcept {
    auto& shown = *static_cast<Shown*>(user);
    ++shown.count;
    try {
        const auto* const bytes = static_cast<const std::byte*>(record);
        if (const events::TypedRow* const typed = shown.isTyped ? events::FindTyped(type) : nullptr) {
            shown.Add({type, typed->name, size, nullptr, typed->table, bytes, typed->isList,
                       typed->isList ? size / typed->table->size : 1});
            return 0;
        }
        const EventPlace* const place = shown.next < shown.places.size() ? &shown.places[shown.next] : nullptr;
        ++shown.next;
        const bool isPlaced = place != nullptr && place->row->code == type;
        const events::EventRow& row = isPlaced ? *place->row : *events::FindEvent(type);
        shown.Add({row.code, row.name, size, place, row.table, bytes});
    } catch (const std::bad_alloc&) {
        shown.ranOut = true;
    }
    return 0;
}

// A text that tells by its keys what it carries.
bool IsTyped(const Value& root) {
    return std::ranges::any_of(root.members(),
                               [](const json::Member& member) { return events::FindTyped(member.key()) != nullptr; });
}

// The rules of a typed text, where it has any, are taken all or none.
std::string WhyNoRules(const Value& rules) {
    if (rules.isNull() || RuleArraySizeNeeded(rules) > 0) return {};
    if (rules.elements().empty()) return "orrery: note: \"VideoAnalyseRule\" holds no rules\n";
    return "orrery: note: \"VideoAnalyseRule\" was passed over: a rule is of a type without a record\n";
}

// "FILE, text at line 7: ".
std::string SourceOf(const EventOptions& options) {
    if (options.file.empty()) return {};
    return options.file + ", text at line " + std::to_string(options.line) + ": ";
}
std::string WithSource(const std::string& notes, const std::string& source) {
    constexpr std::string_view kFront = "orrery: ";
    std::string all;
    for (std::size_t at = 0; at < notes.size();) {
        const std::size_t end = std::min(notes.find('\n', at), notes.size() - 1) + 1;
        std::string_view line = std::string_view(notes).substr(at, end - at);
        if (line.starts_with(kFront)) {
            line.remove_prefix(kFront.size());
            all.append(kFront).append(source);
        }
        all += line;
        at = end;
    }
    return all;
}

} // namespace

namespace {

Result Refused(const EventOptions& options, const std::string& why) {
    return {kRefused, {}, "orrery: " + SourceOf(options) + why + "\n"};
}

Result ShowDocument(const Document& document, const EventOptions& options, LineWriter& out) {
    const Value& root = document.root;
    const EventSurvey survey = SurveyEvents(root);
    const bool isTyped = IsTyped(root);
    Shown shown{options, survey.places, isTyped, out};
    if (isTyped)
        DeliverTyped(std::string(document.text).c_str(), Show, &shown);
    else
        DeliverEvents(root, document.text.size(), Show, &shown);
    if (shown.ranOut) throw std::bad_alloc();
    std::string notes;
    if (isTyped) notes += WhyNoRules(root["VideoAnalyseRule"]);
    if (survey.hasKey || !isTyped) notes += survey.notes;
    if (!notes.empty()) notes = WithSource(notes, SourceOf(options));
    return {isTyped || survey.isList ? kDone : kRefused, {}, std::move(notes)};
}

Result OutOfMemory() {
    return {kRefused, {}, "orrery: out of memory\n"};
}

} // namespace

Result ShowEvents(std::string_view text, const EventOptions& options, LineWriter& out) {
    try {
        const Document document(text);
        if (const std::string_view encoding = ForeignEncoding(text); !encoding.empty())
            return Refused(options, NotUtf8(encoding));
        if (!document.ok) return Refused(options, ExplainSyntax(document));
        return ShowDocument(document, options, out);
    } catch (const std::bad_alloc&) {
        return OutOfMemory();
    }
}

std::optional<Result> ShowEventsOf(std::string_view text, const EventOptions& options, LineWriter& out) {
    try {
        const Document document(text);
        if (!document.ok || document.end != text.size()) return std::nullopt;
        return ShowDocument(document, options, out);
    } catch (const std::bad_alloc&) {
        return OutOfMemory();
    }
}

Result ShowEvents(std::string_view text, const EventOptions& options) {
    LineWriter out;
    Result result = ShowEvents(text, options, out);
    result.out = Coloured(out.Take(), options);
    return result;
}

bool IsColoured(const EventOptions& options) {
    return options.colour && (options.format == Format::Lines || options.format == Format::Pretty);
}
std::string Coloured(std::string out, const EventOptions& options) {
    return IsColoured(options) ? ColouredJson(out) : out;
}

std::string EventHead(const EventOptions& options) {
    return IsRows(options.format) ? RowOfNames(options.format, options.width, ColumnsOf(options)) : std::string();
}

} // namespace orrery::tool
