// What the functions of explain.h promise around the findings: arguments, counts, order, how far a text goes.
#include "explain/Explained.h"

#include <cstring>
#include <gtest/gtest.h>
#include <utility>

namespace orrery::test {
namespace {

using namespace std::string_literals;

// Two keys that nothing reads and a number of the wrong type, in this order.
const std::string kThree =
    R"({"result":true,"params":{"table":{"Nonsense1":1,"Port":"x","Nonsense2":2,"UpdatePeriod":10}}})";

// Takes so many, and no more.
struct Taker {
    int most = 0;
    std::vector<std::string> paths;

    static std::int32_t Take(const ORRERY_FINDING* finding, void* user) {
        auto& taker = *static_cast<Taker*>(user);
        taker.paths.emplace_back(finding->szPath);
        return static_cast<int>(taker.paths.size()) < taker.most ? 1 : 0;
    }
};

struct Fits {
    int most = 10'000;
    std::vector<std::string> names;
    std::vector<ORRERY_FIT> all;

    static std::int32_t Take(const ORRERY_FIT* fit, void* user) {
        auto& fits = *static_cast<Fits*>(user);
        fits.names.emplace_back(fit->szCommand);
        fits.all.push_back(*fit);
        return static_cast<int>(fits.names.size()) < fits.most ? 1 : 0;
    }
    static Fits Of(const std::string& text) {
        Fits fits;
        ORRERY_FindFits(text.data(), text.size(), Take, &fits);
        return fits;
    }
    std::int32_t Find(const std::string& text) { return ORRERY_FindFits(text.data(), text.size(), Take, this); }
    std::size_t PlaceOf(const std::string& name) const {
        return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
    }
    bool Has(const std::string& name) const { return PlaceOf(name) < names.size(); }
};

TEST(ExplainExports, NullArgumentsAndCommandsThatReadNothing) {
    Taker taker;
    EXPECT_EQ(ORRERY_ExplainReply(nullptr, "{}", 2, 0, Taker::Take, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_ExplainReply("NTP", nullptr, 2, 0, Taker::Take, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_ExplainReply("NTP", "{}", 2, 0, nullptr, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_ExplainEvents(nullptr, 2, Taker::Take, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_ExplainEvents("{}", 2, nullptr, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_FindFits(nullptr, 2, Fits::Take, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_FindFits("{}", 2, nullptr, &taker), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_EQ(ORRERY_ExplainReply("NoSuchThing", "{}", 2, 0, Taker::Take, &taker), ORRERY_EXPLAIN_UNKNOWN_COMMAND);
    // Known, but written only.
    EXPECT_EQ(ORRERY_ExplainReply("VideoDiagnosisRealProject", "{}", 2, 0, Taker::Take, &taker),
              ORRERY_EXPLAIN_UNKNOWN_COMMAND);
    EXPECT_TRUE(taker.paths.empty());
}

TEST(ExplainExports, FindingsComeInTheOrderOfTheTextUntilTheCallbackEndsThem) {
    for (const int most : {1, 2, 3, 9}) {
        Taker taker{most, {}};
        EXPECT_EQ(ORRERY_ExplainReply("NTP", kThree.data(), kThree.size(), 0, Taker::Take, &taker), 3) << most;
        std::vector<std::string> expected = {"params.table.Nonsense1", "params.table.Port", "params.table.Nonsense2"};
        expected.resize(static_cast<std::size_t>(std::min(most, 3)));
        EXPECT_EQ(taker.paths, expected);
    }
}

TEST(ExplainExports, AFindingTellsItsSizeAndItsBytes) {
    const auto check = [](const ORRERY_FINDING* finding, void*) -> std::int32_t {
        EXPECT_EQ(finding->dwSize, sizeof(ORRERY_FINDING));
        if (finding->nKind != ORRERY_FINDING_WRONG_TYPE) return 1;
        EXPECT_EQ(kThree.substr(finding->nOffset, finding->nLength), "\"x\"");
        EXPECT_EQ(finding->nLine, 1u);
        EXPECT_EQ(finding->nColumn, kThree.find("\"x\"") + 1);
        EXPECT_STREQ(finding->szKind, "wrong-type");
        EXPECT_EQ(finding->nGravity, ORRERY_FINDING_LOST);
        return 1;
    };
    EXPECT_EQ(ORRERY_ExplainReply("NTP", kThree.data(), kThree.size(), 0, check, nullptr), 3);
}

// Columns count characters, be they of several bytes, from the last line's end.
TEST(ExplainExports, LinesAndColumnsAreThoseOfAnEditor) {
    const std::string text = "{\"result\":true,\n\n\"params\":{\"table\":{\"\xc3\xa9\xe4\xb8\xad\":1,\"Port\":\"x\",\n"
                             " \"\xf0\x9f\x98\x80\":\""
                             + std::string(100, 'a') + "\",\"Zone\":3}}}";
    const auto found = Explain("NTP", text);
    ASSERT_EQ(found.size(), 4u);
    const std::pair<std::uint32_t, std::uint32_t> expected[] = {{3, 20}, {3, 34}, {4, 2}, {4, 109}};
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(std::pair(found[i].line, found[i].column), expected[i]) << found[i];
}

TEST(ExplainExports, WhatStandsBehindANulIsFound) {
    const std::string clean = R"({"result":true,"params":{"table":{"Port":123}}})";
    EXPECT_TRUE(Explain("NTP", clean).empty());
    const auto found = Explain("NTP", clean + "\0{}"s);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].kind, ORRERY_FINDING_TRAILING_TEXT);
    EXPECT_EQ(found[0].gravity, ORRERY_FINDING_NOTE);
    EXPECT_EQ(found[0].offset, clean.size());
}

TEST(ExplainExports, ABufferOfSoManyRecordsDropsTheRest) {
    const std::string three = R"({"result":true,"params":{"table":[{"Name":"a"},{"Name":"b"},{"Name":"c"}]}})";
    const auto dropped = [&](std::uint32_t records) {
        std::uint32_t lost = 0;
        for (const Found& found : Explain("ExAlarm", three, records))
            if (found.kind == ORRERY_FINDING_ELEMENTS_DROPPED) lost += found.lost;
        return lost;
    };
    EXPECT_EQ(dropped(0), 0u);
    EXPECT_EQ(dropped(1), 2u);
    EXPECT_EQ(dropped(2), 1u);
    EXPECT_EQ(dropped(3), 0u);
}

TEST(ExplainExports, EventsAreExplainedInTheSameWay) {
    const std::string text = R"({"Event":[{"Code":"NoSuchEvent"},{"Code":"VideoMotion","Data":{"Nonsense":1}}]})";
    for (const int most : {1, 9}) {
        Taker taker{most, {}};
        const std::int32_t count = ORRERY_ExplainEvents(text.data(), text.size(), Taker::Take, &taker);
        EXPECT_EQ(count, 2);
        EXPECT_EQ(taker.paths.size(), static_cast<std::size_t>(std::min(most, 2)));
    }
}

TEST(ExplainExports, TheFitsOfAReply) {
    Fits fits;
    const std::int32_t count = fits.Find(R"({"result":true,"params":{"table":{"Port":123,"UpdatePeriod":10}}})");
    ASSERT_GT(count, 1);
    EXPECT_EQ(fits.names.size(), static_cast<std::size_t>(count));
    // The only command that reads both.
    EXPECT_EQ(fits.names[0], "NTP");
    EXPECT_EQ(fits.all[0].dwSize, sizeof(ORRERY_FIT));
    EXPECT_EQ(fits.all[0].nRead, 2u);
    EXPECT_EQ(fits.all[0].nLeft, 0u);
    EXPECT_EQ(fits.all[0].nWrong, 0u);
    EXPECT_EQ(fits.all[0].bRefused, 0);
    for (const ORRERY_FIT& fit : fits.all)
        EXPECT_GE(fit.nRead, 1u);

    Fits one{1, {}, {}};
    EXPECT_EQ(one.Find(R"({"result":true,"params":{"table":{"Port":123,"UpdatePeriod":10}}})"), count);
    EXPECT_EQ(one.names.size(), 1u);
}

TEST(ExplainExports, AKeyThatIsReadWrongTellsMoreThanOneThatNothingReads) {
    const Fits fits = Fits::Of(R"({"result":true,"params":{"table":{"Port":25,"Enable":"yes"}}})");
    ASSERT_FALSE(fits.all.empty());
    EXPECT_EQ(fits.all[0].nRead, 2u);
    EXPECT_EQ(fits.all[0].nLeft, 0u);
    EXPECT_EQ(fits.all[0].nWrong, 1u);
    ASSERT_TRUE(fits.Has("NTP"));
    ASSERT_TRUE(fits.Has("UserLockAlarm")); // reads "Enable" alone
    EXPECT_LT(fits.PlaceOf("NTP"), fits.PlaceOf("UserLockAlarm"));
}

TEST(ExplainExports, CommandsOfOneTableAreToldEach) {
    const Fits fits = Fits::Of(R"({"result":true,"params":{"table":{"Enable":true,"EventHandler":{}}}})");
    EXPECT_TRUE(fits.Has("ChassisIntrusion"));
    EXPECT_TRUE(fits.Has("Emergency"));
}

TEST(ExplainExports, CommandsThatRefuseComeLastAndReadNothingOfARefusedCall) {
    // A rule of no known type fails the call, and others read lists of things with names.
    const Fits fits = Fits::Of(
        R"({"result":true,"params":{"table":[{"Type":"CrossLineDetection","Name":"n"},{"Type":"NoSuchRule"}]}})");
    ASSERT_TRUE(fits.Has("VideoAnalyseRule"));
    EXPECT_EQ(fits.all[fits.PlaceOf("VideoAnalyseRule")].bRefused, 1);
    EXPECT_EQ(fits.all.front().bRefused, 0);
    EXPECT_TRUE(std::is_sorted(fits.all.begin(), fits.all.end(), [](const ORRERY_FIT& left, const ORRERY_FIT& right) {
        return left.bRefused < right.bRefused;
    }));

    const Fits refused = Fits::Of(R"({"result":false,"params":{"table":{"Port":123,"UpdatePeriod":10}}})");
    EXPECT_FALSE(refused.Has("NTP"));
    EXPECT_TRUE(refused.Has("RTSP"));
}

TEST(ExplainExports, EventsHaveNoCommandsName) {
    const Fits fits = Fits::Of(R"({"Event":[{"Code":"VideoMotion","Data":{"Name":"n"}}]})");
    ASSERT_FALSE(fits.names.empty());
    EXPECT_EQ(fits.names[0], "");
}

TEST(ExplainExports, NothingFitsWhatIsNoJson) {
    for (const char* const text : {"", "{", "no", "[1"}) {
        Fits fits;
        EXPECT_EQ(fits.Find(text), 0) << text;
        EXPECT_TRUE(fits.names.empty());
    }
}

} // namespace
} // namespace orrery::test
