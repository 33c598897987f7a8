#include "orrery/ShowEvents.h"

#include "orrery/Diagnose.h"
#include "orrery/PrintRecord.h"
#include "orrery/Suggest.h"

#include "analyse/EventTypeRegistry.h"
#include "events/EventTable.h"

#include "orrery/calls.h"

#include <algorithm>
#include <new>

namespace orrery::tool {

namespace {

using json::Value;

struct Shown {
    const EventOptions& options;
    std::string out;
    std::uint32_t count = 0;
    bool ranOut = false;
};

// The library knows no exceptions: none may pass through it.
std::int32_t Show(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t,
                  void* user) noexcept {
    auto& shown = *static_cast<Shown*>(user);
    const events::EventRow& row = *events::FindEvent(type);
    ++shown.count;
    try {
        Node event = Node::Object();
        event.Add("code", Node::Unsigned(type))
            .Add("name", Node::Text(row.name))
            .Add("size", Node::Unsigned(size))
            .Add("record",
                 PrintRecord(*row.table, static_cast<const std::byte*>(record), PrintOptions{shown.options.all}));
        shown.out += shown.options.pretty ? event.Print() : event.PrintLine();
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

Result ShowEvents(std::string_view text, const EventOptions& options) {
    try {
        const Document document(text);
        if (!document.ok) return {kRefused, {}, "orrery: " + ExplainSyntax(document) + "\n"};
        const std::string terminated(document.text);
        Shown shown{options, {}};
        CLIENT_ParseAnalyzerEventData(terminated.c_str(), static_cast<std::uint32_t>(terminated.size()), Show, &shown);
        if (shown.ranOut) throw std::bad_alloc();
        return {kDone, shown.out, Notes(document.root)};
    } catch (const std::bad_alloc&) {
        return {kRefused, {}, "orrery: out of memory\n"};
    }
}

} // namespace orrery::tool
