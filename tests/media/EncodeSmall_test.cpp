// "EncodePlan", "EncodeAdapt", "SmartEncode" and "CompressPlay": small records, one or a list.
#include "orrery/encode.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "EncodePlan" ----

using Plans = Records<CFG_ENCODE_PLAN_INFO>;
constexpr std::uint32_t kPlan = sizeof(CFG_ENCODE_PLAN_INFO);

TEST(EncodePlan, IsOnWhereTheListHasAnEntry) {
    const Plans plans(4, 0x11);
    EXPECT_EQ(
        ParseTable("EncodePlan", R"([{"ExpectTime":30,"Resolution":"2cif","BitRate":4294967295},null,{},7])", plans),
        (Answer{1, 4 * kPlan}));
    EXPECT_EQ(plans[0].bEnable, 1u);
    EXPECT_EQ(plans[0].nExpectTime, 30u);
    EXPECT_EQ(plans[0].emResolution, 2u);
    EXPECT_EQ(plans[0].nBitRate, 4294967295u);
    EXPECT_EQ(plans[1].bEnable, 0u);
    EXPECT_EQ(plans[1].nExpectTime, 0u);
    EXPECT_EQ(plans[2].bEnable, 1u);
    EXPECT_EQ(plans[2].nExpectTime, 0u);
    EXPECT_EQ(plans[2].emResolution, 0u); // no key, no unknown name
    EXPECT_EQ(plans[3].bEnable, 1u);
    EXPECT_EQ(PackAll("EncodePlan", plans),
              R"([ { "BitRate" : 4294967295, "ExpectTime" : 30, "Resolution" : "BCIF" }, null, )"
              R"({ "BitRate" : 0, "ExpectTime" : 0, "Resolution" : "D1" }, )"
              R"({ "BitRate" : 0, "ExpectTime" : 0, "Resolution" : "D1" } ])");
}

TEST(EncodePlan, EndsTheListBehindTheLastEntryThatIsOn) {
    Plans plans(4);
    plans.Set(1, {2, 7, CFG_RESOLUTION_1_3M, 512}); // any value but 0 is on
    EXPECT_EQ(PackAll("EncodePlan", plans),
              R"([ null, { "BitRate" : 512, "ExpectTime" : 7, "Resolution" : "1_3M" } ])");
    EXPECT_EQ(PackAll("EncodePlan", Plans(4)), "null");
    Plans one(1);
    one.Set(0, {1, 1, 33, 1});
    EXPECT_EQ(PackAll("EncodePlan", one), R"([ { "BitRate" : 1, "ExpectTime" : 1, "Resolution" : "" } ])");
    EXPECT_EQ(PackAll("EncodePlan", Plans(1)), "null");
}

TEST(EncodePlan, KeepsItsNumbersApart) {
    const Plans plans(2, 0x11);
    ASSERT_EQ(ParseTable("EncodePlan",
                         R"([{"ExpectTime":-5,"BitRate":6,"Resolution":null},{"ExpectTime":7,"Resolution":"x"}])",
                         plans),
              (Answer{1, 2 * kPlan}));
    EXPECT_EQ(plans[0].nExpectTime, 0u); // a negative number is none
    EXPECT_EQ(plans[0].nBitRate, 6u);
    EXPECT_EQ(plans[0].emResolution, 0u); // null is no name, not an unknown one
    EXPECT_EQ(plans[1].nExpectTime, 7u);
    EXPECT_EQ(plans[1].nBitRate, 0u);
    EXPECT_EQ(plans[1].emResolution, 33u);
}

TEST(EncodePlan, CountsWhatFits) {
    const Plans plans(2, 3, 0x11);
    EXPECT_EQ(ParseTable("EncodePlan", "[{},{},{},{},{}]", plans), (Answer{1, 2 * kPlan}));
    EXPECT_EQ(plans[1].bEnable, 1u);
    EXPECT_EQ(std::string_view(plans.data() + 2 * kPlan, 3), std::string_view("\0\0\0", 3));
}

TEST(EncodePlan, HasNoEntriesWithoutAList) {
    for (const char* table : {"null", "{}", R"({"ExpectTime":1})", "3", "\"x\"", "[]"}) {
        const Plans plans(2, 0x11);
        EXPECT_EQ(ParseTable("EncodePlan", table, plans), (Answer{1, 0})) << table;
        EXPECT_TRUE(plans.isAll(0)) << table;
    }
}

TEST(EncodePlan, ReadsTheTableOfARefusedCall) {
    const Plans plans(1, 0x11);
    EXPECT_EQ(ParseDocument("EncodePlan", R"({"result":false,"params":{"table":[{}]}})", plans), (Answer{1, kPlan}));
    EXPECT_EQ(plans[0].bEnable, 1u);
    const Plans broken(1, 0x11);
    EXPECT_EQ(ParseDocument("EncodePlan", "[", broken), kRefused);
    EXPECT_TRUE(broken.isAll(0));
}

TEST(EncodePlan, FillsItsTextToTheLastByte) {
    Plans plans(1);
    plans.Set(0, {1, 2, 0, 3});
    const std::string text = R"([ { "BitRate" : 3, "ExpectTime" : 2, "Resolution" : "D1" } ])";
    EXPECT_EQ(PackBytes("EncodePlan", plans.data(), plans.size(), text.size() + 2), text + "\n");
    EXPECT_EQ(PackBytes("EncodePlan", plans.data(), plans.size(), text.size() + 1), text);
    EXPECT_EQ(PackBytes("EncodePlan", plans.data(), plans.size(), text.size()), kFailed);
}

// ---- The others: what they have in common ----

template <class R>
void ExpectOneOrMany(const char* command, const std::string& one, const std::string& text, bool loose) {
    constexpr std::uint32_t size = sizeof(R);
    const Records<R> single(1, 0x11);
    EXPECT_EQ(ParseTable(command, one, single), (Answer{1, size}));
    EXPECT_EQ(PackAll(command, single), text);
    const Records<R> three(3, 0x11);
    EXPECT_EQ(ParseTable(command, "[" + one + ",null," + one + "," + one + "]", three), (Answer{1, 3 * size}));
    Records<R> expected(3);
    expected.Set(0, single[0]);
    expected.Set(2, single[0]);
    EXPECT_EQ(std::memcmp(three.data(), expected.data(), three.size()), 0);
    // Half a record more makes a list, of one.
    Records<R> oneAndAHalf(1, size / 2, 0);
    oneAndAHalf.Set(0, single[0]);
    EXPECT_EQ(PackAll(command, oneAndAHalf), "[ " + text + " ]");
    const Records<R> two(2, size - 1, 0x11);
    EXPECT_EQ(ParseTable(command, one, two), (Answer{1, size}));
    EXPECT_EQ(PackBytes(command, single.data(), size, text.size() + 2), text + "\n");
    EXPECT_EQ(PackBytes(command, single.data(), size, text.size() + 1), loose ? text : kFailed);
    EXPECT_EQ(PackBytes(command, single.data(), size, text.size()), kFailed);
    const Records<R> part(0, size - 1, 0x11);
    EXPECT_EQ(ParseTable(command, one, part), kRefused);
    EXPECT_TRUE(part.isAll(0x11));
    EXPECT_EQ(PackAll(command, part), kNotBegun);
    for (const char* document : {"{", R"({"params":{"table":{}}})", R"({"result":false,"params":{"table":{}}})"}) {
        const Records<R> refused(2, 0x11);
        EXPECT_EQ(ParseDocument(command, document, refused), kRefused) << document;
        EXPECT_TRUE(refused.isAll(0)) << document;
    }
}

TEST(EncodeAdapt, IsOneRecordOrAList) {
    ExpectOneOrMany<CFG_ENCODE_ADAPT_INFO>("EncodeAdapt", R"({"Policy":"Quality","FluencyMode":"Sync"})",
                                           R"({ "FluencyMode" : "Sync", "Policy" : "Quality" })", false);
    for (const char* table : {"null", "1", "\"Quality\"", "true", "[]"}) {
        const Records<CFG_ENCODE_ADAPT_INFO> records(1, 0x11);
        EXPECT_EQ(ParseTable("EncodeAdapt", table, records), kRefused) << table;
        EXPECT_TRUE(records.isAll(0));
    }
    // Of a list, a record without keys keeps its place.
    Records<CFG_ENCODE_ADAPT_INFO> list(3);
    list.Set(1, {CFG_ADAPT_FLUENCY, CFG_FLUENCY_UNKNOWN});
    EXPECT_EQ(PackAll("EncodeAdapt", list), R"([ null, { "Policy" : "Fluency" }, null ])");
    const Records<CFG_ENCODE_ADAPT_INFO> bare(1, 0x11);
    EXPECT_EQ(ParseTable("EncodeAdapt", R"({"Policy":null})", bare), (Answer{1, 8}));
    EXPECT_TRUE(bare.isAll(0));
}

TEST(SmartEncode, IsOneRecordOrAList) {
    EXPECT_EQ(sizeof(CFG_SMART_ENCODE_INFO), 65u * 4);
    ExpectOneOrMany<CFG_SMART_ENCODE_INFO>("SmartEncode", R"({"Enable":"false"})", R"({ "Enable" : true })", true);
    const Records<CFG_SMART_ENCODE_INFO> three(3);
    EXPECT_EQ(PackAll("SmartEncode", three), R"([ { "Enable" : false }, { "Enable" : false }, { "Enable" : false } ])");
}

TEST(SmartEncode, TakesAnyValueAsARecord) {
    for (const char* table : {"true", "1", "\"x\"", "{}", R"({"Enable":0})"}) {
        const Records<CFG_SMART_ENCODE_INFO> records(2, 0x11);
        EXPECT_EQ(ParseTable("SmartEncode", table, records), (Answer{1, sizeof(CFG_SMART_ENCODE_INFO)})) << table;
        EXPECT_TRUE(records.isAll(0));
    }
    for (const char* table : {"null", "[]"}) {
        const Records<CFG_SMART_ENCODE_INFO> records(2, 0x11);
        EXPECT_EQ(ParseTable("SmartEncode", table, records), (Answer{1, 0})) << table;
        EXPECT_TRUE(records.isAll(0));
    }
}

TEST(CompressPlay, IsOneRecordOrAList) {
    ExpectOneOrMany<CFG_COMPRESS_PLAY_INFO>("CompressPlay", R"({"Enable":true,"Resolution":"1280x960","BitRate":768})",
                                            R"({ "BitRate" : 768, "Enable" : true, "Resolution" : "1_3M" })", false);
    for (const char* table : {"null", "1", "\"D1\"", "true", "[]"}) {
        const Records<CFG_COMPRESS_PLAY_INFO> records(1, 0x11);
        EXPECT_EQ(ParseTable("CompressPlay", table, records), kRefused) << table;
        EXPECT_TRUE(records.isAll(0));
    }
    const Records<CFG_COMPRESS_PLAY_INFO> bare(1, 0x11);
    EXPECT_EQ(ParseTable("CompressPlay", R"({"BitRate":-1})", bare), (Answer{1, 12}));
    EXPECT_TRUE(bare.isAll(0)); // a negative number is none
}

} // namespace
} // namespace orrery::test
