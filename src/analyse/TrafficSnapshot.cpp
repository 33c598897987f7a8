#include "analyse/TrafficSnapshot.h"

#include "alarm/EventHandler.h"
#include "analyse/TrafficParts.h"
#include "frame/Command.h"

#include <algorithm>

namespace orrery {

using namespace record;

namespace {

using Snapshot = CFG_TRAFFICSNAPSHOT_INFO;
using SnapshotNew = CFG_TRAFFICSNAPSHOT_NEW_INFO;
using Descriptor = CFG_TRAFFICSNAPSHOT_DESCRIPTOR;

NAMES(kBarPositions, kFolded,
      {
          {CFG_OSD_BAR_TOP, "TOP"},
          {CFG_OSD_BAR_BOTTOM, "BOTTOM"},
      });

NAMES(kAttrSchemes, kFolded,
      {
          {CFG_OSD_ATTR_WHOLE, "Whole"},
          {CFG_OSD_ATTR_EVERY_ITEM, "Every Item"},
      });

NAMES(kContentSchemes, kFolded,
      {
          {CFG_OSD_CONTENT_MASK, "Mask"},
          {CFG_OSD_CONTENT_CUSTOMIZE_SORT, "CustomizeSort"},
      });

NAMES(kRedLightDisplays, kFolded,
      {
          {CFG_RED_LIGHT_LAST, "Last"},
          {CFG_RED_LIGHT_ALL, "All"},
      });

NAMES(kDetectorDirections, kFolded,
      {
          {CFG_DETECTOR_OBVERSE, "Obverse"},
          {CFG_DETECTOR_REVERSE, "Reverse"},
      });

PART(kBreakingSnapTimes, CFG_BREAKING_SNAP_TIMES,
     {
         FIELD(nNormal, "Normal", Int),
         FIELD(nRunRedLight, "RunRedLight", Int),
         FIELD(nOverLine, "OverLine", Int),
         FIELD(nOverYellowLine, "OverYellowLine", Int),
         FIELD(nRetrograde, "Retrograde", Int),
         FIELD(nUnderSpeed, "UnderSpeed", Int),
         FIELD(nOverSpeed, "OverSpeed", Int),
         FIELD(nWrongRunningRoute, "WrongRunningRoute", Int),
         FIELD(nYellowInRoute, "YellowInRoute", Int),
         FIELD(nSpecialRetrograde, "SpecialRetrograde", Int),
         FIELD(nTurnLeft, "TurnLeft", Int),
         FIELD(nTurnRight, "TurnRight", Int),
         FIELD(nCrossLane, "CrossLane", Int),
         FIELD(nUTurn, "U-Turn", Int),
         FIELD(nParking, "Parking", Int),
         FIELD(nWaitingArea, "WaitingArea", Int),
         FIELD(nWrongRoute, "WrongRoute", Int),
         FIELD(nParkingSpaceParking, "ParkingSpaceParking", Int),
         FIELD(nParkingSpaceNoParking, "ParkingSpaceNoParking", Int),
         FIELD(nRunYellowLight, "RunYellowLight", Int),
         FIELD(nStay, "Stay", Int),
         FIELD(nPedestrainPriority, "PedestrainPriority", Int),
         FIELD(nVehicleInBusRoute, "VehicleInBusRoute", Int),
         FIELD(nBacking, "Backing", Int),
         FIELD(nOverStopLine, "OverStopLine", Int),
         FIELD(nParkingOnYellowBox, "ParkingOnYellowBox", Int),
         FIELD(nRestrictedPlate, "RestrictedPlate", Int),
         FIELD(nNoPassing, "NoPassing", Int),
         FIELD(nWithoutSafeBelt, "WithoutSafeBelt", Int),
         FIELD(nDriverSmoking, "DriverSmoking", Int),
         FIELD(nDriverCalling, "DriverCalling", Int),
         FIELD(nPedestrianRunRedLight, "PedestrianRunRedLight", Int),
         FIELD(nPassNotInOrder, "PassNotInOrder", Int),
     });

PART(kRadar, CFG_RADAR_INFO,
     {
         FIELD(nAngle, "Angle", Int),
         FIELD(nAntiJammingValue, "AntiJammingValue", Int),
         FIELD(nComeInValue, "ComeInValue", Int),
         FIELD(nComeOutValue, "ComeOutValue", Int),
         FIELD(nDelayTime, "DelayTime", Int),
         FIELD(nDetectBreaking, "DetectBreaking", UInt),
         FIELD(nDetectMode, "DetectMode", Int),
         FIELD(nInstallMode, "InstallMode", Int),
         FIELD(nLevel, "Level", Int),
         FIELD(nMultiTargetFilter, "MultiTargetFilter", Int),
         FIELD(nWentEndValue, "WentEndValue", Int),
         FIELD(nWentInValue, "WentInValue", Int),
         FIELD(nWentOutValue, "WentOutValue", Int),
     });

PART(kCoil, CFG_COIL_CONFIG,
     {
         FIELD(nDelayFlashID, "DelayFlashID", Int),
         FIELD(nFlashSerialNum, "FlashSerialNum", Int),
         FIELD(nFlashSerialNum2, "FlashSerialNum2", Int),
         FIELD(nFlashSerialNum3, "FlashSerialNum3", Int),
         FIELD(nRedDirection, "RedDirection", Int),
         FIELD(nTriggerMode, "TriggerMode", Int),
     });

PART(kDetector, CFG_DETECTOR_INFO,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nDetectBreaking, "DetectBreaking", Int),
         FIELD(nMaskRetrograde, "MaskRetrograde", Int),
         FIELD(nCoilConfigNum),
         FIELD(stuCoilConfig, "CoilConfig", Record(kCoil)).Count(AT(nCoilConfigNum)),
         FIELD(nRoadwayNumber, "RoadwayNumber", Int),
         FIELD(szCustomParkNo, "CustomParkNo", Text),
         FIELD(szDrivingDirection, "DrivingDirection", Text).UntilEmpty(),
         FIELD(szDrivingDirection1, "DrivingDirection1", Text).UntilEmpty(),
         FIELD(nRoadwayDirection, "RoadwayDirection", Int),
         FIELD(nRedLightCardNum, "RedLightCardNum", Int),
         FIELD(nCoilsNumber, "CoilsNumber", Int),
         FIELD(nOperationType, "OperationType", Int),
         FIELD(nCoilsDistance, "CoilsDistance", Int),
         FIELD(nCoilsWidth, "CoilsWidth", Int),
         FIELD(bSpeedLimitForSize, "SpeedLimitForSize", Bool),
         FIELD(nSmallCarSpeedLimit, "SmallCarSpeedLimit", Int),
         FIELD(nBigCarSpeedLimit, "BigCarSpeedLimit", Int),
         FIELD(nOverSpeedMargin, "OverSpeedMargin", Int),
         FIELD(nBigCarOverSpeedMargin, "BigCarOverSpeedMargin", Int),
         FIELD(nUnderSpeedMargin, "UnderSpeedMargin", Int),
         FIELD(nBigCarUnderSpeedMargin, "BigCarUnderSpeedMargin", Int),
         FIELD(nOverPercentage, "OverPercentage", Int),
         FIELD(nYellowSpeedLimit, "YellowSpeedLimit", Int),
         FIELD(nRoadType, "RoadType", Int),
         FIELD(nSnapMode, "SnapMode", Int),
         FIELD(nDelayMode, "DelayMode", Int),
         FIELD(nDelayTime, "DelayTime", Int),
         FIELD(nErrorRange, "ErrorRange", Int),
         FIELD(dSpeedCorrection, "SpeedCorrection", Real),
         FIELD(nDirection, "Direction", Names(kDetectorDirections)),
         FIELD(nSigScheme, "SigScheme", Int),
         FIELD(nCarScheme, "CarScheme", Int),
     });

PART(kOsdElement, CFG_OSD_ELEMENT,
     {
         FIELD(nNameType, "NameType", Int),
         FIELD(nSeperaterCount, "SeperaterCount", Int),
         FIELD(szName, "Name", Text),
         FIELD(szPrefix, "Prefix", Text),
         FIELD(szPostfix, "Postfix", Text),
         FIELD(szSeperater, "Seperater", Text),
     });

PART(kTrafficOsd, CFG_TRAFFIC_OSD_INFO,
     {
         FIELD(nBlackRegionHeight, "OSDBlackRegion/Height", Int),
         FIELD(nBlackRegionPosition, "OSDBlackRegion/OSDPosition", Names(kBarPositions)),
         FIELD(nOSDAttrScheme, "OSDAttrScheme", Names(kAttrSchemes)),
         FIELD(bPositionAsBlackRegion, "OSDWholeAttr/PositionAsBlackRegion", Bool),
         FIELD(bNewLine, "OSDWholeAttr/NewLine", Bool),
         FIELD(bLoneVehicle, "OSDWholeAttr/LoneVehicle", Bool),
         FIELD(stuPosition, "OSDWholeAttr/Position", Record(kPoint)),
         FIELD(nOSDContentScheme, "OSDContentScheme", Names(kContentSchemes)),
         FIELD(nRedLightTimeDisplay, "RedLightTimeDisplay", Names(kRedLightDisplays)),
         FIELD(nElementNum),
         FIELD(stuElements, "OSDCustomizeSort/Element", Record(kOsdElement)).Count(AT(nElementNum)),
         FIELD(szOSDOrder, "OSDOrder", Text),
         FIELD(szOSDCustom, "OSDCustom", Text),
         FIELD(szGeneral, "General", Text),
     });

bool HasDetectorList(const std::byte* record) {
    return MEMBER(record, Snapshot, bVersionFlag) != 0 && MEMBER(record, Snapshot, nDetectorNum) > 0;
}
bool HasOneDetector(const std::byte* record) {
    return !HasDetectorList(record);
}

// A list is no object, and its first element is not the one detector.
void ReadDetector(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    if (value.type() == json::Type::Object) ReadFields(kDetector, value, record + field.offset, call);
}
void WriteDetector(const Field& field, const std::byte* record, WriteCall& call) {
    if (!HasOneDetector(record)) return;
    call.Key();
    WriteRecord(kDetector, record + field.offset, call);
}
constexpr CustomCodec kOneDetector{ReadDetector, WriteDetector, R"({"Enable":true})"};

void ReadValidUntil(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    traffic::ReadSizedTime(value, record + field.offset);
}
void WriteValidUntil(const Field& field, const std::byte* record, WriteCall& call) {
    if (!traffic::HasTime(record + field.offset)) return;
    call.Key();
    traffic::WriteSizedTime(record + field.offset, call);
}
constexpr CustomCodec kValidUntil{ReadValidUntil, WriteValidUntil};

void MarkRead(const json::Value&, std::byte* record, ReadCall&) {
    SET_MEMBER(record, Snapshot, bVersionFlag, 1);
}

} // namespace

TABLE(kTrafficSnapshot, CFG_TRAFFICSNAPSHOT_INFO,
      {
          FIELD(szDeviceAddress, "DeviceAddress", Text).FirstBytes(384),
          FIELD(nVideoTitleMask, "VideoTitleMask", Int),
          FIELD(nRedLightMargin, "RedLightMargin", Int),
          FIELD(fLongVehicleLengthLevel, "LongVehicleLengthLevel", Real),
          FIELD(fLargeVehicleLengthLevel, "LargeVehicleLengthLevel", Real),
          FIELD(fMediumVehicleLengthLevel, "MediumVehicleLengthLevel", Real),
          FIELD(fSmallVehicleLengthLevel, "SmallVehicleLengthLevel", Real),
          FIELD(fMotoVehicleLengthLevel, "MotoVehicleLengthLevel", Real),
          FIELD(stuBreakingSnapTimes, "BreakingSnapTimes", Record(kBreakingSnapTimes)),
          FIELD(nCarScheme, "CarScheme", Int),
          FIELD(nSigScheme, "SigScheme", Int),
          FIELD(nCarType, "CarType", Int),
          FIELD(nMaxSpeed, "MaxSpeed", Int),
          FIELD(nFrameMode, "FrameMode", Int),
          FIELD(nAdaptiveSpeed, "AdaptiveSpeed", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)),
          FIELD(stuDetector, "Detector", Custom(kOneDetector)).PointsTo(kDetector),
          FIELD(nDetectorNum),
          FIELD(stuDetectors, "Detector", Record(kDetector)).Count(AT(nDetectorNum)).WriteIf(HasDetectorList),
          FIELD(nVideoTitleMask1, "VideoTitleMask1", Int),
          FIELD(nMergeVideoTitleMask, "MergeVideoTitleMask", Int),
          FIELD(nMergeVideoTitleMask1, "MergeVideoTitleMask1", Int),
          FIELD(nTriggerSource, "TriggerSource", Int),
          FIELD(nSnapMode, "SnapMode", Int),
          FIELD(nWorkMode, "WorkMode", Int),
          FIELD(nCarThreShold, "CarThreShold", Int),
          FIELD(nSnapType, "SnapType", Int),
          FIELD(nCustomFrameInterval, "CustomFrameInterval", Int),
          FIELD(nKeepAlive, "KeepAlive", Int),
          FIELD(stuOSD, "OSD", Record(kTrafficOsd)),
          FIELD(stuMergeOSD, "MergeOSD", Record(kTrafficOsd)),
          FIELD(stuValidUntilTime, "ValidUntilTime", Custom(kValidUntil)).PointsTo(traffic::kSizedTime),
          FIELD(stuRadar, "Radar", Record(kRadar)),
          FIELD(szRoadwayCode, "RoadwayCode", Text),
          FIELD(nVideoTitleMask2, "VideoTitleMask2", UInt),
          FIELD(nMergeVideoTitleMask2, "MergeVideoTitleMask2", UInt),
          FIELD(nParkType, "ParkType", Int),
          FIELD(bVersionFlag),
      })
    .AfterRead(MarkRead);

TABLE(kTrafficSnapshotNew, CFG_TRAFFICSNAPSHOT_NEW_INFO,
      {
          FIELD(nCount),
          FIELD(stuSnapshots, "", Record(kTrafficSnapshot)).CountUncapped(AT(nCount)).WriteEmpty(Empty::Array),
      });

namespace {

// Which parts have to be objects, or absent; the detector may be a list.
bool IsSnapshot(const json::Value& snapshot) {
    const json::Value& detector = snapshot["Detector"];
    return snapshot["BreakingSnapTimes"].isObject() && snapshot["Radar"].isObject()
           && (detector.isObject() || detector.isArray());
}
bool AreSnapshots(const json::Value& list, std::size_t most) {
    const auto elements = list.elements();
    const auto read = elements.first(std::min(elements.size(), most));
    return std::all_of(read.begin(), read.end(), IsSnapshot);
}

// ---- The descriptor ----

// The count is that of the table's size, whatever the table is; a table that is no list is the first entry. A part of
// the wrong type refuses before anything is stored, but not in an element that there is no room for.
void ReadDescribed(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    const std::int64_t room = std::max<std::int64_t>(LoadSlot(field.capacity, record), 0);
    const std::int64_t count = std::min<std::int64_t>(value.size(), room);
    call.refused = !AreSnapshots(value, static_cast<std::size_t>(count));
    if (call.refused) return;
    StoreSlot(field.count, record, count);
    auto* const first = Load<std::byte*>(record + field.offset);
    if (first == nullptr || room == 0) return;
    if (value.type() != json::Type::Array) return ReadRecord(kTrafficSnapshot, value, first, call);
    for (std::int64_t i = 0; i < count; ++i) {
        const json::Value& element = value[static_cast<std::uint32_t>(i)];
        if (!element.isNull())
            ReadRecord(kTrafficSnapshot, element, first + static_cast<std::size_t>(i) * sizeof(Snapshot), call);
    }
}

void WriteDescribed(const Field& field, const std::byte* record, WriteCall& call) {
    const auto* const first = Load<const std::byte*>(record + field.offset);
    const std::int64_t count = first == nullptr ? 0 : LoadSlot(field.capacity, record);
    call.out.BeginArray();
    for (std::int64_t i = 0; i < count; ++i)
        WriteRecord(kTrafficSnapshot, first + static_cast<std::size_t>(i) * sizeof(Snapshot), call);
    call.out.EndArray();
}

constexpr CustomCodec kDescribed{ReadDescribed, WriteDescribed, "[]"};

} // namespace

TABLE(kSnapshotDescriptor, CFG_TRAFFICSNAPSHOT_DESCRIPTOR,
      {
          FIELD(pSnapshots, "", Custom(kDescribed)).PointsTo(kTrafficSnapshot).Capacity(AT(nMax)).Count(AT(nReturned)),
          FIELD(nMax),
          FIELD(nReturned),
      });
static_assert(sizeof(Descriptor) == 16);

namespace {

const json::Value& TableOf(const json::Value& root) {
    return root["params"]["table"];
}
Take NewTakes(const json::Value& root) {
    return AreSnapshots(TableOf(root), ORRERY_TRAFFIC_SNAPSHOTS) ? Take::List : traffic::kTakesNone;
}
Take DescribedTakes(const json::Value& root) {
    return IsSnapshot(TableOf(root)) ? Take::One : traffic::kTakesNone;
}

void ClearSnapshotNew(std::byte* record) {
    SET_MEMBER(record, SnapshotNew, nCount, 0);
    for (std::size_t i = 0; i < ORRERY_TRAFFIC_SNAPSHOTS; ++i)
        ClearTrafficSnapshot(record + offsetof(SnapshotNew, stuSnapshots) + i * sizeof(Snapshot));
}

constexpr ParseFrame kNotTested = ParseFrame{}.Result(ResultTest::NotTested).Clears(Clearing::Kept);

// A list that is refused while it is read gives no length either.
Outcome ParseDescribed(const ParseRequest& request) noexcept {
    std::uint32_t length = 0;
    ParseRequest described = request;
    described.returnedLength = &length;
    const Outcome outcome = ParseFamily(kSnapshotDescriptor, kNotTested.TakesBy(DescribedTakes), described);
    if (outcome == Outcome::RowRefused) return Outcome::WrongShape;
    if (outcome == Outcome::Done && request.returnedLength != nullptr) *request.returnedLength = length;
    return outcome;
}

} // namespace

void ClearTrafficSnapshot(std::byte* record) {
    const auto until = MEMBER(record, Snapshot, stuValidUntilTime);
    std::memset(record, 0, sizeof(Snapshot));
    SET_MEMBER(record, Snapshot, stuValidUntilTime, until);
}

Take TrafficSnapshotTakes(const json::Value& root) {
    return IsSnapshot(TableOf(root)) ? Take::One : traffic::kTakesNone;
}

Outcome ParseTrafficSnapshotNew(const ParseRequest& request) noexcept {
    if (request.bufferSize == sizeof(Descriptor)) return ParseDescribed(request);
    return ParseFamily(kTrafficSnapshotNew, kNotTested.TakesBy(NewTakes).OnceParsed(ClearSnapshotNew), request);
}

Outcome PackTrafficSnapshotNew(const PackRequest& request) noexcept {
    const bool isDescribed = request.recordSize == sizeof(Descriptor);
    const Table& table = isDescribed ? static_cast<const Table&>(kSnapshotDescriptor) : kTrafficSnapshotNew;
    return PacketFamily(table, PackFrame{}, request);
}

} // namespace orrery
