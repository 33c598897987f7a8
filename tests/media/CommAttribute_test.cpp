// How a serial line is set, as every command carries it that names one.
#include "orrery/alarm_device_hardware.h"
#include "orrery/comm_attribute.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using Device = CFG_SERIAL_ALARM_DEVICE_INFO;

CFG_COMM_ATTRIBUTE Read(const std::string& attribute) {
    const auto a = test::Parse<Device>("AlarmKeyboard", R"({ "Attribute" : )" + attribute + " }");
    EXPECT_TRUE(a) << attribute;
    return a->stuAttribute;
}

std::string Write(const CFG_COMM_ATTRIBUTE& attribute) {
    Device device{};
    device.stuAttribute = attribute;
    const std::string text = test::Pack("AlarmKeyboard", device);
    const std::size_t begin = text.find("\"Attribute\" : ") + 14;
    return text.substr(begin, text.find(", \"Enable\"") - begin);
}

std::vector<int> Codes(const CFG_COMM_ATTRIBUTE& a) {
    return {a.byBaudRate, a.byDataBits, a.byParity, a.byStopBits};
}

TEST(CommAttribute, ElementsByTheirPlaces) {
    EXPECT_EQ(Codes(Read(R"([ 9600, 8, "Odd", "2" ])")), (std::vector<int>{5, 3, 1, 2}));
    EXPECT_EQ(Write({CFG_COMM_DATA_BITS_6, CFG_COMM_STOP_BITS_1_5, CFG_COMM_PARITY_SPACE, CFG_COMM_BAUD_600}),
              R"([ 600, 6, "Space", "1.5" ])");
}

TEST(CommAttribute, EveryCode) {
    constexpr const char* kBauds[] = {"300",  "600",   "1200",  "2400",  "4800",
                                      "9600", "19200", "38400", "57600", "115200"};
    constexpr const char* kBits[] = {"5", "6", "7", "8"};
    constexpr const char* kParities[] = {"\"None\"", "\"Odd\"", "\"Even\"", "\"Mark\"", "\"Space\""};
    constexpr const char* kFolded[] = {"\"NONE\"", "\"odd\"", "\"EVEN\"", "\"mArk\"", "\"space\""};
    constexpr const char* kStops[] = {"\"1\"", "\"1.5\"", "\"2\""};
    for (std::uint8_t code = 0; code < 10; ++code) {
        const std::string text = "[ " + std::string(kBauds[code]) + R"(, 5, "None", "1" ])";
        EXPECT_EQ(Read(text).byBaudRate, code);
        EXPECT_EQ(Write({0, 0, 0, code}), text);
    }
    for (std::uint8_t code = 0; code < 4; ++code) {
        const std::string text = "[ 300, " + std::string(kBits[code]) + R"(, "None", "1" ])";
        EXPECT_EQ(Read(text).byDataBits, code);
        EXPECT_EQ(Write({code, 0, 0, 0}), text);
    }
    for (std::uint8_t code = 0; code < 5; ++code) {
        const std::string text = "[ 300, 5, " + std::string(kParities[code]) + R"(, "1" ])";
        EXPECT_EQ(Read(text).byParity, code);
        EXPECT_EQ(Read("[ 300, 5, " + std::string(kFolded[code]) + ", \"1\" ]").byParity, code);
        EXPECT_EQ(Write({0, 0, code, 0}), text);
    }
    for (std::uint8_t code = 0; code < 3; ++code) {
        const std::string text = R"([ 300, 5, "None", )" + std::string(kStops[code]) + " ]";
        EXPECT_EQ(Read(text).byStopBits, code);
        EXPECT_EQ(Write({0, code, 0, 0}), text);
    }
}

TEST(CommAttribute, WhatIsInNoListReadsAsZero) {
    EXPECT_EQ(Codes(Read(R"([ 9601, 9, "Uneven", "3" ])")), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(Codes(Read(R"([ "9600", "8", 1, 2 ])")), (std::vector<int>{0, 0, 0, 0})); // of the other type
    EXPECT_EQ(Codes(Read(R"([ null, 8, null, "2" ])")), (std::vector<int>{0, 3, 0, 2}));
}

TEST(CommAttribute, FourElementsAtLeast) {
    EXPECT_EQ(Codes(Read(R"([ 9600, 8, "Odd" ])")), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(Codes(Read(R"([ 9600, 8, "Odd", "2", 5 ])")), (std::vector<int>{5, 3, 1, 2}));
    for (const char* const other : {"null", "5", "\"9600\"", "{ \"a\" : 9600, \"b\" : 8, \"c\" : 1, \"d\" : 2 }"})
        EXPECT_EQ(Codes(Read(other)), (std::vector<int>{0, 0, 0, 0})) << other;
}

TEST(CommAttribute, CodesOutOfRangeHaveNoElement) {
    EXPECT_EQ(Write({0, 0, 0, 10}), R"([ null, 5, "None", "1" ])");
    EXPECT_EQ(Write({4, 0, 0, 255}), R"([ null, null, "None", "1" ])");
    EXPECT_EQ(Write({0, 0, 5, 0}), R"([ 300, 5, null, "1" ])");
    EXPECT_EQ(Write({0, 3, 0, 0}), R"([ 300, 5, "None" ])"); // no place behind the last
    EXPECT_EQ(Write({0, 3, 5, 0}), "[ 300, 5 ]");
    EXPECT_EQ(Write({4, 3, 5, 0}), "[ 300 ]");
    EXPECT_EQ(Write({4, 3, 5, 10}), "null");
}

} // namespace
} // namespace orrery
