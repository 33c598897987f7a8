/* Templates of analysis settings, which CLIENT_ParseVideoInAnalyse reads: sensible values that a client starts a new
 * configuration from. A device has them by class of rule (CFG_RULE_CLASS_... of analyse_rules.h).
 *
 *     "VideoInAnalyse.getTemplateGlobal"    CFG_TEMPLATE_GLOBAL_INFO
 *     "VideoInAnalyse.getTemplateModule"    CFG_MODULE_INFO (analyse_modules.h), from the member of the class in the
 *                                           reply's "params"; without it the record is cleared
 *     "VideoInAnalyse.getTemplateRule"      CFG_ANALYSERULES_INFO (analyse_rules.h), likewise: the class's member is an
 *                                           object of rules. pRuleBuf and nRuleLen are the caller's; without the member
 *                                           there are no rules. A rule that is null counts but takes no item, so that
 *                                           the last items may be zero; one without "Type" or "Class" fails the call,
 *                                           and one of a type without a record does so before the buffer is touched. */
#ifndef ORRERY_ANALYSE_TEMPLATES_H
#define ORRERY_ANALYSE_TEMPLATES_H

#include "orrery/analyse_modules.h"
#include "orrery/analyse_rules.h"
#include "orrery/scenes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "VideoInAnalyse.getTemplateGlobal": a scene. Keys stand in the reply's "params". Of the detail nClass settles what is
 * filled, the rest stays 0:
 *
 *     CFG_RULE_CLASS_NORMAL, _NUMBER_STAT    dCameraHeight, dCameraDistance, dCameraAngle, stuLandline
 *     CFG_RULE_CLASS_TRAFFIC                 all
 *     CFG_RULE_CLASS_TRAFFIC_PATROL          nPlateHintNum, szPlateHints
 *     CFG_RULE_CLASS_FACE_DETECTION          bFaceScene to nDetectType
 *     all others                             nothing */
typedef struct CFG_TEMPLATE_GLOBAL_INFO {
    int32_t nCalibrateAreaNum;                                    /* entries of stuCalibrateAreas in use */
    CFG_CALIBRATE_AREA stuCalibrateAreas[ORRERY_CALIBRATE_AREAS]; /* "CalibrateArea": the first ten */
    int32_t nClass;                  /* "Scene"."Type": CFG_RULE_CLASS_..., 0 for others and "CrowdDistriMap" */
    int32_t nPtzPresetId;            /* "Scene"."PtzPresetId": preset of the camera at which the scene is seen */
    CFG_SCENE_DETAIL_INFO stuDetail; /* of "Scene"."Detail", as told above */
} CFG_TEMPLATE_GLOBAL_INFO;

#ifdef __cplusplus
}
#endif

#endif
