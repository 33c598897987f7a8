#include "analyse/Scene.h"

#include "frame/json/Pen.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace orrery::scenes {

namespace {

using json::Value;

// ---- Times of day ----

void ReadClockTimes(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const auto elements = value.elements();
    for (std::size_t i = 0; i < elements.size() && i < field.dims[0]; ++i) {
        std::byte* const at = record + field.offset + i * sizeof(CFG_CLOCK_TIME);
        const auto before = Load<CFG_CLOCK_TIME>(at);
        NET_TIME time{0, 0, 0, before.nHour, before.nMinute, before.nSecond};
        JsonParser::GetClockTime(elements[i], &time);
        Store(at, CFG_CLOCK_TIME{time.dwHour, time.dwMinute, time.dwSecond});
    }
}

void WriteClockTimes(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    for (std::size_t i = 0; i < field.dims[0]; ++i) {
        const auto clock = Load<CFG_CLOCK_TIME>(record + field.offset + i * sizeof(CFG_CLOCK_TIME));
        const NET_TIME time{0, 0, 0, clock.nHour, clock.nMinute, clock.nSecond};
        JsonParser::SetClockTime(call.out, &time);
    }
    call.out.EndArray();
}

constexpr std::size_t kMostClocks = 4;
char* PutClockTimes(const Field& field, const std::byte* record, char* to) {
    if (field.dims[0] > kMostClocks) return nullptr;
    char* next = to;
    for (std::size_t i = 0; i < field.dims[0]; ++i) {
        next = JsonParser::PutClockTime(json::Hand::Separate(next), record + field.offset + i * sizeof(CFG_CLOCK_TIME));
        if (next == nullptr) return nullptr;
    }
    return json::Hand::PutBrackets(to, next);
}

// ---- Details ----

std::string_view TypeAt(const std::byte* text) noexcept {
    return TextAt(text, ORRERY_SCENE_TYPE_TEXT);
}

std::size_t TypesOf(std::int32_t count) noexcept {
    return static_cast<std::size_t>(std::clamp<std::int32_t>(count, 0, ORRERY_SCENE_TYPES));
}

void WriteDetailOfScene(const Field& field, const std::byte* record, WriteCall& call) {
    const std::string_view type = TextAt(record + offsetof(CFG_ANALYSE_SCENE_INFO, szType), ORRERY_SCENE_TEXT);
    WriteSceneDetail({&type, 1}, record + field.offset, call);
}

// A channel's own scene is of its type and of those of its list.
struct GlobalTypes {
    std::array<std::string_view, 1 + ORRERY_SCENE_TYPES> types;
    std::size_t count = 1;

    explicit GlobalTypes(const std::byte* record) noexcept {
        using Global = CFG_ANALYSEGLOBAL_INFO;
        types[0] = TextAt(record + offsetof(Global, szSceneType), ORRERY_SCENE_TEXT);
        const std::size_t listed = TypesOf(MEMBER(record, Global, nTypeListNum));
        for (std::size_t i = 0; i < listed; ++i)
            types[count++] = TypeAt(record + offsetof(Global, szTypeList) + i * ORRERY_SCENE_TYPE_TEXT);
    }
    std::span<const std::string_view> all() const noexcept { return {types.data(), count}; }
};

void WriteDetailOfGlobal(const Field& field, const std::byte* record, WriteCall& call) {
    const GlobalTypes types(record);
    WriteSceneDetail(types.all(), record + field.offset, call);
}

// ---- Bytes of a maker's own ----

void ReadCustomData(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    const std::string_view text = value.asString();
    auto* const bytes = call.parser.text().arena().Array<unsigned char>(JsonParser::Base64DecodedSize(text));
    if (bytes == nullptr) return;
    const std::size_t size = std::min<std::size_t>(JsonParser::Base64Decode(bytes, text), field.size);
    std::memcpy(record + field.offset, bytes, size);
    StoreSlot(field.count, record, static_cast<std::int64_t>(size));
}

void WriteCustomData(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int64_t count = std::min<std::int64_t>(LoadSlot(field.count, record), field.size);
    if (count <= 0) return;
    const auto size = static_cast<std::size_t>(count);
    char* const text = call.parser.text().arena().Array<char>(JsonParser::Base64EncodedSize(size));
    if (text == nullptr) return;
    unsigned char bytes[ORRERY_CUSTOM_DATA];
    std::memcpy(bytes, record + field.offset, size);
    const std::size_t length = JsonParser::Base64Encode(text, bytes, size);
    call.Key();
    call.out.String({text, length - 1});
}

// ---- What is numbered ----

constexpr std::uint32_t kMostNumbered = 32;
static_assert(kMostNumbered == ORRERY_NUMBERED_SCENES && kMostNumbered == ORRERY_NUMBERED_PERIODS);

class NumberedName {
  public:
    static constexpr std::size_t kRoom = 16 + json::kIntegerRoom; // the longest stem and its number

    NumberedName(std::string_view stem, std::uint32_t number) noexcept
        : size_(static_cast<std::size_t>(Put(text_, stem, number) - text_)) {}
    operator std::string_view() const noexcept { return {text_, size_}; }

    static char* Put(char* at, std::string_view stem, std::uint32_t number) noexcept {
        return json::PutDigits(json::CopyShort(at, stem.data(), stem.size()), number);
    }

  private:
    char text_[kRoom];
    std::size_t size_;
};

void WriteNumberedKey(std::string_view stem, std::uint32_t number, WriteCall& call) {
    call.OpenObjects();
    const json::Hand hand(call.out);
    if (!hand.HasBehind(json::Hand::kSeparator + NumberedName::kRoom + kQuotesAndColon))
        return call.out.Key(NumberedName(stem, number));
    char* at = hand.TakeForValue();
    *at = '"';
    at = NumberedName::Put(at + 1, stem, number);
    std::memcpy(at, "\" : ", 4);
    hand.GiveForValue(at + 4);
}

// Members "Stem1" up to "Stem32" in the order of their names: 1, 10 to 19, 2, 20 and so on.
template <class WriteOne>
void WriteNumbered(std::string_view stem, std::uint32_t count, WriteCall& call, const WriteOne& writeOne) {
    const auto write = [&](std::uint32_t number) {
        WriteNumberedKey(stem, number, call);
        writeOne(number - 1);
    };
    for (std::uint32_t first = 1; first < 10 && first <= count; ++first) {
        write(first);
        for (std::uint32_t second = 0; second < 10 && 10 * first + second <= count; ++second)
            write(10 * first + second);
    }
}

// A caller's array, an entry a number.
struct NumberedArray {
    std::string_view stem;
    const Table& table;
    std::size_t first; // places of the members
    std::size_t room;
    std::size_t count;
};
constexpr NumberedArray kPeriodArray{"TimePeriod", kTimePeriod, offsetof(CFG_ANALYSEGLOBAL_INFO, pTimePeriods),
                                     offsetof(CFG_ANALYSEGLOBAL_INFO, nTimePeriodMax),
                                     offsetof(CFG_ANALYSEGLOBAL_INFO, nTimePeriodNum)};
constexpr NumberedArray kAreasArray{"CalibrateArea", kCalibrateAreas, offsetof(CFG_ANALYSEGLOBAL_INFO, pCalibrates),
                                    offsetof(CFG_ANALYSEGLOBAL_INFO, nCalibrateMax),
                                    offsetof(CFG_ANALYSEGLOBAL_INFO, nCalibrateNum)};

// The entries in front of the first number that is missing are in use.
void ReadNumbered(const NumberedArray& array, const Value& global, std::byte* record, ReadCall& call) noexcept {
    const auto room = std::min<std::int32_t>(Load<std::int32_t>(record + array.room), kMostNumbered);
    auto* const first = Load<std::byte*>(record + array.first);
    if (room <= 0 || first == nullptr) return;
    std::int32_t found = room;
    for (std::int32_t i = 0; i < room; ++i) {
        const Value& value = global[NumberedName(array.stem, static_cast<std::uint32_t>(i + 1))];
        std::byte* const at = first + static_cast<std::size_t>(i) * array.table.size;
        if (value.isNull())
            found = std::min(found, i);
        else if (call.Keep(at, array.table.size))
            ReadRecord(array.table, value, at, call);
    }
    Store(record + array.count, found);
}

// How many entries of a caller's array are written: none when it holds more than it has room for.
std::uint32_t WrittenOf(const Field& field, const std::byte* record) noexcept {
    const std::int64_t count = LoadSlot(field.count, record);
    if (count <= 0 || count > LoadSlot(field.capacity, record)) return 0;
    if (Load<const std::byte*>(record + field.offset) == nullptr) return 0;
    return static_cast<std::uint32_t>(std::min<std::int64_t>(count, kMostNumbered));
}

void WriteNumberedPeriods(const Field& field, const std::byte* record, WriteCall& call) {
    const auto* const first = Load<const std::byte*>(record + field.offset);
    WriteNumbered("TimePeriod", WrittenOf(field, record), call,
                  [&](std::size_t i) { WriteRecord(kTimePeriod, first + i * sizeof(CFG_TIME_PERIOD_INFO), call); });
}

void WriteNumberedAreas(const Field& field, const std::byte* record, WriteCall& call) {
    const auto* const first = Load<const std::byte*>(record + field.offset);
    WriteNumbered("CalibrateArea", WrittenOf(field, record), call, [&](std::size_t i) {
        const std::byte* const areas = first + i * sizeof(CFG_CALIBRATE_AREAS_INFO);
        // Devices tell a number without areas from one that is missing by this text.
        if (MEMBER(areas, CFG_CALIBRATE_AREAS_INFO, nAreaNum) <= 0) return call.out.String("null");
        WriteRecord(kCalibrateAreas, areas, call);
    });
}

void ReadNumberedScenes(const Value& global, std::byte* record, ReadCall& call) noexcept {
    std::byte* const first = record + offsetof(CFG_ANALYSEGLOBAL_INFO, stuScenes);
    std::int32_t count = 0;
    for (std::uint32_t i = 0; i + 1 < kMostNumbered; ++i) {
        const Value& scene = global[NumberedName("Scene", i + 1)];
        if (scene.isNull()) break;
        if (!scene.isObject()) continue;
        ReadRecord(kAnalyseScene, scene, first + i * sizeof(CFG_ANALYSE_SCENE_INFO), call);
        ++count;
    }
    SET_MEMBER(record, CFG_ANALYSEGLOBAL_INFO, nSceneNum, count);
}

void WriteNumberedScenes(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int64_t count = std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, kMostNumbered);
    WriteNumbered("Scene", static_cast<std::uint32_t>(count), call, [&](std::size_t i) {
        WriteRecord(kAnalyseScene, record + field.offset + i * sizeof(CFG_ANALYSE_SCENE_INFO), call);
    });
}

} // namespace

constexpr CustomCodec kClockTimes{ReadClockTimes, WriteClockTimes, R"(["07:10:20","18:30:40"])", PutClockTimes,
                                  kMostClocks*(json::Hand::kSeparator + JsonParser::kClockText) + 4};
constexpr CustomCodec kDetailOfScene{nullptr, WriteDetailOfScene};
constexpr CustomCodec kReadOfType{};
constexpr CustomCodec kDetailOfGlobal{nullptr, WriteDetailOfGlobal};
constexpr CustomCodec kCustomData{ReadCustomData, WriteCustomData, R"("AQID")"};
constexpr CustomCodec kNumberedScenes{nullptr, WriteNumberedScenes,
                                      R"({"Depth":"Far","PtzPresetId":3,"Type":"","TypeList":[]})"};
constexpr CustomCodec kNumberedPeriods{
    nullptr, WriteNumberedPeriods,
    R"({"Day":["07:00:00","18:00:00"],"Latitude":2,"Longitude":3,"Night":["18:00:00","07:00:00"],)"
    R"("SwitchMode":"ByPos"})"};
constexpr CustomCodec kNumberedAreas{nullptr, WriteNumberedAreas, R"([{"Length":2.5,"Type":""}])"};

void ReadSceneOfType(const Value& scene, std::byte* record, ReadCall& call) {
    using Scene = CFG_ANALYSE_SCENE_INFO;
    const Value& detail = scene["Detail"];
    ReadSceneDetail(TextAt(record + offsetof(Scene, szType), ORRERY_SCENE_TEXT), detail,
                    record + offsetof(Scene, stuDetail), call);
    if (scene["TypeList"].size() == 0 || detail.isNull()) return;
    ReadRecord(kSceneSubDetail, detail, record + offsetof(Scene, stuSubDetail), call);
}

void ReadGlobalOfTypes(const Value& global, std::byte* record, ReadCall& call) {
    using Global = CFG_ANALYSEGLOBAL_INFO;
    if (global.isNull()) return; // the caller's record stays as it was
    ReadNumbered(kPeriodArray, global, record, call);
    const GlobalTypes types(record);
    const Value& detail = global["Scene"]["Detail"];
    for (const std::string_view type : types.all())
        ReadSceneDetail(type, detail, record + offsetof(Global, stuDetail), call);
    ReadAreaTypes(global["CalibrateArea"], record + offsetof(Global, stuCalibrateAreas));
    ReadNumbered(kAreasArray, global, record, call);
    ReadNumberedScenes(global, record, call);
}

} // namespace orrery::scenes
