// Intelligent events: what people and riders look like.
#include "events/FaceParts.h"

namespace orrery::events {

namespace {

NAMES(kClothesColors, kFolded,
      {
          {EVENT_CLOTHES_COLOR_WHITE, "White"},
          {EVENT_CLOTHES_COLOR_ORANGE, "Orange"},
          {EVENT_CLOTHES_COLOR_PINK, "Pink"},
          {EVENT_CLOTHES_COLOR_BLACK, "Black"},
          {EVENT_CLOTHES_COLOR_RED, "Red"},
          {EVENT_CLOTHES_COLOR_YELLOW, "Yellow"},
          {EVENT_CLOTHES_COLOR_GRAY, "Gray"},
          {EVENT_CLOTHES_COLOR_BLUE, "Blue"},
          {EVENT_CLOTHES_COLOR_GREEN, "Green"},
          {EVENT_CLOTHES_COLOR_PURPLE, "Purple"},
          {EVENT_CLOTHES_COLOR_BROWN, "Brown"},
      });

PART(kTraitImage, EVENT_TRAIT_IMAGE,
     {
         FIELD(dwOffset, "Offset", UInt),
         FIELD(dwLength, "Length", UInt),
         FIELD(dwWidth, "Width", UInt),
         FIELD(dwHeight, "Height", UInt),
         FIELD(dwIndexInData, "IndexInData", UInt),
     });

PART(kHumanAttributes, EVENT_HUMAN_ATTRIBUTES,
     {
         FIELD(emCoatColor, "CoatColor", Names(kClothesColors)),
         FIELD(emTrousersColor, "TrousersColor", Names(kClothesColors)),
         FIELD(emCoatType, "CoatType", PlaceIn<0, 0, 1, 2>),
         FIELD(emHasHat, "HasHat", PlaceIn<0, 0, 1, 2>),
         FIELD(emHasBag, "HasBag", PlaceIn<0, 0, 1, 2>),
         FIELD(emTrousersType, "TrousersType", PlaceIn<0, 0, 1, 2, 3>),
         FIELD(emSex, "Sex", Names(kFaceSexes)),
         FIELD(nAge, "Age", Int),
     });

PART(kFaceAttributes, EVENT_FACE_ATTRIBUTES,
     {
         FIELD(nAge, "Age", Int),
         FIELD(nBeard, "Beard", Int),
         FIELD(nMask, "Mask", Int),
         FIELD(nFaceQuality, "FaceQuality", Int),
         EV_FEATURES("Feature", kTraitFeatures),
         FIELD(emGlass, "Glass", PlaceIn<0, 0, 2, 1>),
         FIELD(emSex, "Sex", Names(kFaceSexes)),
     });

} // namespace

#define EV_LOOKS                                                                                                       \
    FIELD(bySex, "Sex", Names(kPersonSexes)), FIELD(byAge, "Age", Int), FIELD(byCall, "Call", Int),                    \
        FIELD(byHat, "Hat", Int), FIELD(byBag, "Bag", Int), FIELD(byUmbrella, "Umbrella", Int),                        \
        FIELD(byGlasses, "Glasses", Int), FIELD(emEmotion, "Emotion", Names(kFeatures)),                               \
        FIELD(stuUpperBodyColor, "UpperBodyColor", Record(record::kColor)),                                            \
        FIELD(stuLowerBodyColor, "LowerBodyColor", Record(record::kColor)),                                            \
        FIELD(stuBoundingBox, "BoundingBox", Record(record::kRect)), FIELD(szImagePath, "Image/FilePath", Text),       \
        FIELD(wImageWidth, "Image/Width", Int), FIELD(wImageHeight, "Image/Height", Int), EV_REPEAT, EV_FLAG_MASK

TABLE(kPersonFeature, DEV_EVENT_PERSONFEATURE_INFO,
      {
          EV_HEAD_SHORT,
          EV_FILE_INFO,
          EV_ACTION,
          EV_SOURCE_DEVICE,
          EV_LOOKS,
      });

TABLE(kNonMotorFeature, DEV_EVENT_NONMOTORFEATURE_INFO,
      {
          EV_HEAD_SHORT,
          EV_FILE_INFO,
          EV_ACTION,
          EV_SOURCE_DEVICE,
          FIELD(szPlateNumber, "PlateNumber", Text),
          EV_LOOKS,
      });

TABLE(kHumanTrait, DEV_EVENT_HUMANTRAIT_INFO,
      {
          EV_HEAD_UNTIMED,
          ORRERY_SAME_FROM_EVENT(dwAction),
          EV_CLASS_OR_TRAFFIC,
          FIELD(nGroupID, "GroupID", Int).Only(OnlyType::Integer),
          FIELD(nCountInGroup, "CountInGroup", Int).Only(OnlyType::Integer),
          FIELD(nIndexInGroup, "IndexInGroup", Int).Only(OnlyType::Integer),
          FIELD(stuHumanImage, "HumanImage", Record(kTraitImage)),
          FIELD(stuFaceImage, "FaceImage", Record(kTraitImage)),
          FIELD(stuFaceSceneImage, "FaceSceneImage", Record(kTraitImage)),
          FIELD(stuSceneImage, "SceneImage", Record(kTraitImage)),
          FIELD(emDetectObject, "DetectObject", PlaceIn<1, 0, 1, 2>),
          FIELD(stuHumanAttributes, "HumanAttributes", Record(kHumanAttributes)),
          FIELD(stuFaceAttributes, "FaceAttributes", Record(kFaceAttributes)),
          FIELD(szEventLongID, "Extension/EventLongID", Text),
          FIELD(szAdditionalCode, "HumanTraitExtension/AdditioalCode", Text),
      });

} // namespace orrery::events
