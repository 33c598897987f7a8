/* The rules of a channel: walked, changed, written, and a list of one's own. */
#include <orrery/orrery.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char reply[] =
    "{ \"result\" : true, \"params\" : { \"table\" : ["
    "  { \"Type\" : \"CrossLineDetection\", \"Name\" : \"Fence\", \"Id\" : 1, \"Enable\" : true },"
    "  { \"Type\" : \"MoveDetection\", \"Name\" : \"Yard\", \"Id\" : 2, \"Enable\" : true } ] } }";

static CFG_RULE_CROSSLINE_INFO line; /* records are a third of a megabyte: not for the stack */
static char text[65536], again[70000];

/* Reads rules into a buffer of their size, shows them and turns lines off. */
static int walk(const char* from, CFG_ANALYSERULES_INFO* rules) {
    size_t at = 0;
    int32_t i;

    memset(rules, 0, sizeof *rules);
    rules->nRuleLen = (int32_t)ORRERY_RuleBytes("VideoAnalyseRule", from);
    rules->pRuleBuf = malloc((size_t)rules->nRuleLen);
    if (rules->pRuleBuf == NULL) return 0;
    if (!CLIENT_ParseData("VideoAnalyseRule", from, rules, sizeof *rules, NULL)) return 0;
    for (i = 0; i < rules->nRuleCount; ++i) {
        CFG_RULE_INFO head;
        memcpy(&head, rules->pRuleBuf + at, sizeof head); /* items are aligned for nothing */
        at += sizeof head;
        if (head.dwRuleType == ORRERY_RULE_CROSS_LINE_DETECTION) {
            memcpy(&line, rules->pRuleBuf + at, sizeof line);
            printf("%s is %s\n", line.szRuleName, line.bRuleEnable ? "on" : "off");
            line.bRuleEnable = 0;
            memcpy(rules->pRuleBuf + at, &line, sizeof line);
        } else {
            printf("rule %d is of type %u\n", head.stuRuleGeneral.byId, (unsigned)head.dwRuleType);
        }
        at += (size_t)head.nRuleSize;
    }
    return 1;
}

int main(void) {
    CFG_ANALYSERULES_INFO rules;

    if (!walk(reply, &rules)) return 1;
    if (!CLIENT_PacketData("VideoAnalyseRule", &rules, sizeof rules, text, sizeof text)) return 1;
    free(rules.pRuleBuf);

    /* What was written is the "table" of a reply, too. */
    snprintf(again, sizeof again, "{ \"result\" : true, \"params\" : { \"table\" : %s } }", text);
    if (!walk(again, &rules)) return 1;
    free(rules.pRuleBuf);
    return 0;
}
