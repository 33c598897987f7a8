#include "device/Locale.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// In the order of their codes, from 0.
constexpr const char* kNames[] = {
    "English", "SimpChinese", "TradChinese", "Italian",  "Spanish",  "Japanese",   "Russian",    "French",
    "German",  "Portugal",    "Turkey",      "Poland",   "Romanian", "Hungarian",  "Finnish",    "Estonian",
    "Korean",  "Farsi",       "Dansk",       "Czechish", "Bulgaria", "Slovakian",  "Slovenia",   "Croatian",
    "Dutch",   "Greek",       "Ukrainian",   "Swedish",  "Serbian",  "Vietnamese", "Lithuanian", "Filipino",
    "Arabic",  "Catalan",     "Latvian",     "Thai",     "Hebrew",   "Bosnian"};
constexpr int kNameCount = 38;
static_assert(std::size(kNames) == kNameCount);

// ---- Locales ----

TEST(Locales, ThereAndBack) {
    const std::string text =
        R"({ "DSTEnable" : true, )"
        R"("DSTEnd" : { "Day" : 1, "Hour" : 2, "Minute" : 3, "Month" : 10, "Week" : -1, "Year" : 2027 }, )"
        R"("DSTStart" : { "Day" : 4, "Hour" : 5, "Minute" : 6, "Month" : 7, "Week" : 8, "Year" : 2026 }, )"
        R"("TimeFormat" : "yyyy-MM-dd HH:mm:ss" })";
    const auto parsed = Parse<CFG_LOCALES_INFO>("Locales", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_LOCALES_INFO));
    EXPECT_STREQ(parsed->szTimeFormat, "yyyy-MM-dd HH:mm:ss");
    EXPECT_EQ(parsed->bDSTEnable, 1);
    EXPECT_EQ(parsed->stuDSTStart.nYear, 2026);
    EXPECT_EQ(parsed->stuDSTStart.nMonth, 7);
    EXPECT_EQ(parsed->stuDSTStart.nWeek, 8);
    EXPECT_EQ(parsed->stuDSTStart.nDay, 4);
    EXPECT_EQ(parsed->stuDSTStart.nHour, 5);
    EXPECT_EQ(parsed->stuDSTStart.nMinute, 6);
    EXPECT_EQ(parsed->stuDSTEnd.nYear, 2027);
    EXPECT_EQ(parsed->stuDSTEnd.nMonth, 10);
    EXPECT_EQ(parsed->stuDSTEnd.nWeek, -1);
    EXPECT_EQ(parsed->stuDSTEnd.nDay, 1);
    EXPECT_EQ(parsed->stuDSTEnd.nHour, 2);
    EXPECT_EQ(parsed->stuDSTEnd.nMinute, 3);
    EXPECT_EQ(Pack("Locales", *parsed), text);
}

TEST(Locales, AnEmptyTableIsAllZero) {
    const auto parsed = Parse<CFG_LOCALES_INFO>("Locales", "{ }");
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(parsed.isCleared());
    const std::string time = R"({ "Day" : 0, "Hour" : 0, "Minute" : 0, "Month" : 0, "Week" : 0, "Year" : 0 })";
    EXPECT_EQ(Pack("Locales", *parsed), R"({ "DSTEnable" : false, "DSTEnd" : )" + time + R"(, "DSTStart" : )" + time
                                            + R"(, "TimeFormat" : "" })");
}

TEST(Locales, TheFormatIsCutAtItsCapacity) {
    const auto parsed =
        Parse<CFG_LOCALES_INFO>("Locales", R"({ "TimeFormat" : ")" + std::string(40, 'y') + R"(", "DSTEnable" : 1 })");
    EXPECT_EQ(std::string(parsed->szTimeFormat), std::string(31, 'y'));
    EXPECT_EQ(parsed->bDSTEnable, 1);
}

// ---- Language ----

TEST(Language, EveryNameHasItsCode) {
    for (int code = 0; code < kNameCount; ++code) {
        const auto parsed = Parse<CFG_LANGUAGE_INFO>("Language", Quoted(kNames[code]));
        ASSERT_TRUE(parsed) << kNames[code];
        EXPECT_EQ(parsed.length, sizeof(CFG_LANGUAGE_INFO));
        EXPECT_EQ(parsed->emLanguage, code) << kNames[code];
        EXPECT_EQ(Pack("Language", *parsed), Quoted(kNames[code]));
    }
    EXPECT_EQ(CFG_LANGUAGE_COUNT, kNameCount);
}

TEST(Language, CaseIsFolded) {
    EXPECT_EQ((Parse<CFG_LANGUAGE_INFO>("Language", R"("BOSNIAN")")->emLanguage), CFG_LANGUAGE_BOSNIAN);
    EXPECT_EQ((Parse<CFG_LANGUAGE_INFO>("Language", R"("simpchinese")")->emLanguage), CFG_LANGUAGE_SIMP_CHINESE);
}

TEST(Language, AnUnknownTextIsUnknown) {
    for (const char* text : {R"("Klingon")", R"("")", R"("English ")"}) {
        const auto parsed = Parse<CFG_LANGUAGE_INFO>("Language", text);
        ASSERT_TRUE(parsed) << text;
        EXPECT_EQ(parsed.length, sizeof(CFG_LANGUAGE_INFO));
        EXPECT_EQ(parsed->emLanguage, CFG_LANGUAGE_UNKNOWN) << text;
    }
}

TEST(Language, OtherTypesThanATextFail) {
    for (const char* table : {"{ }", R"({ "Language" : "English" })", R"([ "English" ])", "0", "true", "null"}) {
        const auto parsed = Parse<CFG_LANGUAGE_INFO>("Language", table);
        EXPECT_FALSE(parsed) << table;
        EXPECT_EQ(parsed.length, kNoLength) << table;
        EXPECT_TRUE(parsed.isCleared()) << table;
    }
    EXPECT_FALSE((ParseDocument<CFG_LANGUAGE_INFO>("Language", R"({ "params" : { "table" : "English" } })")));
}

TEST(Language, CodesOutOfRangeAreWrittenEmpty) {
    for (const std::int32_t code : {-1, 38, INT32_MAX, INT32_MIN})
        EXPECT_EQ(Pack("Language", CFG_LANGUAGE_INFO{code}), R"("")") << code;
    EXPECT_EQ(Pack("Language", CFG_LANGUAGE_INFO{37}), R"("Bosnian")");
}

TEST(Language, ATextMustBeShorterThanItsBuffer) {
    const CFG_LANGUAGE_INFO record{CFG_LANGUAGE_THAI};
    EXPECT_EQ(PackBytes("Language", &record, sizeof record, 7), kFailed); // six characters and a newline
    EXPECT_EQ(PackBytes("Language", &record, sizeof record, 8), "\"Thai\"\n");
    EXPECT_EQ(PackBytes("Language", &record, sizeof record - 1, 8), kNotBegun);
}

// ---- AppEventLanguage ----

TEST(AppEventLanguage, ThereAndBack) {
    const std::string text = R"({ "AllLanguages" : [ "Dutch", "English", "Greek" ], "CurrLanguage" : "Thai" })";
    const auto parsed = Parse<CFG_APP_EVENT_LANGUAGE_INFO>("AppEventLanguage", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_APP_EVENT_LANGUAGE_INFO));
    EXPECT_EQ(parsed->emCurrLanguage, CFG_LANGUAGE_THAI);
    ASSERT_EQ(parsed->nLanguageNum, 3);
    EXPECT_EQ(parsed->emAllLanguages[0], CFG_LANGUAGE_DUTCH);
    EXPECT_EQ(parsed->emAllLanguages[1], CFG_LANGUAGE_ENGLISH);
    EXPECT_EQ(parsed->emAllLanguages[2], CFG_LANGUAGE_GREEK);
    EXPECT_EQ(parsed->emAllLanguages[3], 0);
    EXPECT_EQ(Pack("AppEventLanguage", *parsed), text);
}

TEST(AppEventLanguage, UnknownTextsAreWrittenEmpty) {
    const auto parsed = Parse<CFG_APP_EVENT_LANGUAGE_INFO>(
        "AppEventLanguage", R"({ "CurrLanguage" : "Elvish", "AllLanguages" : [ "Elvish", 7, null, "THAI" ] })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->emCurrLanguage, -1);
    ASSERT_EQ(parsed->nLanguageNum, 4);
    EXPECT_EQ(parsed->emAllLanguages[0], -1);
    EXPECT_EQ(parsed->emAllLanguages[1], -1);
    EXPECT_EQ(parsed->emAllLanguages[2], -1);
    EXPECT_EQ(parsed->emAllLanguages[3], CFG_LANGUAGE_THAI);
    EXPECT_EQ(Pack("AppEventLanguage", *parsed), R"({ "AllLanguages" : [ "", "", "", "Thai" ], "CurrLanguage" : "" })");
}

TEST(AppEventLanguage, KeepsSixtyFourLanguages) {
    const auto list = [](int count) { return ListText(count, [](int i) { return Quoted(kNames[i % kNameCount]); }); };
    auto parsed = Parse<CFG_APP_EVENT_LANGUAGE_INFO>("AppEventLanguage", R"({ "AllLanguages" : )" + list(65) + " }");
    EXPECT_EQ(parsed->nLanguageNum, 64);
    EXPECT_EQ(parsed->emAllLanguages[63], 63 - kNameCount);
    parsed.record->nLanguageNum = 65;
    EXPECT_EQ(Pack("AppEventLanguage", *parsed),
              R"({ "AllLanguages" : )" + list(64) + R"(, "CurrLanguage" : "English" })");
    parsed.record->nLanguageNum = 0;
    EXPECT_EQ(Pack("AppEventLanguage", *parsed), R"({ "CurrLanguage" : "English" })");
}

} // namespace
} // namespace orrery::test
