// Each key of the linkage record on its own: what it reads is its own field and flag alone, and it is written for them
// alone. Texts that hold every key at once cannot tell two keys of one kind apart.
#include "alarm/EventHandler.h"
#include "support/Call.h"
#include "support/Locales.h"
#include "support/Records.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>

namespace orrery {
namespace {

using test::Cleared;
using test::ReadInto;
using test::Write;

enum class Way { Both, Read, Written };

// A key with a value as it is written, and what it sets in a record.
template <class Handler>
struct Key {
    const char* key;
    const char* value;
    void (*set)(Handler& h);
    Way way = Way::Both;
};

std::map<std::string, std::string> MembersOf(const std::string& text) {
    test::Document document(text);
    EXPECT_TRUE(document.ok) << text;
    std::map<std::string, std::string> members;
    for (const json::Member& member : document.root.members())
        members[std::string(member.key())] = test::TextOf(member.value);
    return members;
}

// Reads the key alone over `record`, which holds what an empty object gives.
template <class Handler>
void ExpectReadAlone(const Key<Handler>& key, const record::Table& table, Handler& expected) {
    const auto read = Cleared<Handler>();
    ASSERT_TRUE(ReadInto(*read, table, std::string("{ \"") + key.key + "\" : " + key.value + " }"));
    if (key.way != Way::Written) key.set(expected);
    EXPECT_EQ(std::memcmp(read.get(), &expected, sizeof expected), 0) << key.key;
}

// Writes a record that holds what `bare` holds and what the key sets: it says one key more, or one otherwise.
template <class Handler>
void ExpectWrittenAlone(const Key<Handler>& key, const record::TypedTable<Handler>& table, Handler& bare) {
    auto expected = MembersOf(Write(table, bare));
    if (key.way != Way::Read) expected[key.key] = key.value;
    key.set(bare);
    EXPECT_EQ(MembersOf(Write(table, bare)), expected) << key.key;
}

// ---- The current form ----

using Handler = CFG_EVENT_HANDLER_INFO;

constexpr char kTitle[] = R"([ { "BackColor" : [ 9, 10, 11, 12 ], "FrontColor" : [ 5, 6, 7, 8 ], "Point" : [ 1, 2 ], )"
                          R"("Size" : [ 3.000000000000000, 4.000000000000000 ], "Text" : "T" } ])";

void SetTitle(CFG_EVENT_TITLE& title) {
    std::strcpy(title.szText, "T");
    title.stuPoint = {1, 2};
    title.stuSize = {3, 4};
    title.stuFrontColor = {5, 6, 7, 8};
    title.stuBackColor = {9, 10, 11, 12};
}

const Key<Handler> kKeys[] = {
    {"SDK_RecordChannel", "3", [](Handler& h) { h.nRecordChannelNum = 3; }, Way::Read},
    {"SDK_AlarmOutChannel", "3", [](Handler& h) { h.nAlarmOutChannelNum = 3; }, Way::Read},
    {"TourSplit", "\"Split8\"", [](Handler& h) { h.nTourSplit = h.abTourSplit = 1; }, Way::Read},
    {"OnVideoMessageEn", "true", [](Handler& h) { h.bVideoMessageEn = h.abVideoMessageEn = 1; }, Way::Written},

    {"RecordChannels", "[ 33 ]", [](Handler& h) { h.abRecordMask = 1, h.dwRecordMask[1] = 2; }},
    {"AlarmOutChannels", "[ 33 ]", [](Handler& h) { h.abAlarmOutMask = 1, h.dwAlarmOutMask[1] = 2; }},
    {"ExAlarmOutChannels", "[ 33 ]", [](Handler& h) { h.abExAlarmOutMask = 1, h.dwExAlarmOutMask[1] = 2; }},
    {"TourChannels", "[ 33 ]", [](Handler& h) { h.abTourMask = 1, h.dwTourMask[1] = 2; }},
    {"SnapshotChannels", "[ 33 ]", [](Handler& h) { h.abSnapshot = 1, h.dwSnapshot[1] = 2; }},
    {"MatrixChannels", "[ 33 ]", [](Handler& h) { h.abMatrixMask = 1, h.dwMatrixMask[1] = 2; }},

    {"RecordEnable", "true", [](Handler& h) { h.bRecordEnable = h.abRecordEnable = 1; }},
    {"AlarmOutEnable", "true", [](Handler& h) { h.bAlarmOutEn = h.abAlarmOutEn = 1; }},
    {"ExAlarmOutEnable", "true", [](Handler& h) { h.bExAlarmOutEn = h.abExAlarmOutEn = 1; }},
    {"PtzLinkEnable", "true", [](Handler& h) { h.bPtzLinkEn = h.abPtzLinkEn = 1; }},
    {"TourEnable", "true", [](Handler& h) { h.bTourEnable = h.abTourEnable = 1; }},
    {"SnapshotEnable", "true", [](Handler& h) { h.bSnapshotEn = h.abSnapshotEn = 1; }},
    {"TipEnable", "true", [](Handler& h) { h.bTipEnable = h.abTipEnable = 1; }},
    {"MailEnable", "true", [](Handler& h) { h.bMailEnable = h.abMailEnable = 1; }},
    {"MessageEnable", "true", [](Handler& h) { h.bMessageEnable = h.abMessageEnable = 1; }},
    {"BeepEnable", "true", [](Handler& h) { h.bBeepEnable = h.abBeepEnable = 1; }},
    {"VoiceEnable", "true", [](Handler& h) { h.bVoiceEnable = h.abVoiceEnable = 1; }},
    {"MatrixEnable", "true", [](Handler& h) { h.nMatrixEnable = h.abMatrixEnable = 1; }},
    {"LogEnable", "true", [](Handler& h) { h.bLogEnable = h.abLogEnable = 1; }},
    {"MMSEnable", "true", [](Handler& h) { h.bMMSEnable = h.abMMSEnable = 1; }},
    {"MessageToNetEnable", "true", [](Handler& h) { h.nMessageToNetEn = h.abMessageToNetEn = 1; }},
    {"SnapshotTitleEnable", "true", [](Handler& h) { h.bSnapshotTitleEn = h.abSnapshotTitleEn = 1; }},
    {"VideoTitleEnable", "true", [](Handler& h) { h.bVideoTitleEn = h.abVideoTitleEn = 1; }},
    {"FlashEnable", "true", [](Handler& h) { h.bFlashEnable = h.abFlashEnable = 1; }},
    {"AlarmBellEnable", "true", [](Handler& h) { h.bAlarmBellEn = h.abAlarmBellEn = 1; }},
    {"AccessControlEnable", "true", [](Handler& h) { h.bAccessControlEn = h.abAccessControlEn = 1; }},

    {"RecordLatch", "7", [](Handler& h) { h.abRecordLatch = 1, h.nRecordLatch = 7; }},
    {"AlarmOutLatch", "7", [](Handler& h) { h.abAlarmOutLatch = 1, h.nAlarmOutLatch = 7; }},
    {"SnapshotPeriod", "7", [](Handler& h) { h.abSnapshotPeriod = 1, h.nSnapshotPeriod = 7; }},
    {"SnapshotTimes", "7", [](Handler& h) { h.abSnapshotTimes = 1, h.nSnapshotTimes = 7; }},
    {"Dejitter", "7", [](Handler& h) { h.abDejitter = 1, h.nDejitter = 7; }},
    {"Delay", "7", [](Handler& h) { h.abDelay = 1, h.nDelay = 7; }},
    {"FlashLatch", "7", [](Handler& h) { h.abFlashLatch = 1, h.nFlashLatch = 7; }},
    {"AlarmBellLatch", "7", [](Handler& h) { h.abAlarmBellLatch = 1, h.nAlarmBellLatch = 7; }},

    {"PtzLink", R"([ [ "Tour", 4, 5, 6, 7 ] ])",
     [](Handler& h) {
         h.abPtzLink = 1, h.nPtzLinkNum = 1, h.stuPtzLink[0] = {2, 4, 5, 6, 7};
     }},
    {"SnapshotTitle", kTitle,
     [](Handler& h) { h.abSnapshotTitle = 1, h.nSnapshotTitleNum = 1, SetTitle(h.stuSnapshotTitle[0]); }},
    {"VideoTitle", kTitle, [](Handler& h) { h.abVideoTitle = 1, h.nVideoTitleNum = 1, SetTitle(h.stuVideoTitle[0]); }},
    {"MailDetail", R"({ "AttachmentType" : "video", "MaxSize" : 5, "MaxTimeLength" : 6 })",
     [](Handler& h) {
         h.abMailDetail = 1, h.stuMailDetail = {1, 5, 6};
     }},
    {"MonitorTour", R"([ { "Channels" : [ 8 ], "Enable" : true, "Split" : "PIP4" } ])",
     [](Handler& h) {
         h.abTour = 1, h.nTourNum = 1, h.stuTour[0].bEnable = 1, h.stuTour[0].nSplit = 1004;
         h.stuTour[0].nChannelCount = 1, h.stuTour[0].nChannels[0] = 8;
     }},
    {"DB", R"([ "k" ])", [](Handler& h) { h.abDBKeys = 1, h.nDBKeysNum = 1, std::strcpy(h.szDBKeys[0], "k"); }},
    {"JpegSummary", R"("j")", [](Handler& h) { h.abJpegSummary = 1, std::strcpy(h.szJpegSummary, "j"); }},
    {"AccessControls", R"([ { "Operation" : "CloseAlways" } ])",
     [](Handler& h) { h.abAccessControl = 1, h.nAccessControlNum = 1, h.emAccessControl[0] = 5; }},
    {"Voice", R"({ "AudioFileName" : "v" })",
     [](Handler& h) { h.abAudioFileName = 1, std::strcpy(h.szAudioFileName, "v"); }},
    {"Talkback", R"({ "CallEnable" : true, "CallProtocol" : "Cellular", "Caller" : "Device" })",
     [](Handler& h) { h.bTalkbackCallEn = h.abTalkback = 1; }},
    {"PSTNAlarmServer", R"({ "Destination" : [ 5 ], "NeedReport" : true })",
     [](Handler& h) { h.bNeedReport = h.abPSTNAlarmServer = 1, h.nDestinationNum = 1, h.byDestination[0] = 5; }},
};

TEST(EventHandlerKeys, EachIsReadAlone) {
    for (const Key<Handler>& key : kKeys) {
        const auto expected = Cleared<Handler>();
        expected->abRecordEnable = expected->abAlarmOutEn = 1; // whatever the text says
        ExpectReadAlone(key, kEventHandler, *expected);
    }
}

TEST(EventHandlerKeys, EachIsWrittenAlone) {
    for (const Key<Handler>& key : kKeys) {
        const auto bare = Cleared<Handler>();
        ExpectWrittenAlone(key, kEventHandler, *bare);
    }
}

TEST(EventHandlerKeys, AreWrittenTogetherAndRaiseEveryFlag) {
    const auto h = Cleared<Handler>();
    for (const Key<Handler>& key : kKeys)
        key.set(*h);
    for (std::size_t flag = 0; flag < offsetof(Handler, nRecordChannelNum); ++flag)
        EXPECT_EQ(reinterpret_cast<const unsigned char*>(h.get())[flag], 1) << flag;
    for (const std::uint8_t flag : {h->abAudioFileName, h->abAlarmBellEn, h->abAccessControlEn, h->abAccessControl,
                                    h->abTalkback, h->abPSTNAlarmServer, h->abAlarmBellLatch})
        EXPECT_EQ(flag, 1);
    auto written = MembersOf(Write(kEventHandler, *h));
    EXPECT_EQ(written.erase("TimeSection"), 1u);
    for (const Key<Handler>& key : kKeys) {
        if (key.way == Way::Read) continue;
        EXPECT_EQ(written[key.key], key.value);
        written.erase(key.key);
    }
    EXPECT_TRUE(written.empty());
}

// ---- The form with size words ----

using HandlerV2 = CFG_EVENT_HANDLER_V2_INFO;

constexpr char kTitleV2[] = R"([ { "BackColor" : [ 9, 10, 11, 12 ], "FrontColor" : [ 5, 6, 7, 8 ], )"
                            R"("Point" : [ 1, 2 ], "Size" : [ 3, 4 ], "Text" : "T" } ])";

void SetTitle(CFG_EVENT_TITLE_V2& title) {
    std::strcpy(title.szText, "T");
    title.stuPoint = {12, 1, 2};
    title.stuSize = {12, 3, 4};
    title.stuFrontColor = {20, 5, 6, 7, 8};
    title.stuBackColor = {20, 9, 10, 11, 12};
}

const Key<HandlerV2> kKeysV2[] = {
    {"RecordEnable", "true", [](HandlerV2& h) { h.bRecordEnable = 1; }},
    {"AlarmOutEnable", "true", [](HandlerV2& h) { h.bAlarmOutEnable = 1; }},
    {"ExAlarmOutEnable", "true", [](HandlerV2& h) { h.bExAlarmOutEnable = 1; }},
    {"PtzLinkEnable", "true", [](HandlerV2& h) { h.bPtzLinkEnable = 1; }},
    {"SnapshotEnable", "true", [](HandlerV2& h) { h.bSnapshotEnable = 1; }},
    {"SnapshotTitleEnable", "true", [](HandlerV2& h) { h.bSnapshotTitleEnable = 1; }},
    {"TipEnable", "true", [](HandlerV2& h) { h.bTipEnable = 1; }},
    {"MailEnable", "true", [](HandlerV2& h) { h.bMailEnable = 1; }},
    {"MessageEnable", "true", [](HandlerV2& h) { h.bMessageEnable = 1; }},
    {"BeepEnable", "true", [](HandlerV2& h) { h.bBeepEnable = 1; }},
    {"VoiceEnable", "true", [](HandlerV2& h) { h.bVoiceEnable = 1; }},
    {"LogEnable", "true", [](HandlerV2& h) { h.bLogEnable = 1; }},
    {"VideoTitleEnable", "true", [](HandlerV2& h) { h.bVideoTitleEnable = 1; }},
    {"MMSEnable", "true", [](HandlerV2& h) { h.bMMSEnable = 1; }},

    {"RecordChannels", "[ 1023 ]", [](HandlerV2& h) { h.nRecordChannels[1023] = 1; }},
    {"AlarmOutChannels", "[ 1023 ]", [](HandlerV2& h) { h.nAlarmOutChannels[1023] = 1; }},
    {"ExAlarmOutChannels", "[ 1023 ]", [](HandlerV2& h) { h.nExAlarmOutChannels[1023] = 1; }},
    {"SnapshotChannels", "[ 1023 ]", [](HandlerV2& h) { h.nSnapshotChannels[1023] = 1; }},

    {"RecordLatch", "7", [](HandlerV2& h) { h.abRecordLatch = 1, h.nRecordLatch = 7; }},
    {"AlarmOutLatch", "7", [](HandlerV2& h) { h.abAlarmOutLatch = 1, h.nAlarmOutLatch = 7; }},
    {"SnapshotPeriod", "7", [](HandlerV2& h) { h.abSnapshotPeriod = 1, h.nSnapshotPeriod = 7; }},
    {"Dejitter", "7", [](HandlerV2& h) { h.abDejitter = 1, h.nDejitter = 7; }},
    {"Delay", "7", [](HandlerV2& h) { h.abDelay = 1, h.nDelay = 7; }},

    {"PtzLink", R"([ [ "Tour", 4, 5, 6, 7 ] ])",
     [](HandlerV2& h) { h.nPtzLinkNum = 1, h.stuPtzLink[0] = {24, 2, 4, 5, 6, 7}; }},
    {"SnapshotTitle", kTitleV2, [](HandlerV2& h) { h.nSnapshotTitleNum = 1, SetTitle(h.stuSnapshotTitle[0]); }},
    {"VideoTitle", kTitleV2, [](HandlerV2& h) { h.nVideoTitleNum = 1, SetTitle(h.stuVideoTitle[0]); }},
    {"MonitorTour", R"([ { "Channels" : [ 8 ], "Enable" : true, "Split" : "PIP4" } ])",
     [](HandlerV2& h) {
         h.nTourNum = 1, h.stuTour[0].bEnable = 1, h.stuTour[0].nSplit = 1004;
         h.stuTour[0].nChannelCount = 1, h.stuTour[0].nChannels[0] = 8;
     }},
    {"DB", R"([ "k" ])", [](HandlerV2& h) { h.nDBKeysNum = 1, std::strcpy(h.szDBKeys[0], "k"); }, Way::Written},
    {"JpegSummary", R"("j")", [](HandlerV2& h) { std::strcpy(h.szJpegSummary, "j"); }},
    {"SnapshotTimes", "7", [](HandlerV2&) {}, Way::Read}, // in neither direction
};

TEST(EventHandlerV2Keys, EachIsReadAlone) {
    for (const Key<HandlerV2>& key : kKeysV2) {
        const auto expected = Cleared<HandlerV2>();
        record::SetSizeWords(kEventHandlerV2, reinterpret_cast<std::byte*>(expected.get()));
        ExpectReadAlone(key, kEventHandlerV2, *expected);
    }
}

TEST(EventHandlerV2Keys, EachIsWrittenAlone) {
    for (const Key<HandlerV2>& key : kKeysV2) {
        const auto bare = Cleared<HandlerV2>();
        record::SetSizeWords(kEventHandlerV2, reinterpret_cast<std::byte*>(bare.get()));
        ExpectWrittenAlone(key, kEventHandlerV2, *bare);
    }
}

// ---- Texts of the local encoding ----

class LinkageTexts : public test::CompiledLocales {};

// U+4E2D is E4 B8 AD in UTF-8 and D6 D0 in GBK. Of all texts only the picture summary keeps the device's bytes.
#define ZHONG "\xE4\xB8\xAD"
#define ZHONG_GBK "\xD6\xD0"

TEST_F(LinkageTexts, AllButThePictureSummaryAreConverted) {
    Compile("GBK", "zh_CN.GBK");
    const test::ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const auto h = Cleared<Handler>();
    ASSERT_TRUE(ReadInto(*h, kEventHandler, R"({ "DB" : [ ")" ZHONG R"(" ], "JpegSummary" : ")" ZHONG R"(",
        "SnapshotTitle" : [ { "Text" : ")" ZHONG R"(" } ], "VideoTitle" : [ { "Text" : ")" ZHONG R"(" } ],
        "Voice" : { "AudioFileName" : ")" ZHONG R"(" } })"));
    EXPECT_STREQ(h->szDBKeys[0], ZHONG_GBK);
    EXPECT_STREQ(h->stuSnapshotTitle[0].szText, ZHONG_GBK);
    EXPECT_STREQ(h->stuVideoTitle[0].szText, ZHONG_GBK);
    EXPECT_STREQ(h->szAudioFileName, ZHONG_GBK);
    EXPECT_STREQ(h->szJpegSummary, ZHONG);
    auto written = MembersOf(Write(kEventHandler, *h));
    EXPECT_EQ(written["DB"], "[ \"" ZHONG "\" ]");
    EXPECT_EQ(written["JpegSummary"], "\"" ZHONG "\"");
    EXPECT_EQ(written["Voice"], "{ \"AudioFileName\" : \"" ZHONG "\" }");
    EXPECT_NE(written["SnapshotTitle"].find("\"Text\" : \"" ZHONG "\""), std::string::npos);
    EXPECT_NE(written["VideoTitle"].find("\"Text\" : \"" ZHONG "\""), std::string::npos);
}

TEST_F(LinkageTexts, AllButThePictureSummaryAreConvertedInTheFormWithSizeWords) {
    Compile("GBK", "zh_CN.GBK");
    const test::ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const auto h = Cleared<HandlerV2>();
    ASSERT_TRUE(ReadInto(*h, kEventHandlerV2,
                         R"({ "JpegSummary" : ")" ZHONG R"(", "SnapshotTitle" : [ { "Text" : ")" ZHONG R"(" } ] })"));
    EXPECT_STREQ(h->stuSnapshotTitle[0].szText, ZHONG_GBK);
    EXPECT_STREQ(h->szJpegSummary, ZHONG);
    h->nDBKeysNum = 1;
    std::strcpy(h->szDBKeys[0], ZHONG_GBK);
    auto written = MembersOf(Write(kEventHandlerV2, *h));
    EXPECT_EQ(written["DB"], "[ \"" ZHONG "\" ]");
    EXPECT_EQ(written["JpegSummary"], "\"" ZHONG "\"");
    EXPECT_NE(written["SnapshotTitle"].find("\"Text\" : \"" ZHONG "\""), std::string::npos);
}

} // namespace
} // namespace orrery
