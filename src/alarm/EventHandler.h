// The linkage record in both forms, as tables that every alarm, detector and rule embeds.
#pragma once

#include "frame/record/Table.h"

#include "orrery/linkage.h"

namespace orrery {

namespace linkage {

using namespace record;

NAMES(kPtzLinks, kFolded.Unknown(CFG_PTZ_LINK_NONE),
      {
          {CFG_PTZ_LINK_NONE, "None"},
          {CFG_PTZ_LINK_PRESET, "Preset"},
          {CFG_PTZ_LINK_TOUR, "Tour"},
          {CFG_PTZ_LINK_PATTERN, "Pattern"},
      });

NAMES(kAttachments, kFolded.UnknownLeaves(),
      {
          {CFG_ATTACHMENT_PICTURE, "picture"},
          {CFG_ATTACHMENT_VIDEO, "video"},
      });

NAMES(kTourSplits, kFolded.UnknownLeaves(),
      {
          {0, "Split1"},
          {1, "Split8"},
      });

NAMES(kTalkbackCallers, kExact.UnknownLeaves().OutsideWritesNull(),
      {
          {0, "Device"},
      });

NAMES(kTalkbackProtocols, kExact.UnknownLeaves().OutsideWritesNull(),
      {
          {0, "Cellular"},
      });

NAMES(kDoorActions, kExact.UnknownLeaves(),
      {
          {CFG_ACCESS_CONTROL_AUTO, "Auto"},
          {CFG_ACCESS_CONTROL_OPEN, "Open"},
          {CFG_ACCESS_CONTROL_CLOSE, "Close"},
          {CFG_ACCESS_CONTROL_OPEN_ALWAYS, "OpenAlways"},
          {CFG_ACCESS_CONTROL_CLOSE_ALWAYS, "CloseAlways"},
      });

// Door actions: [ { "Operation" : "Open" }, ... ] into one number a door.
extern const CustomCodec kDoorActionList;
// Seven rows from the week, a holiday row from the schedule; written only.
extern const CustomCodec kWeekOverSchedule;
// Seven rows from the rule's own week of longer days, a holiday row from the schedule; written only.
extern const CustomCodec kRuleWeekOverSchedule;
// A count that comes from a number standing where the list should.
extern const CustomCodec kCountedKeys;

bool IsPtzLink(const std::byte* record);
bool IsPtzLinkV2(const std::byte* record);

// ---- Parts that both forms share ----

PART(kPtzLink, CFG_PTZ_LINK,
     {
         FIELD(emType, "", Names(kPtzLinks)),
         FIELD(nValue, "", Int),
         FIELD(nParam1, "", Int),
         FIELD(nParam2, "", Int),
         FIELD(nParam3, "", Int),
     })
    .As(Shape::Tuple)
    .Writes(IsPtzLink);

PART(kEventTitle, CFG_EVENT_TITLE,
     {
         FIELD(szText, "Text", Text),
         FIELD(stuPoint, "Point", Record(kPoint)),
         FIELD(stuSize, "Size", Record(kSize)),
         FIELD(stuFrontColor, "FrontColor", Record(kColor)),
         FIELD(stuBackColor, "BackColor", Record(kColor)),
     });

PART(kMailDetail, CFG_MAIL_DETAIL,
     {
         FIELD(emAttachmentType, "AttachmentType", Names(kAttachments)),
         FIELD(nMaxSize, "MaxSize", Int),
         FIELD(nMaxTimeLength, "MaxTimeLength", Int),
     });

PART(kMonitorTour, CFG_MONITOR_TOUR,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nSplit, "Split", SplitMode),
         FIELD(nChannels, "Channels", Int).Count(AT(nChannelCount)).AnyShape(),
         FIELD(nChannelCount),
     });

// ---- The current form ----

// Where the week of a linkage stands.
enum class WeekIn : std::uint8_t {
    Schedule, // in stuTimeSectionEx alone
    Linkage,  // in stuTimeSection as well
    Rule,     // in the rule around the linkage as well
};

// The week that a rule has of its own, for whoever writes the rule's linkage: WriteCall::context points to it.
struct RuleWeek {
    const std::byte* sections; // CFG_TIME_SECTION[ORRERY_WEEK_DAYS][ORRERY_RULE_DAY_SECTIONS]
    bool cleared;              // the client wants the device's week gone: null
};

template <WeekIn Week>
struct EventHandlerRows {
    using R = CFG_EVENT_HANDLER_INFO;
    static constexpr Field rows[] = {
        FIELD(abRecordMask),
        FIELD(abRecordEnable),
        FIELD(abRecordLatch),
        FIELD(abAlarmOutMask),
        FIELD(abAlarmOutEn),
        FIELD(abAlarmOutLatch),
        FIELD(abExAlarmOutMask),
        FIELD(abExAlarmOutEn),
        FIELD(abPtzLinkEn),
        FIELD(abTourMask),
        FIELD(abTourEnable),
        FIELD(abSnapshot),
        FIELD(abSnapshotEn),
        FIELD(abSnapshotPeriod),
        FIELD(abSnapshotTimes),
        FIELD(abTipEnable),
        FIELD(abMailEnable),
        FIELD(abMessageEnable),
        FIELD(abBeepEnable),
        FIELD(abVoiceEnable),
        FIELD(abMatrixMask),
        FIELD(abMatrixEnable),
        FIELD(abDejitter),
        FIELD(abLogEnable),
        FIELD(abDelay),
        FIELD(abVideoMessageEn),
        FIELD(abMMSEnable),
        FIELD(abMessageToNetEn),
        FIELD(abTourSplit),
        FIELD(abSnapshotTitleEn),
        FIELD(abPtzLink),
        FIELD(abSnapshotTitle),
        FIELD(abMailDetail),
        FIELD(abVideoTitleEn),
        FIELD(abVideoTitle),
        FIELD(abTour),
        FIELD(abDBKeys),
        FIELD(abJpegSummary),
        FIELD(abFlashEnable),
        FIELD(abFlashLatch),
        FIELD(nRecordChannelNum, "SDK_RecordChannel", Int).ReadOnly(),
        FIELD(nAlarmOutChannelNum, "SDK_AlarmOutChannel", Int).ReadOnly(),
        FIELD(dwRecordMask, "RecordChannels", BitMask).SetsAndNeeds(AT(abRecordMask)),
        FIELD(bRecordEnable, "RecordEnable", Bool).SetsAndNeeds(AT(abRecordEnable)).Always(),
        FIELD(nRecordLatch, "RecordLatch", Int).SetsAndNeeds(AT(abRecordLatch)),
        FIELD(dwAlarmOutMask, "AlarmOutChannels", BitMask).SetsAndNeeds(AT(abAlarmOutMask)).WriteEmpty(Empty::Null),
        FIELD(bAlarmOutEn, "AlarmOutEnable", Bool).SetsAndNeeds(AT(abAlarmOutEn)).Always(),
        FIELD(nAlarmOutLatch, "AlarmOutLatch", Int).SetsAndNeeds(AT(abAlarmOutLatch)),
        FIELD(dwExAlarmOutMask, "ExAlarmOutChannels", BitMask)
            .SetsAndNeeds(AT(abExAlarmOutMask))
            .WriteEmpty(Empty::Null),
        FIELD(bExAlarmOutEn, "ExAlarmOutEnable", Bool).SetsAndNeeds(AT(abExAlarmOutEn)),
        FIELD(bPtzLinkEn, "PtzLinkEnable", Bool).SetsAndNeeds(AT(abPtzLinkEn)),
        FIELD(dwTourMask, "TourChannels", BitMaskLoose).SetsAndNeeds(AT(abTourMask)).AnyShape(),
        FIELD(bTourEnable, "TourEnable", Bool).SetsAndNeeds(AT(abTourEnable)).TrueAtOne(),
        FIELD(dwSnapshot, "SnapshotChannels", BitMask).SetsAndNeeds(AT(abSnapshot)),
        FIELD(bSnapshotEn, "SnapshotEnable", Bool).SetsAndNeeds(AT(abSnapshotEn)),
        FIELD(nSnapshotPeriod, "SnapshotPeriod", Int).SetsAndNeeds(AT(abSnapshotPeriod)),
        FIELD(nSnapshotTimes, "SnapshotTimes", Int).SetsAndNeeds(AT(abSnapshotTimes)),
        FIELD(bTipEnable, "TipEnable", Bool).SetsAndNeeds(AT(abTipEnable)),
        FIELD(bMailEnable, "MailEnable", Bool).SetsAndNeeds(AT(abMailEnable)),
        FIELD(bMessageEnable, "MessageEnable", Bool).SetsAndNeeds(AT(abMessageEnable)),
        FIELD(bBeepEnable, "BeepEnable", Bool).SetsAndNeeds(AT(abBeepEnable)),
        FIELD(bVoiceEnable, "VoiceEnable", Bool).SetsAndNeeds(AT(abVoiceEnable)),
        FIELD(dwMatrixMask, "MatrixChannels", BitMaskLoose).SetsAndNeeds(AT(abMatrixMask)).AnyShape(),
        FIELD(nMatrixEnable, "MatrixEnable", Int).WrittenAs(Bool).TrueAtOne().SetsAndNeeds(AT(abMatrixEnable)),
        FIELD(nDejitter, "Dejitter", Int).SetsAndNeeds(AT(abDejitter)),
        FIELD(bLogEnable, "LogEnable", Bool).SetsAndNeeds(AT(abLogEnable)),
        FIELD(nDelay, "Delay", Int).SetsAndNeeds(AT(abDelay)),
        FIELD(bVideoMessageEn, "OnVideoMessageEn", Bool).WriteOnly().TrueAtOne().SetsAndNeeds(AT(abVideoMessageEn)),
        FIELD(bMMSEnable, "MMSEnable", Bool).SetsAndNeeds(AT(abMMSEnable)),
        FIELD(nMessageToNetEn, "MessageToNetEnable", Int)
            .WrittenAs(Bool)
            .TrueAtOne()
            .SetsAndNeeds(AT(abMessageToNetEn)),
        FIELD(nTourSplit, "TourSplit", Names(kTourSplits)).ReadOnly().SetsAndNeeds(AT(abTourSplit)),
        FIELD(bSnapshotTitleEn, "SnapshotTitleEnable", Bool).SetsAndNeeds(AT(abSnapshotTitleEn)),
        FIELD(nPtzLinkNum),
        FIELD(stuPtzLink, "PtzLink", Record(kPtzLink)).SetsAndNeeds(AT(abPtzLink)).Count(AT(nPtzLinkNum)),
        FIELD(nSnapshotTitleNum),
        FIELD(stuSnapshotTitle, "SnapshotTitle", Record(kEventTitle))
            .SetsAndNeeds(AT(abSnapshotTitle))
            .Count(AT(nSnapshotTitleNum)),
        FIELD(stuMailDetail, "MailDetail", Record(kMailDetail)).SetsAndNeeds(AT(abMailDetail)),
        FIELD(bVideoTitleEn, "VideoTitleEnable", Bool).SetsAndNeeds(AT(abVideoTitleEn)),
        FIELD(nVideoTitleNum),
        FIELD(stuVideoTitle, "VideoTitle", Record(kEventTitle))
            .SetsAndNeeds(AT(abVideoTitle))
            .Count(AT(nVideoTitleNum)),
        FIELD(nTourNum),
        FIELD(stuTour, "MonitorTour", Record(kMonitorTour)).SetsAndNeeds(AT(abTour)).Count(AT(nTourNum)),
        FIELD(nDBKeysNum),
        FIELD(szDBKeys, "DB", Text).SetsAndNeeds(AT(abDBKeys)).Count(AT(nDBKeysNum)).AnyShape(),
        FIELD(szJpegSummary, "JpegSummary", RawText).SetsAndNeeds(AT(abJpegSummary)),
        FIELD(bFlashEnable, "FlashEnable", Bool).SetsAndNeeds(AT(abFlashEnable)).TrueAtOne(),
        FIELD(nFlashLatch, "FlashLatch", Int).SetsAndNeeds(AT(abFlashLatch)),
        FIELD(abAudioFileName),
        FIELD(abAlarmBellEn),
        FIELD(abAccessControlEn),
        FIELD(abAccessControl),
        FIELD(szAudioFileName, "Voice/AudioFileName", Text).SetsAndNeeds(AT(abAudioFileName)),
        FIELD(bAlarmBellEn, "AlarmBellEnable", Bool).SetsAndNeeds(AT(abAlarmBellEn)),
        FIELD(bAccessControlEn, "AccessControlEnable", Bool).SetsAndNeeds(AT(abAccessControlEn)),
        FIELD(nAccessControlNum),
        FIELD(emAccessControl, "AccessControls", Custom(kDoorActionList))
            .Coded(kDoorActions)
            .SetsAndNeeds(AT(abAccessControl))
            .Count(AT(nAccessControlNum)),
        FIELD(abTalkback, "Talkback", Presence),
        FIELD(bTalkbackCallEn, "Talkback/CallEnable", Bool).WriteIf(AT(abTalkback)),
        FIELD(emTalkbackCaller, "Talkback/Caller", Names(kTalkbackCallers)).WriteIf(AT(abTalkback)),
        FIELD(emTalkbackProtocol, "Talkback/CallProtocol", Names(kTalkbackProtocols)).WriteIf(AT(abTalkback)),
        FIELD(abPSTNAlarmServer, "PSTNAlarmServer", Presence),
        FIELD(bNeedReport, "PSTNAlarmServer/NeedReport", Bool).WriteIf(AT(abPSTNAlarmServer)),
        FIELD(nDestinationNum),
        FIELD(byDestination, "PSTNAlarmServer/Destination", UInt)
            .Count(AT(nDestinationNum))
            .WriteIf(AT(abPSTNAlarmServer)),
        FIELD(stuTimeSectionEx, "TimeSection", HolidaySchedule).Writable(Week == WeekIn::Schedule),
        FIELD(abAlarmBellLatch),
        FIELD(nAlarmBellLatch, "AlarmBellLatch", Int).SetsAndNeeds(AT(abAlarmBellLatch)),
        Week == WeekIn::Linkage ? FIELD(stuTimeSection, "TimeSection", TimeSection).ReadOnly() : FIELD(stuTimeSection),
        MakeVirtual("TimeSection", Custom(Week == WeekIn::Rule ? kRuleWeekOverSchedule : kWeekOverSchedule))
            .Writable(Week != WeekIn::Schedule),
    };
};

// ---- The form with size words ----

PART(kTimeSectionV2, CFG_TIME_SECTION_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(stuSection, "", TimeSection),
     })
    .Guarded();
PART(kPointV2, CFG_POINT_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(nX, "", Int),
         FIELD(nY, "", Int),
     })
    .As(Shape::Tuple)
    .Guarded();
PART(kSizeV2, CFG_SIZE_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(nWidth, "", Int),
         FIELD(nHeight, "", Int),
     })
    .As(Shape::Tuple)
    .Guarded();
PART(kColorV2, CFG_COLOR_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(nRed, "", Int),
         FIELD(nGreen, "", Int),
         FIELD(nBlue, "", Int),
         FIELD(nAlpha, "", Int),
     })
    .As(Shape::Tuple)
    .Guarded();

PART(kPtzLinkV2, CFG_PTZ_LINK_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(emType, "", Names(kPtzLinks)),
         FIELD(nValue, "", Int),
         FIELD(nParam1, "", Int),
         FIELD(nParam2, "", Int),
         FIELD(nParam3, "", Int),
     })
    .As(Shape::Tuple)
    .Writes(IsPtzLinkV2);

PART(kEventTitleV2, CFG_EVENT_TITLE_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(szText, "Text", Text),
         FIELD(stuPoint, "Point", Record(kPointV2)),
         FIELD(stuSize, "Size", Record(kSizeV2)),
         FIELD(stuFrontColor, "FrontColor", Record(kColorV2)),
         FIELD(stuBackColor, "BackColor", Record(kColorV2)),
     });

PART(kMonitorTourV2, CFG_MONITOR_TOUR_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(bEnable, "Enable", Bool),
         FIELD(nSplit, "Split", SplitMode),
         FIELD(nChannels, "Channels", Int).Count(AT(nChannelCount)).AnyShape(),
         FIELD(nChannelCount),
     });

static_assert(sizeof(CFG_TIME_SECTION_V2) == 32 && sizeof(CFG_POINT_V2) == 12 && sizeof(CFG_SIZE_V2) == 12);
static_assert(sizeof(CFG_COLOR_V2) == 20 && sizeof(CFG_PTZ_LINK_V2) == 24);
static_assert(sizeof(CFG_EVENT_TITLE_V2) == 132 && sizeof(CFG_MONITOR_TOUR_V2) == 4112);

struct EventHandlerV2Rows {
    using R = CFG_EVENT_HANDLER_V2_INFO;
    static constexpr Field rows[] = {
        FIELD(dwSize, nullptr, Size),
        FIELD(stuTimeSection, "TimeSection", Record(kTimeSectionV2)),
        FIELD(bRecordEnable, "RecordEnable", Bool).Always(),
        FIELD(nRecordChannels, "RecordChannels", Switches),
        FIELD(abRecordLatch),
        FIELD(nRecordLatch, "RecordLatch", Int).SetsAndNeeds(AT(abRecordLatch)),
        FIELD(bAlarmOutEnable, "AlarmOutEnable", Bool).Always(),
        FIELD(nAlarmOutChannels, "AlarmOutChannels", Switches),
        FIELD(abAlarmOutLatch),
        FIELD(nAlarmOutLatch, "AlarmOutLatch", Int).SetsAndNeeds(AT(abAlarmOutLatch)),
        FIELD(bExAlarmOutEnable, "ExAlarmOutEnable", Bool).Always(),
        FIELD(nExAlarmOutChannels, "ExAlarmOutChannels", Switches),
        FIELD(bPtzLinkEnable, "PtzLinkEnable", Bool).Always(),
        FIELD(nPtzLinkNum),
        FIELD(stuPtzLink, "PtzLink", Record(kPtzLinkV2)).Count(AT(nPtzLinkNum)).WriteSkipped(Skipped::ClosesUp),
        FIELD(bSnapshotEnable, "SnapshotEnable", Bool).Always(),
        FIELD(nSnapshotChannels, "SnapshotChannels", Switches),
        FIELD(abSnapshotPeriod),
        FIELD(nSnapshotPeriod, "SnapshotPeriod", Int).SetsAndNeeds(AT(abSnapshotPeriod)),
        FIELD(abSnapshotTimes),
        FIELD(nSnapshotTimes),
        FIELD(bSnapshotTitleEnable, "SnapshotTitleEnable", Bool).Always(),
        FIELD(nSnapshotTitleNum),
        FIELD(stuSnapshotTitle, "SnapshotTitle", Record(kEventTitleV2)).Count(AT(nSnapshotTitleNum)),
        FIELD(bTipEnable, "TipEnable", Bool).Always(),
        FIELD(bMailEnable, "MailEnable", Bool).Always(),
        FIELD(bMessageEnable, "MessageEnable", Bool).Always(),
        FIELD(bBeepEnable, "BeepEnable", Bool).Always(),
        FIELD(bVoiceEnable, "VoiceEnable", Bool).Always(),
        FIELD(abDejitter),
        FIELD(nDejitter, "Dejitter", Int).SetsAndNeeds(AT(abDejitter)),
        FIELD(bLogEnable, "LogEnable", Bool).Always(),
        FIELD(abDelay),
        FIELD(nDelay, "Delay", Int).SetsAndNeeds(AT(abDelay)),
        FIELD(bVideoTitleEnable, "VideoTitleEnable", Bool).Always(),
        FIELD(nVideoTitleNum),
        FIELD(stuVideoTitle, "VideoTitle", Record(kEventTitleV2)).Count(AT(nVideoTitleNum)),
        FIELD(bMMSEnable, "MMSEnable", Bool).Always(),
        FIELD(nTourNum),
        FIELD(stuTour, "MonitorTour", Record(kMonitorTourV2)).Count(AT(nTourNum)),
        FIELD(nDBKeysNum),
        FIELD(szDBKeys, "DB", Custom(kCountedKeys)).Count(AT(nDBKeysNum)),
        FIELD(szJpegSummary, "JpegSummary", RawText),
    };
};

} // namespace linkage

// Without the week: the schedule travels in stuTimeSectionEx alone.
inline constexpr record::TypedTable<CFG_EVENT_HANDLER_INFO> kEventHandler =
    record::MakeTable<linkage::EventHandlerRows<linkage::WeekIn::Schedule>>("CFG_EVENT_HANDLER_INFO");
// With the week in stuTimeSection as well.
inline constexpr record::TypedTable<CFG_EVENT_HANDLER_INFO> kEventHandlerWeek =
    record::MakeTable<linkage::EventHandlerRows<linkage::WeekIn::Linkage>>("CFG_EVENT_HANDLER_INFO");
// With the week in the rule that embeds the linkage.
inline constexpr record::TypedTable<CFG_EVENT_HANDLER_INFO> kEventHandlerRule =
    record::MakeTable<linkage::EventHandlerRows<linkage::WeekIn::Rule>>("CFG_EVENT_HANDLER_INFO");
// With size words.
inline constexpr record::TypedTable<CFG_EVENT_HANDLER_V2_INFO> kEventHandlerV2 =
    record::MakeTable<linkage::EventHandlerV2Rows>("CFG_EVENT_HANDLER_V2_INFO");

} // namespace orrery
