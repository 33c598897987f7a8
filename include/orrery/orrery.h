/* Orrery turns the JSON text of cameras, recorders, intelligent-video servers and door stations into plain fixed-layout
 * records, and records back into the exact text that devices expect. It opens no socket, keeps no state and starts no
 * thread: any number of threads may call at once, each on buffers of its own.
 *
 * Every function answers non-zero for success and 0 for failure, and says nothing more.
 *
 * Stack: a parse needs at most 40 KB of it, a pack 28 KB, events 56 KB up to their callback, which has what is left: 96
 * KB hold events whose callback parses a configuration. The C library takes its own when it loads a converter of
 * texts, at the first text under a locale that needs one. */
#ifndef ORRERY_ORRERY_H
#define ORRERY_ORRERY_H

#include "orrery/access_control.h"
#include "orrery/alarm_caps.h"
#include "orrery/alarm_device.h"
#include "orrery/alarm_input.h"
#include "orrery/analyse_caps.h"
#include "orrery/analyse_modules.h"
#include "orrery/analyse_rules.h"
#include "orrery/audio.h"
#include "orrery/calls.h"
#include "orrery/cameras.h"
#include "orrery/comm_attribute.h"
#include "orrery/device_alarm.h"
#include "orrery/device_equipment.h"
#include "orrery/device_network.h"
#include "orrery/device_settings.h"
#include "orrery/device_status.h"
#include "orrery/device_vehicle.h"
#include "orrery/diagnosis.h"
#include "orrery/display.h"
#include "orrery/encode.h"
#include "orrery/encode_caps.h"
#include "orrery/event_codes.h"
#include "orrery/event_types.h"
#include "orrery/events_intelligent.h"
#include "orrery/events_other.h"
#include "orrery/events_traffic.h"
#include "orrery/events_typed.h"
#include "orrery/fleet.h"
#include "orrery/general.h"
#include "orrery/home.h"
#include "orrery/intercom.h"
#include "orrery/linkage.h"
#include "orrery/monitor_wall.h"
#include "orrery/network.h"
#include "orrery/network_services.h"
#include "orrery/overlay.h"
#include "orrery/parking.h"
#include "orrery/ptz.h"
#include "orrery/ptz_caps.h"
#include "orrery/ptz_lines.h"
#include "orrery/record_transfer.h"
#include "orrery/remote_device.h"
#include "orrery/rule_bodies.h"
#include "orrery/scenes.h"
#include "orrery/services.h"
#include "orrery/thermography.h"
#include "orrery/tracker.h"
#include "orrery/traffic_flow.h"
#include "orrery/traffic_global.h"
#include "orrery/traffic_rules.h"
#include "orrery/traffic_snapshot.h"
#include "orrery/types.h"
#include "orrery/video_input.h"
#include "orrery/video_input_topics.h"
#include "orrery/video_talk.h"
#include "orrery/video_widget.h"
#include "orrery/wlan.h"

#endif
