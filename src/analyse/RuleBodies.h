// The tables of the records behind an item of a rule buffer, over the rule's object.
#pragma once

#include "frame/record/Table.h"

#include "orrery/rule_bodies.h"
#include "orrery/traffic_rules.h"

namespace orrery::rules {

extern const record::TypedTable<CFG_RULE_CROSSLINE_INFO> kCrossLine;
extern const record::TypedTable<CFG_RULE_CROSSFENCE_INFO> kCrossFence;
extern const record::TypedTable<CFG_RULE_CROSSREGION_INFO> kCrossRegion;
extern const record::TypedTable<CFG_RULE_FIRE_INFO> kFire;
extern const record::TypedTable<CFG_RULE_PRESERVATION_INFO> kPreservation;
extern const record::TypedTable<CFG_RULE_FIGHT_INFO> kFight;
extern const record::TypedTable<CFG_RULE_MOVE_INFO> kMove;
extern const record::TypedTable<CFG_RULE_STAY_INFO> kStay;
extern const record::TypedTable<CFG_RULE_LEFT_INFO> kLeft;
extern const record::TypedTable<CFG_RULE_RIOTER_INFO> kRioter;
extern const record::TypedTable<CFG_RULE_FLOWSTAT_INFO> kFlowStat;
extern const record::TypedTable<CFG_RULE_NUMBERSTAT_INFO> kNumberStat;
extern const record::TypedTable<CFG_RULE_RETROGRADE_INFO> kRetrograde;
extern const record::TypedTable<CFG_RULE_DENSITY_INFO> kDensity;
extern const record::TypedTable<CFG_RULE_RUN_INFO> kRun;
extern const record::TypedTable<CFG_RULE_VIDEOABNORMAL_INFO> kVideoAbnormal;
extern const record::TypedTable<CFG_RULE_FACERECOGNITION_INFO> kFaceRecognition;
extern const record::TypedTable<CFG_RULE_FACEDETECTION_INFO> kFaceDetection;
extern const record::TypedTable<CFG_RULE_FACEANALYSIS_INFO> kFaceAnalysis;
extern const record::TypedTable<CFG_RULE_PRISONERRISE_INFO> kPrisonerRise;
extern const record::TypedTable<CFG_RULE_QUEUE_INFO> kQueue;
extern const record::TypedTable<CFG_RULE_AUDIOABNORMAL_INFO> kAudioAbnormal;
extern const record::TypedTable<CFG_RULE_CLIMB_INFO> kClimb;
extern const record::TypedTable<CFG_RULE_LEAVE_INFO> kLeave;
extern const record::TypedTable<CFG_RULE_GETOUTBED_INFO> kGetOutBed;
extern const record::TypedTable<CFG_RULE_PATROL_INFO> kPatrol;
extern const record::TypedTable<CFG_RULE_ONDUTY_INFO> kOnDuty;
extern const record::TypedTable<CFG_RULE_HEATMAP_INFO> kHeatMap;
extern const record::TypedTable<CFG_RULE_STANDUP_INFO> kStandUp;
extern const record::TypedTable<CFG_RULE_SHOOTINGSCORE_INFO> kShootingScore;
extern const record::TypedTable<CFG_RULE_LETRACK_INFO> kLeTrack;
extern const record::TypedTable<CFG_RULE_MANSTAND_INFO> kManStand;
extern const record::TypedTable<CFG_RULE_STEREONUMBERSTAT_INFO> kStereoNumberStat;
extern const record::TypedTable<CFG_RULE_CROWD_INFO> kCrowd;
extern const record::TypedTable<CFG_RULE_TRAFFICCONTROL_INFO> kTrafficControl;
extern const record::TypedTable<CFG_RULE_TRAFFICACCIDENT_INFO> kTrafficAccident;
extern const record::TypedTable<CFG_RULE_TRAFFICJUNCTION_INFO> kTrafficJunction;
extern const record::TypedTable<CFG_RULE_TRAFFICGATE_INFO> kTrafficGate;
extern const record::TypedTable<CFG_RULE_TRAFFICJAM_INFO> kTrafficJam;
extern const record::TypedTable<CFG_RULE_TRAFFICPARKING_INFO> kTrafficParking;
extern const record::TypedTable<CFG_RULE_TRAFFICRUNRED_INFO> kTrafficRunRed;
extern const record::TypedTable<CFG_RULE_TRAFFICLANE_INFO> kTrafficLane;
extern const record::TypedTable<CFG_RULE_TRAFFICBUSLANE_INFO> kTrafficBusLane;
extern const record::TypedTable<CFG_RULE_TRAFFICOVERYELLOW_INFO> kTrafficOverYellow;
extern const record::TypedTable<CFG_RULE_TRAFFICUTURN_INFO> kTrafficUTurn;
extern const record::TypedTable<CFG_RULE_TRAFFICSPEED_INFO> kTrafficSpeed;
extern const record::TypedTable<CFG_RULE_TRAFFICTOLLGATE_INFO> kTrafficTollGate;
extern const record::TypedTable<CFG_RULE_TRAFFICRETROGRADE_INFO> kTrafficRetrograde;
extern const record::TypedTable<CFG_RULE_TRAFFICPRIORITY_INFO> kTrafficPriority;
extern const record::TypedTable<CFG_RULE_TRAFFICYELLOWBOX_INFO> kTrafficYellowBox;
extern const record::TypedTable<CFG_RULE_TRAFFICPARKINGSPACE_INFO> kTrafficParkingSpace;
extern const record::TypedTable<CFG_RULE_TRAFFICSPACEOVERLINE_INFO> kTrafficSpaceOverLine;
extern const record::TypedTable<CFG_RULE_TRAFFICSAFEBELT_INFO> kTrafficSafeBelt;
extern const record::TypedTable<CFG_RULE_TRAFFICDRIVER_INFO> kTrafficDriver;
extern const record::TypedTable<CFG_RULE_TRAFFICPEDESTRAIN_INFO> kTrafficPedestrain;
extern const record::TypedTable<CFG_RULE_TRAFFICPASS_INFO> kTrafficPass;
extern const record::TypedTable<CFG_RULE_VEHICLEANALYSE_INFO> kVehicleAnalyse;
extern const record::TypedTable<CFG_RULE_ROADEVENT_INFO> kRoadEvent;

} // namespace orrery::rules
