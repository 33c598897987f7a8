#include "display/Audio.h"

#include "later/TableCalls.h"
#include "support/Call.h"

#include <gtest/gtest.h>
#include <vector>

namespace orrery::test {
namespace {

// `make(i)` for each, in a list.
template <class Make>
std::string ListOf(int count, Make make) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? ", " : "") + std::string(make(i));
    return list + " ]";
}
std::string NumberAt(int i) {
    return std::to_string(i + 1);
}
std::size_t CountOf(const std::string& part, const std::string& text) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

// What fails for all commands of one record, with the buffer cleared.
template <class R>
void ExpectRefusals(const char* command, const std::vector<std::string>& tables) {
    SCOPED_TRACE(command);
    const Records<R> records(1, kUntouched);
    for (const char* const document : {"{", "{ }", R"({"result":false,"params":{"table":{}}})",
                                       R"({"result":false,"params":{"table":[]}})", R"({"result":true})"})
        EXPECT_EQ(ParseDocument(command, document, records), kRefused) << document;
    for (const std::string& table : tables)
        EXPECT_EQ(ParseTable(command, table, records), kRefused) << table;
    EXPECT_TRUE(records.isAll(0));
    const Records<R> small(1, kUntouched);
    EXPECT_EQ(
        CLIENT_ParseData(command, R"({"result":true,"params":{"table":[]}})", small.data(), sizeof(R) - 1, nullptr), 0);
    EXPECT_TRUE(small.isAll(kUntouched));
    EXPECT_EQ(PackBytes(command, records.data(), sizeof(R) - 1, kAmple), kNotBegun);
}

// ---- "AudioSpirit" ----

TEST(AudioSpirit, ThereAndBack) {
    const std::string text =
        R"({ "AudioLimit" : 1, "DelayTime" : 2, "Enable" : true, "Linkage" : { "LowerMatrix" : { "Out" : [ 9, 10 ] } }, )"
        R"("Property" : [ { "Channel" : 3, "Preset" : 5, "Priority" : 4 }, )"
        R"({ "Channel" : 6, "Preset" : 8, "Priority" : 7 } ] })";
    const auto parsed = Parse<CFG_AUDIO_SPIRIT_INFO>("AudioSpirit", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_SPIRIT_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nAudioLimit, 1);
    EXPECT_EQ(parsed->nDelayTime, 2);
    ASSERT_EQ(parsed->nPropertyCount, 2);
    EXPECT_EQ(parsed->stuProperty[0].nChannel, 3);
    EXPECT_EQ(parsed->stuProperty[0].nPriority, 4);
    EXPECT_EQ(parsed->stuProperty[0].nPreset, 5);
    EXPECT_EQ(parsed->stuProperty[1].nChannel, 6);
    EXPECT_EQ(parsed->stuProperty[1].nPriority, 7);
    EXPECT_EQ(parsed->stuProperty[1].nPreset, 8);
    ASSERT_EQ(parsed->nOutCount, 2);
    EXPECT_EQ(parsed->nOut[0], 9);
    EXPECT_EQ(parsed->nOut[1], 10);
    EXPECT_EQ(Pack("AudioSpirit", *parsed), text);
}

TEST(AudioSpirit, IsOneRecordWhateverTheTable) {
    for (const char* const table :
         {"{ }", "[ { \"Enable\" : true } ]", "5",
          R"({ "Enable" : null, "Property" : null, "Linkage" : null, "AudioLimit" : null })"}) {
        const Records<CFG_AUDIO_SPIRIT_INFO> records(2, kUntouched);
        EXPECT_EQ(ParseTable("AudioSpirit", table, records), (Answer{1, sizeof(CFG_AUDIO_SPIRIT_INFO)})) << table;
        EXPECT_TRUE(records.isAll(0)) << table;
        EXPECT_EQ(PackAll("AudioSpirit", records), R"({ "AudioLimit" : 0, "DelayTime" : 0, "Enable" : false })");
    }
    ExpectRefusals<CFG_AUDIO_SPIRIT_INFO>("AudioSpirit", {"null"});
}

TEST(AudioSpirit, ListsEndAtTheirRoom) {
    for (const int more : {0, 1}) {
        const auto parsed = Parse<CFG_AUDIO_SPIRIT_INFO>(
            "AudioSpirit",
            R"({ "Property" : )" + ListOf(16 + more, [](int i) { return R"({ "Preset" : )" + NumberAt(i) + " }"; })
                + R"(, "Linkage" : { "LowerMatrix" : { "Out" : )" + ListOf(32 + more, NumberAt) + " } } }");
        EXPECT_EQ(parsed->nPropertyCount, 16);
        EXPECT_EQ(parsed->stuProperty[15].nPreset, 16);
        EXPECT_EQ(parsed->nOutCount, 32);
        EXPECT_EQ(parsed->nOut[31], 32);
    }
    CFG_AUDIO_SPIRIT_INFO record{};
    record.nPropertyCount = 17;
    record.nOutCount = 33;
    const std::string text = Pack("AudioSpirit", record);
    EXPECT_EQ(CountOf("Preset", text), 16u);
    EXPECT_NE(text.find(R"("Out" : )" + ListOf(32, [](int) { return "0"; }) + " }"), std::string::npos);
}

// ---- "AudioMatrixConfig", "AudioMatrixSilence" ----

TEST(AudioMatrix, ThereAndBack) {
    const std::string text = R"([ [ { "InputChannel" : [ 1, 2 ] }, { "InputChannel" : [ 3 ] } ], )"
                             R"([ { "InputChannel" : [ 4 ] } ] ])";
    for (const char* const command : {"AudioMatrixConfig", "AudioMatrixSilence"}) {
        SCOPED_TRACE(command);
        const auto parsed = Parse<CFG_AUDIO_MATRIX_INFO>(command, text);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_MATRIX_INFO));
        ASSERT_EQ(parsed->nMatrixCount, 2);
        ASSERT_EQ(parsed->stuMatrices[0].nOutputCount, 2);
        ASSERT_EQ(parsed->stuMatrices[0].stuOutputs[0].nInputCount, 2);
        EXPECT_EQ(parsed->stuMatrices[0].stuOutputs[0].nInputChannel[0], 1);
        EXPECT_EQ(parsed->stuMatrices[0].stuOutputs[0].nInputChannel[1], 2);
        ASSERT_EQ(parsed->stuMatrices[0].stuOutputs[1].nInputCount, 1);
        EXPECT_EQ(parsed->stuMatrices[0].stuOutputs[1].nInputChannel[0], 3);
        ASSERT_EQ(parsed->stuMatrices[1].nOutputCount, 1);
        EXPECT_EQ(parsed->stuMatrices[1].stuOutputs[0].nInputChannel[0], 4);
        EXPECT_EQ(Pack(command, *parsed), text);
        ExpectRefusals<CFG_AUDIO_MATRIX_INFO>(command, {"null", "{ }", "5", "\"x\""});
    }
}

TEST(AudioMatrix, EachLevelEndsAtItsRoom) {
    for (const int more : {0, 1}) {
        const std::string inputs = R"({ "InputChannel" : )" + ListOf(32 + more, NumberAt) + " }";
        const std::string outputs = ListOf(8 + more, [&](int) { return inputs; });
        const auto parsed =
            Parse<CFG_AUDIO_MATRIX_INFO>("AudioMatrixConfig", ListOf(4 + more, [&](int) { return outputs; }));
        EXPECT_EQ(parsed->nMatrixCount, 4);
        for (const CFG_AUDIO_MATRIX& matrix : parsed->stuMatrices) {
            EXPECT_EQ(matrix.nOutputCount, 8);
            for (const CFG_AUDIO_MATRIX_OUTPUT& output : matrix.stuOutputs) {
                EXPECT_EQ(output.nInputCount, 32);
                EXPECT_EQ(output.nInputChannel[31], 32);
            }
        }
    }
    auto record = Cleared<CFG_AUDIO_MATRIX_INFO>();
    record->nMatrixCount = 5;
    for (CFG_AUDIO_MATRIX& matrix : record->stuMatrices) {
        matrix.nOutputCount = 9;
        for (CFG_AUDIO_MATRIX_OUTPUT& output : matrix.stuOutputs)
            output.nInputCount = 33;
    }
    const std::string output = R"({ "InputChannel" : )" + ListOf(32, [](int) { return "0"; }) + " }";
    const std::string matrix = ListOf(8, [&](int) { return output; });
    EXPECT_EQ(Pack("AudioMatrixConfig", *record), ListOf(4, [&](int) { return matrix; }));
}

TEST(AudioMatrix, WhatIsNoListHasNoElements) {
    const auto parsed = Parse<CFG_AUDIO_MATRIX_INFO>(
        "AudioMatrixConfig", R"([ 5, [ { "InputChannel" : 7 }, [ ], null ], { "InputChannel" : [ 1 ] } ])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nMatrixCount, 3);
    EXPECT_EQ(parsed->stuMatrices[0].nOutputCount, 0);
    EXPECT_EQ(parsed->stuMatrices[1].nOutputCount, 3);
    EXPECT_EQ(parsed->stuMatrices[1].stuOutputs[0].nInputCount, 0);
    EXPECT_EQ(parsed->stuMatrices[2].nOutputCount, 0);
    EXPECT_EQ(Pack("AudioMatrixConfig", *parsed), "[ null, [ null, null, null ], null ]");
    const auto none = Parse<CFG_AUDIO_MATRIX_INFO>("AudioMatrixConfig", "[ ]");
    ASSERT_TRUE(none);
    EXPECT_EQ(none.length, sizeof(CFG_AUDIO_MATRIX_INFO));
    EXPECT_EQ(none->nMatrixCount, 0);
    EXPECT_EQ(Pack("AudioMatrixConfig", *none), "null");
}

// ---- "LowerMatrix" ----

TEST(LowerMatrix, ThereAndBack) {
    const std::string text = R"([ [ { "In" : [ 1, 2 ], "Mode" : 3, "Name" : "n4" }, )"
                             R"({ "In" : [ 5 ], "Mode" : 6, "Name" : "n7" } ], [ { "Mode" : 8, "Name" : "n9" } ] ])";
    const auto parsed = Parse<CFG_LOWER_MATRIX_INFO>("LowerMatrix", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_LOWER_MATRIX_INFO));
    ASSERT_EQ(parsed->nMatrixCount, 2);
    ASSERT_EQ(parsed->stuMatrices[0].nOutputCount, 2);
    const CFG_LOWER_MATRIX_OUTPUT& first = parsed->stuMatrices[0].stuOutputs[0];
    ASSERT_EQ(first.nInCount, 2);
    EXPECT_EQ(first.nIn[0], 1);
    EXPECT_EQ(first.nIn[1], 2);
    EXPECT_EQ(first.emMode, 3);
    EXPECT_STREQ(first.szName, "n4");
    const CFG_LOWER_MATRIX_OUTPUT& second = parsed->stuMatrices[0].stuOutputs[1];
    ASSERT_EQ(second.nInCount, 1);
    EXPECT_EQ(second.nIn[0], 5);
    EXPECT_EQ(second.emMode, 6);
    EXPECT_STREQ(second.szName, "n7");
    ASSERT_EQ(parsed->stuMatrices[1].nOutputCount, 1);
    EXPECT_EQ(parsed->stuMatrices[1].stuOutputs[0].emMode, 8);
    EXPECT_STREQ(parsed->stuMatrices[1].stuOutputs[0].szName, "n9");
    EXPECT_EQ(parsed->stuMatrices[1].stuOutputs[0].nInCount, 0);
    EXPECT_EQ(Pack("LowerMatrix", *parsed), text);
    EXPECT_EQ(Pack("LowerMatrix", *Cleared<CFG_LOWER_MATRIX_INFO>()), "null");
    ExpectRefusals<CFG_LOWER_MATRIX_INFO>("LowerMatrix", {"null", "{ }", "5"});
}

TEST(LowerMatrix, EachLevelEndsAtItsRoom) {
    for (const int more : {0, 1}) {
        const std::string output =
            R"({ "In" : )" + ListOf(64 + more, NumberAt) + R"(, "Name" : ")" + std::string(200, 'x') + "\" }";
        const std::string outputs = ListOf(32 + more, [&](int) { return output; });
        const auto parsed =
            Parse<CFG_LOWER_MATRIX_INFO>("LowerMatrix", ListOf(16 + more, [&](int) { return outputs; }));
        EXPECT_EQ(parsed->nMatrixCount, 16);
        for (const CFG_LOWER_MATRIX& matrix : parsed->stuMatrices) {
            EXPECT_EQ(matrix.nOutputCount, 32);
            for (const CFG_LOWER_MATRIX_OUTPUT& each : matrix.stuOutputs) {
                EXPECT_EQ(each.nInCount, 64);
                EXPECT_EQ(each.nIn[63], 64);
                EXPECT_EQ(std::strlen(each.szName), 127u);
            }
        }
    }
    auto record = Cleared<CFG_LOWER_MATRIX_INFO>();
    record->nMatrixCount = 17;
    record->stuMatrices[15].nOutputCount = 33;
    record->stuMatrices[15].stuOutputs[31].nInCount = 65;
    const std::string text = Pack("LowerMatrix", *record);
    EXPECT_TRUE(text.starts_with("[ " + ListOf(15, [](int) { return "null"; }).substr(2, 88) + ", [ {")) << text;
    EXPECT_EQ(CountOf("\"Mode\"", text), 32u);
    EXPECT_NE(text.find(R"({ "In" : )" + ListOf(64, [](int) { return "0"; }) + ", "), std::string::npos);
}

// ---- "ComposeChannel", "ComposeLinkage" ----

TEST(ComposeChannel, ThereAndBack) {
    const std::string text = R"({ "ChannelCombination" : [ 1, 2, 3 ], "Split" : "Split4" })";
    for (const char* const command : {"ComposeChannel", "ComposeLinkage"}) {
        const auto parsed = Parse<CFG_COMPOSE_CHANNEL_INFO>(command, text);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed.length, sizeof(CFG_COMPOSE_CHANNEL_INFO));
        EXPECT_EQ(parsed->emSplit, 4);
        ASSERT_EQ(parsed->nChannelCount, 3);
        EXPECT_EQ(parsed->nChannels[0], 1);
        EXPECT_EQ(parsed->nChannels[2], 3);
        EXPECT_EQ(Pack(command, *parsed), text);
        EXPECT_EQ(Pack(command, *Cleared<CFG_COMPOSE_CHANNEL_INFO>()), R"({ "Split" : "Split" })");
        ExpectRefusals<CFG_COMPOSE_CHANNEL_INFO>(command, {"null"});
    }
}

TEST(ComposeChannel, IsOneRecordWhateverTheTable) {
    for (const char* const table : {"{ }", R"([ { "Split" : "Split4" } ])", "5"}) {
        const Records<CFG_COMPOSE_CHANNEL_INFO> compose(2, kUntouched);
        EXPECT_EQ(ParseTable("ComposeLinkage", table, compose), (Answer{1, sizeof(CFG_COMPOSE_CHANNEL_INFO)}));
        EXPECT_TRUE(compose.isAll(0)) << table;
        EXPECT_EQ(PackAll("ComposeLinkage", compose), R"({ "Split" : "Split" })");
        const Records<CFG_AUDIO_INPUT_INFO> input(2, kUntouched);
        EXPECT_EQ(ParseTable("AudioInput", table, input), (Answer{1, sizeof(CFG_AUDIO_INPUT_INFO)}));
        EXPECT_TRUE(input.isAll(0)) << table;
        EXPECT_EQ(PackAll("AudioInput", input), R"({ "AudioSource" : "" })");
    }
}

TEST(ComposeChannel, ChannelsEndAtTheirRoom) {
    for (const int count : {255, 256, 257}) {
        const auto parsed = Parse<CFG_COMPOSE_CHANNEL_INFO>("ComposeChannel", R"({ "ChannelCombination" : )"
                                                                                  + ListOf(count, NumberAt) + " }");
        EXPECT_EQ(parsed->nChannelCount, std::min(count, 256));
        EXPECT_EQ(parsed->nChannels[254], 255);
    }
    const auto record = Cleared<CFG_COMPOSE_CHANNEL_INFO>();
    record->nChannelCount = 257;
    EXPECT_EQ(Pack("ComposeLinkage", *record),
              R"({ "ChannelCombination" : )" + ListOf(256, [](int) { return "0"; }) + R"(, "Split" : "Split" })");
}

TEST(ComposeChannel, SplitNames) {
    const auto read = [](const std::string& value) {
        return Parse<CFG_COMPOSE_CHANNEL_INFO>("ComposeChannel", R"({ "Split" : )" + value + " }")->emSplit;
    };
    const auto written = [](std::int32_t code) {
        const auto record = Cleared<CFG_COMPOSE_CHANNEL_INFO>();
        record->emSplit = code;
        return Pack("ComposeChannel", *record);
    };
    struct Split {
        const char* text;
        std::int32_t code;
    };
    for (const Split& split :
         {Split{"Split", 0}, Split{"Split9", 9}, Split{"Split3", 10}, Split{"Split3B", 11}, Split{"PIP", 1000},
          Split{"PIP4", 1004}, Split{"Free", 2000}, Split{"CompositeSplit", 3000}, Split{"CompositeSplit6", 3006}}) {
        EXPECT_EQ(read('"' + std::string(split.text) + '"'), split.code) << split.text;
        EXPECT_EQ(written(split.code), R"({ "Split" : ")" + std::string(split.text) + "\" }");
    }
    EXPECT_EQ(written(3), R"({ "Split" : "Split3" })"); // which is the text of 10, and reads as that
    EXPECT_EQ(written(2147483647), R"({ "Split" : "CompositeSplit2147480647" })");
    EXPECT_EQ(written(-1), "null"); // no key at all
    EXPECT_EQ(written(-2147483647 - 1), "null");
    EXPECT_EQ(read("\"Split-5\""), -5);
    EXPECT_EQ(read("\"pip2\""), 1002); // in any case
    EXPECT_EQ(read("\"split3\""), 10);
    for (const char* const value : {"\"Grid\"", "\"\"", "4"})
        EXPECT_EQ(read(value), 1) << value;
    EXPECT_EQ(read("null"), 0);
}

// ---- Volumes ----

TEST(AudioVolume, ThereAndBack) {
    for (const char* const command : {"AudioOutputVolume", "AudioInputVolume", "AudioMixVolume"}) {
        const auto parsed = Parse<CFG_AUDIO_VOLUME_INFO>(command, "[ 50, 100, 0, 255 ]");
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_VOLUME_INFO));
        ASSERT_EQ(parsed->nCount, 4);
        EXPECT_EQ(parsed->byVolumes[0], 50);
        EXPECT_EQ(parsed->byVolumes[1], 100);
        EXPECT_EQ(parsed->byVolumes[2], 0);
        EXPECT_EQ(parsed->byVolumes[3], 255);
        EXPECT_EQ(Pack(command, *parsed), "[ 50, 100, 0, 255 ]");
        ExpectRefusals<CFG_AUDIO_VOLUME_INFO>(command, {"null"});
    }
}

TEST(AudioVolume, KeepsTheLowByteOfEach) {
    const auto parsed = Parse<CFG_AUDIO_VOLUME_INFO>("AudioMixVolume", R"([ 256, 300, -1, "7", null, 1.9, true ])");
    ASSERT_EQ(parsed->nCount, 7);
    const std::uint8_t expected[] = {0, 44, 255, 0, 0, 1, 1};
    EXPECT_EQ(std::memcmp(parsed->byVolumes, expected, sizeof expected), 0);
}

TEST(AudioVolume, EndsAtItsRoom) {
    for (const int count : {31, 32, 33}) {
        const auto parsed = Parse<CFG_AUDIO_VOLUME_INFO>("AudioInputVolume", ListOf(count, NumberAt));
        EXPECT_EQ(parsed->nCount, std::min(count, 32));
        EXPECT_EQ(parsed->byVolumes[30], 31);
        EXPECT_EQ(parsed->byVolumes[31], count > 31 ? 32 : 0);
    }
    CFG_AUDIO_VOLUME_INFO record{};
    record.nCount = 33;
    EXPECT_EQ(Pack("AudioInputVolume", record), ListOf(32, [](int) { return "0"; }));
    for (const std::int32_t count : {0, -1}) {
        record.nCount = count;
        EXPECT_EQ(Pack("AudioInputVolume", record), "null");
    }
}

TEST(AudioVolume, OfNoListThereAreNone) {
    for (const char* const table : {"[ ]", "5", "\"x\"", "true", "{ }"}) {
        const auto parsed = Parse<CFG_AUDIO_VOLUME_INFO>("AudioOutputVolume", table);
        ASSERT_TRUE(parsed) << table;
        EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_VOLUME_INFO));
        EXPECT_TRUE(parsed.isCleared()) << table;
    }
    const auto parsed = Parse<CFG_AUDIO_VOLUME_INFO>("AudioOutputVolume", R"({ "0" : 5, "1" : 6 })");
    EXPECT_EQ(parsed->nCount, 2); // as many as it has members
    EXPECT_EQ(parsed->byVolumes[0], 0);
    EXPECT_EQ(parsed->byVolumes[1], 0);
}

// ---- Inputs ----

TEST(AudioInput, ThereAndBack) {
    const auto parsed = Parse<CFG_AUDIO_INPUT_INFO>("AudioInput", R"({ "AudioSource" : "Mic" })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_INPUT_INFO));
    EXPECT_STREQ(parsed->szAudioSource, "Mic");
    EXPECT_EQ(Pack("AudioInput", *parsed), R"({ "AudioSource" : "Mic" })");
    const auto cut =
        Parse<CFG_AUDIO_INPUT_INFO>("AudioInput", R"({ "AudioSource" : ")" + std::string(300, 'x') + "\" }");
    EXPECT_EQ(std::strlen(cut->szAudioSource), 255u);
    ExpectRefusals<CFG_AUDIO_INPUT_INFO>("AudioInput", {"null"});
}

// The length of these calls is added to.
template <class R>
Answer Added(const char* command, const std::string& table, const Records<R>& records) {
    const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
    std::uint32_t length = 1000;
    const auto result = CLIENT_ParseData(command, document.c_str(), records.data(), records.size(), &length);
    return {result, length - 1000};
}

TEST(AudioMixChannel, ThereAndBack) {
    const Records<CFG_AUDIO_MIX_CHANNEL_INFO> records(2, kUntouched);
    EXPECT_EQ(Added("AudioMixChannel", R"({ "Combination" : [ 4, 5, 6 ] })", records),
              (Answer{1, sizeof(CFG_AUDIO_MIX_CHANNEL_INFO)}));
    ASSERT_EQ(records[0].nCombinationCount, 3);
    EXPECT_EQ(records[0].nCombination[0], 4);
    EXPECT_EQ(records[0].nCombination[1], 5);
    EXPECT_EQ(records[0].nCombination[2], 6);
    EXPECT_EQ(records[1].nCombinationCount, 0); // the whole buffer is cleared
    EXPECT_EQ(PackAll("AudioMixChannel", records), R"({ "Combination" : [ 4, 5, 6 ] })");
    EXPECT_EQ(Added("AudioMixChannel", "null", records), (Answer{1, 0}));
    EXPECT_TRUE(records.isAll(0));
    EXPECT_EQ(PackAll("AudioMixChannel", records), "null");
    for (const int count : {256, 257}) {
        Added("AudioMixChannel", R"({ "Combination" : )" + ListOf(count, NumberAt) + " }", records);
        EXPECT_EQ(records[0].nCombinationCount, 256);
        EXPECT_EQ(records[0].nCombination[255], 256);
        EXPECT_EQ(records[1].nCombinationCount, 0);
    }
}

TEST(AudioMixChannel, IsOneRecordOfAnObject) {
    const Records<CFG_AUDIO_MIX_CHANNEL_INFO> records(2, kUntouched);
    for (const char* const table :
         {R"([ { "Combination" : [ 1 ] } ])", "[ ]", "7", R"({ "Combination" : { "0" : 1 } })"}) {
        EXPECT_EQ(Added("AudioMixChannel", table, records), (Answer{1, sizeof(CFG_AUDIO_MIX_CHANNEL_INFO)})) << table;
        EXPECT_TRUE(records.isAll(0)) << table;
    }
    const auto record = Cleared<CFG_AUDIO_MIX_CHANNEL_INFO>();
    for (const std::int32_t count : {256, 257, INT32_MAX}) {
        record->nCombinationCount = count;
        EXPECT_EQ(Pack("AudioMixChannel", *record),
                  R"({ "Combination" : )" + ListOf(256, [](int) { return "0"; }) + " }");
    }
    record->nCombinationCount = -1;
    EXPECT_EQ(Pack("AudioMixChannel", *record), "null");
    TryReplies("AudioMixChannel", sizeof(CFG_AUDIO_MIX_CHANNEL_INFO));
}

TEST(AudioTouch, IsOneRecordOfAnObject) {
    TryOne("AudioTouch", "Pitch", &CFG_AUDIO_TOUCH_INFO::nPitch);
    TryReplies("AudioTouch", sizeof(CFG_AUDIO_TOUCH_INFO));
}

TEST(AudioTouch, ThereAndBack) {
    const std::string text = R"({ "Enable" : true, "Info" : "deep", "Pitch" : -3 })";
    const Records<CFG_AUDIO_TOUCH_INFO> records(1, kUntouched);
    EXPECT_EQ(Added("AudioTouch", text, records), (Answer{1, sizeof(CFG_AUDIO_TOUCH_INFO)}));
    EXPECT_EQ(records[0].bEnable, 1);
    EXPECT_STREQ(records[0].szInfo, "deep");
    EXPECT_EQ(records[0].nPitch, -3);
    EXPECT_EQ(PackAll("AudioTouch", records), text);
    Added("AudioTouch", R"({ "Info" : ")" + std::string(300, 'x') + "\" }", records);
    EXPECT_EQ(std::strlen(records[0].szInfo), 255u);
    EXPECT_EQ(records[0].nPitch, 0);
    EXPECT_EQ(Added("AudioTouch", "null", records), (Answer{1, 0}));
    EXPECT_EQ(PackAll("AudioTouch", records), R"({ "Enable" : false, "Info" : "", "Pitch" : 0 })");
}

// ---- "speak.getCaps" ----

const std::string kCaps =
    R"({ "SupportedAudioFormat" : [ { "Format" : "G.711A", "Property" : [ { "BitRate" : 1, "SampleBit" : 2, )"
    R"("SampleRate" : 3 }, { "BitRate" : 4, "SampleBit" : 5, "SampleRate" : 6 } ] }, { "Format" : "AAC", )"
    R"("Property" : [ { "SampleRate" : 7 } ] } ] })";

void ExpectCaps(const CFG_SPEAK_CAPS& caps) {
    ASSERT_EQ(caps.nFormatCount, 2);
    const CFG_SPEAK_FORMAT& first = caps.stuSupportedAudioFormat[0];
    EXPECT_EQ(first.emFormat, 2);
    ASSERT_EQ(first.nPropertyCount, 2);
    EXPECT_EQ(first.stuProperty[0].nBitRate, 1);
    EXPECT_EQ(first.stuProperty[0].nSampleBit, 2);
    EXPECT_EQ(first.stuProperty[0].nSampleRate, 3);
    EXPECT_EQ(first.stuProperty[1].nBitRate, 4);
    EXPECT_EQ(first.stuProperty[1].nSampleBit, 5);
    EXPECT_EQ(first.stuProperty[1].nSampleRate, 6);
    const CFG_SPEAK_FORMAT& second = caps.stuSupportedAudioFormat[1];
    EXPECT_EQ(second.emFormat, 8);
    ASSERT_EQ(second.nPropertyCount, 1);
    EXPECT_EQ(second.stuProperty[0].nBitRate, 0); // not told
    EXPECT_EQ(second.stuProperty[0].nSampleRate, 7);
}

TEST(SpeakCaps, StandUnderCapsOrInTheirPlace) {
    for (const std::string& params :
         {R"({ "caps" : )" + kCaps + " }", kCaps, R"({ "caps" : null, )" + kCaps.substr(1)}) {
        for (const char* const result : {R"("result" : true, )", ""}) {
            const auto parsed = ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps", "{ " + std::string(result)
                                                                                   + R"("params" : )" + params + " }");
            ASSERT_TRUE(parsed) << params;
            EXPECT_EQ(parsed.length, sizeof(CFG_SPEAK_CAPS));
            ExpectCaps(*parsed);
        }
    }
    // What stands beside "caps" is not looked at.
    const auto beside =
        ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps", R"({ "params" : { "caps" : { }, )" + kCaps.substr(1) + " }");
    ASSERT_TRUE(beside);
    EXPECT_TRUE(beside.isCleared());
}

TEST(SpeakCaps, Refusals) {
    for (const std::string& document :
         {R"({ "result" : false, "params" : { "caps" : )" + kCaps + " } }", std::string("{"), std::string("{ }"),
          std::string(R"({ "result" : true })"), std::string(R"({ "params" : null })")}) {
        const auto parsed = ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps", document);
        EXPECT_FALSE(parsed) << document;
        EXPECT_TRUE(parsed.isCleared());
    }
    const Records<CFG_SPEAK_CAPS> small(1, kUntouched);
    EXPECT_EQ(CLIENT_ParseData("speak.getCaps", "{ }", small.data(), sizeof(CFG_SPEAK_CAPS) - 1, nullptr), 0);
    EXPECT_TRUE(small.isAll(kUntouched));
    EXPECT_EQ(Pack("speak.getCaps", *Cleared<CFG_SPEAK_CAPS>()), kNotBegun); // read only
}

TEST(SpeakCaps, OfOtherValuesThereAreNoFormats) {
    for (const char* const params : {"{ }", R"({ "caps" : 5 })", R"({ "caps" : [ ] })",
                                     R"({ "caps" : { "SupportedAudioFormat" : { "0" : { } } } })"}) {
        // A "result" of null is none.
        const auto parsed = ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps", R"({ "result" : null, "params" : )"
                                                                               + std::string(params) + " }");
        ASSERT_TRUE(parsed) << params;
        EXPECT_EQ(parsed.length, sizeof(CFG_SPEAK_CAPS));
        EXPECT_TRUE(parsed.isCleared()) << params;
    }
    for (const char* const result : {"0", "\"\"", "[ ]"}) {
        const auto refused = ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps", R"({ "result" : )" + std::string(result)
                                                                                + R"(, "params" : )" + kCaps + " }");
        EXPECT_FALSE(refused) << result;
        EXPECT_TRUE(refused.isCleared());
    }
}

TEST(SpeakCaps, Formats) {
    const auto read = [](const std::string& value) {
        return ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps",
                                             R"({ "params" : { "caps" : { "SupportedAudioFormat" : [ { "Format" : )"
                                                 + value + " } ] } } }")
            ->stuSupportedAudioFormat[0]
            .emFormat;
    };
    const char* const names[] = {"PCM", "ADPCM", "G.711A", "G.711Mu", "G.726", "G.729", "MPEG2", "AMR", "AAC"};
    for (std::int32_t code = 0; code < 9; ++code)
        EXPECT_EQ(read('"' + std::string(names[code]) + '"'), code);
    EXPECT_EQ(read("\"g.711mu\""), 3);
    for (const char* const value : {"\"Opus\"", "\"\"", "3", "null"})
        EXPECT_EQ(read(value), 0) << value;
}

TEST(SpeakCaps, ListsEndAtTheirRoom) {
    for (const int more : {0, 1}) {
        const std::string properties =
            ListOf(32 + more, [](int i) { return R"({ "BitRate" : )" + NumberAt(i) + " }"; });
        const std::string formats = ListOf(16 + more, [&](int) { return R"({ "Property" : )" + properties + " }"; });
        const auto parsed = ParseDocument<CFG_SPEAK_CAPS>("speak.getCaps", R"({ "params" : { "SupportedAudioFormat" : )"
                                                                               + formats + " } }");
        EXPECT_EQ(parsed->nFormatCount, 16);
        for (const CFG_SPEAK_FORMAT& format : parsed->stuSupportedAudioFormat) {
            EXPECT_EQ(format.nPropertyCount, 32);
            EXPECT_EQ(format.stuProperty[31].nBitRate, 32);
        }
    }
}

} // namespace
} // namespace orrery::test
