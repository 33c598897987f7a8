#include "alarm/EventHandler.h"
#include "support/Call.h"
#include "support/Records.h"
#include "support/WeekText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Cleared;
using test::ReadInto;
using test::WeekText;
using test::Write;
using testing::Each;
using testing::ElementsAre;

using Handler = CFG_EVENT_HANDLER_INFO;
using HandlerPtr = std::unique_ptr<Handler>;

HandlerPtr ReadPlain(const std::string& text) {
    auto handler = Cleared<Handler>();
    EXPECT_TRUE(ReadInto(*handler, kEventHandler, text)) << text;
    return handler;
}

HandlerPtr ReadWeek(const std::string& text) {
    auto handler = Cleared<Handler>();
    EXPECT_TRUE(ReadInto(*handler, kEventHandlerWeek, text)) << text;
    return handler;
}

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

// ---- Reading ----

TEST(EventHandler, AnEmptyObjectRaisesTwoFlagsOnly) {
    for (const char* text : {"{ }", "null", "5", "[ ]"}) {
        auto handler = ReadPlain(text);
        EXPECT_EQ(handler->abRecordEnable, 1);
        EXPECT_EQ(handler->abAlarmOutEn, 1);
        handler->abRecordEnable = handler->abAlarmOutEn = 0;
        const auto zero = Cleared<Handler>();
        EXPECT_EQ(std::memcmp(handler.get(), zero.get(), sizeof(Handler)), 0) << text;
    }
}

TEST(EventHandler, EverythingRead) {
    const auto h = ReadWeek(R"({
        "SDK_RecordChannel" : 4, "SDK_AlarmOutChannel" : 5, "RecordChannels" : [ 1 ], "RecordEnable" : true,
        "RecordLatch" : 10, "AlarmOutChannels" : [ 2 ], "AlarmOutEnable" : true, "AlarmOutLatch" : 11,
        "ExAlarmOutChannels" : [ 3 ], "ExAlarmOutEnable" : true, "PtzLinkEnable" : true, "TourChannels" : [ 4 ],
        "TourEnable" : true, "SnapshotChannels" : [ 5 ], "SnapshotEnable" : true, "SnapshotPeriod" : 12,
        "SnapshotTimes" : 13, "TipEnable" : true, "MailEnable" : true, "MessageEnable" : true, "BeepEnable" : true,
        "VoiceEnable" : true, "MatrixChannels" : [ 6 ], "MatrixEnable" : true, "Dejitter" : 14, "LogEnable" : true,
        "Delay" : 15, "OnVideoMessageEn" : true, "MMSEnable" : true, "MessageToNetEnable" : 7, "TourSplit" : "Split8",
        "SnapshotTitleEnable" : true, "PtzLink" : [ [ "Preset", 1, 2, 3, 4 ] ],
        "SnapshotTitle" : [ { "Text" : "T", "Point" : [ 1, 2 ], "Size" : [ 3, 4 ], "FrontColor" : [ 5, 6, 7, 8 ],
                              "BackColor" : [ 9, 10, 11, 12 ] } ],
        "MailDetail" : { "AttachmentType" : "video", "MaxSize" : 16, "MaxTimeLength" : 17 },
        "VideoTitleEnable" : true, "VideoTitle" : [ { "Text" : "V" }, { } ],
        "MonitorTour" : [ { "Enable" : true, "Split" : "Split4", "Channels" : [ 8, 9 ] } ], "DB" : [ "k1", "k2" ],
        "JpegSummary" : "raw", "FlashEnable" : true, "FlashLatch" : 18, "Voice" : { "AudioFileName" : "a.wav" },
        "AlarmBellEnable" : true, "AccessControlEnable" : true, "AccessControls" : [ { "Operation" : "CloseAlways" } ],
        "Talkback" : { "CallEnable" : true, "Caller" : "Device", "CallProtocol" : "Cellular" },
        "PSTNAlarmServer" : { "NeedReport" : true, "Destination" : [ 1, 258 ] }, "AlarmBellLatch" : 19,
        "TimeSection" : [ [ "1 01:02:03-04:05:06" ] ] })");
    EXPECT_EQ(h->nRecordChannelNum, 4);
    EXPECT_EQ(h->nAlarmOutChannelNum, 5);
    const auto only = [](const std::uint32_t(&mask)[16], int bit) {
        for (int word = 0; word < 16; ++word) {
            if (mask[word] != (word == 0 ? 1u << bit : 0u)) return false;
        }
        return true;
    };
    EXPECT_TRUE(only(h->dwRecordMask, 1));
    EXPECT_TRUE(only(h->dwAlarmOutMask, 2));
    EXPECT_TRUE(only(h->dwExAlarmOutMask, 3));
    EXPECT_TRUE(only(h->dwTourMask, 4));
    EXPECT_TRUE(only(h->dwSnapshot, 5));
    EXPECT_TRUE(only(h->dwMatrixMask, 6));
    for (const std::int32_t flag :
         {h->bRecordEnable, h->bAlarmOutEn,   h->bExAlarmOutEn, h->bPtzLinkEn,       h->bTourEnable,
          h->bSnapshotEn,   h->bTipEnable,    h->bMailEnable,   h->bMessageEnable,   h->bBeepEnable,
          h->bVoiceEnable,  h->nMatrixEnable, h->bLogEnable,    h->bMMSEnable,       h->bSnapshotTitleEn,
          h->bVideoTitleEn, h->bFlashEnable,  h->bAlarmBellEn,  h->bAccessControlEn, h->bTalkbackCallEn,
          h->bNeedReport})
        EXPECT_EQ(flag, 1);
    EXPECT_EQ(h->nRecordLatch, 10);
    EXPECT_EQ(h->nAlarmOutLatch, 11);
    EXPECT_EQ(h->nSnapshotPeriod, 12);
    EXPECT_EQ(h->nSnapshotTimes, 13);
    EXPECT_EQ(h->nDejitter, 14);
    EXPECT_EQ(h->nDelay, 15);
    EXPECT_EQ(h->nMessageToNetEn, 7);
    EXPECT_EQ(h->nTourSplit, 1);
    EXPECT_EQ(h->nFlashLatch, 18);
    EXPECT_EQ(h->nAlarmBellLatch, 19);
    EXPECT_EQ(h->bVideoMessageEn, 0); // written only
    EXPECT_EQ(h->abVideoMessageEn, 0);

    for (const std::uint8_t flag :
         {h->abRecordMask,    h->abRecordEnable,    h->abRecordLatch,   h->abAlarmOutMask,    h->abAlarmOutEn,
          h->abAlarmOutLatch, h->abExAlarmOutMask,  h->abExAlarmOutEn,  h->abPtzLinkEn,       h->abTourMask,
          h->abTourEnable,    h->abSnapshot,        h->abSnapshotEn,    h->abSnapshotPeriod,  h->abSnapshotTimes,
          h->abTipEnable,     h->abMailEnable,      h->abMessageEnable, h->abBeepEnable,      h->abVoiceEnable,
          h->abMatrixMask,    h->abMatrixEnable,    h->abDejitter,      h->abLogEnable,       h->abDelay,
          h->abMMSEnable,     h->abMessageToNetEn,  h->abTourSplit,     h->abSnapshotTitleEn, h->abPtzLink,
          h->abSnapshotTitle, h->abMailDetail,      h->abVideoTitleEn,  h->abVideoTitle,      h->abTour,
          h->abDBKeys,        h->abJpegSummary,     h->abFlashEnable,   h->abFlashLatch,      h->abAudioFileName,
          h->abAlarmBellEn,   h->abAccessControlEn, h->abAccessControl, h->abTalkback,        h->abPSTNAlarmServer,
          h->abAlarmBellLatch})
        EXPECT_EQ(flag, 1);

    EXPECT_EQ(h->nPtzLinkNum, 1);
    EXPECT_EQ(h->stuPtzLink[0].emType, 1);
    EXPECT_EQ(h->stuPtzLink[0].nValue, 1);
    EXPECT_EQ(h->stuPtzLink[0].nParam1, 2);
    EXPECT_EQ(h->stuPtzLink[0].nParam2, 3);
    EXPECT_EQ(h->stuPtzLink[0].nParam3, 4);
    EXPECT_EQ(h->nSnapshotTitleNum, 1);
    const CFG_EVENT_TITLE& title = h->stuSnapshotTitle[0];
    EXPECT_STREQ(title.szText, "T");
    EXPECT_EQ(title.stuPoint.nX, 1);
    EXPECT_EQ(title.stuPoint.nY, 2);
    EXPECT_EQ(title.stuSize.fWidth, 3.0f);
    EXPECT_EQ(title.stuSize.fHeight, 4.0f);
    EXPECT_EQ(title.stuFrontColor.nRed, 5);
    EXPECT_EQ(title.stuFrontColor.nAlpha, 8);
    EXPECT_EQ(title.stuBackColor.nGreen, 10);
    EXPECT_EQ(title.stuBackColor.nBlue, 11);
    EXPECT_EQ(h->stuMailDetail.emAttachmentType, 1);
    EXPECT_EQ(h->stuMailDetail.nMaxSize, 16);
    EXPECT_EQ(h->stuMailDetail.nMaxTimeLength, 17);
    EXPECT_EQ(h->nVideoTitleNum, 2);
    EXPECT_STREQ(h->stuVideoTitle[0].szText, "V");
    EXPECT_EQ(h->nTourNum, 1);
    EXPECT_EQ(h->stuTour[0].bEnable, 1);
    EXPECT_EQ(h->stuTour[0].nSplit, 4);
    EXPECT_EQ(h->stuTour[0].nChannelCount, 2);
    EXPECT_EQ(h->stuTour[0].nChannels[1], 9);
    EXPECT_EQ(h->nDBKeysNum, 2);
    EXPECT_STREQ(h->szDBKeys[1], "k2");
    EXPECT_STREQ(h->szJpegSummary, "raw");
    EXPECT_STREQ(h->szAudioFileName, "a.wav");
    EXPECT_EQ(h->nAccessControlNum, 1);
    EXPECT_EQ(h->emAccessControl[0], 5);
    EXPECT_EQ(h->emTalkbackCaller, 0);
    EXPECT_EQ(h->emTalkbackProtocol, 0);
    EXPECT_EQ(h->nDestinationNum, 2);
    EXPECT_EQ(h->byDestination[0], 1);
    EXPECT_EQ(h->byDestination[1], 2); // the low 8 bits of 258
    EXPECT_EQ(h->stuTimeSection[0][0].dwMask, 1);
    EXPECT_EQ(h->stuTimeSection[0][0].nEndSec, 6);
}

TEST(EventHandler, MasksTakeChannelsTo511) {
    for (const char* key : {"RecordChannels", "AlarmOutChannels", "ExAlarmOutChannels", "SnapshotChannels"}) {
        const auto h = ReadPlain(std::string("{ \"") + key + R"(" : [ 0, 31, 32, 511, 512, -1 ] })");
        const auto& mask = key[0] == 'R'   ? h->dwRecordMask
                           : key[0] == 'A' ? h->dwAlarmOutMask
                           : key[0] == 'E' ? h->dwExAlarmOutMask
                                           : h->dwSnapshot;
        EXPECT_EQ(mask[0], 0x80000001u) << key;
        EXPECT_EQ(mask[1], 1u);
        EXPECT_EQ(mask[15], 0x80000000u);
        for (int word = 2; word < 15; ++word)
            EXPECT_EQ(mask[word], 0u);
    }
}

TEST(EventHandler, MasksThatAreNoList) {
    const auto h = ReadPlain(R"({ "RecordChannels" : 1, "AlarmOutChannels" : "1", "ExAlarmOutChannels" : { "a" : 1 },
                                  "SnapshotChannels" : true, "TourChannels" : 1, "MatrixChannels" : { "a" : 1 } })");
    EXPECT_EQ(h->abRecordMask, 0);
    EXPECT_EQ(h->abAlarmOutMask, 0);
    EXPECT_EQ(h->abExAlarmOutMask, 0);
    EXPECT_EQ(h->abSnapshot, 0);
    EXPECT_EQ(h->abTourMask, 1); // these two ask for no list
    EXPECT_EQ(h->abMatrixMask, 1);
    EXPECT_THAT(h->dwTourMask, Each(0u));
    EXPECT_THAT(h->dwMatrixMask, Each(0u));
}

TEST(EventHandler, TourAndMatrixChannelsBelowZero) {
    const auto h = ReadPlain(R"({ "TourChannels" : [ -1, -31, 511, 512 ], "MatrixChannels" : [ -2, -32, -1000000 ] })");
    EXPECT_EQ(h->dwTourMask[0], 0x80000002u); // bits 31 and 1
    EXPECT_EQ(h->dwTourMask[15], 0x80000000u);
    EXPECT_EQ(h->dwMatrixMask[0], 0x40000000u); // bit 30
    for (int word = 1; word < 16; ++word)
        EXPECT_EQ(h->dwMatrixMask[word], 0u);
}

TEST(EventHandler, MasksTake512Elements) {
    std::string numbers = "[ ";
    for (int i = 0; i < 512; ++i)
        numbers += "7, ";
    const auto h = ReadPlain("{ \"RecordChannels\" : " + numbers + "8 ], \"TourChannels\" : " + numbers + "8 ] }");
    EXPECT_EQ(h->dwRecordMask[0], 0x80u);
    EXPECT_EQ(h->dwTourMask[0], 0x80u);
}

TEST(EventHandler, PtzLinks) {
    const auto h =
        ReadPlain(R"({ "PtzLink" : [ [ "PRESET", 1, 2, 3, 4 ], [ "Tour", 5, 6, 7 ], null, [ "tour", 1, 2, 3, 4 ],
        [ "Pattern", -1, "x", 2.9, true ], [ "None", 8, 8, 8, 8 ], [ 1, 9, 9, 9, 9 ], 5, [ "Tour", 1, 2, 3, 4, 5 ] ] })");
    EXPECT_EQ(h->nPtzLinkNum, 9);
    EXPECT_EQ(h->stuPtzLink[0].emType, 1);
    EXPECT_EQ(h->stuPtzLink[1].emType, 0); // four elements: stays zero, keeps its place
    EXPECT_EQ(h->stuPtzLink[1].nValue, 0);
    EXPECT_EQ(h->stuPtzLink[2].nValue, 0);
    EXPECT_EQ(h->stuPtzLink[3].emType, 2);
    EXPECT_EQ(h->stuPtzLink[4].emType, 3);
    EXPECT_EQ(h->stuPtzLink[4].nValue, -1);
    EXPECT_EQ(h->stuPtzLink[4].nParam1, 0);
    EXPECT_EQ(h->stuPtzLink[4].nParam2, 2);
    EXPECT_EQ(h->stuPtzLink[4].nParam3, 1);
    EXPECT_EQ(h->stuPtzLink[5].emType, 0);
    EXPECT_EQ(h->stuPtzLink[5].nValue, 8);
    EXPECT_EQ(h->stuPtzLink[6].emType, 0);
    EXPECT_EQ(h->stuPtzLink[6].nParam3, 9);
    EXPECT_EQ(h->stuPtzLink[8].emType, 0);
    EXPECT_EQ(h->stuPtzLink[8].nParam3, 0);
}

TEST(EventHandler, ListsEndAtTheirBounds) {
    const auto many = [](int count, const std::string& element) {
        std::string list = "[ ";
        for (int i = 0; i < count; ++i)
            list += (i == 0 ? "" : ", ") + element;
        return list + " ]";
    };
    const auto h =
        ReadPlain("{ \"PtzLink\" : " + many(257, R"([ "Tour", 1, 2, 3, 4 ])") + ", \"SnapshotTitle\" : "
                  + many(257, R"({ "Text" : "t" })") + ", \"VideoTitle\" : " + many(300, "{ }") + ", \"MonitorTour\" : "
                  + many(257, R"({ "Channels" : )" + many(257, "-9") + " }") + ", \"DB\" : " + many(65, "\"k\"")
                  + ", \"AccessControls\" : " + many(9, R"({ "Operation" : "Auto" })")
                  + ", \"PSTNAlarmServer\" : { \"Destination\" : " + many(9, "3") + " } }");
    EXPECT_EQ(h->nPtzLinkNum, 256);
    EXPECT_EQ(h->nSnapshotTitleNum, 256);
    EXPECT_EQ(h->nVideoTitleNum, 256);
    EXPECT_EQ(h->nTourNum, 256);
    EXPECT_EQ(h->stuTour[255].nChannelCount, 256);
    EXPECT_EQ(h->stuTour[255].nChannels[255], -9); // no test of its range
    EXPECT_EQ(h->nDBKeysNum, 64);
    EXPECT_EQ(h->nAccessControlNum, 8);
    EXPECT_THAT(h->emAccessControl, Each(1));
    EXPECT_EQ(h->nDestinationNum, 8);
    EXPECT_THAT(h->byDestination, Each(3));
}

TEST(EventHandler, ListsThatAreNone) {
    const auto h = ReadPlain(R"({ "PtzLink" : 1, "SnapshotTitle" : "x", "VideoTitle" : { }, "MonitorTour" : true,
        "DB" : "k", "AccessControls" : { "Operation" : "Open" }, "PSTNAlarmServer" : { "Destination" : 5 } })");
    EXPECT_EQ(h->abPtzLink, 0);
    EXPECT_EQ(h->abSnapshotTitle, 0);
    EXPECT_EQ(h->abVideoTitle, 0);
    EXPECT_EQ(h->abTour, 0);
    EXPECT_EQ(h->abDBKeys, 1); // this one asks for no list
    EXPECT_EQ(h->nDBKeysNum, 0);
    EXPECT_EQ(h->abAccessControl, 0);
    EXPECT_EQ(h->abPSTNAlarmServer, 1);
    EXPECT_EQ(h->nDestinationNum, 0);
}

TEST(EventHandler, BoolsOfAnyType) {
    const auto h = ReadPlain(R"({ "RecordEnable" : "false", "TourEnable" : 0, "MailEnable" : 2, "MatrixEnable" : 2.9,
                                  "MessageToNetEnable" : "true", "FlashEnable" : null })");
    EXPECT_EQ(h->bRecordEnable, 1);
    EXPECT_EQ(h->abTourEnable, 1);
    EXPECT_EQ(h->bTourEnable, 0);
    EXPECT_EQ(h->bMailEnable, 1);
    EXPECT_EQ(h->nMatrixEnable, 2); // these two are numbers
    EXPECT_EQ(h->nMessageToNetEn, 0);
    EXPECT_EQ(h->abFlashEnable, 0);
}

TEST(EventHandler, TourSplitsAndAttachments) {
    EXPECT_EQ(ReadPlain(R"({ "TourSplit" : "split8" })")->nTourSplit, 1);
    EXPECT_EQ(ReadPlain(R"({ "TourSplit" : "SPLIT1" })")->nTourSplit, 0);
    EXPECT_EQ(ReadPlain(R"({ "TourSplit" : "Split4" })")->nTourSplit, 0);
    EXPECT_EQ(ReadPlain(R"({ "TourSplit" : "Split4" })")->abTourSplit, 1);
    auto handler = Cleared<Handler>();
    handler->nTourSplit = 1;
    handler->stuMailDetail.emAttachmentType = 1;
    ASSERT_TRUE(
        ReadInto(*handler, kEventHandler, R"({ "TourSplit" : "x", "MailDetail" : { "AttachmentType" : "x" } })"));
    EXPECT_EQ(handler->nTourSplit, 1); // others leave the field
    EXPECT_EQ(handler->stuMailDetail.emAttachmentType, 1);
    ASSERT_TRUE(ReadInto(*handler, kEventHandler, R"({ "MailDetail" : { "AttachmentType" : "Picture" } })"));
    EXPECT_EQ(handler->stuMailDetail.emAttachmentType, 0);
}

TEST(EventHandler, Tours) {
    const auto h = ReadPlain(R"({ "MonitorTour" : [ { "Split" : 4 }, { "Split" : "Split" }, { "Split" : "split4" },
                                                    null, { "Channels" : 5 }, 7 ] })");
    EXPECT_EQ(h->nTourNum, 6);
    EXPECT_EQ(h->stuTour[0].nSplit, 0); // no text
    EXPECT_EQ(h->stuTour[1].nSplit, 10);
    EXPECT_EQ(h->stuTour[2].nSplit, 1); // case counts in split modes
    EXPECT_EQ(h->stuTour[4].nChannelCount, 0);
}

TEST(EventHandler, TitlesWithBadParts) {
    const auto h = ReadPlain(R"({ "VideoTitle" : [ { "Text" : 5, "Point" : [ 1 ], "Size" : [ 1.9, 2 ],
        "FrontColor" : [ 1, 2, 3 ], "BackColor" : "red" }, { "Text" : ")"
                             + std::string(70, 'x') + R"(" } ] })");
    EXPECT_EQ(h->nVideoTitleNum, 2);
    EXPECT_STREQ(h->stuVideoTitle[0].szText, "");
    EXPECT_EQ(h->stuVideoTitle[0].stuPoint.nX, 0);
    EXPECT_EQ(h->stuVideoTitle[0].stuSize.fWidth, 1.0f); // through an integer
    EXPECT_EQ(h->stuVideoTitle[0].stuFrontColor.nRed, 0);
    EXPECT_EQ(h->stuVideoTitle[1].szText, std::string(63, 'x'));
}

TEST(EventHandler, DoorActionsCompareExactly) {
    const auto h = ReadPlain(R"({ "AccessControls" : [ null, { "Operation" : "Open" }, { "Operation" : "open" },
        { "Operation" : "Auto" }, { "Operation" : "Close" }, { "Operation" : "OpenAlways" }, { "Operation" : 2 }, "Open" ] })");
    EXPECT_EQ(h->nAccessControlNum, 8);
    EXPECT_THAT(h->emAccessControl, ElementsAre(0, 2, 0, 1, 3, 4, 0, 0));
    const auto empty = ReadPlain(R"({ "AccessControls" : [ ] })");
    EXPECT_EQ(empty->abAccessControl, 1);
    EXPECT_EQ(empty->nAccessControlNum, 0);
}

TEST(EventHandler, TextsOfOtherTypesAndLengths) {
    const auto h = ReadPlain(R"({ "JpegSummary" : ")" + std::string(1030, 'j') + R"(", "Voice" : { "AudioFileName" : ")"
                             + std::string(300, 'v') + R"(" }, "DB" : [ ")" + std::string(70, 'd') + R"(", 5 ] })");
    EXPECT_EQ(h->szJpegSummary, std::string(1023, 'j'));
    EXPECT_EQ(h->szAudioFileName, std::string(259, 'v'));
    EXPECT_EQ(h->szDBKeys[0], std::string(63, 'd'));
    EXPECT_STREQ(h->szDBKeys[1], "");
    EXPECT_EQ(h->nDBKeysNum, 2);
    EXPECT_EQ(ReadPlain(R"({ "Voice" : { } })")->abAudioFileName, 0);
    EXPECT_EQ(ReadPlain(R"({ "Voice" : { "AudioFileName" : 5 } })")->abAudioFileName, 1);
}

TEST(EventHandler, TalkbackAndPstnArePresentWhateverTheyHold) {
    const auto h = ReadPlain(R"({ "Talkback" : { "CallEnable" : null, "Caller" : "device" }, "PSTNAlarmServer" : 5 })");
    EXPECT_EQ(h->abTalkback, 1);
    EXPECT_EQ(h->bTalkbackCallEn, 0);
    EXPECT_EQ(h->abPSTNAlarmServer, 1);
    const auto destinations = ReadPlain(R"({ "PSTNAlarmServer" : { "Destination" : [ -1, 255, 256, "7", null ] } })");
    EXPECT_EQ(destinations->nDestinationNum, 5);
    EXPECT_THAT(destinations->byDestination, ElementsAre(0, 255, 0, 0, 0, 0, 0, 0));
}

TEST(EventHandler, SchedulesOfSevenAndEightRows) {
    const auto seven = ReadPlain("{ \"TimeSection\" : " + WeekText(7, {{6, 5, "1 8:0:0-17:30:0"}}) + " }");
    EXPECT_EQ(seven->stuTimeSectionEx.bEnableHoliday, 0);
    EXPECT_EQ(seven->stuTimeSectionEx.stuTimeSection[6][5].nEndMin, 30);
    EXPECT_EQ(seven->stuTimeSection[6][5].dwMask, 0); // the plain form has no week of its own
    const auto eight = ReadPlain("{ \"TimeSection\" : " + WeekText(8, {{7, 0, "1 08:00:00-17:30:00"}}) + " }");
    EXPECT_EQ(eight->stuTimeSectionEx.bEnableHoliday, 1);
    EXPECT_EQ(eight->stuTimeSectionEx.stuTimeSection[7][0].nEndHour, 17);
    const auto six = ReadPlain("{ \"TimeSection\" : " + WeekText(6) + " }");
    EXPECT_EQ(six->stuTimeSectionEx.bEnableHoliday, 0);
}

TEST(EventHandler, TheWeekIsReadCellByCell) {
    // The schedule ends at its first bad cell; the week passes it over.
    const auto h = ReadWeek(R"({ "TimeSection" : [ [ "1 01:00:00-02:00:00", "bad", "1 03:00:00-04:00:00" ], 5,
        [ "1 05:00:00-06:00:00" ], [ ], [ ], [ ], [ "1 07:00:00-08:00:00" ], [ "1 09:00:00-10:00:00" ] ] })");
    EXPECT_EQ(h->stuTimeSection[0][0].nEndHour, 2);
    EXPECT_EQ(h->stuTimeSection[0][2].nEndHour, 4);
    EXPECT_EQ(h->stuTimeSection[2][0].nEndHour, 6);
    EXPECT_EQ(h->stuTimeSection[6][0].nEndHour, 8);
    EXPECT_EQ(h->stuTimeSectionEx.stuTimeSection[0][0].nEndHour, 2);
    EXPECT_EQ(h->stuTimeSectionEx.stuTimeSection[0][2].nEndHour, 0);
    EXPECT_EQ(h->stuTimeSectionEx.bEnableHoliday, 0);
    // A cell of more than two digits a part is a week's failure, but not the schedule's.
    const auto wide = ReadWeek(R"({ "TimeSection" : [ [ "1 008:00:00-9:00:00" ] ] })");
    EXPECT_EQ(wide->stuTimeSection[0][0].nEndHour, 0);
    EXPECT_EQ(wide->stuTimeSectionEx.stuTimeSection[0][0].nEndHour, 9);
}

// ---- Writing ----

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
    h->stuTimeSectionEx.bEnableHoliday = 1;
    h->stuTimeSectionEx.stuTimeSection[7][0] = {1, 9, 0, 0, 10, 0, 0};
    EXPECT_EQ(Write(kEventHandlerWeek, *h),
              FullText(WeekText(8, {{6, 5, "1 08:00:00-17:30:00"}, {7, 0, "1 09:00:00-10:00:00"}})));
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
