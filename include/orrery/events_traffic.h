/* Records of traffic events: a vehicle, or what becomes of the road. */
#ifndef ORRERY_EVENTS_TRAFFIC_H
#define ORRERY_EVENTS_TRAFFIC_H

#include "orrery/events_traffic_conduct.h"
#include "orrery/events_traffic_driving.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/events_traffic_junction.h"
#include "orrery/events_traffic_parking.h"

#endif
