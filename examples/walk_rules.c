/* Reads the analysis rules of a channel, walks them item by item, turns the line rules off and writes the list to send
   back.
     cc -std=c99 walk_rules.c $(pkg-config --cflags --libs orrery) */
#include <orrery/orrery.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char reply[] =
    "{ \"result\" : true, \"params\" : { \"table\" : ["
    "  { \"Type\" : \"CrossLineDetection\", \"Name\" : \"Fence\", \"Class\" : \"Normal\", \"Id\" : 1, \"Enable\" : "
    "true,"
    "    \"Config\" : { \"Direction\" : \"Both\", \"DetectLine\" : [ [ 100, 200 ], [ 8000, 200 ] ] } },"
    "  { \"Type\" : \"LeftDetection\", \"Name\" : \"Hall\", \"Class\" : \"Normal\", \"Id\" : 2, \"Enable\" : true,"
    "    \"Config\" : { \"MinDuration\" : 30 } } ] } }";

static CFG_RULE_CROSSLINE_INFO line; /* records are a third of a megabyte: not for the stack */
static CFG_RULE_LEFT_INFO left;
static char text[65536];

int main(void) {
    CFG_ANALYSERULES_INFO rules = {0, NULL, 0};
    size_t offset = 0;
    int32_t i;

    rules.nRuleLen = (int32_t)ORRERY_RuleBytes("VideoAnalyseRule", reply);
    rules.pRuleBuf = malloc((size_t)rules.nRuleLen);
    if (rules.pRuleBuf == NULL) return 1;
    if (!CLIENT_ParseData("VideoAnalyseRule", reply, &rules, sizeof rules, NULL)) return 1;

    for (i = 0; i < rules.nRuleCount; ++i) {
        CFG_RULE_INFO head;
        unsigned char* body;
        /* Items are aligned for nothing: copy what you look at. */
        memcpy(&head, rules.pRuleBuf + offset, sizeof head);
        body = rules.pRuleBuf + offset + sizeof head;
        switch (head.dwRuleType) {
        case ORRERY_RULE_CROSS_LINE_DETECTION:
            memcpy(&line, body, sizeof line);
            printf("rule %d, \"%s\": a line of %d points\n", head.stuRuleGeneral.byId, line.szRuleName,
                   line.nDetectLinePoint);
            line.bRuleEnable = 0;
            memcpy(body, &line, sizeof line);
            break;
        case ORRERY_RULE_LEFT_DETECTION:
            memcpy(&left, body, sizeof left);
            printf("rule %d, \"%s\": alarms after %d seconds\n", head.stuRuleGeneral.byId, left.szRuleName,
                   left.nMinDuration);
            break;
        default:
            printf("rule %d is of type %u\n", head.stuRuleGeneral.byId, (unsigned)head.dwRuleType);
        }
        offset += sizeof head + (size_t)head.nRuleSize;
    }

    if (!CLIENT_PacketData("VideoAnalyseRule", &rules, sizeof rules, text, sizeof text)) return 1;
    fputs(text, stdout);
    free(rules.pRuleBuf);
    return 0;
}
