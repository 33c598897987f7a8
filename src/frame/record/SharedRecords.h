// Tables of the small records that many families share. Those that a codec takes whole have rows without keys: they
// lay the record out for tools.
#pragma once

#include "frame/record/Table.h"

#include "orrery/types.h"

namespace orrery::record {

PART(kTimeSection, CFG_TIME_SECTION,
     {
         FIELD(dwMask),
         FIELD(nBeginHour),
         FIELD(nBeginMin),
         FIELD(nBeginSec),
         FIELD(nEndHour),
         FIELD(nEndMin),
         FIELD(nEndSec),
     });
template <>
inline constexpr const Table* kLayoutOf<CFG_TIME_SECTION> = &kTimeSection;

PART(kTimeSchedule, CFG_TIME_SCHEDULE,
     {
         FIELD(bEnableHoliday),
         FIELD(stuTimeSection),
     });
template <>
inline constexpr const Table* kLayoutOf<CFG_TIME_SCHEDULE> = &kTimeSchedule;

PART(kNetTime, NET_TIME,
     {
         FIELD(dwYear),
         FIELD(dwMonth),
         FIELD(dwDay),
         FIELD(dwHour),
         FIELD(dwMinute),
         FIELD(dwSecond),
     });
template <>
inline constexpr const Table* kLayoutOf<NET_TIME> = &kNetTime;

PART(kNetTimeEx, NET_TIME_EX,
     {
         FIELD(dwYear),
         FIELD(dwMonth),
         FIELD(dwDay),
         FIELD(dwHour),
         FIELD(dwMinute),
         FIELD(dwSecond),
         FIELD(dwMillisecond),
     });
template <>
inline constexpr const Table* kLayoutOf<NET_TIME_EX> = &kNetTimeEx;

PART(kNetTimeV2, NET_TIME_V2,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(stuTime, "", NetTime),
     })
    .Guarded();
static_assert(sizeof(NET_TIME_V2) == 28);

PART(kPoint, CFG_POINT,
     {
         FIELD(nX, "", Int),
         FIELD(nY, "", Int),
     })
    .As(Shape::Tuple);
PART(kSize, CFG_SIZE,
     {
         FIELD(fWidth, "", Int).WrittenAs(Real),
         FIELD(fHeight, "", Int).WrittenAs(Real),
     })
    .As(Shape::Tuple);
PART(kRect, CFG_RECT,
     {
         FIELD(nLeft, "", Int),
         FIELD(nTop, "", Int),
         FIELD(nRight, "", Int),
         FIELD(nBottom, "", Int),
     })
    .As(Shape::Tuple);
PART(kColor, CFG_COLOR,
     {
         FIELD(nRed, "", Int),
         FIELD(nGreen, "", Int),
         FIELD(nBlue, "", Int),
         FIELD(nAlpha, "", Int),
     })
    .As(Shape::Tuple);

// Numbers behind a pointer of the caller's: FIELD(pnPorts, "Ports", Int32s).Capacity(AT(nMaxPorts)).
struct Int32 {
    std::int32_t nValue;
};
PART(kInt32, Int32,
     {
         FIELD(nValue, "", Int).Always(),
     });
inline constexpr Nested<std::int32_t> Int32s{&kInt32};

} // namespace orrery::record
