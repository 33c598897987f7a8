#include "media/Ptz.h"

#include "frame/record/Engine.h"
#include "media/CommAttribute.h"

#include <algorithm>

namespace orrery {

using namespace record;

// ---- "Ptz" ----

namespace {

NAMES(kControlModes, kFolded,
      {
          {CFG_PTZ_CONTROL_RS485, "RS485"},
          {CFG_PTZ_CONTROL_COAXIAL, "Coaxial"},
      });

// Some devices count kinds of heads; all but the first say that the head stands behind the network.
void ReadPtzType(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_PTZ_INFO, abPtzType, 1);
    SET_MEMBER(record, CFG_PTZ_INFO, nPtzType, value.asInt() > 0 ? 1 : 0);
}
void WritePtzType(const Field&, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.Int(MEMBER(record, CFG_PTZ_INFO, nPtzType) > 0 ? 1 : 0);
}
constexpr CustomCodec kPtzType{ReadPtzType, WritePtzType, "1"};

// Without the key there is no preset to return to, which is -1, and no time, which is 0.
void ReadHoming(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    std::byte* const at = record + field.offset;
    Store<std::int32_t>(at, value.isNull() ? -1 : value[0].asInt());
    Store<std::int32_t>(at + sizeof(std::int32_t), value[1].asInt());
}
void WriteHoming(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* const at = record + field.offset;
    call.Key();
    call.out.BeginArray();
    call.out.Int(std::max(Load<std::int32_t>(at), -1));
    call.out.Int(Load<std::int32_t>(at + sizeof(std::int32_t)));
    call.out.EndArray();
}
constexpr CustomCodec kHoming{ReadHoming, WriteHoming, "[3, 30]"};

} // namespace

TABLE(kPtz, CFG_PTZ_INFO,
      {
          FIELD(abNumberInMatrix),
          FIELD(abPtzType),
          FIELD(bEnable, "Enable", Bool),
          FIELD(szProtocolName, "ProtocolName", Text),
          FIELD(nAddress, "Address", Int),
          FIELD(stuAttribute, "Attribute", Record(kCommAttribute)),
          FIELD(nNumberInMatrix, "NumberInMatrixs", Int).SetsAndNeeds(AT(abNumberInMatrix)),
          FIELD(nPtzType, "PTZType", Custom(kPtzType)).WriteIf(AT(abPtzType)),
          FIELD(dwReserved),
          FIELD(nPort, "Port", Int),
          FIELD(nHoming, "Homing", Custom(kHoming)).Always(),
          FIELD(emControlMode, "ControlMode", Names(kControlModes)),
      });

// ---- "Comm" ----

namespace {

PART(kCommItem, CFG_COMM_ITEM,
     {
         FIELD(szProtocolName, "ProtocolName", Text),
         FIELD(stuAttribute, "Attribute", Record(kCommAttribute)),
         FIELD(nAddress, "Address", Int),
     });

} // namespace

TABLE(kComm, CFG_COMM_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kCommItem)).Count(AT(nCount)),
      });

// ---- "PtzPreset" ----

namespace {

// Parts of a turn in tenths of a degree.
constexpr double kHalfTurn = 1800;
constexpr std::int32_t kHalf = 1800;
constexpr std::int32_t kWhole = 3600;
constexpr std::int32_t kLeastTilt = -18000;
constexpr std::int32_t kMostTilt = 1800;
constexpr double kMostZoom = 128;

bool IsWithin(double number, double least, double most) {
    return number >= least && number <= most;
}
std::int32_t Truncated(double number) {
    return static_cast<std::int32_t>(number);
}

void ReadPosition(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.elements().size() != 3) return;
    const double pan = value[0].asDouble();
    const double tilt = value[1].asDouble();
    const double zoom = value[2].asDouble();
    std::int32_t panTenths = 0;
    if (IsWithin(pan, 0, 1))
        panTenths = Truncated(pan * kHalfTurn + 0.5);
    else if (IsWithin(pan, -1, 0))
        panTenths = Truncated(pan * kHalfTurn + kWhole);
    if (IsWithin(tilt, -1, 1)) {
        const double tenths = tilt * -kHalfTurn;
        SET_MEMBER(record, CFG_PTZ_PRESET, nTilt, Truncated(tenths >= 0 ? tenths + 0.5 : tenths - 0.5));
    } else {
        panTenths = 0; // clients know a tilt out of range by the pan
    }
    SET_MEMBER(record, CFG_PTZ_PRESET, nPan, panTenths);
    SET_MEMBER(record, CFG_PTZ_PRESET, nZoom, IsWithin(zoom, 0, 1) ? Truncated(zoom * kMostZoom + 0.5) : 0);
}

void WritePosition(const Field&, const std::byte* record, WriteCall& call) {
    const auto pan = MEMBER(record, CFG_PTZ_PRESET, nPan);
    const auto tilt = MEMBER(record, CFG_PTZ_PRESET, nTilt);
    const auto zoom = MEMBER(record, CFG_PTZ_PRESET, nZoom);
    call.Key();
    call.out.BeginArray();
    if (pan >= 0 && pan < kHalf)
        call.out.Real(pan / kHalfTurn);
    else if (pan >= kHalf && pan <= kWhole)
        call.out.Real((pan - kWhole) / kHalfTurn);
    else
        call.out.Int(0);
    if (tilt >= kLeastTilt && tilt <= kMostTilt)
        call.out.Real(tilt / -kHalfTurn);
    else
        call.out.Int(0);
    if (zoom >= 1 && zoom <= kMostZoom)
        call.out.Real(zoom / kMostZoom);
    else
        call.out.Int(0);
    call.out.EndArray();
}
constexpr CustomCodec kPosition{ReadPosition, WritePosition, "[-0.25, 0.5, 0.75]"};

PART(kPreset, CFG_PTZ_PRESET,
     {
         FIELD(bEnable, "Enable", Bool).TrueAtOne(),
         FIELD(szName, "Name", Text),
         FIELD(nPan, "Position", Custom(kPosition)),
         FIELD(nTilt),
         FIELD(nZoom),
     });

bool HasPresetRoom(const std::byte* record) {
    return MEMBER(record, CFG_PTZ_PRESET_INFO, nMaxCount) != 0
           && MEMBER(record, CFG_PTZ_PRESET_INFO, pstuPresets) != nullptr;
}

} // namespace

bool HasPresetArray(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_PTZ_PRESET_INFO, pstuPresets) != nullptr;
}
bool FitsPresets(const std::byte* record, std::uint32_t) {
    return !HasPresetRoom(record)
           || MEMBER(record, CFG_PTZ_PRESET_INFO, nReturnCount) <= MEMBER(record, CFG_PTZ_PRESET_INFO, nMaxCount);
}
Form PtzPresetForm(const std::byte* first, std::uint32_t) {
    return HasPresetRoom(first) ? Form::One : Form::NoText;
}

TABLE(kPtzPreset, CFG_PTZ_PRESET_INFO,
      {
          FIELD(nMaxCount),
          FIELD(nReturnCount),
          FIELD(pstuPresets, "", Record(kPreset)).Capacity(AT(nMaxCount)).Count(AT(nReturnCount)).Zeroed(),
      });

// ---- "PtzTour" ----

namespace {

PART(kTour, CFG_PTZ_TOUR,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szName, "Name", Text),
         FIELD(nPresetCount),
         FIELD(nPresets, "Presets", Int).Count(AT(nPresetCount)),
     });

} // namespace

TABLE(kPtzTour, CFG_PTZ_TOUR_INFO,
      {
          FIELD(nCount),
          FIELD(stuTours, "", Record(kTour)).Count(AT(nCount)),
      });

} // namespace orrery
