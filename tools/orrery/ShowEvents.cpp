#include "orrery/ShowEvents.h"

#include "orrery/Diagnose.h"
#include "orrery/PrintRecord.h"
#include "orrery/Suggest.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleFrame.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/JsonParser.h"

#include "orrery/calls.h"

#include <algorithm>
#include <new>

namespace orrery::tool {

namespace {

using json::Value;

// Of an event in the text.
struct Place {
    std::uint32_t index;
    std::string action;
};

struct Shown {
    const EventOptions& options;
    std::vector<Place> places; // of the events that will be delivered
    std::string out;
    std::uint32_t count = 0;
    std::size_t next = 0; // of the places
    bool ranOut = false;
};

// Members of the record, or those that were asked for.
void AddRecord(Node& node, const record::Table& table, const std::byte* record, const EventOptions& options) {
    Node whole = PrintRecord(table, record, PrintOptions{options.all, options.brief});
    if (options.fields.empty()) {
        node.Add("record", std::move(whole));
        return;
    }
    for (const std::string& field : options.fields) {
        const Node* const found = whole.Find(field);
        node.Add(field, found == nullptr ? Node::Null() : *found);
    }
}

void AddSource(Node& node, const EventOptions& options) {
    if (options.file.empty()) return;
    node.Add("file", Node::Text(Printable(options.file))).Add("line", Node::Unsigned(options.line));
}

Node EventNode(const events::EventRow& row, const std::byte* record, std::uint32_t size, const Place* place,
               const EventOptions& options) {
    Node event = Node::Object();
    event.Add("code", Node::Unsigned(row.code)).Add("name", Node::Text(row.name)).Add("size", Node::Unsigned(size));
    if (place != nullptr) {
        if (!place->action.empty()) event.Add("action", Node::Text(Printable(place->action)));
        event.Add("index", Node::Unsigned(place->index));
    }
    AddSource(event, options);
    AddRecord(event, *row.table, record, options);
    return event;
}

Node TypedNode(const events::TypedRow& row, const std::byte* record, std::uint32_t size, PrintOptions options) {
    Node typed = Node::Object();
    typed.Add("code", Node::Unsigned(row.code)).Add("name", Node::Text(row.name)).Add("size", Node::Unsigned(size));
    if (row.isList)
        typed.Add("records", PrintRecords(*row.table, record, size / row.table->size, options));
    else
        typed.Add("record", PrintRecord(*row.table, record, options));
    return typed;
}

// The library knows no exceptions: none may pass through it.
std::int32_t Show(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t,
                  void* user) noexcept {
    auto& shown = *static_cast<Shown*>(user);
    ++shown.count;
    try {
        const auto* const bytes = static_cast<const std::byte*>(record);
        const PrintOptions options{shown.options.all, shown.options.brief};
        const events::TypedRow* const typed = events::FindTyped(type);
        const Place* const place = shown.next < shown.places.size() ? &shown.places[shown.next] : nullptr;
        Node node = typed != nullptr ? TypedNode(*typed, bytes, size, options)
                                     : EventNode(*events::FindEvent(type), bytes, size, place, shown.options);
        if (typed != nullptr)
            AddSource(node, shown.options);
        else
            ++shown.next;
        shown.out += shown.options.pretty ? node.Print() : node.PrintLine();
    } catch (const std::bad_alloc&) {
        shown.ranOut = true;
    }
    return 0;
}

// Why an event was passed over; empty when it was not.
std::string WhyNot(const Value& event) {
    const Value& name = event["Code"];
    if (name.isNull()) return "no \"Code\"";
    const auto code = static_cast<std::uint32_t>(RuleCodeFromName(name.asString()));
    const events::EventRow* const row = events::FindEvent(code);
    if (row == nullptr) {
        std::vector<std::string_view> names;
        for (const events::EventRow& known : events::Events())
            names.push_back(known.name);
        return "no event is named " + Printable(Quoted(name.asString())) + DidYouMean(name.asString(), names);
    }
    if (event["Data"].isNull() && !row->needsNoData) return "no \"Data\"";
    return {};
}

// A text that tells by its keys what it carries.
bool IsTyped(const Value& root) {
    return std::ranges::any_of(root.members(),
                               [](const json::Member& member) { return events::FindTyped(member.key()) != nullptr; });
}

// The rules of a typed text are taken all or none.
std::string WhyNoRules(const Value& rules) {
    if (RuleArraySizeNeeded(rules) > 0) return {};
    if (rules.elements().empty()) return "orrery: note: \"VideoAnalyseRule\" holds no rules\n";
    return "orrery: note: \"VideoAnalyseRule\" was passed over: a rule is of a type without a record\n";
}

std::string Notes(const Value& root) {
    constexpr std::size_t kMostEvents = 128; // of one text
    constexpr std::size_t kMostNotes = 8;
    const bool isSingle = !root["Event"].isNull();
    const std::string key = isSingle ? "Event" : "EventList";
    const Value& list = root[key];
    std::vector<std::string> notes;
    if (list.isNull())
        notes.push_back("the text has neither \"Event\" nor \"EventList\"");
    else if (list.type() != json::Type::Array)
        notes.push_back("\"" + key + "\" is no list");
    if (list.elements().size() > kMostEvents) {
        notes.push_back("\"" + key + "\" holds " + std::to_string(list.size()) + " events; the first "
                        + std::to_string(kMostEvents) + " are read");
    }
    for (std::size_t i = 0; i < std::min(list.elements().size(), kMostEvents) && notes.size() <= kMostNotes; ++i) {
        const std::string why = WhyNot(list.elements()[i]);
        if (!why.empty()) notes.push_back(key + "[" + std::to_string(i) + "] was passed over: " + why);
    }
    std::string text;
    for (std::size_t i = 0; i < std::min(notes.size(), kMostNotes); ++i)
        text += "orrery: note: " + notes[i] + "\n";
    if (notes.size() > kMostNotes) text += "orrery: note: and more of the kind\n";
    return text;
}

} // namespace

namespace {

// The events that will be delivered, in order. One without a word of its own acts as the one before it did.
std::vector<Place> PlacesOf(const Value& root) {
    constexpr std::size_t kMostEvents = 128;
    std::vector<Place> places;
    std::string action;
    const auto events = root[root["Event"].isNull() ? "EventList" : "Event"].elements();
    for (std::uint32_t i = 0; i < std::min(events.size(), kMostEvents); ++i) {
        const auto code = static_cast<std::uint32_t>(RuleCodeFromName(events[i]["Code"].asString()));
        const events::EventRow* const row = events::FindEvent(code);
        const Value& data = events[i]["Data"];
        if (row == nullptr || (data.isNull() && !row->needsNoData)) continue;
        for (const std::string_view known : {"Pulse", "Start", "Stop"})
            if (EqualsFolded(events[i]["Action"].asString(), known)) action = known;
        if (row->rename != nullptr && events::FindEvent(row->rename(data)) == nullptr) continue;
        places.push_back({i, action});
    }
    return places;
}

// "FILE, text at line 7: ".
std::string SourceOf(const EventOptions& options) {
    if (options.file.empty() || (options.file == "-" && options.line == 1)) return {};
    return Printable(options.file) + ", text at line " + std::to_string(options.line) + ": ";
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

Result ShowEvents(std::string_view text, const EventOptions& options) {
    try {
        const Document document(text);
        const std::string source = SourceOf(options);
        if (!document.ok) return {kRefused, {}, "orrery: " + source + ExplainSyntax(document) + "\n"};
        const std::string terminated(document.text);
        Shown shown{options, PlacesOf(document.root), {}};
        const auto size = static_cast<std::uint32_t>(terminated.size());
        const bool isTyped = IsTyped(document.root);
        if (isTyped)
            CLIENT_ParseDataByCallback(terminated.c_str(), size, Show, &shown);
        else
            CLIENT_ParseAnalyzerEventData(terminated.c_str(), size, Show, &shown);
        if (shown.ranOut) throw std::bad_alloc();
        std::string notes;
        const Value& rules = document.root["VideoAnalyseRule"];
        if (isTyped && !rules.isNull()) notes += WhyNoRules(rules);
        const bool hasEvents = !document.root["Event"].isNull() || !document.root["EventList"].isNull();
        if (hasEvents || !isTyped) notes += Notes(document.root);
        const Value& events = document.root[document.root["Event"].isNull() ? "EventList" : "Event"];
        const bool isShape = isTyped || events.type() == json::Type::Array;
        return {isShape ? kDone : kRefused, shown.out, WithSource(notes, source)};
    } catch (const std::bad_alloc&) {
        return {kRefused, {}, "orrery: out of memory\n"};
    }
}

} // namespace orrery::tool
