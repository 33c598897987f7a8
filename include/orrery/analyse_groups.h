/* Rules of an analysis channel with the scenes that they are for: command "VideoInAnalyseRule". A scene's rules stand
 * in groups, one of each type, and a group's rules in a buffer of the caller's, record behind record without heads. */
#ifndef ORRERY_ANALYSE_GROUPS_H
#define ORRERY_ANALYSE_GROUPS_H

#include "orrery/analyse_modules.h"
#include "orrery/analyse_rules.h"
#include "orrery/scenes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_ANALYSE_SCENES 3 /* scenes of a channel */
#define ORRERY_RULE_GROUPS 8    /* types of rule in a scene */

/* The rules of one type, which is the name under which the group stands in "Rules".
 *
 * Reading: pRuleBuf and nRuleBufLen are the caller's and stay. As many rules are read as fit the buffer, each cleared
 * first; what is behind them stays as it is. A null buffer takes none; the group tells its type and stride all the
 * same, by which a caller can size buffers for a second call. Writing: a group's own linkage stands at the group and
 * its rules have none; without it each rule writes its own. A rule whose record is not whole inside the buffer ends the
 * list, and a buffer that is smaller than nRuleNum times nRuleStride writes none. Of two groups of one name the last
 * stands. */
typedef struct CFG_RULE_GROUP_INFO {
    uint32_t dwRuleType; /* ORRERY_RULE_... */
    int32_t nRuleStride; /* bytes of a rule's record, and from one to the next */
    int32_t bEnable;     /* "Enable" */
    int32_t bHasEventHandler;
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler": what an alarm of the group does; its own week is read,
                                               but stuTimeSchedule is written */
    CFG_TIME_SCHEDULE stuTimeSchedule;      /* "EventHandler"."TimeSection": when the group is armed; without a holiday
                                               of its own that of stuEventHandler is written behind its week */
    int32_t nRuleNum;                       /* rules in the buffer */
    uint8_t* pRuleBuf;   /* "Rule": the records of the group's type (rule_bodies.h, traffic_rules.h) */
    int32_t nRuleBufLen; /* bytes at pRuleBuf */
} CFG_RULE_GROUP_INFO;

/* A scene with its rules. Names of rules that are not known, or that no record belongs to, take no group; further ones
 * than eight are not read. */
typedef struct CFG_VIDEOINANALYSE_SCENE_INFO {
    CFG_ANALYSEGLOBAL_INFO stuGlobal;  /* "Global": its pointers are null, so that what is numbered is not read */
    CFG_ANALYSEMODULES_INFO stuModule; /* "Module" */
    CFG_RULE_GROUP_INFO stuRuleGroups[ORRERY_RULE_GROUPS]; /* "Rules": in the order of their names */
    int32_t nRuleGroupNum;                                 /* entries of stuRuleGroups in use */
} CFG_VIDEOINANALYSE_SCENE_INFO;

/* "VideoInAnalyseRule": about twenty megabytes, keep it off the stack. Once the text has proved to be JSON the record
 * is cleared, but for the pRuleBuf and nRuleBufLen of its groups. "result" is not looked at. A missing table succeeds
 * with no scene and a returned length of 0; one that is no list gives 0. The text may fill its buffer to the last byte,
 * where the terminator takes the place of its newline. */
typedef struct CFG_VIDEOINANALYSE_RULES_INFO {
    int32_t nSceneNum;                                              /* entries of stuScenes in use */
    CFG_VIDEOINANALYSE_SCENE_INFO stuScenes[ORRERY_ANALYSE_SCENES]; /* the list's elements, the first three */
} CFG_VIDEOINANALYSE_RULES_INFO;

#ifdef __cplusplus
}
#endif

#endif
