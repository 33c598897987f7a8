#include "frame/JsonParser.h"
#include "frame/JsonParserSupport.h"
#include "frame/LocalText.h"
#include "orrery/network.h"
#include "support/FailingAllocator.h"
#include "support/LocalTexts.h"
#include "support/Locales.h"

#include "orrery/calls.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <iconv.h>
#include <langinfo.h>
#include <stdlib.h>

namespace orrery {
namespace {

using test::ProcessLocale;
using test::StringValue;
using test::TextOf;
using test::ThreadLocale;
using test::ToLocal;
using test::ToUtf8;

class LocalTextIn : public test::CompiledLocales {};

void ExpectBoundedCopy(LocalText& text) {
    EXPECT_TRUE(text.isCopy());
    EXPECT_EQ(ToLocal(text, "Door", 16), "Door");
    EXPECT_EQ(ToUtf8(text, "Door", 16), "Door");
    EXPECT_EQ(ToLocal(text, "Door", 5), "Door");
    EXPECT_EQ(ToLocal(text, "Door", 4), "Doo");
    EXPECT_EQ(ToLocal(text, "Door", 1), "");
    // Two characters of three bytes each: a cut goes through the second one, and no byte is replaced.
    EXPECT_EQ(ToLocal(text, "\xE4\xB8\xAD\xE6\x96\x87", 6), "\xE4\xB8\xAD\xE6\x96");
    EXPECT_EQ(ToUtf8(text, "\xE4\xB8\xAD\xE6\x96\x87", 6), "\xE4\xB8\xAD\xE6\x96");
    EXPECT_EQ(ToLocal(text, "\xFF\xC0", 16), "\xFF\xC0");
}

TEST(LocalText, CopiesUnderUtf8) {
    const ThreadLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.isThere());
    ASSERT_STREQ(nl_langinfo(CODESET), "UTF-8");
    StackArena<256> arena;
    LocalText text(arena);
    ExpectBoundedCopy(text);
}

TEST(LocalText, CopiesUnderThePlainCLocale) {
    const ThreadLocale locale("C");
    ASSERT_TRUE(locale.isThere());
    ASSERT_STREQ(nl_langinfo(CODESET), "ANSI_X3.4-1968");
    StackArena<256> arena;
    LocalText text(arena);
    ExpectBoundedCopy(text);
    EXPECT_FALSE(arena.failed());
}

TEST(LocalText, TouchesNothingWithoutTextOrRoom) {
    StackArena<256> arena;
    LocalText text(arena);
    char room[4] = {'a', 'b', 'c', 'd'};
    const auto untouched = [&room] { return std::memcmp(room, "abcd", 4) == 0; };
    EXPECT_EQ(text.ConvertUtf8ToLocal(nullptr, 1, room, 4), 0);
    EXPECT_EQ(text.ConvertUtf8ToLocal("x", 1, nullptr, 4), 0);
    EXPECT_EQ(text.ConvertUtf8ToLocal("x", 0, room, 4), 0);
    EXPECT_EQ(text.ConvertUtf8ToLocal("x", -1, room, 4), 0);
    EXPECT_EQ(text.ConvertUtf8ToLocal("x", 1, room, 0), 0);
    EXPECT_EQ(text.ConvertUtf8ToLocal("x", 1, room, INT_MIN), 0);
    EXPECT_EQ(text.ConvertLocalToUtf8(nullptr, 1, room, 4), 0);
    EXPECT_EQ(text.ConvertLocalToUtf8("x", 1, nullptr, 4), 0);
    EXPECT_EQ(text.ConvertLocalToUtf8("x", 0, room, 4), 0);
    EXPECT_EQ(text.ConvertLocalToUtf8("x", 1, room, -4), 0);
    EXPECT_TRUE(untouched());
}

TEST_F(LocalTextIn, GbkConvertsBothWays) {
    Compile("GBK", "zh_CN.GBK");
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    ASSERT_STREQ(nl_langinfo(CODESET), "GBK");
    StackArena<256> arena;
    LocalText text(arena);
    EXPECT_FALSE(text.isCopy());
    // U+4E2D is D6 D0 there, U+6587 is CE C4.
    EXPECT_EQ(ToLocal(text, "\xE4\xB8\xAD\xE6\x96\x87", 16), "\xD6\xD0\xCE\xC4");
    EXPECT_EQ(ToUtf8(text, "\xD6\xD0\xCE\xC4", 16), "\xE4\xB8\xAD\xE6\x96\x87");
    EXPECT_EQ(ToLocal(text, "Door\xE4\xB8\xAD", 16), "Door\xD6\xD0");
    EXPECT_EQ(ToLocal(text, "Door", 16), "Door");
    EXPECT_EQ(ToUtf8(text, "Door", 4), "Doo");
    EXPECT_FALSE(arena.failed());
}

TEST_F(LocalTextIn, GbkKeepsAsManyBytesAsFit) {
    Compile("GBK", "zh_CN.GBK");
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    StackArena<256> arena;
    LocalText text(arena);
    constexpr std::string_view kUtf8 = "a\xE4\xB8\xAD\xE6\x96\x87"; // 61, D6 D0, CE C4
    EXPECT_EQ(ToLocal(text, kUtf8, 6), "a\xD6\xD0\xCE\xC4");
    EXPECT_EQ(ToLocal(text, kUtf8, 5), "a\xD6\xD0\xCE") << "a character cut in two";
    EXPECT_EQ(ToLocal(text, kUtf8, 4), "a\xD6\xD0");
    EXPECT_EQ(ToLocal(text, kUtf8, 3), "a\xD6");
    EXPECT_EQ(ToLocal(text, kUtf8, 2), "a");
    EXPECT_EQ(ToLocal(text, kUtf8, 1), "");
    constexpr std::string_view kGbk = "\xD6\xD0\xCE\xC4";
    EXPECT_EQ(ToUtf8(text, kGbk, 6), "\xE4\xB8\xAD\xE6\x96");
    EXPECT_EQ(ToUtf8(text, kGbk, 5), "\xE4\xB8\xAD\xE6");
    EXPECT_EQ(ToUtf8(text, kGbk, 4), "\xE4\xB8\xAD");
    // A descriptor starts afresh after each cut.
    EXPECT_EQ(ToLocal(text, kUtf8, 16), "a\xD6\xD0\xCE\xC4");
}

TEST_F(LocalTextIn, GbkReplacesWhatItCannotConvert) {
    Compile("GBK", "zh_CN.GBK");
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    StackArena<256> arena;
    LocalText text(arena);
    EXPECT_EQ(ToLocal(text, "a\xF0\x9F\x98\x80z", 16), "a?z") << "U+1F600 is not in GBK";
    EXPECT_EQ(ToLocal(text, "a\xFFz\xE4\xB8\xAD", 16), "a?z\xD6\xD0") << "no lead byte";
    EXPECT_EQ(ToLocal(text, "a\xE4\xB8z", 16), "a?z") << "a well-begun part is one character";
    EXPECT_EQ(ToLocal(text, "a\xE4\xB8", 16), "a?") << "cut at the end";
    EXPECT_EQ(ToLocal(text, "a\xED\xA0\x80z", 16), "a???z") << "a surrogate is broken from its second byte on";
    EXPECT_EQ(ToLocal(text, "\xC0\xAF", 16), "??") << "an overlong form is";
    EXPECT_EQ(ToLocal(text, "\xFF\xFF\xFF\xFF", 3), "??") << "replacements fill the room, too";
    EXPECT_EQ(ToLocal(text, "\xFF", 1), "");
    EXPECT_EQ(ToUtf8(text, "a\xD6", 16), "a?") << "a lead byte alone";
    EXPECT_EQ(ToUtf8(text, "a\xFFz", 16), "a?z");
    EXPECT_EQ(ToUtf8(text, "a\xD6\x20z", 16), "a? z") << "a trail byte that is none";
    EXPECT_FALSE(arena.failed());
}

TEST_F(LocalTextIn, Iso88591GrowsPastTheRoomThatTextOutHas) {
    Compile("ISO-8859-1", "xx_XX.ISO-8859-1");
    const ProcessLocale locale("xx_XX.ISO-8859-1");
    ASSERT_TRUE(locale.isThere());
    ASSERT_STREQ(nl_langinfo(CODESET), "ISO-8859-1");
    StackArena<256> arena;
    LocalText text(arena);
    JsonParser parser(text);
    const auto written = [&parser](const char* source, std::size_t capacity) {
        return TextOf([&](json::TextWriter& out) { EXPECT_TRUE(parser.SetJsonString(out, source, capacity, true)); });
    };
    EXPECT_EQ(ToUtf8(text, "\xE9", 16), "\xC3\xA9");
    EXPECT_EQ(written("a\xE9", 16), "\"a\xC3\xA9\"") << "2 bytes have room for 3";
    EXPECT_EQ(written("\xE9\xE9", 16), "\"\xC3\xA9\xC3\"") << "2 bytes have room for 3 of 4";
    EXPECT_EQ(written("\xE9", 16), "\"\xC3\"") << "1 byte has room for 1 of 2";
    EXPECT_EQ(written("a\xE9zzz", 2), "\"a\xC3\xA9\"") << "a source without a terminator";
    EXPECT_EQ(written("", 16), "\"\"");
    const std::string large(5000, '\xE9'); // past any buffer at hand: 7500 bytes of 10000
    std::string expected;
    for (int i = 0; i < 3750; ++i)
        expected += "\xC3\xA9";
    EXPECT_EQ(written(large.c_str(), 8192), '"' + expected + '"');
    EXPECT_FALSE(arena.failed());
}

// The name of an interface has room for twice its length, so that it still finds its interface; an address has not.
TEST_F(LocalTextIn, Iso88591NamesOfInterfacesKeepTheirEnds) {
    Compile("ISO-8859-1", "xx_XX.ISO-8859-1");
    const ProcessLocale locale("xx_XX.ISO-8859-1");
    ASSERT_TRUE(locale.isThere());
    auto record = std::make_unique<CFG_NETWORK_INFO>();
    record->nInterfaceNum = 1;
    std::strcpy(record->stuInterfaces[0].szName, "\xE9\xE9\xE9\xE9");
    std::strcpy(record->stuInterfaces[0].szIP, "\xE9\xE9\xE9\xE9");
    std::string packed(4096, '#');
    ASSERT_EQ(CLIENT_PacketData("Network", record.get(), sizeof *record, packed.data(), 4096), 1);
    EXPECT_NE(packed.find("\"\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\" : { "), std::string::npos);
    EXPECT_NE(packed.find("\"IPAddress\" : \"\xC3\xA9\xC3\xA9\xC3\xA9\""), std::string::npos);
    ASSERT_EQ(CLIENT_ParseData("Network",
                               "{ \"result\" : true, \"params\" : { \"table\" : "
                               "{ \"\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\" : { \"MTU\" : 1 } } } }",
                               record.get(), sizeof *record, nullptr),
              1);
    EXPECT_STREQ(record->stuInterfaces[0].szName, "\xE9\xE9\xE9\xE9");
}

TEST_F(LocalTextIn, GbkThroughTheFieldCodecs) {
    Compile("GBK", "zh_CN.GBK");
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    StackArena<256> arena;
    LocalText text(arena);
    JsonParser parser(text);
    constexpr std::string_view kUtf8 = "\xE4\xB8\xAD\xE6\x96\x87";
    char field[8];
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser.GetJsonString(StringValue(kUtf8), field, sizeof field, true));
    EXPECT_EQ(std::memcmp(field, "\xD6\xD0\xCE\xC4\0\0\0\0", 8), 0);
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser.GetJsonString(StringValue(kUtf8), field, 4, true));
    EXPECT_EQ(std::memcmp(field, "\xD6\xD0\xCE\0####", 8), 0);
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser.GetJsonString(StringValue(kUtf8), field, sizeof field, false));
    EXPECT_EQ(std::memcmp(field, "\xE4\xB8\xAD\xE6\x96\x87\0\0", 8), 0) << "raw bytes without conversion";
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser.GetJsonStringBounded(StringValue(kUtf8), field, 4, sizeof field));
    EXPECT_EQ(std::memcmp(field, "\xD6\xD0?\0####", 8), 0) << "four bytes taken, the fourth a broken character";
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { parser.SetJsonString(out, "\xD6\xD0\xCE\xC4", 16, true); }),
              '"' + std::string(kUtf8) + '"');
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { parser.SetJsonString(out, "\xD6\xD0", 16, false); }), "\"\xD6\xD0\"");
}

TEST_F(LocalTextIn, AsciiIsKeptOnlyWhereTheCodesetAgrees) {
    // The shortcut for ASCII texts has to agree with iconv on every one of its characters.
    for (const char* codeset :
         {"GBK", "GB18030", "GB2312", "BIG5", "BIG5-HKSCS", "EUC-JP", "EUC-KR", "EUC-TW", "ISO-8859-1", "ISO-8859-7",
          "ISO-8859-15", "KOI8-R", "KOI8-U", "CP1251", "CP1252", "CP1255"}) {
        const iconv_t there = iconv_open(codeset, "UTF-8");
        const iconv_t back = iconv_open("UTF-8", codeset);
        ASSERT_NE(there, reinterpret_cast<iconv_t>(-1)) << codeset;
        ASSERT_NE(back, reinterpret_cast<iconv_t>(-1)) << codeset;
        for (const iconv_t direction : {there, back}) {
            for (char c = 1; c > 0 && c < 127; ++c) {
                char in[1] = {c};
                char out[8] = {};
                char* from = in;
                char* to = out;
                std::size_t inLeft = 1, outLeft = sizeof out;
                ASSERT_NE(iconv(direction, &from, &inLeft, &to, &outLeft), static_cast<std::size_t>(-1)) << codeset;
                iconv(direction, nullptr, nullptr, &to, &outLeft);
                ASSERT_EQ(std::string(out, to), std::string(1, c)) << codeset;
            }
            iconv_close(direction);
        }
    }
    Compile("SHIFT_JIS", "ja_JP.SJIS");
    const ProcessLocale locale("ja_JP.SJIS");
    ASSERT_TRUE(locale.isThere());
    StackArena<256> arena;
    LocalText text(arena);
    EXPECT_FALSE(text.isCopyOf("Door"));
    EXPECT_EQ(ToLocal(text, "Door\xE3\x82\xBD", 16), "Door\x83\x5C"); // U+30BD
    EXPECT_EQ(ToUtf8(text, "Door\x83\x5C", 16), "Door\xE3\x82\xBD");
}

TEST_F(LocalTextIn, TheThreadsLocaleGoesBeforeTheProcesss) {
    Compile("GBK", "zh_CN.GBK");
    StackArena<256> arena;
    {
        const ProcessLocale process("zh_CN.GBK");
        ASSERT_TRUE(process.isThere());
        EXPECT_FALSE(LocalText(arena).isCopy());
        unsetenv("LOCPATH");
        const ThreadLocale thread("C.UTF-8");
        ASSERT_TRUE(thread.isThere());
        EXPECT_TRUE(LocalText(arena).isCopy());
    }
    EXPECT_TRUE(LocalText(arena).isCopy()) << "the test program itself runs in the C locale";
}

TEST_F(LocalTextIn, AConversionKeepsTheLocaleItBeganWith) {
    Compile("GBK", "zh_CN.GBK");
    StackArena<256> arena;
    std::optional<LocalText> text;
    {
        const ProcessLocale process("zh_CN.GBK");
        ASSERT_TRUE(process.isThere());
        text.emplace(arena);
    }
    EXPECT_EQ(ToLocal(*text, "\xE4\xB8\xAD", 16), "\xD6\xD0");
}

// Two characters of one code there: U+00CA is 88 66, with U+0304 behind it 88 62. So a converter waits after U+00CA.
TEST_F(LocalTextIn, ACodesetWhoseConverterLooksAhead) {
    Compile("BIG5-HKSCS", "zh_HK.BIG5-HKSCS");
    const ProcessLocale locale("zh_HK.BIG5-HKSCS");
    ASSERT_TRUE(locale.isThere());
    StackArena<256> arena;
    LocalText text(arena);
    EXPECT_EQ(ToLocal(text, "\xC3\x8A\xCC\x84", 16), "\x88\x62");
    EXPECT_EQ(ToLocal(text, "\xC3\x8A", 16), "\x88\x66") << "held back to the end";
    EXPECT_EQ(ToLocal(text, "\xC3\x8A", 2), "\x88");
    EXPECT_EQ(ToLocal(text, "\xC3\x8A\xFFz", 16), "\x88\x66?z") << "held back before a broken character";
    EXPECT_EQ(ToLocal(text, "\xC3\x8A\xC3\x8A", 2), "\x88");
    EXPECT_EQ(ToLocal(text, "z\xC3\x8A", 16), "z\x88\x66") << "nothing is left of the text before";
    EXPECT_EQ(ToUtf8(text, "\x88\x62", 16), "\xC3\x8A\xCC\x84");
    EXPECT_EQ(ToUtf8(text, "\x88\x62", 4), "\xC3\x8A\xCC");
    EXPECT_EQ(ToUtf8(text, "z\xC3\x8A", 2), "z");
    EXPECT_EQ(ToUtf8(text, "\x88\x66", 16), "\xC3\x8A");
}

// Whatever the text, a small room holds the beginning of what a large one holds, filled to the last byte.
TEST_F(LocalTextIn, ASmallRoomHoldsTheBeginning) {
    std::mt19937 random(65001);
    const auto below = [&random](std::size_t bound) { return random() % bound; };
    for (const char* codeset : {"GBK", "GB18030", "BIG5-HKSCS", "ISO-8859-1", "SHIFT_JIS", "EUC-JP"}) {
        const std::string name = std::string("xx_XX.") + codeset;
        Compile(codeset, name);
        const ProcessLocale locale(name.c_str());
        ASSERT_TRUE(locale.isThere()) << name;
        StackArena<256> arena;
        LocalText text(arena);
        for (int round = 0; round < 20000; ++round) {
            std::string source;
            for (std::size_t i = below(12) + 1; i > 0; --i) {
                static const char* const kPieces[] = {"a",        "\xE4\xB8\xAD", "\xC3\x8A",
                                                      "\xCC\x84", "\xC3\xA9",     "\xF0\x9F\x98\x80",
                                                      "\xD6\xD0", "\x88\x62",     "\xE3\x82\xBD"};
                if (below(3) != 0) {
                    source += kPieces[below(std::size(kPieces))];
                } else {
                    source += static_cast<char>(below(256));
                }
            }
            const auto room = static_cast<int>(below(20) + 1);
            const std::string local = ToLocal(text, source, 256);
            ASSERT_EQ(ToLocal(text, source, room), local.substr(0, static_cast<std::size_t>(room - 1)));
            const std::string utf8 = ToUtf8(text, source, 256);
            ASSERT_EQ(ToUtf8(text, source, room), utf8.substr(0, static_cast<std::size_t>(room - 1)));
        }
        EXPECT_FALSE(arena.failed());
    }
}

// ---- When the heap is exhausted ----

TEST_F(LocalTextIn, AFailingHeapFailsTheCallAndWritesNoHalfText) {
    Compile("ISO-8859-1", "xx_XX.ISO-8859-1");
    const ProcessLocale locale("xx_XX.ISO-8859-1");
    ASSERT_TRUE(locale.isThere());
    StackArena<256> arena;
    LocalText text(arena);
    JsonParser parser(text);
    EXPECT_EQ(ToUtf8(text, "\xE9", 16), "\xC3\xA9"); // opens what it needs
    const std::string large(5000, '\xE9');
    std::vector<char> room(16384);
    json::TextWriter out(room.data(), room.size());
    {
        test::HeapWatch heap;
        heap.FailFrom(1);
        parser.SetJsonString(out, large.c_str(), 8192, true);
        EXPECT_EQ(heap.failures(), 1u);
    }
    EXPECT_TRUE(arena.failed());
    EXPECT_EQ(std::string_view(room.data(), out.length()), "\"\"");
}

TEST(LocalText, ACopyNeedsNoHeap) {
    StackArena<16> arena;
    LocalText text(arena);
    JsonParser parser(text);
    const std::string large(5000, '\xE9');
    std::vector<char> field(8192), room(16384);
    json::TextWriter out(room.data(), room.size());
    test::HeapWatch heap;
    EXPECT_TRUE(parser.GetJsonString(StringValue(large), field.data(), field.size(), true));
    EXPECT_TRUE(parser.SetJsonString(out, field.data(), field.size(), true));
    EXPECT_EQ(heap.allocations(), 0u);
    EXPECT_EQ(out.length(), 5002u);
}

} // namespace
} // namespace orrery
