// What is made for eyes: colours, lines that fit, a bar. And what other systems leave in texts.
#include "orrery/Input.h"
#include "orrery/Jobs.h"
#include "orrery/Terminal.h"

#include <gtest/gtest.h>
#include <string>

namespace orrery::tool {
namespace {

using namespace std::literals;

TEST(Terminal, PaintsKeysTextsAndNumbers) {
    EXPECT_EQ(ColouredJson(R"({ "a": "x\"y", "n": [1, -2.5, null] })"),
              "{ \033[36m\"a\"\033[0m: \033[32m\"x\\\"y\"\033[0m, \033[36m\"n\"\033[0m: [\033[33m1\033[0m, "
              "\033[33m-2.5\033[0m, \033[33mnull\033[0m] }");
    EXPECT_EQ(ColouredJson("\"cut"), "\033[32m\"cut\033[0m");
}

TEST(Terminal, PaintsTheGravityOfFindings) {
    EXPECT_EQ(ColouredFindings("f:1:2: lost: a: note: b\nplain\n"),
              "\033[1mf:1:2\033[0m: \033[31mlost\033[0m: a: note: b\nplain\n");
}

TEST(Terminal, CutsLinesAtWholeCharacters) {
    EXPECT_EQ(CutTo("abcdef", 0), "abcdef");
    EXPECT_EQ(CutTo("abcdef", 6), "abcdef");
    EXPECT_EQ(CutTo("abcdef", 5), "abcd…");
    EXPECT_EQ(CutTo("日本語です", 4), "日本語…");
    EXPECT_EQ(Columns("日本語"), 3u);
}

TEST(Terminal, ShowsHowFarItIs) {
    EXPECT_EQ(Progress::Line("file", 50'000'000, 100'000'000, 60),
              "file " + std::string(14, '#') + std::string(15, '.') + "  50%  50.0 of 100.0 MB");
    EXPECT_EQ(Progress::Line("file", 200, 100, 24), "100%  0.0 of 0.0 MB");
    for (std::size_t width = 12; width < 90; ++width)
        EXPECT_LE(Columns(Progress::Line("a-very-long-name-of-a-file.jsonl", 5'000'000, 90'000'000, width)), width);
}

TEST(Input, TellsOtherEncodings) {
    EXPECT_EQ(ForeignEncoding("{\"a\":1}"), "");
    EXPECT_EQ(ForeignEncoding(""), "");
    EXPECT_EQ(ForeignEncoding("\xEF\xBB\xBF{}"), "");
    EXPECT_EQ(ForeignEncoding("\xFF\xFE{\0"sv), "UTF-16");
    EXPECT_EQ(ForeignEncoding("\xFE\xFF\0{"sv), "UTF-16");
    EXPECT_EQ(ForeignEncoding("{\0\"\0"sv), "UTF-16");
    EXPECT_EQ(ForeignEncoding("\0{\0\""sv), "UTF-16");
    EXPECT_EQ(ForeignEncoding("\xFF\xFE\0\0{\0\0\0"sv), "UTF-32");
    EXPECT_EQ(ForeignEncoding("{\0\0\0\"\0\0\0"sv), "UTF-32");
    EXPECT_EQ(ForeignEncoding("\0\0\0{"sv), "UTF-32");
}

TEST(Jobs, HandOverInTheOrderThatTheyWereGiven) {
    for (const unsigned threads : {1u, 2u, 5u}) {
        std::string handed;
        {
            Jobs<int, int> jobs(
                threads,
                [](const int& task) {
                    if (task % 7 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
                    return task;
                },
                [&](int& done) {
                    handed += std::to_string(done) + ' ';
                    return true;
                });
            for (int i = 0; i < 50; ++i)
                EXPECT_TRUE(jobs.Give(i));
        }
        std::string expected;
        for (int i = 0; i < 50; ++i)
            expected += std::to_string(i) + ' ';
        EXPECT_EQ(handed, expected) << threads;
    }
}

TEST(Jobs, EndWhenNoMoreIsWanted) {
    for (const unsigned threads : {1u, 3u}) {
        int handed = 0;
        Jobs<int, int> jobs(
            threads, [](const int& task) { return task; }, [&](int&) { return ++handed < 3; });
        int given = 0;
        while (given < 10'000 && jobs.Give(given))
            ++given;
        jobs.Finish();
        EXPECT_EQ(handed, 3) << threads;
        EXPECT_LT(given, 10'000) << threads;
    }
}

} // namespace
} // namespace orrery::tool
