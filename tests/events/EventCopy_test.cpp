// Copies of events that outlive their call: every event, with all that its pointers lead to, byte by byte.
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "orrery/event_codes.h"
#include "orrery/events_intelligent.h"
#include "orrery/events_typed.h"
#include "support/EventWalk.h"
#include "support/Events.h"
#include "support/TableText.h"

#include "orrery/helpers.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace orrery {
namespace {

using namespace test;

// A buffer of exactly the size of the copy, as malloc aligns it.
struct Copy {
    std::unique_ptr<std::byte[]> bytes;
    std::uint32_t size = 0;
};

Copy CopyOf(const Delivered& event) {
    Copy copy;
    copy.size = ORRERY_CopyEvent(event.type, event.record, event.size, nullptr, 0);
    copy.bytes = std::make_unique<std::byte[]>(copy.size);
    EXPECT_EQ(ORRERY_CopyEvent(event.type, event.record, event.size, copy.bytes.get(), copy.size), copy.size);
    return copy;
}

// How many pointers lead somewhere; each into the copy itself.
int PointersInside(const record::Table& table, const std::byte* record, const Copy& copy) {
    int count = 0;
    for (const record::Field& field : table) {
        if (field.cell == record::Cell::Record && field.size != 0) {
            for (std::uint32_t at = 0; at < field.size; at += field.table->size)
                count += PointersInside(*field.table, record + field.offset + at, copy);
        }
        if (field.cell != record::Cell::Pointer) continue;
        const auto* const block = record::Load<const std::byte*>(record + field.offset);
        if (block == nullptr) continue;
        ++count;
        EXPECT_GE(block, copy.bytes.get()) << field.name;
        EXPECT_LT(block, copy.bytes.get() + copy.size) << field.name;
    }
    return count;
}

TEST(EventCopy, EveryEventStaysAsItWasDelivered) {
    int followed = 0, events = 0;
    for (const events::EventRow& row : events::Events()) {
        if (row.name.empty()) continue;
        const std::string text = "{\"Event\":[{\"Code\":\"" + std::string(row.name)
                                 + "\",\"Data\":" + RecordTree(*row.table, {}).Text() + "}]}";
        Copy copy;
        std::uint64_t sum = 0;
        const record::Table* table = nullptr;
        Decode(text, [&](const Delivered& event) {
            table = events::FindEvent(event.type)->table;
            sum = SumOfRecord(*table, static_cast<const std::byte*>(event.record));
            copy = CopyOf(event);
        });
        ASSERT_NE(table, nullptr) << row.name;
        ++events;
        // The arena of the call is gone.
        EXPECT_EQ(SumOfRecord(*table, copy.bytes.get()), sum) << row.name;
        const int pointers = PointersInside(*table, copy.bytes.get(), copy);
        EXPECT_EQ(copy.size > table->size, pointers > 0) << row.name;
        followed += pointers;
    }
    EXPECT_GT(events, 100);
    EXPECT_GT(followed, events); // otherwise the texts lead to no block worth the name
}

TEST(EventCopy, TypedRecordsStayWithTheirListsAndRules) {
    const char* const text =
        R"({"ObjectList":[{"ObjectID":7,"Image":{"FilePath":"/a"}},{"ObjectID":9,"Image":{"FilePath":"/c"}}],)"
        R"("VideoAnalyseRule":[{"Type":"CrossLineDetection","Name":"Gate","Enable":true}]})";
    struct Kept {
        std::uint32_t type;
        std::uint32_t size;
        Copy copy;
    };
    std::vector<Kept> kept;
    const EventVisitor keep = [&](const Delivered& event) { kept.push_back({event.type, event.size, CopyOf(event)}); };
    ASSERT_EQ(CLIENT_ParseDataByCallback(text, 0, VisitEvent, const_cast<EventVisitor*>(&keep)), 1);
    ASSERT_EQ(kept.size(), 2u);
    ASSERT_EQ(kept[0].type, ORRERY_TYPED_VIDEO_ANALYSE_RULE);
    EVENT_RULE_TABLE rules;
    std::memcpy(&rules, kept[0].copy.bytes.get(), sizeof rules);
    ASSERT_EQ(rules.dwHead, 1u);
    const auto* const items = reinterpret_cast<const std::byte*>(rules.pRuleBuf);
    EXPECT_GT(items, kept[0].copy.bytes.get());
    EXPECT_EQ(items + rules.nRuleBufLen, kept[0].copy.bytes.get() + kept[0].copy.size);
    EXPECT_EQ(record::Load<std::uint32_t>(items), 2u); // the code of the type
    ASSERT_EQ(kept[1].type, ORRERY_TYPED_OBJECT_LIST);
    ASSERT_EQ(kept[1].size, 2 * sizeof(EVENT_OBJECT_INFO));
    const auto* const objects = reinterpret_cast<const EVENT_OBJECT_INFO*>(kept[1].copy.bytes.get());
    EXPECT_EQ(objects[0].nObjectID, 7);
    EXPECT_STREQ(objects[0].pszFilePath, "/a");
    EXPECT_EQ(objects[1].nObjectID, 9);
    EXPECT_STREQ(objects[1].pszFilePath, "/c");
}

TEST(EventCopy, WritesNothingThatDoesNotFit) {
    const std::string text = R"({"Event":[{"Code":"CrossLineDetection","Data":{}}]})";
    int count = 0;
    Decode(text, [&](const Delivered& event) {
        ++count;
        const std::uint32_t size = ORRERY_CopyEvent(event.type, event.record, event.size, nullptr, 0);
        EXPECT_EQ(size, sizeof(DEV_EVENT_CROSSLINEDETECTION_INFO)); // no pointer of it leads anywhere
        std::vector<unsigned char> room(size, 0x5A);
        EXPECT_EQ(ORRERY_CopyEvent(event.type, event.record, event.size, room.data(), size - 1), size);
        EXPECT_EQ(room, std::vector<unsigned char>(size, 0x5A));
        EXPECT_EQ(ORRERY_CopyEvent(event.type, event.record, event.size, room.data(), size), size);
        EXPECT_EQ(std::memcmp(room.data(), event.record, size), 0);
        EXPECT_EQ(ORRERY_CopyEvent(event.type, nullptr, event.size, room.data(), size), 0u);
        EXPECT_EQ(ORRERY_CopyEvent(0, event.record, event.size, room.data(), size), 0u);
        EXPECT_EQ(ORRERY_CopyEvent(ORRERY_TYPED_OBJECT_LIST, event.record, 8, room.data(), size), 0u); // below a record
    });
    EXPECT_EQ(count, 1);
}

} // namespace
} // namespace orrery
