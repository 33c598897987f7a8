/* Commands with a record of one switch. */
#ifndef ORRERY_GENERAL_H
#define ORRERY_GENERAL_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "G3G4AutoChange" (change between mobile network generations by itself), "CabinLedTimeSchedule" (cabin lights by
 * schedule), "PwdReset" (password reset allowed). */
typedef struct CFG_ENABLE_INFO {
    uint32_t bEnable; /* "Enable": 1 on, 0 off or absent */
} CFG_ENABLE_INFO;

#ifdef __cplusplus
}
#endif

#endif
