// Names of "Raid" in other encodings: each has twice its field's room on its way out.
#include "orrery/storage_disks.h"
#include "support/Call.h"
#include "support/Locales.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace orrery::test {
namespace {

struct RaidNames : CompiledLocales {
    static std::string Packed(const std::string& name) {
        CFG_RAID_INFO raid{};
        raid.dwSize = sizeof raid;
        std::memcpy(raid.szName, name.data(), name.size());
        return Pack("Raid", raid);
    }
};

std::string Times(int count, const char* text) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST_F(RaidNames, OfLettersThatDoubleAreWrittenWhole) {
    Compile("ISO-8859-1", "xx_XX.ISO-8859-1");
    const ProcessLocale locale("xx_XX.ISO-8859-1");
    ASSERT_TRUE(locale.isThere());
    for (const int letters : {1, 2, 63}) {
        EXPECT_EQ(Packed(std::string(static_cast<std::size_t>(letters), '\xE9')),
                  "{ \"" + Times(letters, "\xC3\xA9") + R"(" : { "Level" : 0 } })");
    }
}

TEST_F(RaidNames, AreCutWhereTheRoomEnds) {
    Compile("SHIFT_JIS", "ja_JP.SJIS"); // half-width kana: a byte each, three in UTF-8
    const ProcessLocale locale("ja_JP.SJIS");
    ASSERT_TRUE(locale.isThere());
    for (const int kana : {1, 42, 43, 63}) {
        EXPECT_EQ(Packed(std::string(static_cast<std::size_t>(kana), '\xB1')),
                  "{ \"" + Times(kana < 42 ? kana : 42, "\xEF\xBD\xB1") + R"(" : { "Level" : 0 } })");
    }
}

} // namespace
} // namespace orrery::test
