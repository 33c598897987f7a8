/* The alarm side of devices: faults that they watch themselves for, alarms of vehicles and counters, arming, inputs,
 * outputs and boxes, and the servers that they report to. */
#ifndef ORRERY_ALARM_DEVICE_H
#define ORRERY_ALARM_DEVICE_H

#include "orrery/alarm_device_arming.h"
#include "orrery/alarm_device_faults.h"
#include "orrery/alarm_device_hardware.h"
#include "orrery/alarm_device_servers.h"
#include "orrery/alarm_device_vehicle.h"

#endif
