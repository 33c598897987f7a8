// The names of codecs, rates, packs, profiles and picture sizes, in both directions.
#include "orrery/encode.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <vector>

namespace orrery::test {
namespace {

struct NamedCode {
    std::int32_t code;
    const char* name;
};

// ---- Keys of a format ----

std::int32_t ReadFormat(const std::string& keys, std::int32_t CFG_ENCODE_VIDEO::*member) {
    const Records<CFG_ENCODE_INFO> records(1);
    EXPECT_EQ(ParseTable("Encode", R"({"MainFormat":[{"Video":{)" + keys + "}}]}", records).result, 1);
    return records[0].stuMainFormat[0].stuVideo.*member;
}
std::int32_t ReadFormat(const std::string& keys, std::int32_t CFG_ENCODE_AUDIO::*member) {
    const Records<CFG_ENCODE_INFO> records(1);
    EXPECT_EQ(ParseTable("Encode", R"({"MainFormat":[{"Audio":{)" + keys + "}}]}", records).result, 1);
    return records[0].stuMainFormat[0].stuAudio.*member;
}

// What stands between the braces of the object.
std::string Inside(const std::string& text, const char* object) {
    if (text == R"({ "MainFormat" : [ null ] })") return "";
    const std::string head = std::string(R"({ "MainFormat" : [ { ")") + object + "\" : { ";
    const std::string tail = " } } ] }";
    if (text.size() < head.size() + tail.size() || text.compare(0, head.size(), head) != 0) return "?" + text;
    return text.substr(head.size(), text.size() - head.size() - tail.size());
}
std::string WriteFormat(std::int32_t code, std::int32_t CFG_ENCODE_VIDEO::*member,
                        std::uint8_t CFG_ENCODE_VIDEO::*flag) {
    CFG_ENCODE_INFO record{};
    record.nMainFormatCount = 1;
    record.stuMainFormat[0].stuVideo.*member = code;
    record.stuMainFormat[0].stuVideo.*flag = 1;
    return Inside(Pack("Encode", record), "Video");
}
std::string WriteFormat(std::int32_t code, std::int32_t CFG_ENCODE_AUDIO::*member,
                        std::uint8_t CFG_ENCODE_AUDIO::*flag) {
    CFG_ENCODE_INFO record{};
    record.nMainFormatCount = 1;
    record.stuMainFormat[0].abAudio = 1;
    record.stuMainFormat[0].stuAudio.*member = code;
    record.stuMainFormat[0].stuAudio.*flag = 1;
    return Inside(Pack("Encode", record), "Audio");
}

std::string Quoted(const char* key, const char* name, const char* colon = ":") {
    return std::string("\"") + key + "\"" + colon + "\"" + name + "\"";
}

// Every name reads as its code and is what the code writes; other names read as `unknown`, and codes outside write
// `outside` (null: no key).
template <class Object>
void ExpectNames(const char* key, std::int32_t Object::*member, std::uint8_t Object::*flag,
                 const std::vector<NamedCode>& names, const std::vector<const char*>& otherNames, std::int32_t unknown,
                 const std::vector<std::int32_t>& otherCodes, const char* outside) {
    for (const NamedCode& row : names) {
        EXPECT_EQ(ReadFormat(Quoted(key, row.name), member), row.code) << row.name;
        EXPECT_EQ(WriteFormat(row.code, member, flag), Quoted(key, row.name, " : ")) << row.code;
    }
    for (const char* name : otherNames)
        EXPECT_EQ(ReadFormat(Quoted(key, name), member), unknown) << name;
    EXPECT_EQ(ReadFormat(std::string("\"") + key + "\":7", member), unknown); // a number is no name
    for (const std::int32_t code : otherCodes) {
        EXPECT_EQ(WriteFormat(code, member, flag), outside == nullptr ? "" : Quoted(key, outside, " : ")) << code;
    }
}

TEST(EncodeNames, VideoCompression) {
    ExpectNames("Compression", &CFG_ENCODE_VIDEO::emCompression, &CFG_ENCODE_VIDEO::abCompression,
                {{0, "MPEG4"},
                 {1, "MS-MPEG4"},
                 {2, "MPEG2"},
                 {3, "MPEG1"},
                 {4, "H.263"},
                 {5, "MJPG"},
                 {6, "FCC-MPEG4"},
                 {7, "H.264"},
                 {8, "H.265"},
                 {9, "SVAC"}},
                {"", "h.264", "H.266", "H.264 ", "H.26"}, 10, {-1, 10, 11, INT32_MIN, INT32_MAX}, "");
}

TEST(EncodeNames, AudioCompression) {
    ExpectNames("Compression", &CFG_ENCODE_AUDIO::emCompression, &CFG_ENCODE_AUDIO::abCompression,
                {{0, "G.711A"}, {1, "PCM"}, {2, "G.711Mu"}, {3, "AMR"}, {4, "AAC"}}, {"", "pcm", "G.711MU", "MP3"}, 0,
                {-1, 5, INT32_MIN, INT32_MAX}, "G.711A");
}

TEST(EncodeNames, BitRateControl) {
    ExpectNames("BitRateControl", &CFG_ENCODE_VIDEO::emBitRateControl, &CFG_ENCODE_VIDEO::abBitRateControl,
                {{0, "CBR"}, {1, "VBR"}}, {"", "ABR", "VBRX"}, 0, {-1, 2, INT32_MAX}, "CBR");
    EXPECT_EQ(ReadFormat(R"("BitRateControl":"vBr")", &CFG_ENCODE_VIDEO::emBitRateControl), 1);
}

TEST(EncodeNames, Profile) {
    ExpectNames("Profile", &CFG_ENCODE_VIDEO::emProfile, &CFG_ENCODE_VIDEO::abProfile,
                {{1, "Baseline"}, {2, "Main"}, {3, "Extended"}, {4, "High"}}, {"", "high", "High 10"}, 1,
                {0, -1, 5, INT32_MAX}, "Baseline");
}

TEST(EncodeNames, Pack) {
    ExpectNames("Pack", &CFG_ENCODE_VIDEO::emPack, &CFG_ENCODE_VIDEO::abPack, {{0, "QVAV"}, {1, "PS"}},
                {"", "TS", "ps"}, 0, {-1, 2, INT32_MAX}, nullptr);
    ExpectNames("Pack", &CFG_ENCODE_AUDIO::emPack, &CFG_ENCODE_AUDIO::abPack, {{0, "QVAV"}, {1, "PS"}},
                {"", "TS", "ps"}, 0, {-1, 2, INT32_MAX}, nullptr);
}

// ---- Picture sizes ----

constexpr NamedCode kSizes[] = {
    {0, "D1"},         {1, "HD1"},        {2, "BCIF"},       {3, "CIF"},    {4, "QCIF"},  {5, "VGA"},
    {6, "QVGA"},       {7, "SVCD"},       {8, "QQVGA"},      {9, "SVGA"},   {10, "XVGA"}, {11, "WXGA"},
    {12, "SXGA"},      {13, "WSXGA"},     {14, "UXGA"},      {15, "WUXGA"}, {16, "ND1"},  {17, "720"},
    {18, "1080"},      {19, "1_3M"},      {20, "2_5M"},      {21, "5M"},    {22, "3M"},   {23, "5_0M"},
    {24, "1_2M"},      {25, "1408x1024"}, {26, "3296x2472"}, {27, "5_1M"},  {28, "960H"}, {29, "DV720P"},
    {30, "2560x1600"}, {31, "2336x1752"}, {32, "2592x2048"},
};
constexpr NamedCode kOtherNames[] = {
    {2, "2CIF"},
    {19, "1280x960"},
    {20, "1872x1408"},
    {21, "3744x1408"},
    {22, "2048x1536"},
    {23, "2432x2048"},
    {24, "1216x1024"},
    {27, "2560x1920"},
    // Case does not count.
    {0, "d1"},
    {2, "2cif"},
    {2, "bCiF"},
    {19, "1_3m"},
    {19, "1280X960"},
    {29, "dv720p"},
    // No name of any.
    {33, "4CIF"},
    {33, ""},
    {33, "1920x1080"},
    {33, "D"},
    {33, "D12"},
};

std::uint32_t ReadSize(const std::string& value) {
    const Records<CFG_COMPRESS_PLAY_INFO> records(1);
    EXPECT_EQ(ParseTable("CompressPlay", "{\"Resolution\":" + value + "}", records).result, 1);
    return records[0].emResolution;
}
std::string WriteSize(std::uint32_t code) {
    return Pack("CompressPlay", CFG_COMPRESS_PLAY_INFO{0, code, 0});
}
std::string TextOfSize(const char* name) {
    return std::string(R"({ "BitRate" : 0, "Enable" : false, "Resolution" : ")") + name + "\" }";
}

TEST(EncodeNames, Resolution) {
    for (const NamedCode& row : kSizes) {
        EXPECT_EQ(ReadSize(std::string("\"") + row.name + "\""), static_cast<std::uint32_t>(row.code)) << row.name;
        EXPECT_EQ(WriteSize(static_cast<std::uint32_t>(row.code)), TextOfSize(row.name)) << row.code;
    }
    for (const NamedCode& row : kOtherNames) {
        EXPECT_EQ(ReadSize(std::string("\"") + row.name + "\""), static_cast<std::uint32_t>(row.code)) << row.name;
    }
    EXPECT_EQ(ReadSize("720"), 33u); // a number is no name
    EXPECT_EQ(ReadSize("[]"), 33u);
    for (const std::uint32_t code : {33u, 34u, 40u, 41u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        EXPECT_EQ(WriteSize(code), TextOfSize("")) << code;
    }
}

// ---- Adaptation ----

TEST(EncodeNames, Adaptation) {
    const auto read = [](const std::string& policy, const std::string& mode) {
        const Records<CFG_ENCODE_ADAPT_INFO> records(1);
        EXPECT_EQ(ParseTable("EncodeAdapt", R"({"Policy":")" + policy + R"(","FluencyMode":")" + mode + "\"}", records)
                      .result,
                  1);
        return records[0];
    };
    const char* const policies[] = {"None", "Quality", "Fluency"};
    const char* const modes[] = {"Fast", "Slow", "Sync", "Slowsync"};
    for (std::int32_t i = 0; i < 4; ++i) {
        const char* const policy = policies[i % 3];
        const CFG_ENCODE_ADAPT_INFO record = read(policy, modes[i]);
        EXPECT_EQ(record.emPolicy, i % 3 + 1);
        EXPECT_EQ(record.emFluencyMode, i + 1);
        EXPECT_EQ(Pack("EncodeAdapt", record),
                  std::string(R"({ "FluencyMode" : ")") + modes[i] + R"(", "Policy" : ")" + policy + "\" }");
    }
    for (const char* name : {"", "none", "fast", "SlowSync", "Best"}) {
        EXPECT_EQ(read(name, name).emPolicy, 0) << name;
        EXPECT_EQ(read(name, name).emFluencyMode, 0) << name;
    }
    for (const std::int32_t code : {0, -1, 5, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(Pack("EncodeAdapt", CFG_ENCODE_ADAPT_INFO{code, code}), "null") << code;
    }
    EXPECT_EQ(Pack("EncodeAdapt", CFG_ENCODE_ADAPT_INFO{4, 4}), R"({ "FluencyMode" : "Slowsync" })");
    EXPECT_EQ(Pack("EncodeAdapt", CFG_ENCODE_ADAPT_INFO{3, 0}), R"({ "Policy" : "Fluency" })");
}

} // namespace
} // namespace orrery::test
