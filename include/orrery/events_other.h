/* Records of the events that are neither of the traffic nor of an analysed scene: alarms and captures, vehicles on the
 * road, doors and identity cards. */
#ifndef ORRERY_EVENTS_OTHER_H
#define ORRERY_EVENTS_OTHER_H

#include "orrery/events_other_access.h"
#include "orrery/events_other_alarm.h"
#include "orrery/events_other_fleet.h"

#endif
