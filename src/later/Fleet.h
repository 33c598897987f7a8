// Vehicles, roads, and the platforms that devices report to.
#pragma once

#include "frame/record/Table.h"

#include "orrery/fleet.h"

namespace orrery {

extern const record::TypedTable<CFG_VEHICLE_PLATE_INFO> kVehiclePlate;
extern const record::TypedTable<CFG_IDLING_TIME_INFO> kIdlingTime;
extern const record::TypedTable<CFG_CAR_DRIVER_STATE_INFO> kCarDriverState;
extern const record::TypedTable<CFG_TESSERA_RADAR_INFO> kTesseraRadar;
extern const record::TypedTable<CFG_RADAR_SPEED_MEASURE_INFO> kRadarSpeedMeasure;
extern const record::TypedTable<CFG_CUSTOM_AUDIO_INFO> kCustomAudio;
extern const record::TypedTable<CFG_POLICE_MAP_INFO> kPoliceMap;
extern const record::TypedTable<CFG_DEV_LOCATION_INFO> kDevLocation;
extern const record::TypedTable<CFG_DEVICE_IDENTITY_INFO> kDeviceIdentity;
extern const record::TypedTable<CFG_CHECK_CODE_INFO> kCheckCode;
extern const record::TypedTable<CFG_VSP_SCYDKD_INFO> kVspScydkd;
extern const record::TypedTable<CFG_PLATFORM_MONITOR_IPC_INFO> kPlatformMonitorIpc;
extern const record::TypedTable<CFG_DELAY_STRATEGY_INFO> kDelayStrategy;
extern const record::TypedTable<CFG_DROP_BOX_TOKEN_INFO> kDropBoxToken;

} // namespace orrery
