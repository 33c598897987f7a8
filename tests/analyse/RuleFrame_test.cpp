#include "analyse/RuleFrame.h"
#include "orrery/analyse_rules.h"
#include "orrery/rule_bodies.h"
#include "orrery/traffic_rules.h"

#include "analyse/RuleBodyMap.h"
#include "support/RuleBuffer.h"

#include "orrery/log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace orrery {
namespace {

using test::Document;
using test::Normalised;
using test::RuleBuffer;
using test::RuleReply;

constexpr std::size_t kHead = 528;
constexpr std::size_t kLine = sizeof(CFG_RULE_CROSSLINE_INFO);
constexpr std::size_t kFire = sizeof(CFG_RULE_FIRE_INFO);

// What the library says while the sink lives.
class Lines : public LogSink {
  public:
    Lines() { former_ = LogOne_SetSink(this); }
    ~Lines() override { LogOne_SetSink(former_); }
    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override {}
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char*, char*&) override {}
    void TraceOutW(int, int, const wchar_t*, char*&) override {}
    void TraceOut(int, int, const char* format, char*& arguments) override {
        char line[256];
        std::vsnprintf(line, sizeof line, format, LogOne_VaList(arguments));
        all += line;
        all += "\n";
    }
    void SetMaxSizeKB(int) override {}
    void SetFileCount(int) override {}
    void SetPrintLevel(E_LOG_LEVEL) override {}
    void SetPrintStrategy(int) override {}
    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        all += std::string(file) + (line > 0 ? "/" : "?") + std::to_string(level) + ": ";
    }
    std::string all;

  private:
    LogSink* former_;
};

TEST(RuleFrame, PlacesItemsBehindEachOther) {
    RuleBuffer buffer(2 * kHead + kLine + kFire);
    ASSERT_TRUE(buffer.Parse(RuleReply(
        R"({"Type":"CrossLineDetection","Name":"one","Class":"Normal","Id":1,"Config":{"TrackDuration":7}},)"
        R"({"Type":"FireDetection","Name":"two","Class":"CrowdDistriMap","Id":257,"Config":{"Sensitivity":3}})")));
    EXPECT_EQ(buffer.rules.nRuleCount, 2);
    EXPECT_EQ(buffer.length, sizeof(CFG_ANALYSERULES_INFO));
    EXPECT_EQ(buffer.Head().dwRuleType, 2u);
    EXPECT_EQ(buffer.Head().nRuleSize, static_cast<std::int32_t>(kLine));
    EXPECT_EQ(buffer.Head().stuRuleGeneral.byId, 1);
    EXPECT_EQ(buffer.Head().stuRuleGeneral.nClass, 1);
    static CFG_RULE_CROSSLINE_INFO line;
    buffer.Load(line);
    EXPECT_STREQ(line.szRuleName, "one");
    EXPECT_EQ(line.nTrackDuration, 7);
    const std::size_t second = kHead + kLine;
    EXPECT_EQ(buffer.Head(second).dwRuleType, 12u);
    EXPECT_EQ(buffer.Head(second).nRuleSize, static_cast<std::int32_t>(kFire));
    EXPECT_EQ(buffer.Head(second).stuRuleGeneral.byId, 1); // the low byte
    EXPECT_EQ(buffer.Head(second).stuRuleGeneral.nClass, 30);
    static CFG_RULE_FIRE_INFO fire;
    buffer.Load(fire, second);
    EXPECT_STREQ(fire.szRuleName, "two");
    EXPECT_EQ(fire.nSensitivity, 3);
}

TEST(RuleFrame, ServesAudioAndTheListAtTheTop) {
    RuleBuffer audio(kHead + kLine);
    EXPECT_TRUE(audio.Parse(RuleReply(R"({"Type":"CrossLineDetection"})"), "AudioAnalyseRule"));
    EXPECT_EQ(audio.rules.nRuleCount, 1);
    EXPECT_EQ(audio.Pack("AudioAnalyseRule"), audio.Pack("VideoAnalyseRule"));
    EXPECT_EQ(audio.Pack("IVSFramRule"), "(refused)");
    RuleBuffer frame(kHead + kLine);
    EXPECT_TRUE(frame.Parse(R"({"VideoAnalyseRule":[{"Type":"CrossLineDetection"}]})", "IVSFramRule"));
    EXPECT_EQ(frame.rules.nRuleCount, 1);
    EXPECT_EQ(frame.Head().dwRuleType, 2u);
    EXPECT_TRUE(frame.Parse(RuleReply(R"({"Type":"CrossLineDetection"})"), "IVSFramRule"));
    EXPECT_EQ(frame.rules.nRuleCount, 0);
}

TEST(RuleFrame, ReadsTheTableOfARefusedCall) {
    RuleBuffer buffer(kHead + kFire);
    EXPECT_TRUE(buffer.Parse(R"({"result":false,"params":{"table":[{"Type":"FireDetection"}]}})"));
    EXPECT_EQ(buffer.rules.nRuleCount, 1);
}

TEST(RuleFrame, TakesNoTableAsNoRules) {
    for (const char* text : {"{}", R"({"params":{}})", R"({"params":{"table":null}})", R"({"params":{"table":[]}})"}) {
        RuleBuffer buffer(64);
        EXPECT_TRUE(buffer.Parse(text)) << text;
        EXPECT_EQ(buffer.rules.nRuleCount, 0);
        EXPECT_EQ(buffer.length, sizeof(CFG_ANALYSERULES_INFO));
        EXPECT_TRUE(buffer.IsClear());
    }
}

TEST(RuleFrame, RefusesWhatIsNoText) {
    RuleBuffer buffer(64);
    EXPECT_FALSE(buffer.Parse("[1"));
    EXPECT_EQ(buffer.rules.nRuleCount, -77);
    EXPECT_EQ(buffer.length, 0xABCDu);
    EXPECT_TRUE(buffer.IsUntouched());
}

TEST(RuleFrame, ReadsTheFirst32Rules) {
    std::string rules;
    for (int i = 0; i < 33; ++i)
        rules += (i == 0 ? "" : ",") + std::string(R"({"Type":"TrafficAccident","Id":)") + std::to_string(i) + "}";
    constexpr std::size_t kItem = kHead + sizeof(CFG_RULE_TRAFFICACCIDENT_INFO);
    RuleBuffer buffer(32 * kItem);
    ASSERT_TRUE(buffer.Parse(RuleReply(rules)));
    EXPECT_EQ(buffer.rules.nRuleCount, 32);
    EXPECT_EQ(buffer.Head(31 * kItem).stuRuleGeneral.byId, 31);
    // What stands behind them is not looked at.
    ASSERT_TRUE(buffer.Parse(RuleReply(rules + R"(,{"Type":"NoSuchRule"})")));
    EXPECT_EQ(buffer.rules.nRuleCount, 32);
}

TEST(RuleFrame, RefusesTheWholeReplyForOneUnknownName) {
    RuleBuffer buffer(4 * (kHead + kLine));
    Lines lines;
    for (const char* name : {"NoSuchRule", "", "Traffic*", "crossLineDetection", "CrossLineDetection ", "All",
                             "TrafficSnapshot", "PassChange"}) {
        EXPECT_FALSE(buffer.Parse(
            RuleReply(R"({"Type":"FireDetection","Class":"Normal"},{"Type":")" + std::string(name) + "\"}")))
            << name;
    }
    EXPECT_FALSE(buffer.Parse(RuleReply(R"({"Type":7})")));
    EXPECT_EQ(buffer.rules.nRuleCount, -77);
    EXPECT_EQ(buffer.length, 0xABCDu);
    EXPECT_TRUE(buffer.IsUntouched());
    EXPECT_EQ(lines.all, "");
}

TEST(RuleFrame, RefusesRulesOfNoRecordWhereTheyStand) {
    struct Case {
        const char* rule;
        std::size_t size;
    };
    for (const Case& one : {Case{R"({"Class":"Normal"})", 0}, Case{"5", 0}, Case{"null", 0},
                            Case{R"({"Type":"TrafficNoPassing","Class":"Normal"})", 132},
                            Case{R"({"Type":"StandUpDetection","Class":"Normal"})", sizeof(CFG_RULE_STANDUP_INFO)}}) {
        RuleBuffer buffer(2 * kHead + kFire + one.size);
        Lines lines;
        EXPECT_FALSE(buffer.Parse(RuleReply(R"({"Type":"FireDetection","Class":"Normal"},)" + std::string(one.rule))))
            << one.rule;
        EXPECT_EQ(lines.all, "VideoAnalyseConfig/2: Unknown rules type\n");
        EXPECT_EQ(buffer.rules.nRuleCount, -77);
        // What was placed before it stays; behind it the buffer is clear.
        EXPECT_EQ(buffer.Head().dwRuleType, 12u);
        EXPECT_TRUE(buffer.IsClear(kHead + kFire));
        // A byte less and it is too small before anything is placed: the size counts.
        RuleBuffer small(2 * kHead + kFire + one.size - 1);
        EXPECT_FALSE(small.Parse(RuleReply(R"({"Type":"FireDetection","Class":"Normal"},)" + std::string(one.rule))));
        EXPECT_TRUE(small.IsUntouched());
    }
}

TEST(RuleFrame, KeepsRulesOfNoClass) {
    struct Case {
        const char* rule;
        int number;
        const char* lines;
    };
    constexpr const char* kMissing = "VideoAnalyseConfig/2: This class type is not exist!\n";
    constexpr const char* kUnknown = "VideoAnalyseConfig/2: This calss type is unknown!\n";
    for (const Case& one : {Case{R"({"Type":"FireDetection"})", 0, kMissing},
                            Case{R"({"Type":"FireDetection","Class":null})", 0, kMissing},
                            Case{R"({"Type":"FireDetection","Class":"normal"})", 0, kUnknown},
                            Case{R"({"Type":"FireDetection","Class":""})", 0, kUnknown},
                            Case{R"({"Type":"FireDetection","Class":3})", 0, kUnknown},
                            Case{R"({"Type":"FireDetection","Class":"XRayDetection"})", 28, ""}}) {
        RuleBuffer buffer(kHead + kFire);
        Lines lines;
        EXPECT_TRUE(buffer.Parse(RuleReply(one.rule))) << one.rule;
        EXPECT_EQ(buffer.Head().stuRuleGeneral.nClass, one.number);
        EXPECT_EQ(lines.all, one.lines) << one.rule;
    }
}

TEST(RuleFrame, LooksAtClassesRuleByRuleBeforeAnythingIsPlaced) {
    constexpr const char* kMissing = "VideoAnalyseConfig/2: This class type is not exist!\n";
    // Rules before the one that fails the reply are told of, those behind it are not, nor is a rule of no type.
    Lines lines;
    RuleBuffer unknown(4 * (kHead + kFire));
    EXPECT_FALSE(unknown.Parse(RuleReply(
        R"({"Type":"FireDetection"},{"Class":"none"},{"Type":"NoSuchRule","Class":"none"},{"Type":"FireDetection"})")));
    EXPECT_EQ(lines.all, kMissing);
    EXPECT_TRUE(unknown.IsUntouched());
    lines.all.clear();
    RuleBuffer small(kHead + kFire - 1);
    EXPECT_FALSE(small.Parse(RuleReply(R"({"Type":"FireDetection"})")));
    EXPECT_EQ(lines.all, kMissing);
    EXPECT_TRUE(small.IsUntouched());
}

TEST(RuleFrame, CountsTheRulesBeforeItLooksAtThem) {
    for (const char* text : {R"([{"Type":"FireDetection"},{"Type":"NoSuchRule"}])",    // no record
                             R"([{"Type":"FireDetection"},{"Type":"FireDetection"}])", // no room
                             R"([{},{}])"}) {                                          // no type
        Document document(text);
        StackArena<4096> arena;
        LocalText local(arena);
        JsonParser parser(local);
        record::ReadCall call{parser, document.root};
        RuleBuffer buffer(2 * kHead + kFire);
        EXPECT_NE(ReadRuleArray(document.root, buffer.rules, call), Outcome::Done) << text;
        EXPECT_EQ(buffer.rules.nRuleCount, 2) << text;
    }
}

// A buffer that no cache holds is cleared at once, any other rule by rule: what is in it is the same.
TEST(RuleFrame, ClearsLargeBuffersToTheirEnd) {
    const std::string text = test::ManyRules(2);
    constexpr std::size_t kLarge = (std::size_t{24} << 20) + 1;
    constexpr std::size_t kSmall = std::size_t{1} << 20;
    RuleBuffer large(kLarge), small(kSmall);
    ASSERT_TRUE(large.Parse(text));
    ASSERT_TRUE(small.Parse(text));
    EXPECT_EQ(std::memcmp(large.memory.data(), small.memory.data(), kSmall), 0);
    const auto* const bytes = reinterpret_cast<const char*>(large.memory.data());
    const std::size_t end = kHead + static_cast<std::size_t>(small.Head().nRuleSize);
    ASSERT_LT(2 * end, kSmall);
    EXPECT_EQ(std::count(bytes + kSmall, bytes + kLarge, 0), static_cast<std::ptrdiff_t>(kLarge - kSmall));
}

TEST(RuleFrame, LeavesABufferThatIsTooSmallAlone) {
    const std::string text = RuleReply(R"({"Type":"FireDetection","Class":"Normal"})");
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, kHead - 1, kHead, kHead + 1, kHead + kFire - 1}) {
        RuleBuffer buffer(size);
        EXPECT_FALSE(buffer.Parse(text)) << size;
        EXPECT_TRUE(buffer.IsUntouched());
        EXPECT_EQ(buffer.rules.nRuleCount, -77);
    }
    for (const std::size_t more : {0, 1, 7, 8, 4096}) {
        RuleBuffer buffer(kHead + kFire + more);
        EXPECT_TRUE(buffer.Parse(text));
        EXPECT_TRUE(buffer.IsClear(kHead + kFire));
    }
}

TEST(RuleFrame, DoesWithoutABufferOnlyForNoRules) {
    CFG_ANALYSERULES_INFO rules{5, nullptr, 1 << 30};
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", "{}", &rules, sizeof rules, nullptr), 1);
    EXPECT_EQ(rules.nRuleCount, 0);
    rules.nRuleCount = 5;
    const std::string text = RuleReply(R"({"Type":"FireDetection"})");
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), &rules, sizeof rules, nullptr), 0);
    EXPECT_EQ(rules.nRuleCount, 5);
    rules.nRuleLen = -1;
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), &rules, sizeof rules, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", "{}", &rules, sizeof rules, nullptr), 0);
}

TEST(RuleFrame, NeedsAWholeDescriptor) {
    RuleBuffer buffer(kHead + kFire);
    const std::string text = RuleReply(R"({"Type":"FireDetection"})");
    char out[64];
    for (std::uint32_t size = 0; size < sizeof(CFG_ANALYSERULES_INFO); ++size) {
        EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), &buffer.rules, size, nullptr), 0);
        EXPECT_EQ(CLIENT_PacketData("VideoAnalyseRule", &buffer.rules, size, out, sizeof out), 0);
    }
    EXPECT_TRUE(buffer.IsUntouched());
}

TEST(RuleFrame, TakesADescriptorAndABufferAtOddAddresses) {
    const std::string text = RuleReply(R"({"Type":"ClimbDetection","Class":"Normal","Config":{"SizeFilter":)"
                                       R"({"ByRatio":true,"MinRatio":0.5}}})");
    constexpr std::size_t kItem = kHead + sizeof(CFG_RULE_CLIMB_INFO);
    for (std::size_t odd = 1; odd < 8; ++odd) {
        RuleBuffer buffer(kItem + odd);
        buffer.rules.pRuleBuf += odd;
        buffer.rules.nRuleLen = kItem;
        alignas(8) char memory[sizeof(CFG_ANALYSERULES_INFO) + 8];
        std::memcpy(memory + odd, &buffer.rules, sizeof buffer.rules);
        ASSERT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), memory + odd, sizeof buffer.rules, nullptr), 1);
        std::vector<char> out(8192);
        // Nothing may be longer than what fits: the item fills the buffer, and its end may touch the buffer's.
        ASSERT_EQ(CLIENT_PacketData("VideoAnalyseRule", memory + odd, sizeof buffer.rules, out.data(), 8192), 1);
        EXPECT_NE(std::string(out.data()).find(R"("MinRatio" : 0.5000)"), std::string::npos);
    }
}

// ---- Sizes ----

std::uint32_t Needed(const std::string& array) {
    Document document(array);
    return RuleArraySizeNeeded(document.root);
}

TEST(RuleFrame, TellsTheBytesNeeded) {
    EXPECT_EQ(Needed("[]"), 0u);
    EXPECT_EQ(Needed("null"), 0u);
    EXPECT_EQ(Needed("7"), 0u);
    EXPECT_EQ(Needed(R"([{"Type":"FireDetection"}])"), kHead + kFire);
    EXPECT_EQ(Needed(R"([{"Type":"FireDetection"},{},{"Type":"CrossLineDetection"}])"), 3 * kHead + kFire + kLine);
    EXPECT_EQ(Needed(R"([{"Type":"TrafficNoPassing"}])"), kHead + 132);
    EXPECT_EQ(Needed(R"([{"Type":"StandUpDetection"}])"), kHead + sizeof(CFG_RULE_STANDUP_INFO));
    EXPECT_EQ(Needed(R"([{"Type":"FireDetection"},{"Type":"NoSuchRule"}])"), 0u);
    EXPECT_EQ(Needed(R"([{"Type":""}])"), 0u);
    std::string many = "[{}";
    for (int i = 1; i < 40; ++i)
        many += ",{}";
    EXPECT_EQ(Needed(many + "]"), 32 * kHead);
}

TEST(RuleFrame, KnowsASizeForEachCodeWithARecord) {
    EXPECT_EQ(RuleBodies().size(), 84u);
    EXPECT_EQ(RuleRecordSize(2), kLine);
    EXPECT_EQ(RuleRecordSize(535), sizeof(CFG_RULE_FACEANALYSIS_INFO));
    EXPECT_EQ(RuleRecordSize(359), sizeof(CFG_RULE_STANDUP_INFO));
    EXPECT_EQ(RuleRecordSize(273), 132u);
    for (const std::uint32_t code : {0u, 1u, 17u, 25u, 255u, 269u, 284u, 511u, 562u, 633u, 634u, 999u, 0xFFFFFFFFu})
        EXPECT_EQ(RuleRecordSize(code), 0u) << code;
    unsigned sizes = 0;
    for (std::uint32_t code = 0; code < 1000; ++code)
        sizes += RuleRecordSize(code) != 0;
    EXPECT_EQ(sizes, 85u);
}

// ---- Writing ----

TEST(RuleFrame, WritesNoRulesAsTheEmptyList) {
    RuleBuffer buffer(16);
    buffer.rules.nRuleCount = 0;
    EXPECT_EQ(buffer.Pack(), "[  ]");
    buffer.rules.pRuleBuf = nullptr;
    buffer.rules.nRuleLen = -5;
    EXPECT_EQ(buffer.Pack(), "[  ]");
}

TEST(RuleFrame, RefusesButStillWritesForANegativeCountOrNoBuffer) {
    RuleBuffer buffer(16);
    for (const bool noBuffer : {false, true}) {
        buffer.rules.nRuleCount = noBuffer ? 1 : -1;
        if (noBuffer) buffer.rules.pRuleBuf = nullptr;
        char text[32];
        std::memset(text, '#', sizeof text);
        EXPECT_EQ(CLIENT_PacketData("VideoAnalyseRule", &buffer.rules, sizeof buffer.rules, text, sizeof text), 0);
        EXPECT_STREQ(text, "[  ]\n");
    }
}

static CFG_RULE_FIRE_INFO fire;

TEST(RuleFrame, StepsByTheSizeThatTheCallerGives) {
    RuleBuffer buffer(2 * (kHead + kFire) + 100);
    std::memset(buffer.memory.data(), 0, buffer.memory.size());
    buffer.rules.nRuleCount = 0;
    fire.nSensitivity = 1;
    buffer.Add(12, fire, static_cast<std::int32_t>(kFire) + 100);
    fire.nSensitivity = 2;
    buffer.Add(13, fire);
    const std::string text = buffer.Pack();
    EXPECT_NE(text.find("\"Sensitivity\" : 1"), std::string::npos);
    EXPECT_NE(text.find("\"Sensitivity\" : 2"), std::string::npos);
    EXPECT_NE(text.find("FireDetection"), std::string::npos);
    EXPECT_NE(text.find("SmokeDetection"), std::string::npos);
}

TEST(RuleFrame, RefusesItemsThatDoNotFit) {
    struct Case {
        std::int32_t size; // of the record, as the caller says
        std::int32_t room; // of the buffer, as the caller says
        bool isWritten;
    };
    const auto kSize = static_cast<std::int32_t>(kFire);
    const auto kItem = static_cast<std::int32_t>(kHead + kFire);
    for (const Case& one :
         {Case{kSize, kItem, true}, Case{kSize, kItem - 1, false}, Case{kSize - 1, kItem, false},
          Case{kSize + 1, kItem, false}, Case{kSize + 1, kItem + 1, true}, Case{0, kItem, false},
          Case{-1, kItem, false}, Case{INT32_MIN, kItem, false}, Case{INT32_MAX, kItem, false}, Case{kSize, 528, false},
          Case{kSize, 527, false}, Case{kSize, 0, false}, Case{kSize, -1, false}, Case{kSize, INT32_MIN, false}}) {
        RuleBuffer buffer(kHead + kFire + 1);
        buffer.Add(12, fire, one.size);
        buffer.rules.nRuleCount = 1;
        buffer.rules.nRuleLen = one.room;
        char text[8192];
        std::memset(text, '#', sizeof text);
        const bool done =
            CLIENT_PacketData("VideoAnalyseRule", &buffer.rules, sizeof buffer.rules, text, sizeof text) != 0;
        EXPECT_EQ(done, one.isWritten) << one.size << " in " << one.room;
        if (!done) {
            EXPECT_EQ(std::string(text, sizeof text), std::string(sizeof text, '\0'));
        }
    }
    // A count beyond the items: the second head has no room.
    RuleBuffer buffer(kHead + kFire);
    buffer.Add(12, fire);
    buffer.rules.nRuleCount = INT32_MAX;
    EXPECT_EQ(buffer.Pack(), "(refused)");
}

TEST(RuleFrame, RefusesToWriteCodesWithoutARecord) {
    for (const std::uint32_t code : {0u, 1u, 273u, 511u, 562u, 633u, 999u, 0xFFFFFFFFu}) {
        RuleBuffer buffer(kHead + kFire);
        buffer.Add(code, fire);
        Lines lines;
        EXPECT_EQ(buffer.Pack(), "(refused)") << code;
        EXPECT_EQ(lines.all, "");
    }
}

TEST(RuleFrame, EndsATextAtItsCapacity) {
    RuleBuffer buffer(kHead + kFire);
    buffer.Add(12, fire);
    const std::string whole = buffer.Pack() + "\n";
    const auto pack = [&](std::size_t capacity, std::string& text) {
        test::GuardedBuffer out(capacity);
        std::memset(out.data(), '#', capacity);
        const int done = CLIENT_PacketData("VideoAnalyseRule", &buffer.rules, sizeof buffer.rules, out.data(),
                                           static_cast<std::uint32_t>(capacity));
        text.assign(out.view());
        return done;
    };
    std::string text;
    EXPECT_EQ(pack(whole.size() - 1, text), 0);
    EXPECT_EQ(text, std::string(whole.size() - 1, '\0'));
    EXPECT_EQ(pack(whole.size(), text), 1);
    EXPECT_EQ(text, whole.substr(0, whole.size() - 1) + '\0');
    EXPECT_EQ(pack(whole.size() + 1, text), 1);
    EXPECT_EQ(text, whole + '\0');
    EXPECT_EQ(pack(0, text), 0);
}

TEST(RuleFrame, WritesTheClassesNamedAndNothingElse) {
    for (const auto& [number, name] : {std::pair{0, ""}, std::pair{1, "Normal"}, std::pair{30, "CrowdDistriMap"},
                                       std::pair{31, ""}, std::pair{-1, ""}, std::pair{INT32_MIN, ""}}) {
        RuleBuffer buffer(kHead + kFire);
        buffer.Add(12, fire);
        std::memcpy(buffer.memory.data() + 12, &number, 4); // behind the type, the size and the word of the id
        EXPECT_NE(buffer.Pack().find("\"Class\" : \"" + std::string(name) + "\""), std::string::npos) << number;
    }
}

TEST(RuleFrame, WritesOneRuleWithoutItsLinkage) {
    StackArena<4096> arena;
    LocalText text(arena);
    JsonParser parser(text);
    std::vector<char> room(65536);
    const auto pack = [&](std::uint32_t code, const auto& body, bool linkage) {
        json::TextWriter out(room.data(), room.size());
        record::WriteCall call{parser, out, nullptr, false, {}};
        const CFG_RULE_GENERAL_INFO general = {};
        EXPECT_TRUE(PackRuleBody(code, reinterpret_cast<const std::byte*>(&general),
                                 reinterpret_cast<const std::byte*>(&body), linkage, call));
        return std::string(room.data(), out.length());
    };
    EXPECT_NE(pack(12, fire, true).find("EventHandler"), std::string::npos);
    EXPECT_EQ(pack(12, fire, false).find("EventHandler"), std::string::npos);
    EXPECT_NE(pack(12, fire, false).find("\"Class\" : \"\""), std::string::npos);
    static CFG_RULE_CROSSLINE_INFO line;
    line.bClearTimeSection = 1;
    EXPECT_EQ(pack(2, line, false).find("EventHandler"), std::string::npos);
    EXPECT_NE(pack(2, line, true).find("\"TimeSection\" : null"), std::string::npos);
    // Audio rules have a head of their own, linkage in any case.
    static CFG_RULE_AUDIOABNORMAL_INFO audio;
    EXPECT_NE(pack(294, audio, false).find("\"TimeSection\" : [ ["), std::string::npos);
    json::TextWriter out(room.data(), room.size());
    record::WriteCall call{parser, out, nullptr, false, {}};
    EXPECT_FALSE(PackRuleBody(273, nullptr, reinterpret_cast<const std::byte*>(&fire), true, call));
    EXPECT_FALSE(PackRuleBody(12, nullptr, nullptr, true, call));
    EXPECT_EQ(out.length(), 0u);
}

TEST(RuleFrame, ReadsARecordWhateverTheRulesTypeSays) {
    Document document(R"({"Name":"up","Config":{"DetectRegion":[[1,2]]}})");
    StackArena<4096> arena;
    LocalText text(arena);
    JsonParser parser(text);
    record::ReadCall call{parser, document.root};
    static CFG_RULE_STANDUP_INFO body;
    EXPECT_TRUE(ParseRuleBody(359, document.root, reinterpret_cast<std::byte*>(&body), call));
    EXPECT_STREQ(body.szRuleName, "up");
    EXPECT_EQ(body.nDetectRegionPoint, 1);
    EXPECT_FALSE(ParseRuleBody(273, document.root, reinterpret_cast<std::byte*>(&body), call));
    EXPECT_FALSE(ParseRuleBody(359, document.root, nullptr, call));
}

} // namespace
} // namespace orrery
