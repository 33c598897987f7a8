#include "device/Locale.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kLanguages, kFolded.Unknown(CFG_LANGUAGE_UNKNOWN).OutsideWrites(""),
      {
          {CFG_LANGUAGE_ENGLISH, "English"},
          {CFG_LANGUAGE_SIMP_CHINESE, "SimpChinese"},
          {CFG_LANGUAGE_TRAD_CHINESE, "TradChinese"},
          {CFG_LANGUAGE_ITALIAN, "Italian"},
          {CFG_LANGUAGE_SPANISH, "Spanish"},
          {CFG_LANGUAGE_JAPANESE, "Japanese"},
          {CFG_LANGUAGE_RUSSIAN, "Russian"},
          {CFG_LANGUAGE_FRENCH, "French"},
          {CFG_LANGUAGE_GERMAN, "German"},
          {CFG_LANGUAGE_PORTUGAL, "Portugal"},
          {CFG_LANGUAGE_TURKEY, "Turkey"},
          {CFG_LANGUAGE_POLAND, "Poland"},
          {CFG_LANGUAGE_ROMANIAN, "Romanian"},
          {CFG_LANGUAGE_HUNGARIAN, "Hungarian"},
          {CFG_LANGUAGE_FINNISH, "Finnish"},
          {CFG_LANGUAGE_ESTONIAN, "Estonian"},
          {CFG_LANGUAGE_KOREAN, "Korean"},
          {CFG_LANGUAGE_FARSI, "Farsi"},
          {CFG_LANGUAGE_DANSK, "Dansk"},
          {CFG_LANGUAGE_CZECHISH, "Czechish"},
          {CFG_LANGUAGE_BULGARIA, "Bulgaria"},
          {CFG_LANGUAGE_SLOVAKIAN, "Slovakian"},
          {CFG_LANGUAGE_SLOVENIA, "Slovenia"},
          {CFG_LANGUAGE_CROATIAN, "Croatian"},
          {CFG_LANGUAGE_DUTCH, "Dutch"},
          {CFG_LANGUAGE_GREEK, "Greek"},
          {CFG_LANGUAGE_UKRAINIAN, "Ukrainian"},
          {CFG_LANGUAGE_SWEDISH, "Swedish"},
          {CFG_LANGUAGE_SERBIAN, "Serbian"},
          {CFG_LANGUAGE_VIETNAMESE, "Vietnamese"},
          {CFG_LANGUAGE_LITHUANIAN, "Lithuanian"},
          {CFG_LANGUAGE_FILIPINO, "Filipino"},
          {CFG_LANGUAGE_ARABIC, "Arabic"},
          {CFG_LANGUAGE_CATALAN, "Catalan"},
          {CFG_LANGUAGE_LATVIAN, "Latvian"},
          {CFG_LANGUAGE_THAI, "Thai"},
          {CFG_LANGUAGE_HEBREW, "Hebrew"},
          {CFG_LANGUAGE_BOSNIAN, "Bosnian"},
      });
static_assert(kLanguages.count == CFG_LANGUAGE_COUNT && kLanguages.countsUp);

PART(kDstTime, CFG_DST_TIME,
     {
         FIELD(nYear, "Year", Int),
         FIELD(nMonth, "Month", Int),
         FIELD(nWeek, "Week", Int),
         FIELD(nDay, "Day", Int),
         FIELD(nHour, "Hour", Int),
         FIELD(nMinute, "Minute", Int),
     });

} // namespace

TABLE(kLocales, CFG_LOCALES_INFO,
      {
          FIELD(szTimeFormat, "TimeFormat", Text),
          FIELD(bDSTEnable, "DSTEnable", Bool),
          FIELD(stuDSTStart, "DSTStart", Record(kDstTime)),
          FIELD(stuDSTEnd, "DSTEnd", Record(kDstTime)),
      });

TABLE(kLanguage, CFG_LANGUAGE_INFO,
      {
          FIELD(emLanguage, "", Names(kLanguages)),
      });

TABLE(kAppEventLanguage, CFG_APP_EVENT_LANGUAGE_INFO,
      {
          FIELD(emCurrLanguage, "CurrLanguage", Names(kLanguages)),
          FIELD(nLanguageNum),
          FIELD(emAllLanguages, "AllLanguages", Names(kLanguages)).Count(AT(nLanguageNum)),
      });

} // namespace orrery
