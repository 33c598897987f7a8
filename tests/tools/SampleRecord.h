// A record with a member of every kind that tables know, pointers included, which few commands have.
#pragma once

#include "frame/record/Table.h"

namespace orrery::tool {

struct SAMPLE_ITEM {
    std::uint32_t dwSize;
    std::int32_t nValue;
    char szName[8];
};

struct SAMPLE_INFO {
    std::uint32_t dwSize;
    std::int8_t nTiny;
    std::uint8_t byTiny;
    std::int16_t nShort;
    std::uint16_t wShort;
    char szName[6];
    std::int64_t nLong;
    std::uint64_t dwLong;
    float fReal;
    std::int32_t bEnable;
    double dReal;
    std::int32_t emColor;
    std::int32_t nSplit;
    std::int32_t nNumberCount;
    std::int32_t nNumbers[4];
    std::int32_t nMaxItems;
    std::int32_t nItemCount;
    char szTexts[2][4];
    SAMPLE_ITEM* pstuItems;
    SAMPLE_ITEM stuGrid[2][3];
};

NAMES(kColors, record::kFolded.Unknown(7),
      {
          {1, "Red"},
          {2, "Green"},
          {-3, "Blue", record::Compare::Exact},
      });

using record::Bool;
using record::Int;
using record::Names;
using record::Real;
using record::Record;
using record::Size;
using record::SplitMode;
using record::Text;
using record::UInt;

PART(kSampleItem, SAMPLE_ITEM,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(nValue, "Value", Int),
         FIELD(szName, "Name", Text),
     });

PART(kSample, SAMPLE_INFO,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(nTiny, "Tiny", Int),
         FIELD(byTiny, "UTiny", UInt),
         FIELD(nShort, "Short", Int),
         FIELD(wShort, "UShort", UInt),
         FIELD(szName, "Name", Text),
         FIELD(nLong, "Long", Int),
         FIELD(dwLong, "ULong", UInt),
         FIELD(fReal, "Real", Real),
         FIELD(bEnable, "Enable", Bool),
         FIELD(dReal, "Double", Real),
         FIELD(emColor, "Color", Names(kColors)),
         FIELD(nSplit, "Split", SplitMode),
         FIELD(nNumberCount),
         FIELD(nNumbers, "Numbers", Int).Count(AT(nNumberCount)),
         FIELD(nMaxItems),
         FIELD(nItemCount),
         FIELD(szTexts, "Texts", Text),
         FIELD(pstuItems, "Items", Record(kSampleItem)).Capacity(AT(nMaxItems)).Count(AT(nItemCount)),
         FIELD(stuGrid, "Grid", Record(kSampleItem)),
     });

} // namespace orrery::tool
