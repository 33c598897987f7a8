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
          HEAD_A,
          OBJECTS,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
      });

TABLE(kDensityDetection, DEV_EVENT_DENSITYDETECTION_INFO,
      {
          HEAD_A,
          OBJECTS,
          ACTION_AND_REPEAT,
          DETECT_REGION,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          FIELD(nUnit, "Unit", Int),
          FIELD(nValue, "Value", Int),
      });

TABLE(kObjectDetection, DEV_EVENT_OBJECTDETECTION_INFO,
      {
          HEAD_A,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          ALL_OBJECTS,
          EVENT_CLASS,
      });

TABLE(kVideoAbnormalDetection, DEV_EVENT_VIDEOABNORMALDETECTION_INFO,
      {
          HEAD_A,
          FILE_INFO,
          ACTION,
          FIELD(byType, "Type", Names(kVideoTroubles)),
          REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
      });

TABLE(kAudioAbnormalDetection, DEV_EVENT_AUDIOABNORMALDETECTION_INFO,
      {
          HEAD_A,
          FILE_INFO,
          FIELD(nDecibel, "Decibel", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          FIELD(nFrequency, "Frequency", Int),
      });

TABLE(kNearDistanceDetection, DEV_EVENT_NEARDISTANCEDETECTION_INFO,
      {
          HEAD_SHORT,
          ACTION,
          EVENT_CLASS,
      });

TABLE(kTumbleDetection, DEV_EVENT_TUMBLEDETECTION_INFO,
      {
          HEAD_SHORT,
          EVENT_CLASS_OR_TRAFFIC,
          FIELD(dwUTCMS, "UTCMS", UInt),
          FIELD(nObjectID, "ObjectID", Int),
          FIELD(szObjectType, "Object/ObjectType", Text),
          FIELD(stuBoundingBox, "Object/BoundingBox", Record(kBox)).AtLeast(4),
      });

TABLE(kManStandDetection, DEV_EVENT_MANSTANDDETECTION_INFO,
      {
          HEAD_UNTIMED,
          ACTION_NUMBER,
          FIELD(nManNum),
          FIELD(stuMan, "ManList", Record(kManStand)).Count(AT(nManNum)),
          EVENT_CLASS,
      });

TABLE(kManNumDetection, DEV_EVENT_MANNUMDETECTION_INFO,
      {
          HEAD_UNTIMED,
          ACTION_NUMBER,
          FIELD(nManNum),
          FIELD(stuMan, "ManList", Record(kManNum)).Count(AT(nManNum)),
          EVENT_CLASS,
      });

TABLE(kRoadConstruction, DEV_EVENT_ROADCONSTRUCTION_INFO,
      {
          HEAD_UNTIMED,
          ACTION_NUMBER,
          EVENT_CLASS_OR_TRAFFIC,
          FIELD(stuBoundingBox, "BoundingBox", Record(kBox)).AtLeast(4),
      });

TABLE(kPedestrianJunction, DEV_EVENT_PEDESTRIANJUNCTION_INFO,
      {
          CHANNEL,
          RULE_NAME,
          GROUP_NUMBERS,
          TIME_STAMP,
          UTC,
          FIELD(dwUTCMS, "UTCMS", UInt),
          EVENT_ID,
          FILE_INFO,
          OBJECT,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
      });

TABLE(kSmartMotionHuman, DEV_EVENT_SMARTMOTIONHUMAN_INFO,
      {
          CHANNEL,
          ACTION_NUMBER,
          RULE_NAME,
          TIME_STAMP,
          UTC,
      });

} // namespace orrery::events
