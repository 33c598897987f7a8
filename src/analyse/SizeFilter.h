// The filter that tells which sizes of object a rule looks at. Many rules embed it behind a flag.
#pragma once

#include "frame/record/Table.h"

#include "orrery/analyse_rules.h"

namespace orrery {

namespace sizefilter {

using namespace record;

// Two numbers of one list that the record holds as members of their own, one behind the other.
extern const CustomCodec kNumberPair;

PART(kCalibrateBox, CFG_CALIBRATE_BOX,
     {
         FIELD(nCenterPointX, "CenterPoint", Custom(kNumberPair)),
         FIELD(nCenterPointY),
         FIELD(fRatio, "Ratio", Real),
     });

// Sizes with their fractions. The bounds of all objects are taken whole or not at all.
PART(kArea, CFG_SIZE,
     {
         FIELD(fWidth, "", Real),
         FIELD(fHeight, "", Real),
     })
    .As(Shape::LooseTuple);
inline constexpr TypedTable<CFG_SIZE> kBound = kArea.As(Shape::LongTuple);

NAMES(kMeasures, kFolded,
      {
          {CFG_MEASURE_PIXEL, "Pixel"},
          {CFG_MEASURE_METRIC, "Metric"},
          {CFG_MEASURE_CALIBRATED_PIXEL, "CalibratedPixel"},
      });

NAMES(kFilters, kFolded,
      {
          {CFG_FILTER_BY_LENGTH, "ByLength"},
          {CFG_FILTER_BY_AREA, "ByArea"},
          {CFG_FILTER_BY_WIDTH_HEIGHT, "ByWidthHeight"},
      });

// One of the three lists of boxes.
#define ORRERY_BOXES(count, boxes, key)                                                                                \
    FIELD(count), FIELD(boxes, key, Record(kCalibrateBox)).Count(AT(count)).NullElement(Nulls::LeaveHole)

PART(kSizeFilter, CFG_SIZE_FILTER_INFO,
     {
         ORRERY_BOXES(nCalibrateBoxNum, stuCalibrateBoxs, "CalibrateBoxs"),
         FIELD(abMeasureModeEnable),
         FIELD(byMeasureMode, "MeasureMode", Names(kMeasures)).SetsAndNeeds(AT(abMeasureModeEnable)),
         FIELD(abFilterTypeEnable),
         FIELD(byFilterType, "Type", Names(kFilters)).SetsAndNeeds(AT(abFilterTypeEnable)),
         FIELD(abFilterMinSize),
         FIELD(abFilterMaxSize),
         FIELD(stuFilterMinSize, "MinSize", Record(kBound)).SetsAndNeeds(AT(abFilterMinSize)),
         FIELD(stuFilterMaxSize, "MaxSize", Record(kBound)).SetsAndNeeds(AT(abFilterMaxSize)),
         FIELD(abByArea),
         FIELD(abMinArea),
         FIELD(abMaxArea),
         FIELD(abMinAreaSize),
         FIELD(abMaxAreaSize),
         FIELD(bByArea, "ByArea", Bool).SetsAndNeeds(AT(abByArea)),
         FIELD(fMinArea, "MinArea", Real).SetsAndNeeds(AT(abMinArea)).ReadIf(AT(abByArea)),
         FIELD(fMaxArea, "MaxArea", Real).SetsAndNeeds(AT(abMaxArea)).ReadIf(AT(abByArea)),
         FIELD(stuMinAreaSize, "MinAreaSize", Record(kArea)).SetsAndNeeds(AT(abMinAreaSize)).ReadIf(AT(abByArea)),
         FIELD(stuMaxAreaSize, "MaxAreaSize", Record(kArea)).SetsAndNeeds(AT(abMaxAreaSize)).ReadIf(AT(abByArea)),
         FIELD(abByRatio),
         FIELD(abMinRatio),
         FIELD(abMaxRatio),
         FIELD(abMinRatioSize),
         FIELD(abMaxRatioSize),
         FIELD(bByRatio, "ByRatio", Bool).SetsAndNeeds(AT(abByRatio)),
         FIELD(dMinRatio, "MinRatio", Real).SetsAndNeeds(AT(abMinRatio)).ReadIf(AT(abByRatio)),
         FIELD(dMaxRatio, "MaxRatio", Real).SetsAndNeeds(AT(abMaxRatio)).ReadIf(AT(abByRatio)),
         FIELD(stuMinRatioSize, "MinRatioSize", Record(kArea)).SetsAndNeeds(AT(abMinRatioSize)).ReadIf(AT(abByRatio)),
         FIELD(stuMaxRatioSize, "MaxRatioSize", Record(kArea)).SetsAndNeeds(AT(abMaxRatioSize)).ReadIf(AT(abByRatio)),
         ORRERY_BOXES(nAreaCalibrateBoxNum, stuAreaCalibrateBoxs, "AreaCalibrateBoxs"),
         ORRERY_BOXES(nRatioCalibrateBoxNum, stuRatioCalibrateBoxs, "RatioCalibrateBoxs"),
         FIELD(abBySize),
         FIELD(bBySize, "BySize", Bool).SetsAndNeeds(AT(abBySize)),
     });
#undef ORRERY_BOXES

} // namespace sizefilter

using sizefilter::kSizeFilter;

} // namespace orrery
