// What turns distances in the picture into real ones: measuring rods and calibrated areas.
#pragma once

#include "analyse/RuleParts.h"
#include "frame/Frames.h"
#include "frame/record/Engine.h"

#include "orrery/scenes.h"

namespace orrery {

namespace scenes {

using namespace record;
using rules::kCorner;

NAMES(kStaffTypes, kFolded,
      {
          {CFG_STAFF_HORIZONTAL, "Horizontal"},
          {CFG_STAFF_VERTICAL, "Vertical"},
          {CFG_STAFF_ANY, "Any"},
          {CFG_STAFF_CROSS, "Cross"},
      });

NAMES(kCalibrateMethods, kFolded,
      {
          {CFG_CALIBRATE_BY_SCENE, "Scene"},
          {CFG_CALIBRATE_BY_LANE, "Lane"},
          {CFG_CALIBRATE_BY_PLATE, "Plate"},
          {CFG_CALIBRATE_BY_STEREO, "Stereo"},
      });

NAMES(kCalibrateTypes, kFolded,
      {
          {CFG_CALIBRATE_AREA_NONE, ""},
          {CFG_CALIBRATE_AREA_GROUND, "Groud"},
          {CFG_CALIBRATE_AREA_HORIZONTAL, "Horizontal"},
          {CFG_CALIBRATE_AREA_VERTICAL, "Vertical"},
          {CFG_CALIBRATE_AREA_ANY, "Any"},
      });

// Corners that close up while all but nulls count.
extern const CustomCodec kClosedCorners;

PART(kStaff, CFG_STAFF,
     {
         FIELD(nStartX, "Start", Custom(sizefilter::kNumberPair)),
         FIELD(nStartY),
         FIELD(nEndX, "End", Custom(sizefilter::kNumberPair)),
         FIELD(nEndY),
         FIELD(fLength, "Length", Real),
         FIELD(nType, "Type", Names(kStaffTypes)),
     });

// Its type is read by ReadAreaTypes, from the list that the area stands in.
PART(kCalibrateArea, CFG_CALIBRATE_AREA,
     {
         FIELD(nLinePoint),
         FIELD(stuLine, "Line", Custom(kClosedCorners)).PointsTo(kCorner).Count(AT(nLinePoint)),
         FIELD(fLength, "Length", Real),
         FIELD(nAreaPoint),
         FIELD(stuArea, "Area", Custom(kClosedCorners)).PointsTo(kCorner).Count(AT(nAreaPoint)),
         FIELD(nStaffNum),
         FIELD(stuStaffs, "Staffs", Record(kStaff)).Count(AT(nStaffNum)).NullElement(Nulls::LeaveHole),
         FIELD(nMethod, "Method", Names(kCalibrateMethods)),
         FIELD(nType, "Type", Names(kCalibrateTypes)).WriteOnly(),
     });

// The types of a list's areas: each type is known in the place of its code alone.
struct AreaTypes {
    const json::Value* all[ORRERY_CALIBRATE_AREAS];
    std::uint32_t count = 0; // of the areas up to the last that has a type

    void Set(std::size_t area, const json::Value& type) noexcept {
        while (count <= area)
            all[count++] = &json::kNull;
        all[area] = &type;
    }
    // Into areas that have been read.
    void Store(std::byte* areas) const noexcept;
};
void ReadAreaTypes(const json::Value& list, std::byte* areas) noexcept;

// A list of areas that is the value itself.
void ReadAreasInfoTypes(const json::Value& list, std::byte* info, ReadCall& call);
PART(kCalibrateAreas, CFG_CALIBRATE_AREAS_INFO,
     {
         FIELD(nAreaNum),
         FIELD(stuAreas, "", Record(kCalibrateArea)).Count(AT(nAreaNum)),
     })
    .AfterRead(ReadAreasInfoTypes);

} // namespace scenes

// "VideoAnalyseCalibrate"
extern const record::TypedTable<CFG_VIDEOANALYSE_CALIBRATE_INFO> kAnalyseCalibrate;
bool HasCalibrateRoom(const std::byte* record, std::uint32_t size);
bool HasCalibrateScenes(const std::byte* record, std::uint32_t size);

} // namespace orrery
