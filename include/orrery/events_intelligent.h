/* Records of intelligent events: what the analysis of a scene sees happen. */
#ifndef ORRERY_EVENTS_INTELLIGENT_H
#define ORRERY_EVENTS_INTELLIGENT_H

#include "orrery/events_intelligent_crossing.h"
#include "orrery/events_intelligent_detection.h"
#include "orrery/events_intelligent_face.h"
#include "orrery/events_intelligent_person.h"
#include "orrery/events_intelligent_recognition.h"
#include "orrery/events_intelligent_region.h"
#include "orrery/events_intelligent_statistics.h"

#endif
