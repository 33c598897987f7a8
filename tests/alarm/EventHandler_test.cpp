#include "Commands.h"
#include "alarm/EventHandler.h"
#include "support/Call.h"
#include "support/Records.h"
#include "support/WeekText.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace orrery {
namespace {

using test::Cleared;
using test::ReadInto;
using test::WeekText;
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

TEST(EventHandler, MembersOfAnObjectCountWhereNoListIsAskedFor) {
    const auto h = ReadPlain(R"({ "MonitorTour" : [ { "Channels" : { "a" : 1, "b" : 2 } } ],
                                  "DB" : { "a" : "x", "b" : "y", "c" : "z" } })");
    EXPECT_EQ(h->stuTour[0].nChannelCount, 2);
    EXPECT_THAT(h->stuTour[0].nChannels, Each(0));
    EXPECT_EQ(h->nDBKeysNum, 3);
    EXPECT_STREQ(h->szDBKeys[0], "");
}

TEST(EventHandler, AFlagTellsThatTheKeyWasThereWhateverItsType) {
    const auto h = ReadPlain(R"({ "RecordLatch" : "x", "Dejitter" : [ 5 ], "TourSplit" : 8, "MailDetail" : 5,
                                  "JpegSummary" : 5, "SnapshotTimes" : null })");
    EXPECT_EQ(h->abRecordLatch, 1);
    EXPECT_EQ(h->nRecordLatch, 0);
    EXPECT_EQ(h->abDejitter, 1);
    EXPECT_EQ(h->nDejitter, 0);
    EXPECT_EQ(h->abTourSplit, 1);
    EXPECT_EQ(h->nTourSplit, 0);
    EXPECT_EQ(h->abMailDetail, 1);
    EXPECT_EQ(h->stuMailDetail.nMaxSize, 0);
    EXPECT_EQ(h->abJpegSummary, 1);
    EXPECT_STREQ(h->szJpegSummary, "");
    EXPECT_EQ(h->abSnapshotTimes, 0); // null is as good as absent
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
    const auto nine = ReadPlain("{ \"TimeSection\" : " + WeekText(9, {{8, 0, "bad"}}) + " }");
    EXPECT_EQ(nine->stuTimeSectionEx.bEnableHoliday, 1); // the ninth row is not looked at
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

// A linkage that is not there is one without keys: it says that nothing is recorded and no output raised.
TEST(EventHandler, IsReadByAlarmsAlsoWhenAbsent) {
    std::istringstream names(
        "Alarm NetAlarm LossDetect BlindDetect StorageNotExist StorageFailure StorageLowSpace NetAbort IPConflict "
        "MacConflict PSTNBreakLine ChassisIntrusion Emergency BatteryLowPowerAlarm MCSGeneralCapacityLow "
        "MCSDataNodeOffline MCSDiskOffline MCSDiskSlow MCSDiskBroken MCSDiskUnknowError MCSMetadataServerAbnormal "
        "MCSCatalogServerAbnormal MCSGeneralCapacityResume MCSDataNodeOnline MCSDiskOnline MCSMetadataSlaveOnline "
        "MCSCatalogServerOnline ParkingCard NetMonitorAbort UserLockAlarm LoginFailureAlarm");
    for (std::string name; names >> name;) {
        const Command* const command = FindCommand(name);
        ASSERT_NE(command, nullptr) << name;
        const auto* const row = std::find_if(command->table->begin(), command->table->end(), [](const auto& field) {
            return std::string_view(field.name) == "stuEventHandler";
        });
        ASSERT_NE(row, command->table->end()) << name;
        std::vector<std::byte> buffer(command->table->size);
        const ParseRequest request{R"({"result":true,"params":{"table":{}}})", buffer.data(),
                                   static_cast<std::uint32_t>(buffer.size()), nullptr};
        ASSERT_EQ(RunParse(*command, request), Outcome::Done) << name;
        const std::byte* const at = buffer.data() + row->offset;
        EXPECT_EQ(MEMBER(at, CFG_EVENT_HANDLER_INFO, abRecordEnable), 1) << name;
        EXPECT_EQ(MEMBER(at, CFG_EVENT_HANDLER_INFO, abAlarmOutEn), 1) << name;
    }
}

} // namespace
} // namespace orrery
