// Texts in the process's code page: scripts/platforms.sh runs CodePage under several, and CodePageUtf8 is for a process
// whose code page is UTF-8. Under any other they fail, and no other run takes them.
#include "frame/Arena.h"
#include "frame/LocalText.h"
#include "orrery/calls.h"
#include "orrery/device_settings.h"
#include "support/LocalTexts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include <windows.h>

namespace orrery {
namespace {

// A character that the code page has, one that it lacks, and a byte that is none of its characters.
struct CodePageText {
    unsigned page;
    const char* utf8;
    const char* local;
    const char* lacks;
    char noCharacter;
};
constexpr CodePageText kTexts[] = {
    {932, "\xE3\x81\x82", "\x82\xA0", "\xE4\xBD\xA0", '\xFD'}, // a kana; a Chinese sign
    {936, "\xE4\xBD\xA0", "\xC4\xE3", "\xC3\xA4", '\xFF'},     // that sign; a with two dots
    {1252, "\xC3\xA4", "\xE4", "\xE3\x81\x82", '\0'},          // a with two dots; the kana; every byte is one
};

const CodePageText* OfThisProcess() {
    for (const CodePageText& text : kTexts)
        if (text.page == GetACP()) return &text;
    return nullptr;
}

std::string ToLocal(std::string_view source, int capacity = 32) {
    StackArena<1024> arena;
    LocalText text(arena);
    return test::ToLocal(text, source, capacity);
}

std::string ToUtf8(std::string_view source, int capacity = 32) {
    StackArena<1024> arena;
    LocalText text(arena);
    return test::ToUtf8(text, source, capacity);
}

TEST(CodePage, IsTheOneThatTheTestsAreRunFor) {
    const char* const wanted = std::getenv("ORRERY_CODE_PAGE");
    ASSERT_NE(wanted, nullptr) << "ORRERY_CODE_PAGE tells which code page the process was started for";
    EXPECT_EQ(GetACP(), std::strtoul(wanted, nullptr, 10));
}

TEST(CodePage, ConvertsBothWays) {
    const CodePageText* const text = OfThisProcess();
    ASSERT_NE(text, nullptr) << "no text is known for code page " << GetACP();
    const std::string utf8 = "a" + std::string(text->utf8) + "b", local = "a" + std::string(text->local) + "b";
    EXPECT_EQ(ToLocal(utf8), local);
    EXPECT_EQ(ToUtf8(local), utf8);
    EXPECT_EQ(ToLocal("Door"), "Door");
    EXPECT_EQ(ToUtf8("Door"), "Door");
    // A text ends where the room does, also in the middle of a character.
    EXPECT_EQ(ToLocal("ab" + std::string(text->utf8), 4), "ab" + std::string(1, text->local[0]));
    EXPECT_EQ(ToUtf8("ab" + std::string(text->local), 4), "ab" + std::string(1, text->utf8[0]));
}

TEST(CodePage, ReplacesWhatItCannotConvert) {
    const CodePageText* const text = OfThisProcess();
    ASSERT_NE(text, nullptr) << "no text is known for code page " << GetACP();
    EXPECT_EQ(ToLocal("a" + std::string(text->lacks) + "b"), "a?b");
    EXPECT_EQ(ToLocal("a\xF0\x9F\x98\x80"
                      "b"),
              "a?b"); // beyond the first 65536
    // One for the longest well-begun part of a broken sequence, one for each byte that begins none.
    EXPECT_EQ(ToLocal("a\xE3\x81"
                      "b"),
              "a?b");
    EXPECT_EQ(ToLocal("a\x80\xFF"
                      "b"),
              "a??b");
    EXPECT_EQ(ToLocal("\xC3"), "?");
    if (text->noCharacter == '\0') return;
    EXPECT_EQ(ToUtf8("a" + std::string(1, text->noCharacter) + "b"), "a?b");
}

TEST(CodePage, IsWhatRecordsHold) {
    const CodePageText* const text = OfThisProcess();
    ASSERT_NE(text, nullptr) << "no text is known for code page " << GetACP();
    const auto record = std::make_unique<CFG_NTP_INFO>();
    const auto packs = [&](const std::string& address) {
        char packed[2048];
        EXPECT_EQ(CLIENT_PacketData("NTP", record.get(), sizeof *record, packed, sizeof packed), 1);
        EXPECT_NE(std::string(packed).find("\"Address\" : \"" + address + "\""), std::string::npos) << packed;
    };
    const std::string utf8 = "Door " + std::string(text->utf8);
    const std::string reply = R"({"result":true,"params":{"table":{"Address":")" + utf8 + "\"}}}";
    ASSERT_EQ(CLIENT_ParseData("NTP", reply.c_str(), record.get(), sizeof *record, nullptr), 1);
    EXPECT_EQ(record->szAddress, "Door " + std::string(text->local));
    packs(utf8);
    // A text grows by half on its way out, and is cut where it would grow by more: two letters, of four bytes, get
    // three.
    if (std::strlen(text->local) > 1) return;
    std::strcpy(record->szAddress, (std::string(text->local) + text->local).c_str());
    packs(std::string(text->utf8) + text->utf8[0]);
}

TEST(CodePageUtf8, IsACopy) {
    ASSERT_EQ(GetACP(), unsigned{CP_UTF8});
    EXPECT_EQ(ToLocal("a\xE3\x81\x82\xFF"), "a\xE3\x81\x82\xFF");
    EXPECT_EQ(ToUtf8("a\xE3\x81\x82\xFF"), "a\xE3\x81\x82\xFF");
}

} // namespace
} // namespace orrery
