/* Commands with a record of one switch. */
#ifndef ORRERY_GENERAL_H
#define ORRERY_GENERAL_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "G3G4AutoChange" (change between mobile network generations by itself), "CabinLedTimeSchedule" (cabin lights by
 * schedule), "PwdReset" (password reset allowed), "LightGlobal" (all lights).
 *
 * "LightGlobal" may be a list too: an element a record, as many as fit, of which a null one leaves its record cleared
 * and is counted. A missing table and other types fail, an empty list succeeds with a length of 0. Written is one bare
 * record or a list of several. Of the others the length is added to what `returnedLength` holds. */
typedef struct CFG_ENABLE_INFO {
    uint32_t bEnable; /* "Enable": 1 on, 0 off or absent */
} CFG_ENABLE_INFO;

#ifdef __cplusplus
}
#endif

#endif
