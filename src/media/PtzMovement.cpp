#include "media/PtzMovement.h"

#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;

// ---- "PtzAutoMovement" ----

namespace {

NAMES(kMovements, kFolded.Unknown(CFG_PTZ_MOVEMENT_NONE).OutsideWrites("None"),
      {
          {CFG_PTZ_MOVEMENT_TOUR, "Tour"},
          {CFG_PTZ_MOVEMENT_PATTERN, "Pattern"},
          {CFG_PTZ_MOVEMENT_PRESET, "Preset"},
          {CFG_PTZ_MOVEMENT_SCAN, "Scan"},
      });

PART(kMovement, CFG_PTZ_AUTO_MOVEMENT,
     {
         FIELD(bEnable, "Enable", Bool).WrittenAs(Int),
         FIELD(stuTimeSection, "TimeSection", TimeSection),
         FIELD(emFunction, "Function", Names(kMovements)),
         FIELD(nTourId, "TourId", Int),
         FIELD(nPatternId, "PatternId", Int),
         FIELD(nPresetId, "PresetId", Int),
         FIELD(nScanId, "ScanId", Int),
         FIELD(bAutoHoming, "AutoHoming/Enable", Bool).WrittenAs(Int),
         FIELD(nAutoHomingTime, "AutoHoming/Time", Int),
         FIELD(bSnapshotEnable, "SnapshotEnable", Bool).WrittenAs(Int),
         FIELD(nSnapshotDelayTime, "SnapshotDelayTime", Int),
     });

PART(kMovementChannel, CFG_PTZ_AUTO_MOVEMENT_CHANNEL,
     {
         FIELD(stuItems, "", Record(kMovement)).Count(AT(nCount)),
         FIELD(nCount),
     });

// Movements behind the last of the list stay what the caller has there.
void ReadChannel(const json::Value& list, std::byte* channel, ReadCall& call) {
    std::uint32_t count = 0;
    for (const json::Value& item : list.elements()) {
        if (count == ORRERY_PTZ_MOVEMENTS) break;
        std::byte* const movement = channel + count++ * sizeof(CFG_PTZ_AUTO_MOVEMENT);
        std::memset(movement, 0, sizeof(CFG_PTZ_AUTO_MOVEMENT));
        ReadRecord(kMovement, item, movement, call);
    }
    SET_MEMBER(channel, CFG_PTZ_AUTO_MOVEMENT_CHANNEL, nCount, count);
}

std::byte* ChannelAt(const std::byte* record, std::uint32_t index) {
    auto* const first = reinterpret_cast<std::byte*>(MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, pstuChannels));
    return first + std::size_t{index} * sizeof(CFG_PTZ_AUTO_MOVEMENT_CHANNEL);
}
bool HasCount(const std::byte* channel) {
    const auto count = MEMBER(channel, CFG_PTZ_AUTO_MOVEMENT_CHANNEL, nCount);
    return count >= 1 && count <= ORRERY_PTZ_MOVEMENTS;
}

// The first element alone tells whether the list is one channel's or a list of them.
void ReadChannels(const Field&, const json::Value& value, std::byte* record, ReadCall& call) {
    const bool isMany = value[0].type() == json::Type::Array;
    const std::uint32_t told = isMany ? value.size() : 1;
    const auto room = std::max(MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, nMaxChannel), 0);
    for (std::uint32_t i = 0; i < std::min(told, static_cast<std::uint32_t>(room)); ++i)
        ReadChannel(isMany ? value[i] : value, ChannelAt(record, i), call);
    SET_MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, nReturnChannel, static_cast<std::int32_t>(told));
}
void WriteChannels(const Field&, const std::byte* record, WriteCall& call) {
    const std::int32_t told = std::min(MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, nReturnChannel),
                                       MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, nMaxChannel));
    if (told < 1) return;
    const auto count = static_cast<std::uint32_t>(told);
    if (count == 1) return WriteRecord(kMovementChannel, ChannelAt(record, 0), call);
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < count; ++i) {
        if (HasCount(ChannelAt(record, i)))
            WriteRecord(kMovementChannel, ChannelAt(record, i), call);
        else
            call.out.String("none");
    }
    call.out.EndArray();
}
constexpr CustomCodec kMovementChannels{
    ReadChannels, WriteChannels,
    R"([[{"Enable":1,"TimeSection":"1 08:00:00-17:30:00","Function":"Scan","ScanId":2},{"Function":"Tour","TourId":3}],
        [{"Function":"Preset","AutoHoming":{"Enable":1,"Time":30}}]])"};

} // namespace

bool HasMovementArray(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, pstuChannels) != nullptr;
}
bool HasMovements(const std::byte* record, std::uint32_t size) {
    const auto count = MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, nReturnChannel);
    if (!HasMovementArray(record, size) || count < 1
        || count > MEMBER(record, CFG_PTZ_AUTO_MOVEMENT_INFO, nMaxChannel)) {
        return false;
    }
    return count > 1 || HasCount(ChannelAt(record, 0));
}

TABLE(kPtzAutoMovement, CFG_PTZ_AUTO_MOVEMENT_INFO,
      {
          FIELD(pstuChannels, "", Custom(kMovementChannels))
              .PointsTo(kMovementChannel)
              .Capacity(AT(nMaxChannel))
              .CountUncapped(AT(nReturnChannel)),
          FIELD(nMaxChannel),
          FIELD(nReturnChannel),
      });

// ---- "IdleMotion", "StandingTime" ----

namespace {

NAMES(kIdleFunctions, kFolded.Unknown(CFG_IDLE_NONE),
      {
          {CFG_IDLE_NONE, "None"},
          {CFG_IDLE_PRESET, "Preset"},
          {CFG_IDLE_SCAN, "Scan"},
          {CFG_IDLE_TOUR, "Tour"},
          {CFG_IDLE_PATTERN, "Pattern"},
      });

} // namespace

TABLE(kIdleMotion, CFG_IDLE_MOTION_INFO,
      {
          FIELD(bEnable, "Enable", Bool).TrueAtOne(),
          FIELD(nTimer, "Timer", Int),
          FIELD(emFunction, "Function", Names(kIdleFunctions)),
          FIELD(nPresetId, "PresetId", Int),
          FIELD(nScanId, "ScanId", Int),
          FIELD(nTourId, "TourId", Int),
          FIELD(nPatternId, "PatternId", Int),
      });

TABLE(kStandingTime, CFG_STANDING_TIME_INFO,
      {
          FIELD(bEnable, "Enable", Bool).TrueAtOne(),
          FIELD(nUpperlimit, "Upperlimit", Int),
          FIELD(nInterval, "Interval", Int),
      });

// ---- "EnclosureTimeSchedule" ----

namespace {

PART(kEnclosure, CFG_ENCLOSURE,
     {
         FIELD(nEnclosureId, "EnclosureID", Int),
         FIELD(stuTimeSchedule, "TimeSchedule", Schedule),
     });

// Devices with one enclosure leave the list out around it.
void ReadOnlyEnclosure(const json::Value& schedule, std::byte* record, ReadCall& call) {
    const json::Value& enclosure = schedule["Enclosure"];
    if (enclosure.type() != json::Type::Object) return;
    ReadRecord(kEnclosure, enclosure, record + offsetof(CFG_ENCLOSURE_SCHEDULE_INFO, stuEnclosures), call);
    SET_MEMBER(record, CFG_ENCLOSURE_SCHEDULE_INFO, nCount, 1);
}

} // namespace

TABLE(kEnclosureSchedule, CFG_ENCLOSURE_SCHEDULE_INFO,
      {
          FIELD(nCount),
          FIELD(stuEnclosures, "Enclosure", Record(kEnclosure)).Count(AT(nCount)),
          FIELD(szVersion, "Version", Text),
      })
    .AfterRead(ReadOnlyEnclosure);

} // namespace orrery
