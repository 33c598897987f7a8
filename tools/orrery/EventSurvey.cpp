#include "orrery/EventSurvey.h"

#include "orrery/Output.h"
#include "orrery/Suggest.h"

#include "analyse/EventTypeRegistry.h"
#include "frame/JsonParser.h"

#include <algorithm>

namespace orrery::tool {

namespace {

using json::Value;

constexpr std::size_t kMostEvents = 128; // of one text
constexpr std::size_t kMostNotes = 8;

std::string UnknownEvent(std::string_view name) {
    std::vector<std::string_view> names;
    for (const events::EventRow& known : events::Events())
        names.push_back(known.name);
    return "no event is named " + Printable(Quoted(name)) + DidYouMean(name, names);
}

class Survey {
  public:
    explicit Survey(EventSurvey& survey) : survey_(survey) {}

    void Text(const Value& root) {
        const Value& event = root["Event"];
        key_ = event.isNull() ? "EventList" : "Event";
        const Value& list = event.isNull() ? root[key_] : event;
        survey_.hasKey = !list.isNull();
        survey_.isList = list.type() == json::Type::Array;
        if (list.isNull()) return Note("the text has neither \"Event\" nor \"EventList\"");
        if (!survey_.isList) return Note(Quoted(key_) + " is no list");
        const auto events = list.elements();
        if (events.size() > kMostEvents)
            Note(Quoted(key_) + " holds " + std::to_string(events.size()) + " events; the first "
                 + std::to_string(kMostEvents) + " are read");
        for (std::uint32_t i = 0; i < std::min(events.size(), kMostEvents); ++i)
            Event(events[i], i);
    }

  private:
    void Event(const Value& event, std::uint32_t index) {
        const Value& name = event["Code"];
        const Value& data = event["Data"];
        const events::EventRow* row = events::FindEvent(static_cast<std::uint32_t>(RuleCodeFromName(name.asString())));
        if (row == nullptr)
            return PassedOver(index, [&] { return name.isNull() ? "no \"Code\"" : UnknownEvent(name.asString()); });
        if (data.isNull() && !row->needsNoData) return PassedOver(index, [] { return "no \"Data\""; });
        // An event without a word of its own acts as the one before it did.
        const std::string_view action = event["Action"].asString();
        for (const std::string_view known : {"Pulse", "Start", "Stop"})
            if (EqualsFolded(action, known)) action_ = known;
        if (row->rename != nullptr) row = events::FindEvent(row->rename(data));
        if (row == nullptr) return PassedOver(index, [] { return "no event goes by what its \"Data\" names"; });
        survey_.places.push_back({index, action_, row});
    }

    template <class Why>
    void PassedOver(std::uint32_t index, const Why& why) {
        if (noted_ > kMostNotes) return;
        Note(std::string(key_) + "[" + std::to_string(index) + "] was passed over: " + why());
    }

    void Note(const std::string& note) {
        if (++noted_ <= kMostNotes) survey_.notes += "orrery: note: " + note + "\n";
        if (noted_ == kMostNotes + 1) survey_.notes += "orrery: note: and more of the kind\n";
    }

    EventSurvey& survey_;
    std::string_view key_, action_;
    std::size_t noted_ = 0;
};

} // namespace

EventSurvey SurveyEvents(const Value& root) {
    EventSurvey survey;
    Survey(survey).Text(root);
    return survey;
}

} // namespace orrery::tool
