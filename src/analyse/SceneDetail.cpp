#include "analyse/SceneDetail.h"

#include "frame/Log.h"
#include "frame/record/Chosen.h"

namespace orrery::scenes {

// ---- Rows of their own ----

bool HasOneDirection(const std::byte* lane) {
    return MEMBER(lane, CFG_LANE_INFO, bDirectionList) == 0;
}

namespace {

// Where the cars of a lane come from and go to: three texts of one list.
void ReadDriving(const Field&, const json::Value& value, std::byte* lane, ReadCall& call) {
    if (value[0].isNull()) return;
    SET_MEMBER(lane, CFG_LANE_INFO, nDrivingDirection, *kDrivingDirections.CodeOf(value[0].asString()));
    if (value[1].isNull()) return;
    call.parser.GetJsonString(value[1], reinterpret_cast<char*>(lane + offsetof(CFG_LANE_INFO, szDrivingFrom)),
                              sizeof(CFG_LANE_INFO::szDrivingFrom), true);
    if (value[2].isNull()) return;
    call.parser.GetJsonString(value[2], reinterpret_cast<char*>(lane + offsetof(CFG_LANE_INFO, szDrivingTo)),
                              sizeof(CFG_LANE_INFO::szDrivingTo), true);
}

void WriteDriving(const Field&, const std::byte* lane, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    const Name* const direction = kDrivingDirections.RowOf(MEMBER(lane, CFG_LANE_INFO, nDrivingDirection));
    direction != nullptr ? call.out.String(direction->text) : call.out.Null();
    for (const std::size_t at : {offsetof(CFG_LANE_INFO, szDrivingFrom), offsetof(CFG_LANE_INFO, szDrivingTo)}) {
        call.parser.SetJsonString(call.out, reinterpret_cast<const char*>(lane + at),
                                  sizeof(CFG_LANE_INFO::szDrivingFrom), true);
    }
    call.out.EndArray();
}

} // namespace

constexpr CustomCodec kDriving{ReadDriving, WriteDriving, R"(["Leave","North","South"])"};

// A list of driving directions that is cut short ends its lane.
void ReadRank(const json::Value& value, std::byte* lane, ReadCall&) {
    const json::Value& driving = value["DrivingDirection"];
    if (driving.type() == json::Type::Array) {
        for (std::uint32_t i = 0; i < 3; ++i) {
            if (driving[i].isNull()) return;
        }
    }
    const json::Value& rank = value["Rank"];
    if (!rank.isNull()) SET_MEMBER(lane, CFG_LANE_INFO, nRank, *kLaneRanks.CodeOf(rank.asString()));
}

namespace {

// Both points or none: one alone is no line.
void ReadLandline(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    const auto isPair = [](const json::Value& list) { return list.type() == json::Type::Array && list.size() == 2; };
    if (!isPair(value) || !isPair(value[0]) || !isPair(value[1])) return;
    for (std::uint32_t i = 0; i < 4; ++i)
        Store(record + field.offset + i * std::size_t{4}, value[i / 2][i % 2].asInt());
}

void WriteLandline(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    for (std::size_t i = 0; i < 2; ++i)
        WriteRecord(kPoint, record + field.offset + i * sizeof(CFG_POINT), call);
    call.out.EndArray();
}

} // namespace

constexpr CustomCodec kLandline{ReadLandline, WriteLandline, "[[1,2],[3,4]]"};

// ---- Keys by the scene's type ----

namespace {

using Detail = CFG_SCENE_DETAIL_INFO;

// The height and the distance: of two tables with the same keys, the last type of a list settles which one has them.
constexpr unsigned kCamera = 16;

// The record has the groups one behind the other.
bool IsOfGroups(const Field& row, unsigned groups) noexcept {
    unsigned group = kNormal;
    if (row.offset < offsetof(Detail, stuNearDetectPoint))
        group = kCamera;
    else if (row.offset == offsetof(Detail, szPlateHints))
        group = kTraffic | kPlateHints;
    else if (row.offset < offsetof(Detail, bFaceScene))
        group = kTraffic;
    else if (row.offset < offsetof(Detail, nMainDirectionNum))
        group = kCamera;
    else if (row.offset < offsetof(Detail, dCameraAngle))
        group = kFaces;
    return (group & groups) != 0;
}

bool HasCamera(Group group) noexcept {
    return group == kTraffic || group == kNormal || group == kFaces;
}

const Table& DetailOf(Group group) noexcept {
    return group == kFaces ? kFaceDetail : kSceneDetail;
}

} // namespace

Group GroupOfScene(std::string_view type) noexcept {
    if (type == "Traffic" || type == "Highway" || type == "City") return kTraffic;
    if (type == "FaceRecognition" || type == "FaceDetection") return kFaces;
    if (type == "TrafficPatrol") return kPlateHints;
    if (type == "Normal" || type == "NumberStat") return kNormal;
    return kNoGroup;
}

void ReadSceneDetail(std::string_view type, const json::Value& detail, std::byte* record, ReadCall& call) noexcept {
    const Group group = GroupOfScene(type);
    if (group == kNoGroup || detail.isNull()) return;
    if (group == kFaces) SET_MEMBER(record, Detail, bFaceScene, 1);
    ReadChosen(DetailOf(group), detail, record, call, {IsOfGroups, group | (HasCamera(group) ? kCamera : 0)});
}

void WriteSceneDetail(std::span<const std::string_view> types, const std::byte* record, WriteCall& call) noexcept {
    unsigned groups = 0;
    Group camera = kNoGroup;
    for (const std::string_view type : types) {
        const Group group = GroupOfScene(type);
        if (group == kNoGroup) {
            LogSetPosition("VideoAnalyseConfig", __LINE__, E_LOG_LEVEL_DETAIL);
            LogTrace(E_LOG_CODE_NONE, "There is no configuration about this scene type.");
        }
        groups |= group;
        if (HasCamera(group)) camera = group;
    }
    if (camera != kNoGroup) groups |= kCamera;
    if (groups != 0) WriteChosen(DetailOf(camera), record, call, {IsOfGroups, groups});
}

} // namespace orrery::scenes
