// "PicInPic": records, arrays in arrays that the caller owns.
#include "frame/JsonParser.h"
#include "orrery/overlay.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

constexpr std::uint32_t kSize = sizeof(CFG_PICINPIC_INFO);

// Records with room for `splits` ways of two windows of two small pictures each.
struct Pictures {
    explicit Pictures(std::size_t records, std::uint32_t splitRoom = 3, std::uint32_t topRoom = 2,
                      std::uint32_t smallRoom = 2)
        : infos(records) {
        splits.resize(records * splitRoom);
        tops.resize(splits.size() * topRoom);
        smalls.resize(tops.size() * smallRoom);
        for (std::size_t i = 0; i < tops.size(); ++i) {
            tops[i].nChannel = 55;
            tops[i].nMaxSmall = smallRoom;
            tops[i].pstuSmall = smalls.data() + i * smallRoom;
        }
        for (auto& small : smalls)
            small.nPosition[3] = 66;
        for (std::size_t i = 0; i < splits.size(); ++i) {
            splits[i].nMaxTop = topRoom;
            splits[i].pstuTop = tops.data() + i * topRoom;
        }
        for (std::size_t i = 0; i < records; ++i) {
            infos[i].nMaxSplit = splitRoom;
            infos[i].pstuSplits = splits.data() + i * splitRoom;
        }
    }
    Answer Parse(const std::string& table, const char* result = "true") {
        const std::string text = R"({"result":)" + std::string(result) + R"(,"params":{"table":)" + table + "}}";
        std::uint32_t length = kNoLength;
        const auto done = CLIENT_ParseData("PicInPic", text.c_str(), infos.data(),
                                           static_cast<std::uint32_t>(infos.size() * kSize), &length);
        return {done, length};
    }
    std::string Pack() const {
        return WithoutNewline(PackBytes("PicInPic", infos.data(), infos.size() * kSize, 1 << 16));
    }

    std::vector<CFG_PICINPIC_INFO> infos;
    std::vector<CFG_PICINPIC_SPLIT> splits;
    std::vector<CFG_PICINPIC_TOP> tops;
    std::vector<CFG_PICINPIC_SMALL> smalls;
};

TEST(PicInPic, GoesRoundWhole) {
    Pictures pictures(2);
    ASSERT_EQ(pictures.Parse(R"({"PIP4":[{"Enable":true,"DeviceID":"one","Channel":1,"SmallPic":[
            {"DeviceID":"two","Channel":2,"Audio":true,"Position":[3,4,5,6]}]}],
        "Extend":[{"Free":[{"Enable":true,"DeviceID":"three"}]}]})"),
              (Answer{1, 2 * kSize}));
    EXPECT_EQ(pictures.infos[0].nReturnSplit, 1u);
    EXPECT_EQ(pictures.splits[0].emSplitMode, 1004u);
    EXPECT_EQ(pictures.splits[0].nReturnTop, 1u);
    EXPECT_EQ(pictures.tops[0].bEnable, 1u);
    EXPECT_STREQ(pictures.tops[0].szDeviceId, "one");
    EXPECT_EQ(pictures.tops[0].nChannel, 1);
    EXPECT_EQ(pictures.tops[0].nReturnSmall, 1u);
    EXPECT_STREQ(pictures.smalls[0].szDeviceId, "two");
    EXPECT_EQ(pictures.smalls[0].nChannel, 2);
    EXPECT_EQ(pictures.smalls[0].bAudio, 1u);
    EXPECT_EQ(pictures.smalls[0].nPosition[0], 3);
    EXPECT_EQ(pictures.smalls[0].nPosition[3], 6);
    EXPECT_EQ(pictures.infos[1].nReturnSplit, 1u);
    EXPECT_EQ(pictures.splits[3].emSplitMode, 2000u);
    EXPECT_EQ(pictures.tops[6].nChannel, 55); // absent
    EXPECT_EQ(pictures.tops[6].nReturnSmall, 0u);
    EXPECT_EQ(pictures.Pack(),
              R"({ "Extend" : [ { "Free" : [ { "Channel" : 55, "DeviceID" : "three", "Enable" : true } ] } ], )"
              R"("PIP4" : [ { "Channel" : 1, "DeviceID" : "one", "Enable" : true, "SmallPic" : [ { "Audio" : true, )"
              R"("Channel" : 2, "DeviceID" : "two", "Position" : [ 3, 4, 5, 6 ] } ] } ] })");
}

TEST(PicInPic, NamesOfModes) {
    const auto modeOf = [](const std::string& name) {
        Pictures pictures(1);
        EXPECT_EQ(pictures.Parse("{\"" + name + "\":[{}]}"), (Answer{1, kSize})) << name;
        return pictures.splits[0].emSplitMode;
    };
    EXPECT_EQ(modeOf("Split4"), 4u);
    EXPECT_EQ(modeOf("split9"), 9u);
    EXPECT_EQ(modeOf("Split"), 0u);
    EXPECT_EQ(modeOf("Split3"), 10u);
    EXPECT_EQ(modeOf("SPLIT3b"), 11u);
    EXPECT_EQ(modeOf("Split30"), 30u);
    EXPECT_EQ(modeOf("PIP3"), 1003u);
    EXPECT_EQ(modeOf("pip"), 1000u);
    EXPECT_EQ(modeOf("Free"), 2000u);
    EXPECT_EQ(modeOf("CompositeSplit2"), 3002u);
    EXPECT_EQ(modeOf("Composite"), 1u);
    EXPECT_EQ(modeOf("Other"), 1u);
    std::array<char, 32> room;
    for (const auto& [mode, name] : {std::pair{0u, "Split"},
                                     {1u, "Split1"},
                                     {4u, "Split4"},
                                     {10u, "Split3"},
                                     {11u, "Split3B"},
                                     {999u, "Split999"},
                                     {1000u, "PIP"},
                                     {1004u, "PIP4"},
                                     {2000u, "Free"},
                                     {2003u, "Free3"},
                                     {3000u, "CompositeSplit"},
                                     {3005u, "CompositeSplit5"},
                                     {4294967295u, "CompositeSplit4294964295"}}) {
        EXPECT_EQ(JsonParser::OverlaySplitText(mode, room), name) << mode;
        EXPECT_EQ(JsonParser::GetOverlaySplit(name), mode);
    }
}

TEST(PicInPic, VisitsAsManyMembersAsThereIsRoom) {
    // In the order of names: "Extend", "Split1", "Split4", "Split8"; the first costs its turn.
    Pictures pictures(1);
    ASSERT_EQ(pictures.Parse(R"({"Split8":[{}],"Split4":[{}],"Split1":[{}],"Extend":[]})"), (Answer{1, kSize}));
    EXPECT_EQ(pictures.infos[0].nReturnSplit, 2u);
    EXPECT_EQ(pictures.splits[0].emSplitMode, 1u);
    EXPECT_EQ(pictures.splits[1].emSplitMode, 4u);
    // Without it all three turns are ways.
    Pictures without(1);
    ASSERT_EQ(without.Parse(R"({"Split8":[{}],"Split4":[{}],"Split1":[{}],"Split9":[{}]})"), (Answer{1, kSize}));
    EXPECT_EQ(without.infos[0].nReturnSplit, 3u);
    EXPECT_EQ(without.splits[2].emSplitMode, 8u);
}

TEST(PicInPic, AWayThatIsNullHasNoWindows) {
    Pictures pictures(2);
    pictures.splits[1].nReturnTop = 7;
    pictures.infos[1].nReturnSplit = 7;
    ASSERT_EQ(pictures.Parse(R"({"Split8":[{}],"Split4":null,"Split1":[{}],"Split6":[{}],"Split9":[{}]})"),
              (Answer{1, kSize}));
    EXPECT_EQ(pictures.infos[0].nReturnSplit, 3u);
    EXPECT_EQ(pictures.splits[0].emSplitMode, 1u);
    EXPECT_EQ(pictures.splits[1].emSplitMode, 4u);
    EXPECT_EQ(pictures.splits[1].nReturnTop, 0u);
    EXPECT_EQ(pictures.splits[2].emSplitMode, 6u);
    EXPECT_EQ(pictures.splits[2].nReturnTop, 1u);
    // "Extend" costs its turn also when it is null, and a null inside it is a record without ways.
    ASSERT_EQ(pictures.Parse(R"({"Extend":null,"Split1":[{}],"Split4":[{}],"Split6":[{}]})"), (Answer{1, kSize}));
    EXPECT_EQ(pictures.infos[0].nReturnSplit, 2u);
    EXPECT_EQ(pictures.infos[1].nReturnSplit, 7u);
    ASSERT_EQ(pictures.Parse(R"({"Extend":[null]})"), (Answer{1, 2 * kSize}));
    EXPECT_EQ(pictures.infos[0].nReturnSplit, 0u);
    EXPECT_EQ(pictures.infos[1].nReturnSplit, 0u);
}

TEST(PicInPic, ListsEndAtTheirRoom) {
    Pictures pictures(1);
    ASSERT_EQ(pictures.Parse(R"({"Split1":[{"SmallPic":[{"Channel":1},{"Channel":2,"Position":[1,2,3]},{"Channel":3}]},
        {"Channel":4},{"Channel":5}],"Split2":{"a":1},"Split4":7})"),
              (Answer{1, kSize}));
    EXPECT_EQ(pictures.splits[0].nReturnTop, 2u);
    EXPECT_EQ(pictures.tops[0].nReturnSmall, 2u);
    EXPECT_EQ(pictures.smalls[1].nChannel, 2);
    EXPECT_EQ(pictures.smalls[1].nPosition[3], 66); // other than four numbers
    EXPECT_EQ(pictures.tops[1].nChannel, 4);
    EXPECT_EQ(pictures.splits[1].nReturnTop, 1u); // an object has a member
    EXPECT_EQ(pictures.tops[2].nChannel, 55);
    EXPECT_EQ(pictures.splits[2].nReturnTop, 0u);
}

TEST(PicInPic, RecordsWithoutRoomAreLeftOut) {
    Pictures pictures(2);
    ASSERT_EQ(pictures.Parse(R"({"Extend":[{"Split1":[{}]},{"Split4":[{}]}]})"), (Answer{1, 2 * kSize}));
    EXPECT_EQ(pictures.infos[1].nReturnSplit, 1u);
    EXPECT_EQ(pictures.splits[3].emSplitMode, 1u);
    Pictures one(1);
    ASSERT_EQ(one.Parse(R"({"Extend":[{"Split1":[{}]}],"Split4":[{}]})"), (Answer{1, kSize}));
    EXPECT_EQ(one.infos[0].nReturnSplit, 1u);
    Pictures nothing(1);
    nothing.infos[0].pstuSplits = nullptr;
    ASSERT_EQ(nothing.Parse(R"({"Split4":[{}]})"), (Answer{1, kSize}));
    EXPECT_EQ(nothing.infos[0].nReturnSplit, 0u);
    Pictures noTops(1);
    noTops.splits[0].pstuTop = nullptr;
    ASSERT_EQ(noTops.Parse(R"({"Split4":[{}]})"), (Answer{1, kSize}));
    EXPECT_EQ(noTops.splits[0].nReturnTop, 0u);
}

TEST(PicInPic, ATableThatIsNoObjectReadsNothing) {
    for (const char* table : {"null", "[]", "7", "\"x\"", R"([{"Split4":[{}]}])"}) {
        Pictures pictures(1);
        pictures.infos[0].nReturnSplit = 9;
        EXPECT_EQ(pictures.Parse(table), (Answer{1, 0})) << table;
        EXPECT_EQ(pictures.infos[0].nReturnSplit, 9u) << table;
    }
    Pictures pictures(1);
    EXPECT_EQ(pictures.Parse(R"({"Split4":[{}]})", "false"), kRefused);
    EXPECT_EQ(pictures.Parse("{"), kRefused);
    std::uint32_t length = kNoLength;
    EXPECT_EQ(CLIENT_ParseData("PicInPic", "{}", pictures.infos.data(), kSize - 1, &length), 0);
}

// One way of one window of one small picture.
Pictures Whole() {
    Pictures pictures(1);
    EXPECT_EQ(pictures.Parse(R"({"Split4":[{"SmallPic":[{}]}]})"), (Answer{1, kSize}));
    return pictures;
}

TEST(PicInPic, WritesWhatIsWholeAlone) {
    const auto fails = [](auto change) {
        Pictures pictures = Whole();
        EXPECT_NE(pictures.Pack(), kFailed);
        change(pictures);
        EXPECT_EQ(pictures.Pack(), kFailed);
    };
    fails([](Pictures& p) { p.infos[0].nMaxSplit = 0; });
    fails([](Pictures& p) { p.infos[0].pstuSplits = nullptr; });
    fails([](Pictures& p) { p.splits[0].nMaxTop = 0; });
    fails([](Pictures& p) { p.splits[0].nReturnTop = 0; });
    fails([](Pictures& p) { p.splits[0].pstuTop = nullptr; });
    fails([](Pictures& p) { p.tops[0].nMaxSmall = 0; });
    fails([](Pictures& p) { p.tops[0].pstuSmall = nullptr; });
    Pictures second(2);
    EXPECT_EQ(second.Parse(R"({"Split4":[{}],"Extend":[{"Split1":[{}]}]})"), (Answer{1, 2 * kSize}));
    second.infos[1].nMaxSplit = 0;
    EXPECT_EQ(second.Pack(), kFailed);
}

TEST(PicInPic, SwitchesAreTrueAtOneAndTheLastOfOneModeStands) {
    Pictures pictures = Whole();
    pictures.tops[0].bEnable = 2;
    pictures.smalls[0].bAudio = 2;
    const std::string window =
        R"({ "Channel" : 55, "DeviceID" : "", "Enable" : false, "SmallPic" : [ { "Audio" : false, )"
        R"("Channel" : 0, "DeviceID" : "", "Position" : [ 0, 0, 0, 66 ] } ] })";
    EXPECT_EQ(pictures.Pack(), R"({ "Split4" : [ )" + window + " ] }");
    pictures.infos[0].nReturnSplit = 2;
    pictures.splits[1].emSplitMode = 4;
    pictures.splits[1].nReturnTop = 1;
    EXPECT_EQ(pictures.Pack(), R"({ "Split4" : [ { "Channel" : 55, "DeviceID" : "", "Enable" : false } ] })");
    pictures.infos[0].nReturnSplit = 0;
    EXPECT_EQ(pictures.Pack(), "null");
    pictures.infos[0].nReturnSplit = 99; // more than there is room for
    pictures.splits[2].nReturnTop = 1;
    EXPECT_EQ(pictures.Pack(), R"({ "Split" : [ { "Channel" : 55, "DeviceID" : "", "Enable" : false } ], )"
                               R"("Split4" : [ { "Channel" : 55, "DeviceID" : "", "Enable" : false } ] })");
}

} // namespace
} // namespace orrery::test
