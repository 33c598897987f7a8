#include "media/PtzLines.h"

#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;

// ---- "SplitTour", "SpotMatrix" ----

namespace {

// Only so many elements are looked at, whether they are null or not.
void ReadSupport(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    const auto elements = value.elements();
    const std::size_t looked = std::min<std::size_t>(elements.size(), ORRERY_TOUR_SUPPORTS);
    std::uint32_t count = 0;
    for (const json::Value& mode : elements.first(looked)) {
        if (!mode.isNull()) Store(record + field.offset + count++, static_cast<std::uint8_t>(mode.asInt()));
    }
    SET_MEMBER(record, CFG_SPLIT_TOUR_INFO, nSupportCount, count);
}
void WriteSupport(const Field& field, const std::byte* record, WriteCall& call) {
    const std::uint32_t count =
        std::min<std::uint32_t>(MEMBER(record, CFG_SPLIT_TOUR_INFO, nSupportCount), ORRERY_TOUR_SUPPORTS);
    if (count == 0) return;
    call.Key();
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < count; ++i)
        call.out.Int(Load<std::uint8_t>(record + field.offset + i));
    call.out.EndArray();
}
constexpr CustomCodec kSupport{ReadSupport, WriteSupport, "[1, 4, 9]"};

PART(kTourView, CFG_TOUR_VIEW,
     {
         FIELD(nViewMode, "ViewMode", Int),
         FIELD(nViewParam, "ViewParam", UInt),
     });

// The key with the blank is read last, and counts only when there is no other.
void PreferPlainPeriod(const json::Value& info, std::byte* record, ReadCall&) {
    const json::Value& period = info["TourPeriod"];
    if (!period.isNull()) SET_MEMBER(record, CFG_TOUR_INFO, nTourPeriod, period.asInt());
}

PART(kSplitTourInfo, CFG_TOUR_INFO,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nTourPeriod, "TourPeriod", Int),
         FIELD(nTourPeriod, "TourPeriod ", Int).Alias(),
         FIELD(nQueueCount),
         FIELD(stuQueue, "SplitTourQueue", Record(kTourView)).Count(AT(nQueueCount)).NullElement(Nulls::LeaveHole),
     })
    .AfterRead(PreferPlainPeriod);

PART(kSpotMatrixInfo, CFG_TOUR_INFO,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nTourPeriod, "TourPeriod", Int),
         FIELD(nTourPeriod, "TourPeriod ", Int).Alias(),
         FIELD(nQueueCount),
         FIELD(stuQueue, "TourQueue", Record(kTourView)).Count(AT(nQueueCount)).NullElement(Nulls::LeaveHole),
     })
    .AfterRead(PreferPlainPeriod);

} // namespace

TABLE(kSplitTour, CFG_SPLIT_TOUR_INFO,
      {
          FIELD(nSupportCount),
          FIELD(bySupport, "SupportSplit", Custom(kSupport)),
          FIELD(nInfoCount),
          FIELD(stuInfos, "SplitTourInfo", Record(kSplitTourInfo)).Count(AT(nInfoCount)).NullElement(Nulls::LeaveHole),
      });

TABLE(
    kSpotMatrix, CFG_SPLIT_TOUR_INFO,
    {
        FIELD(nSupportCount),
        FIELD(bySupport, "SpotSupportMatrix", Custom(kSupport)),
        FIELD(nInfoCount),
        FIELD(stuInfos, "SpotMatrixInfo", Record(kSpotMatrixInfo)).Count(AT(nInfoCount)).NullElement(Nulls::LeaveHole),
    });

// ---- "VideoInZoom", "VideoInFocus" ----

bool FitsZoomItems(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_VIDEOIN_ZOOM_INFO, nCount) <= ORRERY_LENS_ITEMS;
}
bool FitsFocusItems(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_VIDEOIN_FOCUS_INFO, nCount) <= ORRERY_LENS_ITEMS;
}

namespace {

PART(kZoomItem, CFG_VIDEOIN_ZOOM_ITEM,
     {
         FIELD(nSpeed, "Speed", Int).WriteUnlessNegative(),
         FIELD(bDigitalZoom, "DigitalZoom", Bool).TrueAtOne(),
         FIELD(nZoomLimit, "ZoomLimit", Int).WriteUnlessNegative(),
     });

NAMES(kFocusLimitModes, kExact.Unknown(CFG_FOCUS_LIMIT_UNKNOWN),
      {
          {CFG_FOCUS_LIMIT_MANUAL, "Manual"},
          {CFG_FOCUS_LIMIT_AUTO, "Auto"},
      });

PART(kFocusItem, CFG_VIDEOIN_FOCUS_ITEM,
     {
         FIELD(nMode, "Mode", Int),
         FIELD(nSensitivity, "Sensitivity", Int),
         FIELD(nIrCorrection, "IRCorrection", Int),
         FIELD(emFocusLimitSelectMode, "FocusLimitSelectMode", Names(kFocusLimitModes)),
         FIELD(nFocusLimit, "FocusLimit", Int),
     });

} // namespace

TABLE(kVideoInZoom, CFG_VIDEOIN_ZOOM_INFO,
      {
          FIELD(nChannel, "channel", Int).FromRoot(),
          FIELD(nCount),
          FIELD(stuItems, "", Record(kZoomItem)).Count(AT(nCount)),
      });

TABLE(kVideoInFocus, CFG_VIDEOIN_FOCUS_INFO,
      {
          FIELD(nChannel, "channel", Int).FromRoot(),
          FIELD(nCount),
          FIELD(stuItems, "", Record(kFocusItem)).Count(AT(nCount)),
      });

// ---- "CANFilter" ----

namespace {

NAMES(kCanPolicies, kExact.OutsideWritesNull(),
      {
          {CFG_CAN_NONE, "None"},
          {CFG_CAN_WHITE, "White"},
          {CFG_CAN_BLACK, "Black"},
      });

bool HasPids(const std::byte* filter) {
    return MEMBER(filter, CFG_CAN_FILTER, pnPids) != nullptr;
}
// A client that forgot an array learns it at once: nothing of the filter, or behind it, is looked at.
void NeedPids(const Field&, const json::Value&, std::byte* filter, ReadCall& call) {
    if (!HasPids(filter)) call.refused = true;
}
void NeedPidsToo(const Field&, const std::byte* filter, WriteCall& call) {
    if (!HasPids(filter)) call.refused = true;
}
constexpr CustomCodec kPidsNeeded{NeedPids, NeedPidsToo};

PART(kFilter, CFG_CAN_FILTER,
     {
         FIELD(nResponseTimeout, "ResponseTimeout", Int),
         FIELD(nRequestTimeout, "RequestTimeout", Int),
         FIELD(nMaxPid),
         FIELD(nReturnPid),
         FIELD(pnPids, "Filter/PID", Int32s).Capacity(AT(nMaxPid)).CountUncapped(AT(nReturnPid)).WritesCapacity(),
         FIELD(pnPids, "", Custom(kPidsNeeded)).PointsTo(kInt32).Always().Alias(),
         FIELD(emPolicy, "Filter/Policy", Names(kCanPolicies)),
     });

} // namespace

std::uint32_t CanFilterLength(const std::byte* record) {
    const std::int32_t read = std::min({MEMBER(record, CFG_CAN_FILTER_INFO, nMaxCount),
                                        MEMBER(record, CFG_CAN_FILTER_INFO, nReturnCount), ORRERY_CAN_FILTERS});
    for (std::int32_t i = 0; i < read; ++i) {
        const std::size_t at =
            offsetof(CFG_CAN_FILTER_INFO, stuFilters) + static_cast<std::size_t>(i) * sizeof(CFG_CAN_FILTER);
        if (!HasPids(record + at)) return 0;
    }
    return sizeof(CFG_CAN_FILTER_INFO);
}

TABLE(kCanFilter, CFG_CAN_FILTER_INFO,
      {
          FIELD(nMaxCount),
          FIELD(nReturnCount),
          FIELD(stuFilters, "", Record(kFilter)).Lent(AT(nMaxCount)).CountUncapped(AT(nReturnCount)),
      });

// ---- "InfraredBoardTemplate", "InfraredBoard" ----

namespace {

NAMES(kIrCategories, kFolded.OutsideWrites(""),
      {
          {CFG_IR_DVR, "DVR"},
          {CFG_IR_TV, "TV"},
      });

PART(kIrKey, CFG_IR_BOARD_KEY,
     {
         FIELD(szName, "Name", Text),
         FIELD(szText, "Text", Text),
     });

PART(kIrTemplate, CFG_IR_BOARD_TEMPLATE,
     {
         FIELD(nId, "Id", UInt),
         FIELD(szName, "Name", Text),
         FIELD(emCategory, "Category", Names(kIrCategories)),
         FIELD(nKeyCount),
         FIELD(stuKeys, "Keys", Record(kIrKey)).Count(AT(nKeyCount)),
     });

PART(kIrBoard, CFG_IR_BOARD,
     {
         FIELD(nId, "Id", UInt),
         FIELD(szName, "Name", Text),
         FIELD(emCategory, "Category", Names(kIrCategories)),
         FIELD(nCommPort, "CommPort", Int),
         FIELD(nTemplateId, "TemplateId", UInt),
     });

} // namespace

TABLE(kInfraredBoardTemplate, CFG_IR_BOARD_TEMPLATE_INFO,
      {
          FIELD(nCount),
          FIELD(stuTemplates, "", Record(kIrTemplate)).Count(AT(nCount)),
      });

TABLE(kInfraredBoard, CFG_IR_BOARD_INFO,
      {
          FIELD(nCount),
          FIELD(stuBoards, "", Record(kIrBoard)).Count(AT(nCount)),
      });

} // namespace orrery
