#include "alarm/EventHandler.h"
#include "support/Call.h"
#include "support/Records.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Cleared;
using test::WeekText;
using test::Write;

using Handler = CFG_EVENT_HANDLER_INFO;
using HandlerPtr = std::unique_ptr<Handler>;

// The text of the plain form without "TimeSection", which is written in every case.
std::string WriteKeys(const Handler& handler) {
    std::string text = Write(kEventHandler, handler);
    const std::string week = "\"TimeSection\" : " + WeekText(7);
    const auto at = text.find(week);
    if (at == std::string::npos) return "(no week) " + text;
    text.erase(at, week.size());
    for (const char* gap : {"{ , ", ", , ", ",  }"}) {
        const auto hole = text.find(gap);
        if (hole != std::string::npos) text.replace(hole, 4, gap[0] == '{' ? "{ " : gap[2] == ',' ? ", " : " }");
    }
    return text;
}

TEST(EventHandler, NothingButTheWeekWithoutFlags) {
    const auto zero = Cleared<Handler>();
    EXPECT_EQ(Write(kEventHandler, *zero), "{ \"TimeSection\" : " + WeekText(7) + " }");
    EXPECT_EQ(Write(kEventHandlerWeek, *zero), "{ \"TimeSection\" : " + WeekText(7) + " }");
}

TEST(EventHandler, FieldsWithoutTheirFlagsAreNotWritten) {
    auto h = Cleared<Handler>();
    std::memset(static_cast<void*>(&h->nRecordChannelNum), 1,
                offsetof(Handler, abAudioFileName) - offsetof(Handler, nRecordChannelNum));
    h->bAlarmBellEn = h->bAccessControlEn = h->nAccessControlNum = h->bTalkbackCallEn = h->bNeedReport = 1;
    h->nDestinationNum = h->nAlarmBellLatch = 1;
    h->szAudioFileName[0] = 'a';
    EXPECT_EQ(Write(kEventHandler, *h), "{ \"TimeSection\" : " + WeekText(7) + " }");
}

HandlerPtr Full() {
    auto h = Cleared<Handler>();
    std::memset(&h->abRecordMask, 1, offsetof(Handler, abFlashLatch) + 1);
    h->abAudioFileName = h->abAlarmBellEn = h->abAccessControlEn = h->abAccessControl = h->abTalkback = 1;
    h->abPSTNAlarmServer = h->abAlarmBellLatch = 1;
    h->nRecordChannelNum = h->nAlarmOutChannelNum = h->nTourSplit = 1; // never written
    h->dwRecordMask[0] = 5;
    h->dwAlarmOutMask[1] = 1;
    h->dwExAlarmOutMask[15] = 0x80000000u;
    h->dwTourMask[0] = 2;
    h->dwSnapshot[0] = 4;
    h->dwMatrixMask[0] = 8;
    h->bRecordEnable = h->bAlarmOutEn = h->bExAlarmOutEn = h->bPtzLinkEn = 2;
    h->bTourEnable = h->bSnapshotEn = h->bTipEnable = h->bMailEnable = h->bMessageEnable = h->bBeepEnable = 1;
    h->bVoiceEnable = h->nMatrixEnable = h->bLogEnable = h->bVideoMessageEn = h->bMMSEnable = h->nMessageToNetEn = 1;
    h->bSnapshotTitleEn = h->bVideoTitleEn = h->bFlashEnable = h->bAlarmBellEn = h->bAccessControlEn = 1;
    h->nRecordLatch = 10;
    h->nAlarmOutLatch = 11;
    h->nSnapshotPeriod = 12;
    h->nSnapshotTimes = 13;
    h->nDejitter = 14;
    h->nDelay = 15;
    h->nFlashLatch = 18;
    h->nAlarmBellLatch = 19;
    h->nPtzLinkNum = 2;
    h->stuPtzLink[0] = {3, 1, 2, 3, 4};
    h->stuPtzLink[1] = {0, 5, 6, 7, 8};
    h->nSnapshotTitleNum = 1;
    std::strcpy(h->stuSnapshotTitle[0].szText, "a/b");
    h->stuSnapshotTitle[0].stuPoint = {1, 2};
    h->stuSnapshotTitle[0].stuSize = {3, 4.5f};
    h->stuSnapshotTitle[0].stuFrontColor = {5, 6, 7, 8};
    h->stuSnapshotTitle[0].stuBackColor = {9, 10, 11, 12};
    h->stuMailDetail = {1, 16, 17};
    h->nVideoTitleNum = 1;
    h->nTourNum = 1;
    h->stuTour[0].bEnable = 1;
    h->stuTour[0].nSplit = 4;
    h->stuTour[0].nChannelCount = 2;
    h->stuTour[0].nChannels[0] = 8;
    h->stuTour[0].nChannels[1] = -9;
    h->nDBKeysNum = 2;
    std::strcpy(h->szDBKeys[0], "k1");
    std::strcpy(h->szJpegSummary, "raw");
    std::strcpy(h->szAudioFileName, "a.wav");
    h->nAccessControlNum = 2;
    h->emAccessControl[0] = 2;
    h->bTalkbackCallEn = 1;
    h->bNeedReport = 1;
    h->nDestinationNum = 2;
    h->byDestination[0] = 255;
    h->byDestination[1] = 1;
    h->stuTimeSectionEx.stuTimeSection[0][0] = {1, 1, 2, 3, 4, 5, 6};
    h->stuTimeSection[6][5] = {1, 8, 0, 0, 17, 30, 0};
    return h;
}

std::string FullText(const std::string& week) {
    return R"({ "AccessControlEnable" : true, "AccessControls" : [ { "Operation" : "Open" }, { "Operation" : null } ], )"
           R"("AlarmBellEnable" : true, "AlarmBellLatch" : 19, "AlarmOutChannels" : [ 32 ], "AlarmOutEnable" : true, )"
           R"("AlarmOutLatch" : 11, "BeepEnable" : true, "DB" : [ "k1", "" ], "Dejitter" : 14, "Delay" : 15, )"
           R"("ExAlarmOutChannels" : [ 511 ], "ExAlarmOutEnable" : true, "FlashEnable" : true, "FlashLatch" : 18, )"
           R"("JpegSummary" : "raw", "LogEnable" : true, "MMSEnable" : true, "MailDetail" : )"
           R"({ "AttachmentType" : "video", "MaxSize" : 16, "MaxTimeLength" : 17 }, "MailEnable" : true, )"
           R"("MatrixChannels" : [ 3 ], "MatrixEnable" : true, "MessageEnable" : true, "MessageToNetEnable" : true, )"
           R"("MonitorTour" : [ { "Channels" : [ 8, -9 ], "Enable" : true, "Split" : "Split4" } ], )"
           R"("OnVideoMessageEn" : true, "PSTNAlarmServer" : { "Destination" : [ 255, 1 ], "NeedReport" : true }, )"
           R"("PtzLink" : [ [ "Pattern", 1, 2, 3, 4 ], [ "None", 5, 6, 7, 8 ] ], "PtzLinkEnable" : true, )"
           R"("RecordChannels" : [ 0, 2 ], "RecordEnable" : true, "RecordLatch" : 10, "SnapshotChannels" : [ 2 ], )"
           R"("SnapshotEnable" : true, "SnapshotPeriod" : 12, "SnapshotTimes" : 13, "SnapshotTitle" : )"
           R"([ { "BackColor" : [ 9, 10, 11, 12 ], "FrontColor" : [ 5, 6, 7, 8 ], "Point" : [ 1, 2 ], )"
           R"("Size" : [ 3.000000000000000, 4.500000000000000 ], "Text" : "a\/b" } ], "SnapshotTitleEnable" : true, )"
           R"("Talkback" : { "CallEnable" : true, "CallProtocol" : "Cellular", "Caller" : "Device" }, "TimeSection" : )"
           + week
           + R"(, "TipEnable" : true, "TourChannels" : [ 1 ], "TourEnable" : true, "VideoTitle" : )"
             R"([ { "BackColor" : [ 0, 0, 0, 0 ], "FrontColor" : [ 0, 0, 0, 0 ], "Point" : [ 0, 0 ], )"
             R"("Size" : [ 0.000000000000000, 0.000000000000000 ], "Text" : "" } ], "VideoTitleEnable" : true, )"
             R"("Voice" : { "AudioFileName" : "a.wav" }, "VoiceEnable" : true })";
}

TEST(EventHandler, EverythingWritten) {
    EXPECT_EQ(Write(kEventHandler, *Full()), FullText(WeekText(7, {{0, 0, "1 01:02:03-04:05:06"}})));
}

TEST(EventHandler, TheWeekStandsOverTheSchedule) {
    auto h = Full();
    EXPECT_EQ(Write(kEventHandlerWeek, *h), FullText(WeekText(7, {{6, 5, "1 08:00:00-17:30:00"}})));
    h->stuTimeSectionEx.stuTimeSection[7][0] = {1, 9, 0, 0, 10, 0, 0};
    for (const std::int32_t holiday : {2, -1, 1}) {
        h->stuTimeSectionEx.bEnableHoliday = holiday;
        EXPECT_EQ(Write(kEventHandlerWeek, *h),
                  FullText(WeekText(8, {{6, 5, "1 08:00:00-17:30:00"}, {7, 0, "1 09:00:00-10:00:00"}})));
    }
    EXPECT_EQ(Write(kEventHandler, *h),
              FullText(WeekText(8, {{0, 0, "1 01:02:03-04:05:06"}, {7, 0, "1 09:00:00-10:00:00"}})));
}

TEST(EventHandler, BoolsThatAreTrueAtOneOnly) {
    auto h = Cleared<Handler>();
    h->abTourEnable = h->abMatrixEnable = h->abVideoMessageEn = h->abMessageToNetEn = h->abFlashEnable = 1;
    h->abMailEnable = 1;
    h->bTourEnable = h->nMatrixEnable = h->bVideoMessageEn = h->nMessageToNetEn = h->bFlashEnable = h->bMailEnable = 2;
    EXPECT_EQ(WriteKeys(*h), R"({ "FlashEnable" : false, "MailEnable" : true, "MatrixEnable" : false, )"
                             R"("MessageToNetEnable" : false, "OnVideoMessageEn" : false, "TourEnable" : false })");
}

TEST(EventHandler, EmptyMasks) {
    auto h = Cleared<Handler>();
    h->abRecordMask = h->abAlarmOutMask = h->abExAlarmOutMask = h->abTourMask = h->abSnapshot = h->abMatrixMask = 1;
    EXPECT_EQ(WriteKeys(*h), R"({ "AlarmOutChannels" : null, "ExAlarmOutChannels" : null })");
}

TEST(EventHandler, EmptyLists) {
    auto h = Cleared<Handler>();
    h->abPtzLink = h->abSnapshotTitle = h->abVideoTitle = h->abTour = h->abDBKeys = h->abAccessControl = 1;
    h->abPSTNAlarmServer = h->abTalkback = h->abAudioFileName = h->abJpegSummary = 1;
    EXPECT_EQ(WriteKeys(*h), R"({ "AccessControls" : [  ], "JpegSummary" : "", "PSTNAlarmServer" : { "NeedReport" : )"
                             R"(false }, "Talkback" : { "CallEnable" : false, "CallProtocol" : "Cellular", )"
                             R"("Caller" : "Device" }, "Voice" : { "AudioFileName" : "" } })");
    h->nPtzLinkNum = h->nSnapshotTitleNum = h->nVideoTitleNum = h->nTourNum = h->nDBKeysNum = -1;
    h->nAccessControlNum = h->nDestinationNum = INT32_MIN;
    EXPECT_EQ(WriteKeys(*h).find("DB"), std::string::npos);
    EXPECT_EQ(WriteKeys(*h).find("PtzLink"), std::string::npos);
}

TEST(EventHandler, CountsBeyondTheirArraysEndAtThem) {
    auto h = Cleared<Handler>();
    h->abPtzLink = h->abTour = h->abDBKeys = h->abAccessControl = h->abPSTNAlarmServer = 1;
    h->abSnapshotTitle = h->abVideoTitle = 1;
    h->nPtzLinkNum = h->nTourNum = h->nDBKeysNum = h->nAccessControlNum = h->nDestinationNum = INT32_MAX;
    h->nSnapshotTitleNum = h->nVideoTitleNum = INT32_MAX;
    h->stuTour[0].nChannelCount = INT32_MAX;
    h->stuTour[1].nChannelCount = -1;
    const std::string written = Write(kEventHandler, *h);
    test::Document text(written);
    ASSERT_TRUE(text.ok);
    EXPECT_EQ(text.root["PtzLink"].size(), 256u);
    EXPECT_EQ(text.root["SnapshotTitle"].size(), 256u);
    EXPECT_EQ(text.root["VideoTitle"].size(), 256u);
    EXPECT_EQ(text.root["MonitorTour"].size(), 256u);
    EXPECT_EQ(text.root["MonitorTour"][0u]["Channels"].size(), 256u);
    EXPECT_TRUE(text.root["MonitorTour"][1u]["Channels"].isNull());
    EXPECT_EQ(text.root["DB"].size(), 64u);
    EXPECT_EQ(text.root["AccessControls"].size(), 8u);
    EXPECT_EQ(text.root["PSTNAlarmServer"]["Destination"].size(), 8u);
}

TEST(EventHandler, CodesOutsideTheirNames) {
    auto h = Cleared<Handler>();
    h->abPtzLink = h->abMailDetail = h->abAccessControl = h->abTalkback = h->abTour = 1;
    h->nPtzLinkNum = 3;
    h->stuPtzLink[0].emType = 4;
    h->stuPtzLink[1] = {1, 0, 0, 0, 0};
    h->stuPtzLink[2].emType = -1;
    h->stuMailDetail.emAttachmentType = 2;
    h->nAccessControlNum = 8;
    const std::int32_t actions[8] = {0, 1, 2, 3, 4, 5, 6, -1};
    std::memcpy(h->emAccessControl, actions, sizeof actions);
    h->emTalkbackCaller = 1;
    h->emTalkbackProtocol = -1;
    h->nTourNum = 1;
    h->stuTour[0].nSplit = 3000;
    EXPECT_EQ(WriteKeys(*h),
              R"({ "AccessControls" : [ { "Operation" : null }, { "Operation" : "Auto" }, { "Operation" : "Open" }, )"
              R"({ "Operation" : "Close" }, { "Operation" : "OpenAlways" }, { "Operation" : "CloseAlways" }, )"
              R"(null, null ], "MailDetail" : { "MaxSize" : 0, "MaxTimeLength" : 0 }, )"
              R"("MonitorTour" : [ { "Enable" : false } ], )"
              R"("PtzLink" : [ null, [ "Preset", 0, 0, 0, 0 ], null ], )"
              R"("Talkback" : { "CallEnable" : false, "CallProtocol" : null, "Caller" : null } })");
}

TEST(EventHandler, PtzLinkAndAttachmentNames) {
    auto h = Cleared<Handler>();
    h->abPtzLink = h->abMailDetail = 1;
    h->nPtzLinkNum = 4;
    for (int i = 0; i < 4; ++i)
        h->stuPtzLink[i].emType = i;
    EXPECT_EQ(WriteKeys(*h),
              R"({ "MailDetail" : { "AttachmentType" : "picture", "MaxSize" : 0, "MaxTimeLength" : 0 }, )"
              R"("PtzLink" : [ [ "None", 0, 0, 0, 0 ], [ "Preset", 0, 0, 0, 0 ], )"
              R"([ "Tour", 0, 0, 0, 0 ], [ "Pattern", 0, 0, 0, 0 ] ] })");
}

} // namespace
} // namespace orrery
