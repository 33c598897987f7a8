// Texts and codesets that a conversion must not stumble over.
#include "frame/LocalText.h"
#include "orrery/alarm_input.h"
#include "orrery/events_traffic_flow.h"
#include "support/GuardedBuffer.h"
#include "support/Locales.h"

#include "orrery/calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include <langinfo.h>

namespace orrery {
namespace {

using test::GuardedBuffer;
using test::ProcessLocale;

class HostileTextIn : public test::CompiledLocales {
  protected:
    // A locale that tells of any codeset, also of one that locales don't usually have or that nobody knows.
    void CompileAs(const std::string& codeset) {
        const std::string charmap = folder_ + "/charmap." + codeset;
        ASSERT_EQ(std::system(("gzip -dc /usr/share/i18n/charmaps/ISO-8859-1.gz | sed 's/^<code_set_name>.*/"
                               "<code_set_name> "
                               + codeset + "/; /^% alias/d' > '" + charmap + "'")
                                  .c_str()),
                  0);
        Compile(charmap, "xx_XX." + codeset);
    }
};

double Seconds() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// A converter begins its whole input again after each of them: 22 s for a megabyte when it is handed all at once.
TEST_F(HostileTextIn, AMegabyteThatTheCodesetLacksTakesLinearTime) {
    constexpr std::size_t kMany = 1'000'000;
    std::string lacking;
    while (lacking.size() < kMany)
        lacking += "\xF0\x9F\x98\x80"; // U+1F600
    std::string mixed;                 // just long enough between them for slices to have grown
    while (mixed.size() < kMany)
        mixed += std::string(1100, 'a') + "\xF0\x9F\x98\x80";
    for (const char* codeset : {"GBK", "BIG5", "SHIFT_JIS", "ISO-2022-JP"}) {
        const std::string name = std::string("xx_XX.") + codeset;
        CompileAs(codeset);
        const ProcessLocale locale(name.c_str());
        ASSERT_TRUE(locale.isThere()) << name;
        StackArena<256> arena;
        LocalText text(arena);
        std::vector<char> room(2 * kMany);
        for (const std::string& source : {lacking, mixed}) {
            const double start = Seconds();
            const int count = text.ConvertUtf8ToLocal(source.data(), static_cast<int>(source.size()), room.data(),
                                                      static_cast<int>(room.size()));
            EXPECT_LT(Seconds() - start, 2) << codeset;
            const std::string result(room.data(), static_cast<std::size_t>(count));
            EXPECT_EQ(static_cast<std::size_t>(std::count(result.begin(), result.end(), '?')),
                      static_cast<std::size_t>(std::count(source.begin(), source.end(), '\xF0')))
                << codeset;
        }
        const std::string broken(kMany, '\xFF'); // no character of any of them
        const double start = Seconds();
        text.ConvertLocalToUtf8(broken.data(), static_cast<int>(broken.size()), room.data(),
                                static_cast<int>(room.size()));
        EXPECT_LT(Seconds() - start, 2) << codeset;
        EXPECT_FALSE(arena.failed());
    }
}

// Long texts go through in slices; nothing shows of where they were cut.
TEST_F(HostileTextIn, LongTextsAreConvertedWhole) {
    for (const auto& [codeset, local] :
         {std::pair{"GBK", "\xD6\xD0"}, std::pair{"BIG5", "\xA4\xA4"}, std::pair{"EUC-JP", "\xC3\xE6"}}) {
        const std::string name = std::string("xx_XX.") + codeset;
        Compile(codeset, name);
        const ProcessLocale locale(name.c_str());
        ASSERT_TRUE(locale.isThere()) << name;
        StackArena<256> arena;
        LocalText text(arena);
        for (const std::size_t ahead : {0, 1, 2}) {
            std::string utf8(ahead, 'a'), expected(ahead, 'a');
            for (int i = 0; i < 3000; ++i) {
                utf8 += "\xE4\xB8\xAD"; // U+4E2D
                expected += local;
            }
            std::vector<char> room(16384);
            int count = text.ConvertUtf8ToLocal(utf8.data(), static_cast<int>(utf8.size()), room.data(), 16384);
            ASSERT_EQ(std::string(room.data(), static_cast<std::size_t>(count)), expected) << codeset;
            count = text.ConvertLocalToUtf8(expected.data(), static_cast<int>(expected.size()), room.data(), 16384);
            ASSERT_EQ(std::string(room.data(), static_cast<std::size_t>(count)), utf8) << codeset;
            // Cut at every byte of a room behind the first slices.
            for (int capacity = 1500; capacity < 1510; ++capacity) {
                count = text.ConvertUtf8ToLocal(utf8.data(), static_cast<int>(utf8.size()), room.data(), capacity);
                ASSERT_EQ(std::string(room.data(), static_cast<std::size_t>(count)),
                          expected.substr(0, static_cast<std::size_t>(capacity - 1)));
            }
        }
    }
}

// Its converter takes a shift without a charset, and refuses it with nothing left to convert.
TEST_F(HostileTextIn, AConverterThatRefusesWhatItTook) {
    CompileAs("ISO-2022-CN-EXT");
    const ProcessLocale locale("xx_XX.ISO-2022-CN-EXT");
    ASSERT_TRUE(locale.isThere());
    ASSERT_STREQ(nl_langinfo(CODESET), "ISO-2022-CN-EXT");
    StackArena<256> arena;
    LocalText text(arena);
    constexpr std::string_view kField = "AAAAAAAAAAAAAAA\x0e";
    // The field ends at an unreadable page.
    const GuardedBuffer field(kField.size());
    std::memcpy(field.data(), kField.data(), kField.size());
    char room[64];
    const int count = text.ConvertLocalToUtf8(field.data(), static_cast<int>(kField.size()), room, sizeof room);
    EXPECT_EQ(std::string(room, static_cast<std::size_t>(count)), "AAAAAAAAAAAAAAA?");
    EXPECT_FALSE(arena.failed());
}

TEST_F(HostileTextIn, ACodesetThatNobodyConvertsPassesBytesUnchanged) {
    CompileAs("NOWHERE-1");
    const ProcessLocale locale("xx_XX.NOWHERE-1");
    ASSERT_TRUE(locale.isThere());
    ASSERT_STREQ(nl_langinfo(CODESET), "NOWHERE-1");
    StackArena<256> arena;
    LocalText text(arena);
    char room[8];
    EXPECT_EQ(text.ConvertUtf8ToLocal("\xE4\xB8\xAD", 3, room, 8), 3);
    EXPECT_STREQ(room, "\xE4\xB8\xAD");
    EXPECT_TRUE(text.isCopy());
    LocalText back(arena);
    EXPECT_EQ(back.ConvertLocalToUtf8("\xFF\xFE\xFD", 3, room, 3), 2) << "within the capacity";
    EXPECT_STREQ(room, "\xFF\xFE");
    EXPECT_FALSE(arena.failed());

    auto record = std::make_unique<CFG_ALARM_INPUT_INFO>();
    ASSERT_EQ(CLIENT_ParseData("Alarm",
                               R"({ "result" : true, "params" : { "table" : { "Name" : "T)"
                               "\xC3\xBC"
                               R"(r" } } })",
                               record.get(), sizeof *record, nullptr),
              1);
    EXPECT_STREQ(record->szName, "T\xC3\xBCr");
    std::string packed(1 << 20, '#');
    ASSERT_EQ(CLIENT_PacketData("Alarm", record.get(), sizeof *record, packed.data(), 1 << 20), 1);
    EXPECT_NE(packed.find("\"Name\" : \"T\xC3\xBCr\""), std::string::npos);

    std::string name;
    const auto callback = [](std::uint32_t, const void* event, std::uint32_t, void*, std::int32_t, void* user) {
        *static_cast<std::string*>(user) = static_cast<const DEV_EVENT_TRAFFICCONTROL_INFO*>(event)->szName;
        return 0;
    };
    CLIENT_ParseAnalyzerEventData(R"({"Event":[{"Code":"TrafficControl","Data":{"Name":")"
                                  "\xC3\xBC"
                                  R"("}}]})",
                                  0, callback, &name);
    EXPECT_EQ(name, "\xC3\xBC");
}

} // namespace
} // namespace orrery
