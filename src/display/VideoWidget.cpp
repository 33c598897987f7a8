#include "display/VideoWidget.h"

namespace orrery {

using namespace record;

namespace {

#define WIDGET_ITEM                                                                                                    \
    FIELD(dwSize, nullptr, Size), FIELD(bEncodeBlend, "EncodeBlend", Bool),                                            \
        FIELD(bEncodeBlendExtra1, "EncodeBlendExtra1", Bool), FIELD(bEncodeBlendExtra2, "EncodeBlendExtra2", Bool),    \
        FIELD(bEncodeBlendExtra3, "EncodeBlendExtra3", Bool),                                                          \
        FIELD(bEncodeBlendSnapshot, "EncodeBlendSnapshot", Bool), FIELD(stuFrontColor, "FrontColor", Record(kColor)),  \
        FIELD(stuBackColor, "BackColor", Record(kColor)), FIELD(stuRect, "Rect", Record(kRect)),                       \
        FIELD(bPreviewBlend, "PreviewBlend", Bool)

PART(kItem, CFG_WIDGET_ITEM, {WIDGET_ITEM});

PART(kTimeTitle, CFG_WIDGET_TIME_TITLE,
     {
         WIDGET_ITEM,
         FIELD(bShowWeek, "ShowWeek", Bool),
     });

PART(kCustomTitle, CFG_WIDGET_CUSTOM_TITLE,
     {
         WIDGET_ITEM,
         FIELD(szText, "Text", Text),
         FIELD(szTitleType, "TitleType", Text),
     });

PART(kDescription, CFG_WIDGET_DESCRIPTION,
     {
         FIELD(nID, "ID", Int),
         FIELD(szDevID, "DevID", Text),
         FIELD(szPointID, "PointID", Text),
         FIELD(szText, "Text", Text),
     });

PART(kSensor, CFG_WIDGET_SENSOR,
     {
         WIDGET_ITEM,
         FIELD(nDescriptionCount),
         FIELD(stuDescription, "Description", Record(kDescription)).Count(AT(nDescriptionCount)),
     });

} // namespace

TABLE(kVideoWidget, CFG_VIDEO_WIDGET_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nCoverCount),
          FIELD(stuCovers, "Covers", Record(kItem)).Count(AT(nCoverCount)),
          FIELD(stuChannelTitle, "ChannelTitle", Record(kItem)),
          FIELD(stuTimeTitle, "TimeTitle", Record(kTimeTitle)),
          FIELD(nCustomTitleCount),
          FIELD(stuCustomTitle, "CustomTitle", Record(kCustomTitle)).Count(AT(nCustomTitleCount)),
          FIELD(nSensorCount),
          FIELD(stuSensorInfo, "SensorInfo", Record(kSensor)).Count(AT(nSensorCount)),
          FIELD(fFontSizeScale, "FontSizeScale", Real),
          FIELD(nFontSize, "FontSize", Int),
          FIELD(nFontSizeExtra1, "FontSizeExtra1", Int),
          FIELD(nFontSizeExtra2, "FontSizeExtra2", Int),
          FIELD(nFontSizeExtra3, "FontSizeExtra3", Int),
          FIELD(nFontSizeSnapshot, "FontSizeSnapshot", Int),
          FIELD(nFontSizeMergeSnapshot, "FontSizeMergeSnapshot", Int),
      });

} // namespace orrery
