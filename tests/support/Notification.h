// Events inside a notification, which tells more of them than the bare form: channel, picture, flags.
#pragma once

#include "events/ReqRealPicture.h"
#include "support/Events.h"

namespace orrery::test {

// Looks at the events of a notification with the given members of "info", "Events" not among them.
inline int DecodeNotification(const std::string& info, const std::string& events, const EventVisitor& visit) {
    CReqRealPicture picture;
    picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
    int count = 0;
    const EventVisitor counting = [&](const Delivered& event) {
        ++count;
        visit(event);
    };
    const std::string text = "{\"params\":{\"info\":{" + info + ",\"Events\":[" + events + "]}}}";
    if (picture.deserialize(text.c_str(), text.size()) == 0) return -1;
    picture.deliver(VisitEvent, const_cast<EventVisitor*>(&counting));
    return count;
}

} // namespace orrery::test
