// What stands in a text of events before it is decoded: which will be delivered, and why the others are not.
#pragma once

#include "events/EventMap.h"
#include "frame/json/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

// An event in its text.
struct EventPlace {
    std::uint32_t index;
    std::string_view action;
    const events::EventRow* row; // as which it is delivered
};

struct EventSurvey {
    std::vector<EventPlace> places; // of the events that will be delivered, in order
    bool hasKey = false;            // the text has a key of events
    bool isList = false;            // with a list behind it, were it empty
    std::string notes;              // lines, "orrery: note: ..."
};

EventSurvey SurveyEvents(const json::Value& root);

} // namespace orrery::tool
