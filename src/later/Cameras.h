// Cameras of later devices: masks, texts in the picture, lamps, heads, snapshots.
#pragma once

#include "frame/record/Table.h"

#include "orrery/cameras.h"

namespace orrery {

extern const record::TypedTable<CFG_VIDEO_MOSAIC_INFO> kVideoMosaic;
extern const record::TypedTable<CFG_TRAFFIC_SNAP_MOSAIC_INFO> kTrafficSnapMosaic;
extern const record::TypedTable<CFG_PRIVACY_MASKING_INFO> kPrivacyMasking;
extern const record::TypedTable<CFG_OSD_SYS_ABNORMAL_INFO> kOsdSysAbnormal;
extern const record::TypedTable<CFG_VIDEO_WIDGET2_INFO> kVideoWidget2;
extern const record::TypedTable<CFG_VIDEO_WIDGET_NUMBER_STAT_INFO> kVideoWidgetNumberStat;
extern const record::TypedTable<CFG_ATMOSPHERE_OSD_INFO> kAtmosphereOsd;
extern const record::TypedTable<CFG_LASER_DIST_MEASURE_INFO> kLaserDistMeasure;
extern const record::TypedTable<CFG_LIGHTING_V2_INFO> kLightingV2;
extern const record::TypedTable<CFG_NET_AUTO_ADAPT_ENCODE_INFO> kNetAutoAdaptEncode;
extern const record::TypedTable<CFG_FREE_COMBINATION_INFO> kFreeCombination;
extern const record::TypedTable<CFG_TS_POINT_INFO> kTsPoint;
extern const record::TypedTable<CFG_POWER_UP_INFO> kPowerUp;
extern const record::TypedTable<CFG_PTZ_DEVICE_INFO> kPtzDevice;
extern const record::TypedTable<CFG_SCENE_SNAP_SHOT_INFO> kSceneSnapShot;

} // namespace orrery
