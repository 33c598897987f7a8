// "Encode": the formats of a channel, over what the caller's record holds.
#include "orrery/encode.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

using Formats = Records<CFG_ENCODE_INFO>;

constexpr const char* kName = "Encode";

// One record read over bytes of `fill`.
struct OneRead {
    explicit OneRead(const std::string& table, int fill = 0, const std::string& top = "") : records(1, fill) {
        answer = ParseTable(kName, table, records, top);
        record = records[0];
    }
    Answer answer;
    Formats records;
    CFG_ENCODE_INFO record;
};

constexpr Answer kOneRecord{1, sizeof(CFG_ENCODE_INFO)};

TEST(Encode, HasTheLayoutThatClientsWereBuiltWith) {
    EXPECT_EQ(sizeof(CFG_ENCODE_FORMAT), 27u * 4);
    EXPECT_EQ(offsetof(CFG_ENCODE_FORMAT, abAudio), 4u);
    EXPECT_EQ(offsetof(CFG_ENCODE_FORMAT, bVideoEnable), 8u);
    EXPECT_EQ(offsetof(CFG_ENCODE_FORMAT, stuVideo.emCompression), 24u);
    EXPECT_EQ(offsetof(CFG_ENCODE_FORMAT, stuAudio), 76u);
    EXPECT_EQ(offsetof(CFG_ENCODE_INFO, nMainFormatCount), 4u + 64 + 4 * 108);
    EXPECT_EQ(sizeof(CFG_ENCODE_INFO), 4u + 64 + 3 * (4 * 108 + 4) + 231 * 4 + 4);
    EXPECT_EQ(offsetof(CFG_ENCODE_INFO, nFormatVersion), sizeof(CFG_ENCODE_INFO) - 4);
}

// Every key of a format.
constexpr const char* kFullFormat = R"({
    "AudioEnable" : true,
    "Audio" : { "Compression" : "AAC", "Depth" : 16, "Pack" : "PS", "Frequency" : 44100, "Mode" : 7,
                "PacketPeriod" : 30 },
    "VideoEnable" : true,
    "Video" : { "BitRate" : 4096, "BitRateControl" : "VBR", "Compression" : "H.265", "FPS" : 12.5, "Pack" : "PS",
                "Height" : 1080, "GOP" : 50, "Quality" : 6, "Width" : 1920, "Profile" : "High" },
    "SnapEnable" : true })";

constexpr const char* kFullFormatText =
    R"({ "Audio" : { "Compression" : "AAC", "Depth" : 16, "Frequency" : 44100, "Mode" : 7, "Pack" : "PS", )"
    R"("PacketPeriod" : 30 }, "AudioEnable" : true, "SnapEnable" : true, )"
    R"("Video" : { "BitRate" : 4096, "BitRateControl" : "VBR", "Compression" : "H.265", "FPS" : 12.50000000000000, )"
    R"("GOP" : 50, "Height" : 1080, "Pack" : "PS", "Profile" : "High", "Quality" : 6, "Width" : 1920 }, )"
    R"("VideoEnable" : true })";

TEST(Encode, ReadsEveryKeyOfAFormat) {
    const OneRead read("{\"MainFormat\":[" + std::string(kFullFormat) + "]}");
    ASSERT_EQ(read.answer, kOneRecord);
    EXPECT_EQ(read.record.nMainFormatCount, 1u);
    EXPECT_EQ(read.record.nFormatVersion, 3u);
    const CFG_ENCODE_FORMAT& format = read.record.stuMainFormat[0];
    EXPECT_EQ(format.abVideoEnable, 1);
    EXPECT_EQ(format.abAudioEnable, 1);
    EXPECT_EQ(format.abSnapEnable, 1);
    EXPECT_EQ(format.abAudio, 1);
    EXPECT_EQ(format.bVideoEnable, 1);
    EXPECT_EQ(format.bAudioEnable, 1);
    EXPECT_EQ(format.bSnapEnable, 1);
    const CFG_ENCODE_VIDEO& video = format.stuVideo;
    for (const std::uint8_t flag :
         {video.abCompression, video.abWidth, video.abHeight, video.abBitRateControl, video.abBitRate, video.abFps,
          video.abGop, video.abQuality, video.abPack, video.abProfile}) {
        EXPECT_EQ(flag, 1);
    }
    EXPECT_EQ(video.emCompression, CFG_VIDEO_H265);
    EXPECT_EQ(video.nWidth, 1920);
    EXPECT_EQ(video.nHeight, 1080);
    EXPECT_EQ(video.emBitRateControl, CFG_BITRATE_VBR);
    EXPECT_EQ(video.nBitRate, 4096);
    EXPECT_EQ(video.fFps, 12.5f);
    EXPECT_EQ(video.nGop, 50);
    EXPECT_EQ(video.nQuality, 6);
    EXPECT_EQ(video.emPack, CFG_STREAM_PS);
    EXPECT_EQ(video.emProfile, CFG_H264_HIGH);
    const CFG_ENCODE_AUDIO& audio = format.stuAudio;
    for (const std::uint8_t flag :
         {audio.abCompression, audio.abDepth, audio.abFrequency, audio.abMode, audio.abPack, audio.abPacketPeriod}) {
        EXPECT_EQ(flag, 1);
    }
    EXPECT_EQ(audio.emCompression, CFG_AUDIO_AAC);
    EXPECT_EQ(audio.nDepth, 16);
    EXPECT_EQ(audio.nFrequency, 44100);
    EXPECT_EQ(audio.nMode, 7);
    EXPECT_EQ(audio.emPack, CFG_STREAM_PS);
    EXPECT_EQ(audio.nPacketPeriod, 30);
}

TEST(Encode, GivesBackWhatItRead) {
    const std::string format = kFullFormat;
    const OneRead read("{\"SnapFormat\":[" + format + "],\"MainFormat\":[" + format + "," + format
                       + "],\"ExtraFormat\":[" + format + "]}");
    const std::string text = kFullFormatText;
    EXPECT_EQ(Pack(kName, read.record), "{ \"ExtraFormat\" : [ " + text + " ], \"MainFormat\" : [ " + text + ", " + text
                                            + " ], \"SnapFormat\" : [ " + text + " ] }");
}

// ---- What the caller's record held ----

TEST(Encode, KeepsTheCallersValuesWhereKeysAreAbsent) {
    const OneRead read(R"({"MainFormat":[{"Video":{"Width":1280}}]})", 0x11);
    ASSERT_EQ(read.answer, kOneRecord);
    constexpr std::int32_t kHeld = 0x11111111;
    const CFG_ENCODE_INFO& record = read.record;
    EXPECT_EQ(record.szChannelName[0], 0x11);
    EXPECT_EQ(record.szChannelName[63], 0x11);
    EXPECT_EQ(record.dwReserved[0], 0x11111111u);
    EXPECT_EQ(record.dwReserved[230], 0x11111111u);
    EXPECT_EQ(record.nMainFormatCount, 1u);
    const CFG_ENCODE_FORMAT& format = record.stuMainFormat[0];
    EXPECT_EQ(format.stuVideo.nWidth, 1280);
    EXPECT_EQ(format.stuVideo.nHeight, kHeld);
    EXPECT_EQ(format.stuVideo.emCompression, kHeld);
    EXPECT_EQ(format.bVideoEnable, kHeld);
    EXPECT_EQ(format.bAudioEnable, kHeld);
    EXPECT_EQ(format.bSnapEnable, kHeld);
    EXPECT_EQ(format.dwReserved, 0x11111111u);
    EXPECT_EQ(format.byReserved, 0x11);
    EXPECT_EQ(format.stuAudio.nDepth, kHeld);
}

TEST(Encode, LowersTheFlagsOfAbsentKeys) {
    const OneRead read(R"({"MainFormat":[{"Video":{"Width":1280}},null,{}]})", 0x11);
    ASSERT_EQ(read.answer, kOneRecord);
    for (int i = 0; i < 3; ++i) {
        const CFG_ENCODE_FORMAT& format = read.record.stuMainFormat[i];
        EXPECT_EQ(format.stuVideo.abWidth, i == 0 ? 1 : 0);
        for (const std::uint8_t flag :
             {format.abVideoEnable, format.abAudioEnable, format.abSnapEnable, format.abAudio,
              format.stuVideo.abCompression, format.stuVideo.abHeight, format.stuVideo.abBitRateControl,
              format.stuVideo.abBitRate, format.stuVideo.abFps, format.stuVideo.abGop, format.stuVideo.abQuality,
              format.stuVideo.abPack, format.stuVideo.abProfile, format.stuAudio.abCompression, format.stuAudio.abDepth,
              format.stuAudio.abFrequency, format.stuAudio.abMode, format.stuAudio.abPack,
              format.stuAudio.abPacketPeriod}) {
            EXPECT_EQ(flag, 0) << i;
        }
    }
    // The list has no fourth element, so nothing is known of the fourth format.
    EXPECT_EQ(read.record.stuMainFormat[3].abVideoEnable, 0x11);
    EXPECT_EQ(read.record.stuMainFormat[3].stuVideo.abWidth, 0x11);
}

TEST(Encode, TakesANullForAKeyThatIsAbsent) {
    const OneRead read(R"({"MainFormat":[{"AudioEnable":null,"Audio":null,"Video":{"FPS":null}}]})", 0x11);
    EXPECT_EQ(read.record.stuMainFormat[0].abAudioEnable, 0);
    EXPECT_EQ(read.record.stuMainFormat[0].abAudio, 0);
    EXPECT_EQ(read.record.stuMainFormat[0].stuVideo.abFps, 0);
    EXPECT_EQ(read.record.stuMainFormat[0].bAudioEnable, 0x11111111);
}

TEST(Encode, LeavesFormatsAloneThatStandInNoList) {
    const OneRead read(R"({"MainFormat":{"VideoEnable":true},"ExtraFormat":"none"})", 0x11);
    ASSERT_EQ(read.answer, kOneRecord);
    const std::string_view bytes(reinterpret_cast<const char*>(&read.record), sizeof read.record);
    EXPECT_EQ(bytes.substr(4, sizeof(CFG_ENCODE_INFO) - 8).find_first_not_of('\x11'), std::string_view::npos);
    EXPECT_EQ(read.record.nChannel, 0);
    EXPECT_EQ(read.record.nFormatVersion, 3u);
}

TEST(Encode, CountsAnEmptyListAsNone) {
    const OneRead read(R"({"MainFormat":[]})", 0x11);
    EXPECT_EQ(read.record.nMainFormatCount, 0u);
    EXPECT_EQ(read.record.nExtraFormatCount, 0x11111111u);
    EXPECT_EQ(read.record.stuMainFormat[0].abVideoEnable, 0x11);
}

TEST(Encode, CountsFormatsThatItHasNoRoomFor) {
    const OneRead read(R"({"MainFormat":[{"SnapEnable":true},{},{},{"SnapEnable":false},{"SnapEnable":true},{}],
                           "ExtraFormat":[{},{},{},{},{}],"SnapFormat":[{},{},{},{},{},{},{}]})");
    EXPECT_EQ(read.record.nMainFormatCount, 6u);
    EXPECT_EQ(read.record.nExtraFormatCount, 5u);
    EXPECT_EQ(read.record.nSnapFormatCount, 7u);
    EXPECT_EQ(read.record.stuMainFormat[0].bSnapEnable, 1);
    EXPECT_EQ(read.record.stuMainFormat[3].abSnapEnable, 1);
    EXPECT_EQ(read.record.stuMainFormat[3].bSnapEnable, 0);
    EXPECT_EQ(read.record.stuExtraFormat[0].abSnapEnable, 0); // the fifth format found no room, so none of its own
    EXPECT_EQ(Pack(kName, read.record), R"({ "ExtraFormat" : [ null, null, null, null ], )"
                                        R"("MainFormat" : [ { "SnapEnable" : true }, null, null, )"
                                        R"({ "SnapEnable" : false } ], )"
                                        R"("SnapFormat" : [ null, null, null, null ] })");
}

// ---- Single keys ----

// In a format that the caller filled, the text lowers all flags and else changes nothing but what `change` does; that
// alone is written again.
template <class Change>
void ExpectOnly(const std::string& format, const std::string& text, Change change) {
    std::string bytes(sizeof(CFG_ENCODE_FORMAT), '\x11');
    for (const std::size_t flag : {0, 1, 2, 4})
        bytes[flag] = 0;
    bytes.replace(offsetof(CFG_ENCODE_FORMAT, stuVideo), 10, 10, '\0');
    bytes.replace(offsetof(CFG_ENCODE_FORMAT, stuAudio), 6, 6, '\0');
    CFG_ENCODE_FORMAT expected;
    std::memcpy(&expected, bytes.data(), sizeof expected);
    change(expected);
    const OneRead read("{\"MainFormat\":[" + format + "]}", 0x11);
    EXPECT_EQ(std::memcmp(&read.record.stuMainFormat[0], &expected, sizeof expected), 0) << format;
    CFG_ENCODE_INFO record{};
    record.nMainFormatCount = 1;
    change(record.stuMainFormat[0]);
    EXPECT_EQ(Pack(kName, record), "{ \"MainFormat\" : [ " + text + " ] }");
}

template <class Part>
struct Key {
    const char* name;
    const char* value;
    std::uint8_t Part::*flag;
    std::int32_t Part::*member;
    std::int32_t word;

    void Set(Part& part) const {
        part.*flag = 1;
        part.*member = word;
    }
    std::string json() const { return std::string("{\"") + name + "\":" + value + "}"; }
    std::string text() const { return std::string("{ \"") + name + "\" : " + value + " }"; }
};

constexpr Key<CFG_ENCODE_FORMAT> kFormatKeys[] = {
    {"VideoEnable", R"(true)", &CFG_ENCODE_FORMAT::abVideoEnable, &CFG_ENCODE_FORMAT::bVideoEnable, 1},
    {"AudioEnable", R"(true)", &CFG_ENCODE_FORMAT::abAudioEnable, &CFG_ENCODE_FORMAT::bAudioEnable, 1},
    {"SnapEnable", R"(true)", &CFG_ENCODE_FORMAT::abSnapEnable, &CFG_ENCODE_FORMAT::bSnapEnable, 1},
};
constexpr Key<CFG_ENCODE_VIDEO> kVideoKeys[] = {
    {"Compression", R"("SVAC")", &CFG_ENCODE_VIDEO::abCompression, &CFG_ENCODE_VIDEO::emCompression, 9},
    {"Width", R"(-1)", &CFG_ENCODE_VIDEO::abWidth, &CFG_ENCODE_VIDEO::nWidth, -1},
    {"Height", R"(-2)", &CFG_ENCODE_VIDEO::abHeight, &CFG_ENCODE_VIDEO::nHeight, -2},
    {"BitRateControl", R"("VBR")", &CFG_ENCODE_VIDEO::abBitRateControl, &CFG_ENCODE_VIDEO::emBitRateControl, 1},
    {"BitRate", R"(-3)", &CFG_ENCODE_VIDEO::abBitRate, &CFG_ENCODE_VIDEO::nBitRate, -3},
    {"GOP", R"(-4)", &CFG_ENCODE_VIDEO::abGop, &CFG_ENCODE_VIDEO::nGop, -4},
    {"Quality", R"(-5)", &CFG_ENCODE_VIDEO::abQuality, &CFG_ENCODE_VIDEO::nQuality, -5},
    {"Pack", R"("PS")", &CFG_ENCODE_VIDEO::abPack, &CFG_ENCODE_VIDEO::emPack, 1},
    {"Profile", R"("High")", &CFG_ENCODE_VIDEO::abProfile, &CFG_ENCODE_VIDEO::emProfile, 4},
};
constexpr Key<CFG_ENCODE_AUDIO> kAudioKeys[] = {
    {"Compression", R"("AAC")", &CFG_ENCODE_AUDIO::abCompression, &CFG_ENCODE_AUDIO::emCompression, 4},
    {"Depth", R"(-1)", &CFG_ENCODE_AUDIO::abDepth, &CFG_ENCODE_AUDIO::nDepth, -1},
    {"Frequency", R"(-2)", &CFG_ENCODE_AUDIO::abFrequency, &CFG_ENCODE_AUDIO::nFrequency, -2},
    {"Mode", R"(-3)", &CFG_ENCODE_AUDIO::abMode, &CFG_ENCODE_AUDIO::nMode, -3},
    {"Pack", R"("PS")", &CFG_ENCODE_AUDIO::abPack, &CFG_ENCODE_AUDIO::emPack, 1},
    {"PacketPeriod", R"(-4)", &CFG_ENCODE_AUDIO::abPacketPeriod, &CFG_ENCODE_AUDIO::nPacketPeriod, -4},
};

TEST(Encode, ReadsAndWritesEachKeyAlone) {
    for (const auto& key : kFormatKeys)
        ExpectOnly(key.json(), key.text(), [&](CFG_ENCODE_FORMAT& format) { key.Set(format); });
    for (const auto& key : kVideoKeys) {
        ExpectOnly("{\"Video\":" + key.json() + "}", "{ \"Video\" : " + key.text() + " }",
                   [&](CFG_ENCODE_FORMAT& format) { key.Set(format.stuVideo); });
    }
    ExpectOnly(R"({"Video":{"FPS":0.5}})", R"({ "Video" : { "FPS" : 0.5000000000000000 } })",
               [](CFG_ENCODE_FORMAT& format) {
                   format.stuVideo.abFps = 1;
                   format.stuVideo.fFps = 0.5f;
               });
    for (const auto& key : kAudioKeys) {
        ExpectOnly("{\"Audio\":" + key.json() + "}", "{ \"Audio\" : " + key.text() + " }",
                   [&](CFG_ENCODE_FORMAT& format) {
                       format.abAudio = 1;
                       key.Set(format.stuAudio);
                   });
    }
}

TEST(Encode, TellsAnAudioThatHoldsNoKeys) {
    for (const char* format : {R"({"Audio":{}})", R"({"Audio":{"Depth":null}})", R"({"Audio":5})", R"({"Audio":[1]})"})
        ExpectOnly(format, "null", [](CFG_ENCODE_FORMAT& read) { read.abAudio = 1; });
    for (const char* format : {R"({"Video":{}})", R"({"Video":5})", R"({"Video":null})", "7", "[]"})
        ExpectOnly(format, "null", [](CFG_ENCODE_FORMAT&) {});
}

TEST(Encode, ReadsTheOlderKeyOfTheVideoSwitch) {
    const OneRead read(R"({"MainFormat":[{"VideoEn":false},{"VideoEn":true},{"VideoEn":true,"VideoEnable":false},
                                         {"VideoEn":true,"VideoEnable":null}]})");
    const std::int32_t expected[] = {0, 1, 0, 1};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(read.record.stuMainFormat[i].abVideoEnable, 1) << i;
        EXPECT_EQ(read.record.stuMainFormat[i].bVideoEnable, expected[i]) << i;
    }
    EXPECT_EQ(Pack(kName, read.record), R"({ "MainFormat" : [ { "VideoEnable" : false }, { "VideoEnable" : true }, )"
                                        R"({ "VideoEnable" : false }, { "VideoEnable" : true } ] })");
}

TEST(Encode, WritesAnObjectOnlyForKeysInside) {
    CFG_ENCODE_INFO record{};
    record.nMainFormatCount = 3;
    record.stuMainFormat[0].abAudio = 1; // a flag alone says nothing about any key
    record.stuMainFormat[1].stuAudio.abDepth = 1;
    record.stuMainFormat[1].stuAudio.nDepth = 8; // and keys without the flag stay here
    record.stuMainFormat[2].stuVideo.abGop = 1;  // the video's need none
    record.stuMainFormat[2].stuVideo.nGop = -3;
    EXPECT_EQ(Pack(kName, record), R"({ "MainFormat" : [ null, null, { "Video" : { "GOP" : -3 } } ] })");
}

TEST(Encode, WritesFalseForASwitchThatIsOff) {
    CFG_ENCODE_INFO record{};
    record.nSnapFormatCount = 1;
    record.stuSnapFormat[0].abSnapEnable = 0xFF;
    record.stuSnapFormat[0].abAudioEnable = 1;
    record.stuSnapFormat[0].bAudioEnable = -2;
    EXPECT_EQ(Pack(kName, record), R"({ "SnapFormat" : [ { "AudioEnable" : true, "SnapEnable" : false } ] })");
}

TEST(Encode, WritesNothingAsNull) {
    EXPECT_EQ(Pack(kName, CFG_ENCODE_INFO{}), "null");
}

TEST(Encode, ReadsAndWritesPicturesASecondAsReals) {
    const OneRead read(R"({"MainFormat":[{"Video":{"FPS":25}},{"Video":{"FPS":0.1}},{"Video":{"FPS":"x"}}]})");
    EXPECT_EQ(read.record.stuMainFormat[0].stuVideo.fFps, 25.0f);
    EXPECT_EQ(read.record.stuMainFormat[1].stuVideo.fFps, 0.1f);
    EXPECT_EQ(read.record.stuMainFormat[2].stuVideo.fFps, 0.0f);
    // Sixteen digits of the float's own value.
    EXPECT_EQ(Pack(kName, read.record), R"({ "MainFormat" : [ { "Video" : { "FPS" : 25.00000000000000 } }, )"
                                        R"({ "Video" : { "FPS" : 0.1000000014901161 } }, )"
                                        R"({ "Video" : { "FPS" : 0.000000000000000 } } ] })");
}

// ---- The channel and the form it picks ----

constexpr const char* kAllChannels = R"("channel":-1,)";

TEST(Encode, KeepsTheChannelOfTheReply) {
    EXPECT_EQ(OneRead("{}", 0x11).record.nChannel, 0);
    EXPECT_EQ(OneRead("{}", 0x11, R"("channel":3,)").record.nChannel, 3);
    EXPECT_EQ(OneRead("{}", 0x11, R"("channel":"x",)").record.nChannel, 0);
    EXPECT_EQ(OneRead("{}", 0x11, R"("channel":-0.5,)").record.nChannel, 0); // no integer below 0
    EXPECT_EQ(OneRead("{}", 0x11, R"("channel":null,)").record.nChannel, 0);
}

TEST(Encode, ReadsARecordAChannelWhenAllWereAskedFor) {
    const Formats records(3, 0x11);
    const std::string table = R"([{"MainFormat":[{"VideoEnable":true}]},{"MainFormat":[{},{}]}])";
    EXPECT_EQ(ParseTable(kName, table, records, kAllChannels), (Answer{1, 2 * sizeof(CFG_ENCODE_INFO)}));
    EXPECT_EQ(records[0].nChannel, 0);
    EXPECT_EQ(records[0].nMainFormatCount, 1u);
    EXPECT_EQ(records[1].nChannel, 1);
    EXPECT_EQ(records[1].nMainFormatCount, 2u);
    EXPECT_EQ(records[1].nFormatVersion, 3u);
    EXPECT_EQ(records[2].nChannel, 0x11111111); // no element, nothing touched
    EXPECT_EQ(records[2].nFormatVersion, 0x11111111u);
}

TEST(Encode, NumbersAChannelThatTheListHoldsNullFor) {
    const Formats records(3, 0x11);
    EXPECT_EQ(ParseTable(kName, R"([null,{},null])", records, kAllChannels), (Answer{1, 3 * sizeof(CFG_ENCODE_INFO)}));
    for (std::int32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(records[i].nChannel, i);
        EXPECT_EQ(records[i].nFormatVersion, 3u);
        EXPECT_EQ(records[i].nMainFormatCount, 0x11111111u);
    }
}

TEST(Encode, LeavesOutChannelsThatDoNotFit) {
    for (const std::size_t extra : {std::size_t{0}, std::size_t{1}, sizeof(CFG_ENCODE_INFO) - 1}) {
        const Formats records(2, extra, 0x11);
        EXPECT_EQ(ParseTable(kName, "[{},{},{},{}]", records, kAllChannels), (Answer{1, 2 * sizeof(CFG_ENCODE_INFO)}));
        EXPECT_EQ(records[1].nChannel, 1);
        const std::string_view behind(records.data() + 2 * sizeof(CFG_ENCODE_INFO), extra);
        EXPECT_EQ(behind.find_first_not_of('\x11'), std::string_view::npos);
    }
}

TEST(Encode, RefusesAnythingButAListForAllChannels) {
    const Formats records(1, 0x11);
    for (const char* table : {"{}", R"({"MainFormat":[{}]})", "1", "\"x\"", "true"}) {
        EXPECT_EQ(ParseTable(kName, table, records, kAllChannels), kRefused) << table;
    }
    for (const char* channel : {"-2147483648", "-1.5"}) {
        EXPECT_EQ(ParseTable(kName, "{}", records, std::string(R"("channel":)") + channel + ","), kRefused) << channel;
    }
    EXPECT_TRUE(records.isAll(0x11));
    EXPECT_EQ(ParseTable(kName, "[]", records, kAllChannels), (Answer{1, 0}));
    EXPECT_TRUE(records.isAll(0x11));
}

TEST(Encode, ReadsAListAsOneRecordForOneChannel) {
    const OneRead read(R"([{"MainFormat":[{}]}])", 0x11, R"("channel":3,)");
    EXPECT_EQ(read.answer, kOneRecord);
    EXPECT_EQ(read.record.nChannel, 3);
    EXPECT_EQ(read.record.nFormatVersion, 3u);
    EXPECT_EQ(read.record.nMainFormatCount, 0x11111111u); // a list has no keys
    EXPECT_EQ(OneRead("[]", 0x11, R"("channel":3,)").answer, kOneRecord);
    EXPECT_EQ(OneRead("7", 0x11).answer, kOneRecord);
}

TEST(Encode, ReadsOneRecordHoweverLargeTheBuffer) {
    const Formats records(2, 0x11);
    EXPECT_EQ(ParseTable(kName, "{}", records), kOneRecord);
    EXPECT_EQ(records[1].nFormatVersion, 0x11111111u);
}

TEST(Encode, SucceedsWithNothingWhenThereIsNoTable) {
    for (const char* document : {R"({"result":true,"params":{"table":null}})", R"({"result":true,"params":{}})",
                                 R"({"result":true})", R"({"result":true,"channel":-1})"}) {
        const Formats records(1, 0x11);
        EXPECT_EQ(ParseDocument(kName, document, records), (Answer{1, 0})) << document;
        EXPECT_TRUE(records.isAll(0x11));
    }
}

TEST(Encode, TouchesNothingOnFailure) {
    for (const char* document : {"{", "", "nonsense", R"({"result":false,"params":{"table":{"MainFormat":[]}}})",
                                 R"({"params":{"table":{"MainFormat":[]}}})"}) {
        const Formats records(1, 0x11);
        EXPECT_EQ(ParseDocument(kName, document, records), kRefused) << document;
        EXPECT_TRUE(records.isAll(0x11));
    }
}

TEST(Encode, NeedsAWholeRecord) {
    for (const std::size_t size : {std::size_t{1}, std::size_t{4}, sizeof(CFG_ENCODE_INFO) - 1}) {
        const Formats part(0, size, 0x11);
        EXPECT_EQ(ParseTable(kName, R"({"MainFormat":[{}]})", part), kRefused) << size;
        EXPECT_TRUE(part.isAll(0x11));
        EXPECT_EQ(PackAll(kName, part), kNotBegun) << size;
    }
    std::uint32_t length = kNoLength;
    const Formats whole(1);
    EXPECT_EQ(CLIENT_ParseData(kName, nullptr, whole.data(), whole.size(), &length), 0);
    EXPECT_EQ(CLIENT_ParseData(kName, "{}", nullptr, whole.size(), &length), 0);
    char text[16];
    EXPECT_EQ(CLIENT_PacketData(kName, nullptr, whole.size(), text, sizeof text), 0);
    EXPECT_EQ(CLIENT_PacketData(kName, whole.data(), whole.size(), nullptr, 16), 0);
    EXPECT_EQ(CLIENT_PacketData(kName, whole.data(), whole.size(), text, 0), 0);
}

// ---- The text ----

TEST(Encode, WritesAListForAnySizeButOneRecord) {
    Formats records(2);
    CFG_ENCODE_INFO record{};
    record.nMainFormatCount = 1;
    record.stuMainFormat[0].abSnapEnable = 1;
    records.Set(0, record);
    record.stuMainFormat[0].bSnapEnable = 1;
    records.Set(1, record);
    EXPECT_EQ(PackAll(kName, records), R"([ { "MainFormat" : [ { "SnapEnable" : false } ] }, )"
                                       R"({ "MainFormat" : [ { "SnapEnable" : true } ] } ])");
    Formats oneAndAHalf(1, sizeof(CFG_ENCODE_INFO) / 2, 0);
    oneAndAHalf.Set(0, record);
    EXPECT_EQ(PackAll(kName, oneAndAHalf), R"([ { "MainFormat" : [ { "SnapEnable" : true } ] } ])");
    records.Set(0, CFG_ENCODE_INFO{});
    EXPECT_EQ(PackAll(kName, records), R"([ null, { "MainFormat" : [ { "SnapEnable" : true } ] } ])");
}

TEST(Encode, EndsAFormatListAtItsFourthWhateverTheCount) {
    for (const std::uint32_t count : {4u, 5u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        Formats records(1);
        CFG_ENCODE_INFO record{};
        record.nSnapFormatCount = count;
        for (auto& format : record.stuSnapFormat)
            format.abVideoEnable = 1;
        records.Set(0, record);
        EXPECT_EQ(PackAll(kName, records),
                  R"({ "SnapFormat" : [ { "VideoEnable" : false }, { "VideoEnable" : false }, )"
                  R"({ "VideoEnable" : false }, { "VideoEnable" : false } ] })")
            << count;
    }
}

TEST(Encode, FillsItsTextToTheLastByte) {
    CFG_ENCODE_INFO record{};
    record.nMainFormatCount = 1;
    record.stuMainFormat[0].abVideoEnable = 1;
    const std::string text = R"({ "MainFormat" : [ { "VideoEnable" : false } ] })";
    const auto pack = [&](std::size_t capacity) { return PackBytes(kName, &record, sizeof record, capacity); };
    EXPECT_EQ(pack(text.size() + 2), text + "\n");
    EXPECT_EQ(pack(text.size() + 1), text); // the newline gives way to the terminator
    EXPECT_EQ(pack(text.size()), kFailed);
    EXPECT_EQ(pack(1), kFailed);
}

} // namespace
} // namespace orrery::test
