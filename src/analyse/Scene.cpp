#include "analyse/Scene.h"

#include "frame/json/Pen.h"
#include "frame/json/Tokens.h"
#include "frame/record/ReadText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

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

const char* ReadClockTimesText(const Field& field, const char* p, const char* end, std::byte* record) {
    if (*p != '[') return nullptr;
    json::Step step = json::FirstEntry(p, end, ']');
    for (std::size_t i = 0; step.more; ++i) {
        constexpr std::ptrdiff_t kQuoted = JsonParser::kClockText;
        p = step.at;
        if (i == field.dims[0] || end - p < kQuoted || p[0] != '"' || p[kQuoted - 1] != '"') return nullptr;
        std::int32_t clock[3];
        if (!JsonParser::GetUsualClock(p + 1, clock)) return nullptr;
        std::memcpy(record + field.offset + i * sizeof(CFG_CLOCK_TIME), clock, sizeof clock);
        step = json::NextEntry(p + kQuoted, end, ']');
    }
    return step.at;
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
constexpr std::string_view kSceneStem = "Scene", kPeriodStem = "TimePeriod", kAreasStem = "CalibrateArea";
constexpr NumberedArray kPeriodArray{kPeriodStem, kTimePeriod, offsetof(CFG_ANALYSEGLOBAL_INFO, pTimePeriods),
                                     offsetof(CFG_ANALYSEGLOBAL_INFO, nTimePeriodMax),
                                     offsetof(CFG_ANALYSEGLOBAL_INFO, nTimePeriodNum)};
constexpr NumberedArray kAreasArray{kAreasStem, kCalibrateAreas, offsetof(CFG_ANALYSEGLOBAL_INFO, pCalibrates),
                                    offsetof(CFG_ANALYSEGLOBAL_INFO, nCalibrateMax),
                                    offsetof(CFG_ANALYSEGLOBAL_INFO, nCalibrateNum)};

// The entries in front of the first number that is missing are in use.
template <class Object>
void ReadNumbered(const NumberedArray& array, const Object& global, std::byte* record, ReadCall& call) noexcept {
    const auto room = std::min<std::int32_t>(Load<std::int32_t>(record + array.room), kMostNumbered);
    auto* const first = Load<std::byte*>(record + array.first);
    if (room <= 0 || first == nullptr) return;
    std::int32_t found = room;
    for (std::int32_t i = 0; i < room; ++i) {
        const auto number = static_cast<std::uint32_t>(i + 1);
        if (global.Numbered(array.stem, number).isNull())
            found = std::min(found, i);
        else
            global.Read(array, number, first + static_cast<std::size_t>(i) * array.table.size, call);
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
    WriteNumbered(kPeriodStem, WrittenOf(field, record), call,
                  [&](std::size_t i) { WriteRecord(kTimePeriod, first + i * sizeof(CFG_TIME_PERIOD_INFO), call); });
}

void WriteNumberedAreas(const Field& field, const std::byte* record, WriteCall& call) {
    const auto* const first = Load<const std::byte*>(record + field.offset);
    WriteNumbered(kAreasStem, WrittenOf(field, record), call, [&](std::size_t i) {
        const std::byte* const areas = first + i * sizeof(CFG_CALIBRATE_AREAS_INFO);
        // Devices tell a number without areas from one that is missing by this text.
        if (MEMBER(areas, CFG_CALIBRATE_AREAS_INFO, nAreaNum) <= 0) return call.out.String("null");
        WriteRecord(kCalibrateAreas, areas, call);
    });
}

template <class Object>
void ReadNumberedScenes(const Object& global, std::byte* record, ReadCall& call) noexcept {
    std::byte* const first = record + offsetof(CFG_ANALYSEGLOBAL_INFO, stuScenes);
    std::int32_t count = 0;
    for (std::uint32_t i = 0; i + 1 < kMostNumbered; ++i) {
        const Value& scene = global.Numbered(kSceneStem, i + 1);
        if (scene.isNull()) break;
        if (!scene.isObject()) continue;
        global.ReadScene(scene, first + i * sizeof(CFG_ANALYSE_SCENE_INFO), call);
        ++count;
    }
    SET_MEMBER(record, CFG_ANALYSEGLOBAL_INFO, nSceneNum, count);
}

void WriteNumberedScenes(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int64_t count = std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, kMostNumbered);
    WriteNumbered(kSceneStem, static_cast<std::uint32_t>(count), call, [&](std::size_t i) {
        WriteRecord(kAnalyseScene, record + field.offset + i * sizeof(CFG_ANALYSE_SCENE_INFO), call);
    });
}

} // namespace

constexpr CustomCodec kClockTimes{ReadClockTimes,
                                  WriteClockTimes,
                                  R"(["07:10:20","18:30:40"])",
                                  PutClockTimes,
                                  kMostClocks*(json::Hand::kSeparator + JsonParser::kClockText) + 4,
                                  ReadClockTimesText};
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

namespace {

// What is asked of a channel's object, once its rows have been read: of the object itself,
struct WholeGlobal {
    const Value& object;

    const Value& Detail() const noexcept { return object["Scene"]["Detail"]; }
    const Value& Numbered(std::string_view stem, std::uint32_t number) const noexcept {
        return object[NumberedName(stem, number)];
    }
    void Read(const NumberedArray& array, std::uint32_t number, std::byte* at, ReadCall& call) const noexcept {
        if (call.Keep(at, array.table.size)) ReadRecord(array.table, Numbered(array.stem, number), at, call);
    }
    void ReadScene(const Value& scene, std::byte* at, ReadCall& call) const noexcept {
        ReadRecord(kAnalyseScene, scene, at, call);
    }
    void StoreAreaTypes(std::byte* areas) const noexcept { ReadAreaTypes(object["CalibrateArea"], areas); }
};

// and of what was kept of its text. Entries of the caller's arrays have been read by then.
struct KeptGlobal : Asides {
    static constexpr std::size_t kStems = 3;
    struct Key {
        std::size_t stem = kStems; // none
        std::uint32_t number = 0;
    };

    explicit KeptGlobal(const Asides& asides) noexcept
        : Asides(asides), areas(record + offsetof(CFG_ANALYSEGLOBAL_INFO, stuCalibrateAreas)) {}

    const Value any = Value::OfBool(true);               // stands for one that was read already
    const Value readScene = Value::OfObject(nullptr, 0); // and for a scene
    const Value* detail = nullptr;
    const Value* numbered[kStems][kMostNumbered] = {}; // those that came
    std::byte* areas;                                  // whose types are being read
    AreaTypes types;
    std::uint32_t scenesInRow = 0; // that came, from the first on
    bool sceneHasDetail = false;   // the one that is being read

    static std::size_t StemOf(std::string_view stem) noexcept { return stem[0] == 'S' ? 0 : stem[0] == 'T' ? 1 : 2; }
    const Value& Detail() const noexcept { return detail == nullptr ? json::kNull : *detail; }
    const Value& Numbered(std::string_view stem, std::uint32_t number) const noexcept {
        const Value* const value = numbered[StemOf(stem)][number - 1];
        return value == nullptr ? json::kNull : *value;
    }
    void Read(const NumberedArray&, std::uint32_t, std::byte*, ReadCall&) const noexcept {}
    void ReadScene(const Value& scene, std::byte* at, ReadCall& call) const noexcept {
        if (&scene != &readScene) ReadRecord(kAnalyseScene, scene, at, call);
    }
    void StoreAreaTypes(std::byte* at) const noexcept { types.Store(at); }

    static Key KeyOf(std::string_view key) noexcept {
        static constexpr std::string_view kTexts[kStems] = {kSceneStem, kPeriodStem, kAreasStem};
        const std::size_t stem = StemOf(key);
        const std::string_view text = kTexts[stem];
        if (!key.starts_with(text)) return {};
        const std::string_view digits = key.substr(text.size());
        if (digits.empty() || digits.size() > 2 || digits[0] == '0') return {};
        std::uint32_t number = 0;
        for (const char digit : digits) {
            if (digit < '0' || digit > '9') return {};
            number = number * 10 + static_cast<std::uint32_t>(digit - '0');
        }
        return number > kMostNumbered ? Key{} : Key{stem, number};
    }
};

const Value* KeepDocument(const char*& p, TextCall& text) noexcept {
    auto* const value = text.arena().Array<Value>(1);
    if (value == nullptr)
        p = nullptr;
    else
        p = ReadAside(p, *new (value) Value, text);
    return value;
}

// The list of areas behind a number, each of which is kept when it comes.
const char* ReadAreas(KeptGlobal& global, const char* p, std::byte* info, TextCall& text) noexcept {
    using Info = CFG_CALIBRATE_AREAS_INFO;
    if (!text.call.Keep(info + offsetof(Info, nAreaNum), sizeof(Info::nAreaNum))) return nullptr;
    std::byte* const around = std::exchange(global.areas, info + offsetof(Info, stuAreas));
    const AreaTypes typesAround = std::exchange(global.types, {});
    std::int32_t count = 0;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        if (count < ORRERY_CALIBRATE_AREAS) {
            std::byte* const area = global.areas + count++ * std::int64_t{sizeof(CFG_CALIBRATE_AREA)};
            if (!text.call.Keep(area, sizeof(CFG_CALIBRATE_AREA))) return nullptr;
            p = ReadRecordText(kCalibrateArea, step.at, area, text);
        } else {
            p = json::SkipValue(step.at, text.end, text.arena());
        }
        if (p == nullptr) return nullptr;
        step = json::NextEntry(p, text.end, ']');
    }
    SET_MEMBER(info, Info, nAreaNum, count);
    global.types.Store(global.areas);
    global.types = typesAround;
    global.areas = around;
    return step.at;
}

// An entry of a caller's array: read at once, as long as its key comes once.
const char* ReadEntry(KeptGlobal& global, const NumberedArray& array, std::uint32_t number, const char* p,
                      TextCall& text) noexcept {
    auto* const first = Load<std::byte*>(global.record + array.first);
    const bool hasRoom =
        first != nullptr && static_cast<std::int64_t>(number) <= Load<std::int32_t>(global.record + array.room);
    const bool areAreas = &array == &kAreasArray;
    if (!hasRoom || *p == 'n' || (areAreas && *p != '[')) return json::SkipValue(p, text.end, text.arena());
    std::byte* const at = first + (number - 1) * std::size_t{array.table.size};
    const bool keepsRows = std::exchange(text.keepsRows, false);
    if (areAreas)
        p = ReadAreas(global, p, at, text);
    else
        p = text.call.Keep(at, array.table.size) ? ReadRecordText(array.table, p, at, text) : nullptr;
    text.keepsRows = keepsRows;
    return p;
}

constexpr KeptRuns kGlobalRuns(kAnalyseGlobal), kSceneRuns(kAnalyseScene);

// A scene behind those in front of it, which no number is missing of, is read at once. Where it has a detail, its types
// settle what that is: it waits as a document, as scenes out of order do.
static_assert(!kAnalyseScene.hasDefaults && !kAnalyseScene.clearsFlags && kAnalyseScene.suppliedCount == 0);
const Value* KeepScene(KeptGlobal& global, std::uint32_t number, const char*& p, TextCall& text) noexcept {
    const bool isNext = number == global.scenesInRow + 1;
    if (isNext && *p != 'n') ++global.scenesInRow;
    if (!isNext || *p != '{' || number == kMostNumbered) return KeepDocument(p, text);
    std::byte* const scenes = global.record + offsetof(CFG_ANALYSEGLOBAL_INFO, stuScenes);
    global.sceneHasDetail = false;
    const char* const behind =
        ReadMembersText(kAnalyseScene, kSceneRuns, p, scenes + (number - 1) * sizeof(CFG_ANALYSE_SCENE_INFO), text);
    if (behind != nullptr && global.sceneHasDetail) return KeepDocument(p, text);
    p = behind;
    return &global.readScene;
}

const char* KeepAside(Asides& asides, const Unread& unread, const char* p, TextCall& text) noexcept {
    auto& global = static_cast<KeptGlobal&>(asides);
    const Field* const row = unread.row;
    if (&unread.table == &kCalibrateArea && row != nullptr && row->offset == offsetof(CFG_CALIBRATE_AREA, nType)) {
        const Value* const type = KeepDocument(p, text);
        if (p == nullptr) return nullptr;
        const auto area = static_cast<std::size_t>(unread.record - global.areas) / sizeof(CFG_CALIBRATE_AREA);
        if (area >= ORRERY_CALIBRATE_AREAS) return nullptr; // no area of this list
        global.types.Set(area, *type);
        return p;
    }
    if (&unread.table == &kAnalyseScene && row != nullptr) {
        global.sceneHasDetail = *p != 'n';
        return json::SkipValue(p, text.end, text.arena());
    }
    if (&unread.table != &kAnalyseGlobal) return json::SkipValue(p, text.end, text.arena());
    if (row != nullptr && row->offset == offsetof(CFG_ANALYSEGLOBAL_INFO, stuDetail)) {
        if (*p == '{') {
            global.detail = KeepDocument(p, text);
            return p;
        }
        // It has no keys, but says that there is a detail.
        global.detail = *p == 'n' ? nullptr : &global.any;
        return json::SkipValue(p, text.end, text.arena());
    }
    const auto [stem, number] = KeptGlobal::KeyOf(unread.key);
    if (stem == KeptGlobal::kStems) return json::SkipValue(p, text.end, text.arena());
    const Value*& value = global.numbered[stem][number - 1];
    if (value != nullptr) return nullptr;
    if (stem == KeptGlobal::StemOf(kSceneStem)) {
        value = KeepScene(global, number, p, text);
        return p;
    }
    value = *p == 'n' ? &json::kNull : &global.any;
    return ReadEntry(global, stem == KeptGlobal::StemOf(kPeriodStem) ? kPeriodArray : kAreasArray, number, p, text);
}

template <class Object>
void FinishGlobal(const Object& global, std::byte* record, ReadCall& call) noexcept {
    using Global = CFG_ANALYSEGLOBAL_INFO;
    ReadNumbered(kPeriodArray, global, record, call);
    const GlobalTypes types(record);
    const Value& detail = global.Detail();
    for (const std::string_view type : types.all())
        ReadSceneDetail(type, detail, record + offsetof(Global, stuDetail), call);
    global.StoreAreaTypes(record + offsetof(Global, stuCalibrateAreas));
    ReadNumbered(kAreasArray, global, record, call);
    ReadNumberedScenes(global, record, call);
}

void FinishKept(Asides& asides, ReadCall& call) noexcept {
    FinishGlobal(static_cast<const KeptGlobal&>(asides), asides.record, call);
}

} // namespace

Asides* KeepOfGlobal(std::byte* record, Arena& arena) {
    void* const room = arena.Allocate(sizeof(KeptGlobal));
    return room == nullptr ? nullptr : new (room) KeptGlobal({record, KeepAside, FinishKept, &kGlobalRuns});
}

void ReadGlobalOfTypes(const Value& global, std::byte* record, ReadCall& call) {
    if (!global.isNull()) FinishGlobal(WholeGlobal{global}, record, call); // else the caller's record stays as it was
}

} // namespace orrery::scenes
