// The linkage record with size words.
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

using Handler = CFG_EVENT_HANDLER_V2_INFO;
using HandlerPtr = std::unique_ptr<Handler>;

HandlerPtr Read(const std::string& text) {
    auto handler = Cleared<Handler>();
    EXPECT_TRUE(ReadInto(*handler, kEventHandlerV2, text)) << text;
    return handler;
}

TEST(EventHandlerV2, SizeWordsOfAllParts) {
    const auto h = Read("{ }");
    EXPECT_EQ(h->dwSize, sizeof(Handler));
    for (const auto& day : h->stuTimeSection) {
        for (const auto& section : day)
            EXPECT_EQ(section.dwSize, 32u);
    }
    for (const auto& link : h->stuPtzLink)
        EXPECT_EQ(link.dwSize, 24u);
    for (int i = 0; i < 64; ++i) {
        const auto& title = i < 32 ? h->stuSnapshotTitle[i] : h->stuVideoTitle[i - 32];
        EXPECT_EQ(title.dwSize, 132u);
        EXPECT_EQ(title.stuPoint.dwSize, 12u);
        EXPECT_EQ(title.stuSize.dwSize, 12u);
        EXPECT_EQ(title.stuFrontColor.dwSize, 20u);
        EXPECT_EQ(title.stuBackColor.dwSize, 20u);
    }
    for (const auto& tour : h->stuTour)
        EXPECT_EQ(tour.dwSize, 4112u);
}

TEST(EventHandlerV2, EverythingRead) {
    const auto h = Read(R"({ "TimeSection" : )" + WeekText(8, {{6, 5, "1 08:00:00-17:30:00"}}) + R"(,
        "RecordEnable" : true, "RecordChannels" : [ 0, 1023, 1024, -1 ], "RecordLatch" : 10, "AlarmOutEnable" : 1,
        "AlarmOutChannels" : [ 1 ], "AlarmOutLatch" : 11, "ExAlarmOutEnable" : true, "ExAlarmOutChannels" : [ 2 ],
        "PtzLinkEnable" : true, "PtzLink" : [ [ "tour", 1, 2, 3, 4 ], [ "Tour", 1 ], [ "x", 5, 6, 7, 8 ] ],
        "SnapshotEnable" : true, "SnapshotChannels" : [ 3 ], "SnapshotPeriod" : 12, "SnapshotTimes" : 13,
        "SnapshotTitleEnable" : true,
        "SnapshotTitle" : [ { "Text" : "T", "Point" : [ 1, 2 ], "Size" : [ 3.9, 4 ], "FrontColor" : [ 5, 6, 7, 8 ],
                              "BackColor" : [ 9 ] } ],
        "TipEnable" : true, "MailEnable" : true, "MessageEnable" : true, "BeepEnable" : true, "VoiceEnable" : true,
        "Dejitter" : 14, "LogEnable" : true, "Delay" : 15, "VideoTitleEnable" : true, "VideoTitle" : [ { }, { } ],
        "MMSEnable" : true, "MonitorTour" : [ { "Enable" : true, "Split" : "PIP", "Channels" : [ 5, -6 ] } ],
        "JpegSummary" : "raw" })");
    EXPECT_EQ(h->stuTimeSection[6][5].stuSection.dwMask, 1);
    EXPECT_EQ(h->stuTimeSection[6][5].stuSection.nEndMin, 30);
    for (const std::int32_t flag :
         {h->bRecordEnable, h->bAlarmOutEnable, h->bExAlarmOutEnable, h->bPtzLinkEnable, h->bSnapshotEnable,
          h->bSnapshotTitleEnable, h->bTipEnable, h->bMailEnable, h->bMessageEnable, h->bBeepEnable, h->bVoiceEnable,
          h->bLogEnable, h->bVideoTitleEnable, h->bMMSEnable, h->abRecordLatch, h->abAlarmOutLatch, h->abSnapshotPeriod,
          h->abDejitter, h->abDelay})
        EXPECT_EQ(flag, 1);
    for (int channel = 0; channel < 1024; ++channel)
        EXPECT_EQ(h->nRecordChannels[channel], channel == 0 || channel == 1023) << channel;
    EXPECT_EQ(h->nAlarmOutChannels[1], 1);
    EXPECT_EQ(h->nExAlarmOutChannels[2], 1);
    EXPECT_EQ(h->nSnapshotChannels[3], 1);
    EXPECT_EQ(h->nRecordLatch, 10);
    EXPECT_EQ(h->nAlarmOutLatch, 11);
    EXPECT_EQ(h->nSnapshotPeriod, 12);
    EXPECT_EQ(h->abSnapshotTimes, 0); // in no text
    EXPECT_EQ(h->nSnapshotTimes, 0);
    EXPECT_EQ(h->nDejitter, 14);
    EXPECT_EQ(h->nDelay, 15);
    EXPECT_EQ(h->nPtzLinkNum, 3);
    EXPECT_EQ(h->stuPtzLink[0].emType, 2);
    EXPECT_EQ(h->stuPtzLink[0].nParam3, 4);
    EXPECT_EQ(h->stuPtzLink[1].nValue, 0);
    EXPECT_EQ(h->stuPtzLink[2].emType, 0);
    EXPECT_EQ(h->stuPtzLink[2].nParam3, 8);
    EXPECT_EQ(h->nSnapshotTitleNum, 1);
    EXPECT_STREQ(h->stuSnapshotTitle[0].szText, "T");
    EXPECT_EQ(h->stuSnapshotTitle[0].stuPoint.nY, 2);
    EXPECT_EQ(h->stuSnapshotTitle[0].stuSize.nWidth, 3);
    EXPECT_EQ(h->stuSnapshotTitle[0].stuFrontColor.nAlpha, 8);
    EXPECT_EQ(h->stuSnapshotTitle[0].stuBackColor.nRed, 0);
    EXPECT_EQ(h->nVideoTitleNum, 2);
    EXPECT_EQ(h->nTourNum, 1);
    EXPECT_EQ(h->stuTour[0].bEnable, 1);
    EXPECT_EQ(h->stuTour[0].nSplit, 1000);
    EXPECT_EQ(h->stuTour[0].nChannelCount, 2);
    EXPECT_EQ(h->stuTour[0].nChannels[1], -6);
    EXPECT_STREQ(h->szJpegSummary, "raw");
}

TEST(EventHandlerV2, ListsEndAtTheirBounds) {
    const auto many = [](int count, const std::string& element) {
        std::string list = "[ ";
        for (int i = 0; i < count; ++i)
            list += (i == 0 ? "" : ", ") + element;
        return list + " ]";
    };
    const auto h = Read("{ \"PtzLink\" : " + many(1025, "0") + ", \"SnapshotTitle\" : " + many(33, "0")
                        + ", \"VideoTitle\" : " + many(33, "0")
                        + ", \"MonitorTour\" : " + many(129, R"({ "Channels" : )" + many(1025, "1") + " }") + " }");
    EXPECT_EQ(h->nPtzLinkNum, 1024);
    EXPECT_EQ(h->nSnapshotTitleNum, 32);
    EXPECT_EQ(h->nVideoTitleNum, 32);
    EXPECT_EQ(h->nTourNum, 128);
    EXPECT_EQ(h->stuTour[127].nChannelCount, 1024);
    EXPECT_EQ(h->stuTour[127].nChannels[1023], 1);
}

TEST(EventHandlerV2, DataBaseKeysCountByANumber) {
    EXPECT_EQ(Read(R"({ "DB" : [ "a", "b" ] })")->nDBKeysNum, 0);
    const auto h = Read(R"({ "DB" : 3 })");
    EXPECT_EQ(h->nDBKeysNum, 3);
    EXPECT_STREQ(h->szDBKeys[0], "");
    EXPECT_EQ(Read(R"({ "DB" : 65 })")->nDBKeysNum, 64);
    EXPECT_EQ(Read(R"({ "DB" : "5" })")->nDBKeysNum, 0);
    EXPECT_EQ(Read(R"({ "DB" : -2 })")->nDBKeysNum, -2); // bounded above alone; written as none
}

TEST(EventHandlerV2, ChannelListsTake1024Elements) {
    std::string numbers = "[ ";
    for (int i = 0; i < 1024; ++i)
        numbers += "7, ";
    for (const char* key : {"RecordChannels", "AlarmOutChannels", "ExAlarmOutChannels", "SnapshotChannels"}) {
        const auto h = Read(std::string("{ \"") + key + "\" : " + numbers + "8 ] }");
        const auto& channels = key[0] == 'R'   ? h->nRecordChannels
                               : key[0] == 'A' ? h->nAlarmOutChannels
                               : key[0] == 'E' ? h->nExAlarmOutChannels
                                               : h->nSnapshotChannels;
        EXPECT_EQ(channels[7], 1) << key;
        EXPECT_EQ(channels[8], 0) << key;
    }
}

TEST(EventHandlerV2, MembersOfAnObjectCountAsChannelsOfATour) {
    const auto h = Read(R"({ "MonitorTour" : [ { "Channels" : { "a" : 1, "b" : 2 } } ] })");
    EXPECT_EQ(h->stuTour[0].nChannelCount, 2);
    EXPECT_EQ(h->stuTour[0].nChannels[0], 0);
}

TEST(EventHandlerV2, TheWeekIsReadCellByCellWithTwoDigitsAPart) {
    const auto h = Read(R"({ "TimeSection" : [ [ "bad", "1 01:00:00-02:00:00" ], null, [ "1 008:00:00-9:00:00", 5,
                                                 "1 03:00:00-04:00:00" ] ] })");
    EXPECT_EQ(h->stuTimeSection[0][0].stuSection.dwMask, 0);
    EXPECT_EQ(h->stuTimeSection[0][1].stuSection.nEndHour, 2);
    EXPECT_EQ(h->stuTimeSection[2][0].stuSection.dwMask, 1); // what was read before the colon that is not there
    EXPECT_EQ(h->stuTimeSection[2][0].stuSection.nBeginHour, 0);
    EXPECT_EQ(h->stuTimeSection[2][0].stuSection.nEndHour, 0);
    EXPECT_EQ(h->stuTimeSection[2][2].stuSection.nEndHour, 4);
}

HandlerPtr Sized() {
    return Read("{ }");
}

// The text with the week that is written in every case, and the bools of a clear record.
std::string TextWith(const std::string& jpeg, const std::string& week = WeekText(7)) {
    return R"({ "AlarmOutEnable" : false, "BeepEnable" : false, "ExAlarmOutEnable" : false, "JpegSummary" : ")" + jpeg
           + R"(", "LogEnable" : false, "MMSEnable" : false, "MailEnable" : false, "MessageEnable" : false, )"
             R"("PtzLinkEnable" : false, "RecordEnable" : false, "SnapshotEnable" : false, )"
             R"("SnapshotTitleEnable" : false, "TimeSection" : )"
           + week + R"(, "TipEnable" : false, "VideoTitleEnable" : false, "VoiceEnable" : false })";
}

TEST(EventHandlerV2, WhatIsWrittenInEveryCase) {
    EXPECT_EQ(Write(kEventHandlerV2, *Sized()), TextWith(""));
    auto h = Sized();
    std::strcpy(h->szJpegSummary, "raw");
    h->nRecordLatch = h->nAlarmOutLatch = h->nSnapshotPeriod = h->nDejitter = h->nDelay = 5; // their flags are down
    h->abSnapshotTimes = h->nSnapshotTimes = 1;
    h->nPtzLinkNum = h->nSnapshotTitleNum = h->nVideoTitleNum = h->nTourNum = h->nDBKeysNum = -1;
    EXPECT_EQ(Write(kEventHandlerV2, *h), TextWith("raw"));
}

TEST(EventHandlerV2, ATimeSectionOfAnotherSizeIsNull) {
    auto h = Sized();
    h->stuTimeSection[0][0].dwSize = 28;
    std::string week = WeekText(7);
    week.replace(week.find(test::kNoSection), test::kNoSection.size(), "null");
    EXPECT_EQ(Write(kEventHandlerV2, *h), TextWith("", week));
}

TEST(EventHandlerV2, EverythingWritten) {
    auto h = Sized();
    h->stuTimeSection[0][1].stuSection = {1, 1, 2, 3, 4, 5, 6};
    h->bRecordEnable = h->bAlarmOutEnable = h->bExAlarmOutEnable = h->bPtzLinkEnable = h->bSnapshotEnable = 2;
    h->bSnapshotTitleEnable = h->bTipEnable = h->bMailEnable = h->bMessageEnable = h->bBeepEnable = 1;
    h->bLogEnable = h->bVideoTitleEnable = h->bMMSEnable = -1;
    h->bVoiceEnable = 0; // "VideoTitleEnable" has its own
    h->nRecordChannels[0] = h->nRecordChannels[1023] = 1;
    h->nAlarmOutChannels[1] = 2;
    h->nExAlarmOutChannels[2] = -1;
    h->nSnapshotChannels[3] = 1;
    h->abRecordLatch = h->abAlarmOutLatch = h->abSnapshotPeriod = h->abDejitter = h->abDelay = 1;
    h->nRecordLatch = 10;
    h->nAlarmOutLatch = 11;
    h->nSnapshotPeriod = 12;
    h->nDejitter = 14;
    h->nDelay = 15;
    h->nPtzLinkNum = 5;
    h->stuPtzLink[0].emType = 0; // skipped without a place, as is any other type
    h->stuPtzLink[1] = {24, 1, 1, 2, 3, 4};
    h->stuPtzLink[2].emType = 4;
    h->stuPtzLink[3] = {24, 3, 5, 6, 7, 8};
    h->nSnapshotTitleNum = 1;
    std::strcpy(h->stuSnapshotTitle[0].szText, "T");
    h->stuSnapshotTitle[0].stuPoint = {8, 1, 2}; // of another size
    h->stuSnapshotTitle[0].stuSize = {12, 3, 4};
    h->stuSnapshotTitle[0].stuFrontColor = {20, 5, 6, 7, 8};
    h->stuSnapshotTitle[0].stuBackColor = {16, 5, 6, 7, 8};
    h->nVideoTitleNum = 1;
    h->nTourNum = 1;
    h->stuTour[0].bEnable = 1;
    h->stuTour[0].nSplit = 9;
    h->stuTour[0].nChannelCount = 1;
    h->stuTour[0].nChannels[0] = 7;
    h->nDBKeysNum = 2;
    std::strcpy(h->szDBKeys[0], "k");
    EXPECT_EQ(Write(kEventHandlerV2, *h),
              R"({ "AlarmOutChannels" : [ 1 ], "AlarmOutEnable" : true, "AlarmOutLatch" : 11, "BeepEnable" : true, )"
              R"("DB" : [ "k", "" ], "Dejitter" : 14, "Delay" : 15, "ExAlarmOutChannels" : [ 2 ], )"
              R"("ExAlarmOutEnable" : true, "JpegSummary" : "", "LogEnable" : true, "MMSEnable" : true, )"
              R"("MailEnable" : true, "MessageEnable" : true, "MonitorTour" : [ { "Channels" : [ 7 ], )"
              R"("Enable" : true, "Split" : "Split9" } ], "PtzLink" : [ [ "Preset", 1, 2, 3, 4 ], )"
              R"([ "Pattern", 5, 6, 7, 8 ] ], "PtzLinkEnable" : true, "RecordChannels" : [ 0, 1023 ], )"
              R"("RecordEnable" : true, "RecordLatch" : 10, "SnapshotChannels" : [ 3 ], "SnapshotEnable" : true, )"
              R"("SnapshotPeriod" : 12, "SnapshotTitle" : [ { "BackColor" : null, "FrontColor" : [ 5, 6, 7, 8 ], )"
              R"("Point" : null, "Size" : [ 3, 4 ], "Text" : "T" } ], "SnapshotTitleEnable" : true, )"
              R"("TimeSection" : )"
                  + WeekText(7, {{0, 1, "1 01:02:03-04:05:06"}})
                  + R"(, "TipEnable" : true, "VideoTitle" : [ { "BackColor" : [ 0, 0, 0, 0 ], )"
                    R"("FrontColor" : [ 0, 0, 0, 0 ], "Point" : [ 0, 0 ], "Size" : [ 0, 0 ], "Text" : "" } ], )"
                    R"("VideoTitleEnable" : true, "VoiceEnable" : false })");
}

TEST(EventHandlerV2, CountsBeyondTheirArraysEndAtThem) {
    auto h = Sized();
    h->nPtzLinkNum = h->nSnapshotTitleNum = h->nVideoTitleNum = h->nTourNum = h->nDBKeysNum = INT32_MAX;
    h->stuTour[0].nChannelCount = INT32_MAX;
    for (auto& link : h->stuPtzLink)
        link.emType = 1;
    const std::string written = Write(kEventHandlerV2, *h);
    test::Document text(written);
    ASSERT_TRUE(text.ok);
    EXPECT_EQ(text.root["PtzLink"].size(), 1024u);
    EXPECT_EQ(text.root["SnapshotTitle"].size(), 32u);
    EXPECT_EQ(text.root["VideoTitle"].size(), 32u);
    EXPECT_EQ(text.root["MonitorTour"].size(), 128u);
    EXPECT_EQ(text.root["MonitorTour"][0u]["Channels"].size(), 1024u);
    EXPECT_EQ(text.root["DB"].size(), 64u);
}

TEST(EventHandlerV2, OnlySkippedLinksLeaveNoKey) {
    auto h = Sized();
    h->nPtzLinkNum = 2;
    EXPECT_EQ(Write(kEventHandlerV2, *h), TextWith(""));
}

} // namespace
} // namespace orrery
