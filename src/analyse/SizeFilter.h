// The filter that tells which sizes of object a rule looks at. Many rules embed it behind a flag.
#pragma once

#include "frame/record/Table.h"

#include "orrery/analyse_rules.h"

namespace orrery {

namespace sizefilter {

using namespace record;

// Two numbers that the record holds as members of their own.
extern const CustomCodec kCenterPoint;

PART(kCalibrateBox, CFG_CALIBRATE_BOX, FIELD(nCenterPointX, "CenterPoint", Custom(kCenterPoint)), FIELD(nCenterPointY),
     FIELD(fRatio, "Ratio", Real));

// Sizes with their fractions. The bounds of all objects are taken whole or not at all.
PART(kArea, CFG_SIZE, FIELD(fWidth, "", Real), FIELD(fHeight, "", Real)).As(Shape::LooseTuple);
inline constexpr TypedTable<CFG_SIZE> kBound = kArea.As(Shape::LongTuple);

inline constexpr Name kMeasureRows[] = {
    {CFG_MEASURE_PIXEL, "Pixel"}, {CFG_MEASURE_METRIC, "Metric"}, {CFG_MEASURE_CALIBRATED_PIXEL, "CalibratedPixel"}};
inline constexpr NameTable kMeasures = ExactNames(kMeasureRows);

inline constexpr Name kFilterRows[] = {
    {CFG_FILTER_BY_LENGTH, "ByLength"}, {CFG_FILTER_BY_AREA, "ByArea"}, {CFG_FILTER_BY_WIDTH_HEIGHT, "ByWidthHeight"}};
inline constexpr NameTable kFilters = ExactNames(kFilterRows);

// One of the three lists of boxes.
#define ORRERY_BOXES(count, boxes, key)                                                                                \
    FIELD(count), FIELD(boxes, key, Record(kCalibrateBox)).Count(AT(count)).OnNull(Nulls::LeaveHole)

PART(kSizeFilter, CFG_SIZE_FILTER_INFO, ORRERY_BOXES(nCalibrateBoxNum, stuCalibrateBoxs, "CalibrateBoxs"),
     FIELD(abMeasureModeEnable), FIELD(byMeasureMode, "MeasureMode", Names(kMeasures)).Flag(AT(abMeasureModeEnable)),
     FIELD(abFilterTypeEnable), FIELD(byFilterType, "Type", Names(kFilters)).Flag(AT(abFilterTypeEnable)),
     FIELD(abFilterMinSize), FIELD(abFilterMaxSize),
     FIELD(stuFilterMinSize, "MinSize", Record(kBound)).Flag(AT(abFilterMinSize)),
     FIELD(stuFilterMaxSize, "MaxSize", Record(kBound)).Flag(AT(abFilterMaxSize)), FIELD(abByArea), FIELD(abMinArea),
     FIELD(abMaxArea), FIELD(abMinAreaSize), FIELD(abMaxAreaSize), FIELD(bByArea, "ByArea", Bool).Flag(AT(abByArea)),
     FIELD(fMinArea, "MinArea", Real).Flag(AT(abMinArea)).ReadWith(AT(abByArea)),
     FIELD(fMaxArea, "MaxArea", Real).Flag(AT(abMaxArea)).ReadWith(AT(abByArea)),
     FIELD(stuMinAreaSize, "MinAreaSize", Record(kArea)).Flag(AT(abMinAreaSize)).ReadWith(AT(abByArea)),
     FIELD(stuMaxAreaSize, "MaxAreaSize", Record(kArea)).Flag(AT(abMaxAreaSize)).ReadWith(AT(abByArea)),
     FIELD(abByRatio), FIELD(abMinRatio), FIELD(abMaxRatio), FIELD(abMinRatioSize), FIELD(abMaxRatioSize),
     FIELD(bByRatio, "ByRatio", Bool).Flag(AT(abByRatio)),
     FIELD(dMinRatio, "MinRatio", Real).Flag(AT(abMinRatio)).ReadWith(AT(abByRatio)),
     FIELD(dMaxRatio, "MaxRatio", Real).Flag(AT(abMaxRatio)).ReadWith(AT(abByRatio)),
     FIELD(stuMinRatioSize, "MinRatioSize", Record(kArea)).Flag(AT(abMinRatioSize)).ReadWith(AT(abByRatio)),
     FIELD(stuMaxRatioSize, "MaxRatioSize", Record(kArea)).Flag(AT(abMaxRatioSize)).ReadWith(AT(abByRatio)),
     ORRERY_BOXES(nAreaCalibrateBoxNum, stuAreaCalibrateBoxs, "AreaCalibrateBoxs"),
     ORRERY_BOXES(nRatioCalibrateBoxNum, stuRatioCalibrateBoxs, "RatioCalibrateBoxs"), FIELD(abBySize),
     FIELD(bBySize, "BySize", Bool).Flag(AT(abBySize)));
#undef ORRERY_BOXES

} // namespace sizefilter

using sizefilter::kSizeFilter;

} // namespace orrery
