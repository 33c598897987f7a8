#include "media/PtzCaps.h"

#include "frame/record/Engine.h"

#include <string_view>

namespace orrery {

using namespace record;

// ---- "ptz.getCurrentProtocolCaps" ----

namespace {

NAMES(kMaskShapes, kFolded.OutsideWrites(""),
      {
          {CFG_MASK_UNKNOWN, ""},
          {CFG_MASK_RECT, "Rect"},
          {CFG_MASK_POLYGON, "Polygon"},
      });

void SetMoves(std::byte* record, bool relatively, bool absolutely, bool directly) {
    SET_MEMBER(record, CFG_PTZ_CAPS, bMoveRelatively, relatively ? 1 : 0);
    SET_MEMBER(record, CFG_PTZ_CAPS, bMoveAbsolutely, absolutely ? 1 : 0);
    SET_MEMBER(record, CFG_PTZ_CAPS, bMoveDirectly, directly ? 1 : 0);
}
void ReadMoves(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    bool relatively = false;
    bool absolutely = false;
    bool directly = false;
    for (const json::Value& move : value.elements()) {
        relatively = relatively || move.asString() == "Relatively";
        absolutely = absolutely || move.asString() == "Absolutely";
        directly = directly || move.asString() == "Directly";
    }
    SetMoves(record, relatively, absolutely, directly);
}
constexpr CustomCodec kMoves{ReadMoves, nullptr, R"(["Absolutely", "Directly"])"};

// Heads from before the list was told can do all three.
void AssumeMoves(const json::Value& caps, std::byte* record, ReadCall&) {
    if (!caps.isNull() && caps["Move"].isNull()) SetMoves(record, true, true, true);
}

// Clients were built on both masks as they are: a bit says that the first of the list is something else.
bool IsNot(const json::Value& first, std::string_view name) {
    return !EqualsFolded(first.asString(), name);
}
void ReadViewRange(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.elements().empty()) return;
    SET_MEMBER(record, CFG_PTZ_CAPS, bViewRange, 1);
    SET_MEMBER(record, CFG_PTZ_CAPS, dwViewRangeMask, IsNot(value[0], "ElectronicCompass") ? 1 : 0);
}
constexpr CustomCodec kViewRange{ReadViewRange, nullptr, R"(["ElectronicCompass"])"};

void ReadFocusModes(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.elements().empty()) return;
    constexpr struct {
        std::uint32_t bit;
        std::string_view name;
    } kModes[] = {
        {CFG_FOCUS_MODE_CAR, "Car"},
        {CFG_FOCUS_MODE_PLATE, "Plate"},
        {CFG_FOCUS_MODE_PEOPLE, "People"},
        {CFG_FOCUS_MODE_FACE, "Face"},
    };
    std::uint32_t mask = 0;
    for (const auto& mode : kModes)
        mask |= IsNot(value[0], mode.name) ? mode.bit : 0;
    SET_MEMBER(record, CFG_PTZ_CAPS, dwFocusModeMask, mask);
}
constexpr CustomCodec kFocusModes{ReadFocusModes, nullptr, R"(["Car", "Face"])"};

} // namespace

TABLE(kPtzCaps, CFG_PTZ_CAPS,
      {
          FIELD(dwReserved1),
          FIELD(bPan, "Pan", Bool),
          FIELD(bTile, "Tile", Bool),
          FIELD(bZoom, "Zoom", Bool),
          FIELD(bIris, "Iris", Bool),
          FIELD(bPreset, "Preset", Bool),
          FIELD(bRemovePreset, "RemovePreset", Bool),
          FIELD(bTour, "Tour", Bool),
          FIELD(bRemoveTour, "RemoveTour", Bool),
          FIELD(bPattern, "Pattern", Bool),
          FIELD(bAutoPan, "AutoPan", Bool),
          FIELD(bAutoScan, "AutoScan", Bool),
          FIELD(bAux, "Aux", Bool),
          FIELD(bAlarm, "Alarm", Bool),
          FIELD(dwReserved2),
          FIELD(bWiper, "Wiper", Bool),
          FIELD(bFlip, "Flip", Bool),
          FIELD(bMenu, "Menu", Bool),
          FIELD(bMoveRelatively, "Move", Custom(kMoves)),
          FIELD(bMoveAbsolutely),
          FIELD(bMoveDirectly),
          FIELD(bReset, "Reset", Bool),
          FIELD(bGetStatus, "GetStatus", Bool),
          FIELD(bSupportLimit, "SupportLimit", Bool),
          FIELD(bPtzDevice, "PtzDevice", Bool),
          FIELD(bViewRange, "SupportViewRangeType", Custom(kViewRange)),
          FIELD(wCamAddrMin, "CamAddrMin", Int),
          FIELD(wCamAddrMax, "CamAddrMax", Int),
          FIELD(wMonAddrMin, "MonAddrMin", Int),
          FIELD(wMonAddrMax, "MonAddrMax", Int),
          FIELD(wPresetMin, "PresetMin", Int),
          FIELD(wPresetMax, "PresetMax", Int),
          FIELD(wTourMin, "TourMin", Int),
          FIELD(wTourMax, "TourMax", Int),
          FIELD(wPatternMin, "PatternMin", Int),
          FIELD(wPatternMax, "PatternMax", Int),
          FIELD(wTileSpeedMin, "TileSpeedMin", Int),
          FIELD(wTileSpeedMax, "TileSpeedMax", Int),
          FIELD(wPanSpeedMin, "PanSpeedMin", Int),
          FIELD(wPanSpeedMax, "PanSpeedMax", Int),
          FIELD(wAutoScanMin, "AutoScanMin", Int),
          FIELD(wAutoScanMax, "AutoScanMax", Int),
          FIELD(wAuxMin, "AuxMin", Int),
          FIELD(wAuxMax, "AuxMax", Int),
          FIELD(nInterval, "Interval", UInt),
          FIELD(nType, "Type", UInt),
          FIELD(nAlarmLen, "AlarmLen", UInt),
          FIELD(nNearLightNumber, "NearLightNumber", UInt),
          FIELD(nFarLightNumber, "FarLightNumber", UInt),
          FIELD(dwViewRangeMask),
          FIELD(dwFocusModeMask, "SupportFocusMode", Custom(kFocusModes)),
          FIELD(szName, "Name", Text),
          FIELD(szAuxs, "Auxs", Text).NullElement(Nulls::Stop),
          FIELD(nHorizontalAngle, "PtzMotionRange/HorizontalAngle", Int).Exactly(),
          FIELD(nVerticalAngle, "PtzMotionRange/VerticalAngle", Int).Exactly(),
          FIELD(dwReserved3),
          FIELD(bSupportPresetTimeSection, "SupportPresetTimeSection", Bool),
          FIELD(bFocus, "Focus", Bool),
          FIELD(bAutoAreaScan, "AutoAreaScan/Support", Bool),
          FIELD(nScanNum, "AutoAreaScan/ScanNum", UInt),
          FIELD(bPrivacyMasking, "PrivacyMasking/Support", Bool),
          FIELD(bSetColorSupport, "PrivacyMasking/SetColorSupport", Bool),
          FIELD(bSupportType),
          FIELD(nTypeCount),
          FIELD(emTypes, "PrivacyMasking/SupportType", Names(kMaskShapes))
              .SetsAndNeeds(AT(bSupportType))
              .Count(AT(nTypeCount)),
          FIELD(bSetMosaicSupport, "PrivacyMasking/SetMosaicSupport", Bool),
          FIELD(bSetColorIndependent, "PrivacyMasking/SetColorIndependent", Bool),
          FIELD(bSupportMosaicType),
          FIELD(nMosaicCount),
          FIELD(nMosaics, "PrivacyMasking/SupportMosaicType", Int)
              .SetsAndNeeds(AT(bSupportMosaicType))
              .Count(AT(nMosaicCount)),
          // A block is read before the keys inside it, which may take back what it says by being there.
          FIELD(bSdMeasureDistance, "SDMeasureDistance/Support", Bool),
          FIELD(bSdMeasureDistance, "SDMeasureDistance", Presence).Alias(),
          FIELD(bOsdEnable, "SDMeasureDistance/OsdEnable", Bool),
          FIELD(bOsdEnable, "SDMeasureDistance", Presence).Alias(),
          FIELD(nDisplayDuration, "SDMeasureDistance/DisplayDurationRange", Int),
          FIELD(bSupportPtzPatternOsd, "SupportPtzPatternOSD", Bool),
          FIELD(bSupportPtzRs485DetectOsd, "SupportPtzRS485DetectOSD", Bool),
          FIELD(bSupportPtzCoordinates, "SupportPTZCoordinates", Bool),
          FIELD(bSupportPtzZoom, "SupportPTZZoom", Bool),
          FIELD(bDirectionDisplay, "DirectionDisplay ", Bool),
      })
    .AfterRead(AssumeMoves);

// ---- "ptz.getProtocol", "ptz.factory.instance" ----

TABLE(kPtzProtocols, CFG_PTZ_PROTOCOLS,
      {
          FIELD(dwReserved),
          FIELD(nRsCount),
          FIELD(szRs, "Rs", Text).Count(AT(nRsCount)),
          FIELD(nCoaxialCount),
          FIELD(szCoaxial, "Coaxial", Text).Count(AT(nCoaxialCount)),
      });

namespace {

// The number of the object that was made.
void ReadInstance(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    Store<std::uint32_t>(record + field.offset, value.asInt() != 0 ? 1 : 0);
}
constexpr CustomCodec kInstance{ReadInstance, nullptr, "7"};

} // namespace

TABLE(kPtzInstance, CFG_PTZ_INSTANCE,
      {
          FIELD(bInstance, "", Custom(kInstance)),
      });

} // namespace orrery
