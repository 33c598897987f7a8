#include "events/EventParts.h"

#include "frame/json/MemberKeys.h"

#include <algorithm>

namespace orrery::events {

using json::Value;

namespace {

// The word loses its last character before it is looked up: devices and clients have settled on that.
void ReadObjectAction(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    std::string_view text = value.asString();
    text = text.substr(0, std::min<std::size_t>(text.size(), 128));
    if (!text.empty()) text.remove_suffix(1);
    Store(record + field.offset, kObjectActions.CodeOf(text).value_or(0));
}

// Milliseconds of every stamp go to the current one, so that the last stamp that has some prevails.
void StampInto(const Value& value, std::byte* milliseconds) {
    static constexpr json::MemberKeys<3> kStamps("CurrentTimeStamp", "EndTimeStamp", "StartTimeStamp");
    const auto [current, end, start] = json::ValuesAt(value, kStamps);
    for (const Value* const stamp : {current, start, end}) {
        if (stamp->isNull()) continue;
        const Value& found = (*stamp)["UTCMS"];
        if (!found.isNull()) Store(milliseconds, found.asUInt());
    }
}

struct AlarmPoint {
    std::uint8_t number;
    std::uint16_t code;
};
constexpr AlarmPoint kAlarmPointCodes[] = {
    {1, 8449},   {2, 8450},   {3, 8451},   {4, 8452},   {5, 8453},   {6, 8454},   {7, 8455},   {10, 8458},  {11, 8459},
    {12, 8460},  {13, 8463},  {14, 8464},  {15, 8465},  {16, 8466},  {17, 8468},  {18, 8470},  {19, 8472},  {20, 8471},
    {22, 8482},  {23, 8483},  {25, 8473},  {26, 8474},  {27, 8475},  {28, 8476},  {30, 8478},  {32, 8479},  {33, 8480},
    {34, 8481},  {35, 8484},  {36, 8485},  {156, 8462}, {161, 8467}, {162, 8469}, {164, 8477}, {165, 8486}, {166, 8487},
    {167, 8488}, {168, 8490}, {169, 8491}, {170, 8489}, {194, 8581}, {202, 8583},
};

std::uint32_t AlarmCodeOf(std::int32_t number) noexcept {
    for (const AlarmPoint& point : kAlarmPointCodes) {
        if (point.number == number) return point.code;
    }
    return ~std::uint32_t{0};
}

void ReadAlarmPoints(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const std::uint32_t count = std::min(static_cast<std::uint32_t>(value.elements().size()), field.dims[0]);
    for (std::uint32_t i = 0; i < count; ++i)
        Store(record + field.offset + i * sizeof(std::uint32_t), AlarmCodeOf(value[i].asInt()));
    StoreSlot(field.count, record, count);
}

} // namespace

void StampMilliseconds(const Value& value, std::byte* record, ReadCall&) {
    StampInto(value, record + offsetof(EVENT_OBJECT_INFO, stuCurrentTimeStamp) + offsetof(EVENT_TIME, dwMillisecond));
}

void StampMillisecondsEx(const Value& value, std::byte* record, ReadCall&) {
    StampInto(value,
              record + offsetof(EVENT_OBJECT_INFO_EX, stuCurrentTimeStamp) + offsetof(EVENT_TIME, dwMillisecond));
}

constexpr CustomCodec kObjectAction{ReadObjectAction};
constexpr CustomCodec kAlarmPoints{ReadAlarmPoints};

static_assert(sizeof(EVENT_OBJECT_INFO_EX) == 704);
static_assert(sizeof(EVENT_TIME) == 36);

} // namespace orrery::events
