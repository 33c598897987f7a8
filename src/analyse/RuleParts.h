// The rows that the records of all rule types share, and the texts of their enumerations.
#pragma once

#include "alarm/EventHandler.h"
#include "analyse/SizeFilter.h"
#include "frame/record/Table.h"

#include "orrery/rule_bodies.h"
#include "orrery/traffic_rules.h"

namespace orrery::rules {

using namespace record;

// A rule being written: what its record does not hold itself. WriteCall::context points to it.
struct RuleItem : linkage::RuleWeek {
    std::uint32_t code;
    const std::byte* general; // CFG_RULE_GENERAL_INFO
};

// Written from the RuleItem.
extern const CustomCodec kClassCodec;
extern const CustomCodec kIdCodec;
extern const CustomCodec kTypeCodec;
extern const CustomCodec kNoConfigCodec;

// ---- Rows of the rule itself ----

inline constexpr Field kClassRow = MakeVirtual("Class", Custom(kClassCodec));
inline constexpr Field kIdRow = MakeVirtual("Id", Custom(kIdCodec));
inline constexpr Field kTypeRow = MakeVirtual("Type", Custom(kTypeCodec));
// Of a rule that has no settings of its own.
inline constexpr Field kNoConfigRow = MakeVirtual("Config", Custom(kNoConfigCodec));

#define RULE_NAME kTypeRow, FIELD(szRuleName, "Name", Text), FIELD(bRuleEnable, "Enable", Bool)
#define RULE_HEAD kClassRow, kIdRow, RULE_NAME
#define RULE_OBJECTS FIELD(nObjectTypeNum), FIELD(szObjectTypes, "ObjectTypes", Text).Count(AT(nObjectTypeNum))
#define RULE_WEEK FIELD(stuTimeSection, "EventHandler/TimeSection", Schedule).ReadOnly()
#define RULE_LINKAGE FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerRule)).WriteIfLinked(), RULE_WEEK
#define RULE_PRESET FIELD(nPtzPresetId, "PtzPresetId", Int)
#define RULE_TAIL RULE_LINKAGE, RULE_PRESET

// Whether an object is followed: some devices read the key where they write it, some elsewhere or not at all.
#define RULE_TRACK FIELD(bTrackEnable, "TrackEnable", Bool)
#define RULE_TRACK_READ_ONLY RULE_TRACK.ReadOnly()
#define RULE_TRACK_IN_CONFIG RULE_TRACK.ReadOnly(), RULE_CONFIG(bTrackEnable, "TrackEnable", Bool).Alias().WriteOnly()

// ---- Rows under "Config" ----

#define RULE_CONFIG(member, key, ...) FIELD(member, "Config/" key, __VA_ARGS__).KeepsObject()
#define RULE_CONFIG_SHAPE(count, points, key)                                                                          \
    FIELD(count), RULE_CONFIG(points, key, Record(kCorner))                                                            \
                      .Count(AT(count))                                                                                \
                      .NullElement(Nulls::LeaveHole)                                                                   \
                      .RefusedElement(Nulls::LeaveHole)
#define RULE_CONFIG_REGION RULE_CONFIG_SHAPE(nDetectRegionPoint, stuDetectRegion, "DetectRegion")
#define RULE_CONFIG_LINE RULE_CONFIG_SHAPE(nDetectLinePoint, stuDetectLine, "DetectLine")
#define RULE_CONFIG_FILTER                                                                                             \
    FIELD(bSizeFilter), RULE_CONFIG(stuSizeFilter, "SizeFilter", Record(kSizeFilter)).SetsAndNeeds(AT(bSizeFilter))
// A list of codes: a null leaves its place 0, uncounted; a code without a text is a null in its place.
#define RULE_CONFIG_CODES(count, codes, key, names)                                                                    \
    FIELD(count), RULE_CONFIG(codes, key, Names(names))                                                                \
                      .Count(AT(count))                                                                                \
                      .NullElement(Nulls::LeaveHole)                                                                   \
                      .WriteSkipped(Skipped::Hole)
// The same where every element counts, since a place of 0 stands for a text that is not known.
#define RULE_CONFIG_ALL_CODES(count, codes, key, names)                                                                \
    FIELD(count), RULE_CONFIG(codes, key, Names(names)).Count(AT(count)).WriteSkipped(Skipped::Hole)
#define RULE_CONFIG_POSITIONS                                                                                          \
    RULE_CONFIG_CODES(nTriggerPosition, byTriggerPosition, "TriggerPosition", kTriggerPositions)
// Devices count texts in bytes before they convert them.
#define RULE_CONFIG_TEXTS(count, texts, key)                                                                           \
    FIELD(count),                                                                                                      \
        RULE_CONFIG(texts, key, Text).Count(AT(count)).NullElement(Nulls::LeaveHole).FirstBytes(kMostTextBytes)
inline constexpr std::uint16_t kMostTextBytes = 192;

// ---- Parts ----

// A corner needs both its numbers.
PART(kCorner, CFG_POLYGON,
     {
         FIELD(nX, "", Int),
         FIELD(nY, "", Int),
     })
    .As(Shape::LongTuple);
// A missing number is 0.
inline constexpr TypedTable<CFG_POLYGON> kAnyCorner = kCorner.As(Shape::LooseTuple);

PART(kUnsignedCorner, CFG_POLYGON,
     {
         FIELD(nX, "", UInt),
         FIELD(nY, "", UInt),
     })
    .As(Shape::LongTuple);
PART(kBox, CFG_RULE_BOX,
     {
         FIELD(stuLeftTop, "", Record(kUnsignedCorner)),
         FIELD(stuRightBottom, "", Record(kUnsignedCorner)),
     })
    .As(Shape::LongTuple);

// Two limits of speed under one key, in the order of the text or against it.
extern const CustomCodec kSpeedsAscending;
extern const CustomCodec kSpeedsDescending;
extern const CustomCodec kUnsignedSpeedsDescending;

// ---- Texts of enumerations ----

NAMES(kTriggerPositions, kFolded,
      {
          {CFG_TRIGGER_CENTER, "Center"},
          {CFG_TRIGGER_LEFT_CENTER, "LeftCenter"},
          {CFG_TRIGGER_TOP_CENTER, "TopCenter"},
          {CFG_TRIGGER_RIGHT_CENTER, "RightCenter"},
          {CFG_TRIGGER_BOTTOM_CENTER, "BottomCenter"},
      });

// Case counts.
NAMES(kFaceFeatures, kExact,
      {
          {CFG_FACE_FEATURE_SEX, "Sex"},
          {CFG_FACE_FEATURE_AGE, "Age"},
          {CFG_FACE_FEATURE_EMOTION, "Emotion"},
          {CFG_FACE_FEATURE_GLASSES, "Glasses"},
          {CFG_FACE_FEATURE_RACE, "Race"},
          {CFG_FACE_FEATURE_EYE, "Eye"},
          {CFG_FACE_FEATURE_MOUTH, "Mouth"},
          {CFG_FACE_FEATURE_MASK, "Mask"},
          {CFG_FACE_FEATURE_BEARD, "Beard"},
          {CFG_FACE_FEATURE_ATTRACTIVE, "Attractive"},
      });

} // namespace orrery::rules
