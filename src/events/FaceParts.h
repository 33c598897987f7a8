// What several intelligent events tell of faces.
#pragma once

#include "events/IntelligentEvents.h"

namespace orrery::events {

NAMES(kFaceSexes, kFolded,
      {
          {EVENT_SEX_MALE, "Man"},
          {EVENT_SEX_FEMALE, "Woman"},
      });
// Of people who are known, or seen as a whole.
NAMES(kPersonSexes, kFolded,
      {
          {EVENT_SEX_MALE, "Male"},
          {EVENT_SEX_FEMALE, "Female"},
      });

#define ORRERY_FEATURE_ROWS(noGlasses)                                                                                 \
    {EVENT_FEATURE_WEAR_GLASSES, "WearGlasses"}, {EVENT_FEATURE_SMILE, "Smile"}, {EVENT_FEATURE_ANGER, "Anger"},       \
        {EVENT_FEATURE_SADNESS, "Sadness"}, {EVENT_FEATURE_DISGUST, "Disgust"}, {EVENT_FEATURE_FEAR, "Fear"},          \
        {EVENT_FEATURE_SURPRISE, "Surprise"}, {EVENT_FEATURE_NEUTRAL, "Neutral"}, {EVENT_FEATURE_LAUGH, "Laugh"},      \
        {EVENT_FEATURE_NO_GLASSES, noGlasses}, {EVENT_FEATURE_HAPPY, "Happy"}, {EVENT_FEATURE_CONFUSED, "Confused"},   \
        {EVENT_FEATURE_SCREAM, "Scream"}, {                                                                            \
        EVENT_FEATURE_SUN_GLASSES, "SunGlasses"                                                                        \
    }
NAMES(kFeatures, kExact,
      {
          ORRERY_FEATURE_ROWS("NoGlasses"),
      });
// As devices that see whole people spell them: in their own case, which therefore counts in both lists.
NAMES(kTraitFeatures, kExact,
      {
          ORRERY_FEATURE_ROWS("Noglasses"),
      });
#undef ORRERY_FEATURE_ROWS

} // namespace orrery::events

#define EV_FEATURES(key, table) FIELD(nFeatureNum), FIELD(emFeature, key, Names(table)).Count(AT(nFeatureNum))
// Inside the object `prefix`, which is "" or ends in a slash.
#define EV_FACE_PERSON(prefix)                                                                                         \
    FIELD(emSex, prefix "Sex", Names(kFaceSexes)), FIELD(nAge, prefix "Age", Int).Only(OnlyType::Integer).Absent(-1),  \
        EV_FEATURES(prefix "Feature", kFeatures)
#define EV_FACE_STATES(prefix)                                                                                         \
    FIELD(emRace, prefix "Race", PlaceIn<1, 0, 1, 2, 3>), FIELD(emEye, prefix "Eye", PlaceIn<1, 0, 1, 2>),             \
        FIELD(emMouth, prefix "Mouth", PlaceIn<1, 0, 1, 2>), FIELD(emMask, prefix "Mask", PlaceIn<1, 0, 1, 2>),        \
        FIELD(emBeard, prefix "Beard", PlaceIn<1, 0, 1, 2>)
#define EV_FACE_LOOKS(prefix)                                                                                          \
    EV_FACE_STATES(prefix), FIELD(nAttractive, prefix "Attractive", Within<0, 100>).Absent(-1),                        \
        FIELD(szUID, prefix "UID", Text)
