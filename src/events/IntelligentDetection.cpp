// Intelligent events: many things at once, single people, devices that are tampered with.
#include "events/IntelligentEvents.h"

namespace orrery::events {

namespace {

NAMES(kVideoTroubles, kExact.Unknown(EVENT_VIDEO_OTHER),
      {
          {EVENT_VIDEO_LOSS, "Loss"},
          {EVENT_VIDEO_FROZEN, "Frozen"},
          {EVENT_VIDEO_BLIND, "Blind"},
          {EVENT_VIDEO_SCENE_CHANGE, "SceneChange"},
          {EVENT_VIDEO_DARK, "Dark"},
          {EVENT_VIDEO_LIGHT, "Light"},
          {EVENT_VIDEO_UNBALANCE, "Unbalance"},
          {EVENT_VIDEO_NOISE, "Noise"},
      });

PART(kManStand, EVENT_MAN_STAND_INFO,
     {
         FIELD(stuCenter, "Center", Record(kEventPoint)).AtLeast(2),
     });
// The devices spell the rectangle's key that way.
PART(kManNum, EVENT_MAN_NUM_INFO,
     {
         FIELD(stuCenter, "Center", Record(kEventPoint)).AtLeast(2),
         FIELD(nStature, "Stature", Int),
         FIELD(stuBoundingBox, "BoudingBox", Record(record::kRect)),
     });

} // namespace

TABLE(kRioterDetection, DEV_EVENT_RIOTERDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECTS,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
      });

TABLE(kDensityDetection, DEV_EVENT_DENSITYDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECTS,
          EV_ACTION_AND_REPEAT,
          EV_DETECT_REGION,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          FIELD(nUnit, "Unit", Int),
          FIELD(nValue, "Value", Int),
      });

TABLE(kObjectDetection, DEV_EVENT_OBJECTDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_ALL_OBJECTS,
          EV_CLASS,
      });

TABLE(kVideoAbnormalDetection, DEV_EVENT_VIDEOABNORMALDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION,
          FIELD(byType, "Type", Names(kVideoTroubles)),
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
      });

TABLE(kAudioAbnormalDetection, DEV_EVENT_AUDIOABNORMALDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          FIELD(nDecibel, "Decibel", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          FIELD(nFrequency, "Frequency", Int),
      });

TABLE(kNearDistanceDetection, DEV_EVENT_NEARDISTANCEDETECTION_INFO,
      {
          EV_HEAD_SHORT,
          EV_ACTION,
          EV_CLASS,
      });

TABLE(kTumbleDetection, DEV_EVENT_TUMBLEDETECTION_INFO,
      {
          EV_HEAD_SHORT,
          EV_CLASS_OR_TRAFFIC,
          FIELD(dwUTCMS, "UTCMS", UInt).ReadOnly(),
          FIELD(nObjectID, "ObjectID", Int),
          FIELD(szObjectType, "Object/ObjectType", Text),
          FIELD(stuBoundingBox, "Object/BoundingBox", Record(kBox)).AtLeast(4),
      });

TABLE(kManStandDetection, DEV_EVENT_MANSTANDDETECTION_INFO,
      {
          EV_HEAD_UNTIMED,
          EV_ACTION_NUMBER,
          FIELD(nManNum),
          FIELD(stuMan, "ManList", Record(kManStand)).Count(AT(nManNum)),
          EV_CLASS,
      });

TABLE(kManNumDetection, DEV_EVENT_MANNUMDETECTION_INFO,
      {
          EV_HEAD_UNTIMED,
          EV_ACTION_NUMBER,
          FIELD(nManNum),
          FIELD(stuMan, "ManList", Record(kManNum)).Count(AT(nManNum)),
          EV_CLASS,
      });

TABLE(kRoadConstruction, DEV_EVENT_ROADCONSTRUCTION_INFO,
      {
          EV_HEAD_UNTIMED,
          EV_ACTION_NUMBER,
          EV_CLASS_OR_TRAFFIC,
          FIELD(stuBoundingBox, "BoundingBox", Record(kBox)).AtLeast(4),
      });

TABLE(kPedestrianJunction, DEV_EVENT_PEDESTRIANJUNCTION_INFO,
      {
          EV_CHANNEL,
          EV_RULE_NAME,
          EV_GROUP_NUMBERS,
          EV_TIME_STAMP,
          EV_UTC,
          FIELD(dwUTCMS, "UTCMS", UInt).ReadOnly(),
          EV_ID,
          EV_FILE_INFO,
          EV_OBJECT,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
      });

TABLE(kSmartMotionHuman, DEV_EVENT_SMARTMOTIONHUMAN_INFO,
      {
          EV_CHANNEL,
          EV_ACTION_NUMBER,
          EV_RULE_NAME,
          EV_TIME_STAMP,
          EV_UTC,
      });

} // namespace orrery::events
