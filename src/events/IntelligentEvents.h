// The tables of the intelligent events.
#pragma once

#include "events/EventContext.h"

#include "orrery/events_intelligent.h"

namespace orrery::events {

extern const TypedTable<DEV_EVENT_CROSSLINEDETECTION_INFO> kCrossLineDetection;
extern const TypedTable<DEV_EVENT_CROSSLINE_EX_INFO> kCrossLineEx;
extern const TypedTable<DEV_EVENT_CROSSREGIONDETECTION_INFO> kCrossRegionDetection;
extern const TypedTable<DEV_EVENT_PASTEDETECTION_INFO> kPasteDetection;
extern const TypedTable<DEV_EVENT_LEFTDETECTION_INFO> kLeftDetection;
extern const TypedTable<DEV_EVENT_STAYDETECTION_INFO> kStayDetection;
extern const TypedTable<DEV_EVENT_WANDERDETECTION_INFO> kWanderDetection;
extern const TypedTable<DEV_EVENT_MOVEDETECTION_INFO> kMoveDetection;
extern const TypedTable<DEV_EVENT_RIOTERDETECTION_INFO> kRioterDetection;
extern const TypedTable<DEV_EVENT_SMOKEDETECTION_INFO> kSmokeDetection;
extern const TypedTable<DEV_EVENT_FLOWSTAT_INFO> kFlowStat;
extern const TypedTable<DEV_EVENT_NUMBERSTAT_INFO> kNumberStat;
extern const TypedTable<DEV_EVENT_VIDEOABNORMALDETECTION_INFO> kVideoAbnormalDetection;
extern const TypedTable<DEV_EVENT_FACEDETECTION_INFO> kFaceDetection;
extern const TypedTable<DEV_EVENT_ELECTROSPARKDETECTION_INFO> kElectroSparkDetection;
extern const TypedTable<DEV_EVENT_RUNDETECTION_INFO> kRunDetection;
extern const TypedTable<DEV_EVENT_RETROGRADEDETECTION_INFO> kRetrogradeDetection;
extern const TypedTable<DEV_EVENT_TAKENAWAYDETECTION_INFO> kTakenAwayDetection;
extern const TypedTable<DEV_EVENT_PARKINGDETECTION_INFO> kParkingDetection;
extern const TypedTable<DEV_EVENT_FACERECOGNITION_INFO> kFaceRecognition;
extern const TypedTable<DEV_EVENT_PRISONERRISEDETECTION_INFO> kPrisonerRiseDetection;
extern const TypedTable<DEV_EVENT_CROSSFENCEDETECTION_INFO> kCrossFenceDetection;
extern const TypedTable<DEV_EVENT_DENSITYDETECTION_INFO> kDensityDetection;
extern const TypedTable<DEV_EVENT_QUEUEDETECTION_INFO> kQueueDetection;
extern const TypedTable<DEV_EVENT_AUDIOABNORMALDETECTION_INFO> kAudioAbnormalDetection;
extern const TypedTable<DEV_EVENT_CLIMBDETECTION_INFO> kClimbDetection;
extern const TypedTable<DEV_EVENT_LEAVEDETECTION_INFO> kLeaveDetection;
extern const TypedTable<DEV_EVENT_OBJECTDETECTION_INFO> kObjectDetection;
extern const TypedTable<DEV_EVENT_GETOUTBEDDETECTION_INFO> kGetOutBedDetection;
extern const TypedTable<DEV_EVENT_NEARDISTANCEDETECTION_INFO> kNearDistanceDetection;
extern const TypedTable<DEV_EVENT_PERSONFEATURE_INFO> kPersonFeature;
extern const TypedTable<DEV_EVENT_NONMOTORFEATURE_INFO> kNonMotorFeature;
extern const TypedTable<DEV_EVENT_TUMBLEDETECTION_INFO> kTumbleDetection;
extern const TypedTable<DEV_EVENT_MANSTANDDETECTION_INFO> kManStandDetection;
extern const TypedTable<DEV_EVENT_MANNUMDETECTION_INFO> kManNumDetection;
extern const TypedTable<DEV_EVENT_HUMANTRAIT_INFO> kHumanTrait;
extern const TypedTable<DEV_EVENT_ROADCONSTRUCTION_INFO> kRoadConstruction;
extern const TypedTable<DEV_EVENT_XRAYDETECTION_INFO> kXRayDetection;
extern const TypedTable<DEV_EVENT_CROWDDETECTION_INFO> kCrowdDetection;
extern const TypedTable<DEV_EVENT_PEDESTRIANJUNCTION_INFO> kPedestrianJunction;
extern const TypedTable<DEV_EVENT_VEHICLERECOGNITION_INFO> kVehicleRecognition;
extern const TypedTable<DEV_EVENT_SMARTMOTIONHUMAN_INFO> kSmartMotionHuman;

// Code 337 for a crossing that tells of several objects or of a person, 2 for any other.
std::uint32_t CrossLineCode(const json::Value& data) noexcept;

} // namespace orrery::events

// ---- Rows that several of these records have ----

// The head of records that keep nothing behind the name.
#define EV_HEAD_SHORT EV_CHANNEL, EV_RULE_NAME, EV_TIME_STAMP, EV_UTC, EV_ID
// What opens records without a time.
#define EV_HEAD_UNTIMED EV_CHANNEL, EV_RULE_NAME, EV_ID
#define EV_ACTION_NUMBER ORRERY_FROM_EVENT(byEventAction, nAction)
#define EV_OBJECTS                                                                                                     \
    FIELD(nObjectNum), FIELD(stuObjects, "Objects", Record(::orrery::events::kObject)).Count(AT(nObjectNum))
// As many objects as the text has, in a block of their own.
#define EV_ALL_OBJECTS                                                                                                 \
    FIELD(nObjectNum), FIELD(pObjects, "Objects", Record(::orrery::events::kObjectEx))                                 \
                           .Owned("New pstObjectInfo Failed")                                                          \
                           .Count(AT(nObjectNum))
#define EV_DETECT_REGION EV_POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion")
#define EV_TRACK EV_POINTS(stuTrack, nTrackNum, "Track")
#define EV_CLASS_OR_TRAFFIC FIELD(emClass, "Class", Names(::orrery::events::kSceneClassesWithTraffic))
#define EV_GROUP_NUMBERS                                                                                               \
    FIELD(nGroupID, "GroupID", Int), FIELD(nCountInGroup, "CountInGroup", Int),                                        \
        FIELD(nIndexInGroup, "IndexInGroup", Int)
