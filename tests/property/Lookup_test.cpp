// Commands are found by their names, whatever the case of their letters, and by nothing else.
#include "Commands.h"

#include "orrery/calls.h"

#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>

namespace orrery {
namespace {

std::string Lowered(std::string_view name) {
    std::string lowered;
    for (const char c : name)
        lowered += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    return lowered;
}

const Command* Expected(std::string_view name) {
    static const auto names = [] {
        std::map<std::string, const Command*> rows;
        for (const Command& command : Commands())
            EXPECT_TRUE(rows.emplace(Lowered(command.name), &command).second) << command.name << " stands twice";
        return rows;
    }();
    const auto row = names.find(Lowered(name));
    return row == names.end() ? nullptr : row->second;
}

TEST(Lookup, CaseOfLettersDoesNotCount) {
    std::mt19937 random(1);
    for (const Command& command : Commands()) {
        EXPECT_EQ(FindCommand(command.name), &command);
        for (int round = 0; round < 16; ++round) {
            std::string name(command.name);
            for (char& c : name) {
                const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
                if (letter && random() % 2 == 0) c = static_cast<char>(c ^ 0x20);
            }
            EXPECT_EQ(FindCommand(name), &command) << name;
        }
    }
}

TEST(Lookup, AnyOtherCharacterDoes) {
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        for (std::size_t at = 0; at < name.size(); ++at) {
            std::string changed = name;
            for (int c = 0; c < 256; ++c) {
                changed[at] = static_cast<char>(c);
                ASSERT_EQ(FindCommand(changed), Expected(changed)) << changed;
            }
            ASSERT_EQ(FindCommand(std::string(name).erase(at, 1)), Expected(std::string(name).erase(at, 1)));
            ASSERT_EQ(FindCommand(std::string_view(name).substr(0, at)), Expected(name.substr(0, at)));
        }
        for (const char* const more : {" ", "\t", "\n", "x", ".", "\xc4"}) {
            EXPECT_EQ(FindCommand(name + more), Expected(name + more)) << name << more;
            EXPECT_EQ(FindCommand(more + name), Expected(more + name)) << more << name;
        }
    }
    EXPECT_EQ(FindCommand(""), nullptr);
    EXPECT_EQ(FindCommand(std::string(1'000'000, 'a')), nullptr);
}

TEST(Lookup, TheExportsTakeNoNulls) {
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        char room[8] = "kept";
        std::uint32_t length = 77;
        EXPECT_EQ(CLIENT_ParseData(nullptr, "{}", room, sizeof room, &length), 0);
        EXPECT_EQ(CLIENT_ParseData(name.c_str(), nullptr, room, sizeof room, &length), 0);
        EXPECT_EQ(CLIENT_ParseData(name.c_str(), "{}", nullptr, sizeof room, &length), 0);
        EXPECT_EQ(CLIENT_ParseData(name.c_str(), "{}", room, 0, &length), 0);
        EXPECT_EQ(CLIENT_PacketData(nullptr, room, sizeof room, room, sizeof room), 0);
        EXPECT_EQ(CLIENT_PacketData(name.c_str(), nullptr, 8, room, sizeof room), 0);
        EXPECT_EQ(CLIENT_PacketData(name.c_str(), room, 8, nullptr, 8), 0);
        EXPECT_EQ(CLIENT_ParseData((name + " ").c_str(), "{}", room, sizeof room, &length), 0);
        EXPECT_EQ(CLIENT_PacketData((name + " ").c_str(), room, 8, room, sizeof room), 0);
        EXPECT_STREQ(room, "kept");
        EXPECT_EQ(length, 77u);
    }
}

} // namespace
} // namespace orrery
