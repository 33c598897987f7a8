#include "media/StroboscopicLamp.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

PART(kLamp, CFG_STROBOSCOPIC_LAMP,
     {
         FIELD(nMode, "Mode", Int),
         FIELD(nValue, "Value", Int),
         FIELD(nPole, "Pole", Int),
         FIELD(nPreValue, "PreValue", Int),
         FIELD(nDutyCycle, "DutyCycle", Int),
         FIELD(nFrequencyMultiple, "FrequencyMultiple", Int),
         FIELD(dwReserved),
         FIELD(nStroboscopicMode, "StroboscopicMode", Int),
         FIELD(nPreTime, "PreTime", Int),
         FIELD(nPulseWidth, "PulseWidth", Int),
         FIELD(nDelayTime, "DelayTime", Int),
         FIELD(nFrequency, "Frequency", Int),
         FIELD(nPortCount),
         FIELD(byPorts, "Port", Int).Count(AT(nPortCount)).AnyShape(),
     });

} // namespace

std::uint32_t StroboscopicLampLength(const std::byte* record) {
    return MEMBER(record, CFG_STROBOSCOPIC_LAMP_INFO, nCount) * std::uint32_t{sizeof(CFG_STROBOSCOPIC_LAMP_INFO)};
}

TABLE(kStroboscopicLamp, CFG_STROBOSCOPIC_LAMP_INFO,
      {
          FIELD(nCount),
          FIELD(stuLamps, "", Record(kLamp)).Count(AT(nCount)).AnyShape(),
      });

} // namespace orrery
