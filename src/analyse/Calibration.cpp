#include "analyse/Calibration.h"

#include "frame/json/Pen.h"
#include "frame/json/Tokens.h"

#include <algorithm>
#include <cstring>

namespace orrery {

namespace scenes {

namespace {

// ---- Corners ----

void ReadClosedCorners(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    if (!value.isArray()) return;
    const auto elements = value.elements();
    std::byte* corner = record + field.offset;
    std::int32_t count = 0;
    for (const json::Value& element : elements.first(std::min<std::size_t>(elements.size(), ORRERY_RULE_POINTS))) {
        if (element.isNull()) continue;
        ++count;
        if (element.size() < 2) continue;
        SET_MEMBER(corner, CFG_POLYGON, nX, element[0].asInt());
        SET_MEMBER(corner, CFG_POLYGON, nY, element[1].asInt());
        corner += sizeof(CFG_POLYGON);
    }
    StoreSlot(field.count, record, count);
}

void WriteClosedCorners(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int64_t count = std::min<std::int64_t>(LoadSlot(field.count, record), ORRERY_RULE_POINTS);
    if (count <= 0) return;
    call.Key();
    call.out.BeginArray();
    for (std::int64_t i = 0; i < count; ++i)
        WriteRecord(kCorner, record + field.offset + i * std::int64_t{sizeof(CFG_POLYGON)}, call);
    call.out.EndArray();
}

constexpr std::size_t kCornersRoom = ORRERY_RULE_POINTS * (json::Hand::kSeparator + json::Pen::kPairRoom) + 4;
char* PutClosedCorners(const Field& field, const std::byte* record, char* to) {
    const std::int64_t count = std::min<std::int64_t>(LoadSlot(field.count, record), ORRERY_RULE_POINTS);
    if (count <= 0) return nullptr;
    const std::byte* corner = record + field.offset;
    const std::byte* const end = corner + static_cast<std::size_t>(count) * sizeof(CFG_POLYGON);
    char* next = to;
    for (; corner != end; corner += sizeof(CFG_POLYGON)) {
        const auto x = MEMBER(corner, CFG_POLYGON, nX), y = MEMBER(corner, CFG_POLYGON, nY);
        next = json::Pen::PutPair(json::Hand::Separate(next), x, y);
    }
    return json::Hand::PutBrackets(to, next);
}

const char* ReadClosedCornersText(const Field& field, const char* p, const char* end, std::byte* record) {
    if (*p != '[') return nullptr;
    std::byte* corner = record + field.offset;
    std::int32_t count = 0;
    json::Step step = json::FirstEntry(p, end, ']');
    for (; step.more; ++count, corner += sizeof(CFG_POLYGON)) {
        std::int32_t x, y;
        if (count == ORRERY_RULE_POINTS || (p = json::ReadShortPair(step.at, end, x, y)) == nullptr) return nullptr;
        SET_MEMBER(corner, CFG_POLYGON, nX, x);
        SET_MEMBER(corner, CFG_POLYGON, nY, y);
        step = json::NextEntry(p, end, ']');
    }
    if (step.at != nullptr) StoreSlot(field.count, record, count);
    return step.at;
}

} // namespace

constexpr CustomCodec kClosedCorners{ReadClosedCorners, WriteClosedCorners, "[[1,2],[3,4]]",
                                     PutClosedCorners,  kCornersRoom,       ReadClosedCornersText};

// ---- Types of areas ----

void AreaTypes::Store(std::byte* areas) const noexcept {
    if (std::all_of(all, all + count, [](const json::Value* type) { return type->isNull(); })) return;
    for (std::uint32_t i = 0; i < kCalibrateTypes.count && i < count; ++i) {
        if (!EqualsFolded(all[i]->asString(), kCalibrateTypes.rows[i].text)) continue;
        SET_MEMBER(areas + i * sizeof(CFG_CALIBRATE_AREA), CFG_CALIBRATE_AREA, nType, kCalibrateTypes.rows[i].code);
    }
}

void ReadAreaTypes(const json::Value& list, std::byte* areas) noexcept {
    AreaTypes types;
    for (const json::Value& area : list.elements()) {
        if (types.count == ORRERY_CALIBRATE_AREAS) break;
        types.Set(types.count, area["Type"]);
    }
    types.Store(areas);
}

void ReadAreasInfoTypes(const json::Value& list, std::byte* info, ReadCall&) {
    ReadAreaTypes(list, info + offsetof(CFG_CALIBRATE_AREAS_INFO, stuAreas));
}

// ---- "VideoAnalyseCalibrate" ----

namespace {

constexpr std::int32_t kHalfTurn = 1800; // tenths of a degree
constexpr std::int32_t kMostZoom = 128;

bool IsNumber(const json::Value& value) noexcept {
    return value.isInt() || value.isUInt() || value.type() == json::Type::Real;
}

std::int32_t PanOf(double x) noexcept {
    if (x >= 0 && x <= 1) return static_cast<std::int32_t>(x * kHalfTurn + 0.5);
    if (x >= -1 && x < 0) return static_cast<std::int32_t>(x * kHalfTurn + 2 * kHalfTurn);
    return 0;
}

void ReadPosition(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    using Scene = CFG_CALIBRATE_SCENE_INFO;
    const auto numbers = value.elements();
    if (numbers.size() != 3 || !std::all_of(numbers.begin(), numbers.end(), IsNumber)) return;
    SET_MEMBER(record, Scene, nPositionPan, PanOf(numbers[0].asDouble()));
    const double tilt = numbers[1].asDouble();
    if (tilt >= -1 && tilt <= 1) {
        const double scaled = tilt * -kHalfTurn;
        SET_MEMBER(record, Scene, nPositionTilt, static_cast<std::int32_t>(scaled >= 0 ? scaled + 0.5 : scaled - 0.5));
    } else {
        // Where the camera cannot look, a pan of its own says nothing.
        SET_MEMBER(record, Scene, nPositionPan, 0);
    }
    const double zoom = numbers[2].asDouble();
    const bool isZoom = zoom >= 0 && zoom <= 1;
    SET_MEMBER(record, Scene, nPositionZoom, isZoom ? static_cast<std::int32_t>(zoom * kMostZoom + 0.5) : 0);
}

void WritePosition(const Field&, const std::byte* record, WriteCall& call) {
    using Scene = CFG_CALIBRATE_SCENE_INFO;
    const double pan = MEMBER(record, Scene, nPositionPan);
    const double tilt = MEMBER(record, Scene, nPositionTilt);
    const double zoom = MEMBER(record, Scene, nPositionZoom);
    const auto write = [&](bool isInRange, double number) { isInRange ? call.out.Real(number) : call.out.Int(0); };
    call.Key();
    call.out.BeginArray();
    write(pan >= 0 && pan <= 2 * kHalfTurn, (pan < kHalfTurn ? pan : pan - 2 * kHalfTurn) / kHalfTurn);
    write(tilt >= -10 * kHalfTurn && tilt <= kHalfTurn, tilt / -kHalfTurn);
    write(zoom >= 1 && zoom <= kMostZoom, zoom / kMostZoom);
    call.out.EndArray();
}

constexpr CustomCodec kPosition{ReadPosition, WritePosition, "[0.25,-0.5,0.5]"};

// Also what belongs to the list as a whole. An element that is no scene ends the list of scenes, and the call with it.
void FinishScene(const json::Value& scene, std::byte* record, ReadCall& call) {
    if (!scene.isObject()) {
        call.refused = true;
        return;
    }
    const json::Value& areas = scene["CalibrateArea"];
    if (!areas.isArray()) SET_MEMBER(record, CFG_CALIBRATE_SCENE_INFO, nPtzPresetId, 0);
    ReadAreaTypes(areas, record + offsetof(CFG_CALIBRATE_SCENE_INFO, stuAreas));
}

PART(kCalibrateScene, CFG_CALIBRATE_SCENE_INFO,
     {
         FIELD(nSceneId, "SceneID", Int),
         FIELD(nPtzPresetId, "PtzPresetID", Int),
         FIELD(bCalibrateArea, "CalibrateArea", Presence),
         FIELD(nAreaNum),
         FIELD(stuAreas, "CalibrateArea", Record(kCalibrateArea)).Count(AT(nAreaNum)).AtLeast(1),
         FIELD(nPositionPan, "Position", Custom(kPosition)),
         FIELD(nPositionTilt),
         FIELD(nPositionZoom),
     })
    .AfterRead(FinishScene);

} // namespace

} // namespace scenes

using namespace record;

TABLE(
    kAnalyseCalibrate, CFG_VIDEOANALYSE_CALIBRATE_INFO,
    {
        FIELD(nMax),
        FIELD(nRet),
        FIELD(pScenes, "", Record(scenes::kCalibrateScene)).Capacity(AT(nMax)).Count(AT(nRet)).WriteEmpty(Empty::Array),
    });
static_assert(sizeof(CFG_VIDEOANALYSE_CALIBRATE_INFO) == 16);

bool HasCalibrateRoom(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_VIDEOANALYSE_CALIBRATE_INFO, pScenes) != nullptr;
}

bool HasCalibrateScenes(const std::byte* record, std::uint32_t size) {
    return MEMBER(record, CFG_VIDEOANALYSE_CALIBRATE_INFO, nRet) <= 0 || HasCalibrateRoom(record, size);
}

} // namespace orrery
