/* Why a reply does not do what was meant: the findings of liborrery-explain. */
#include <orrery/explain.h>
#include <stdio.h>

static const char reply[] =
    "{ \"result\" : true,\n"
    "  \"params\" : { \"table\" : { \"Enable\" : true, \"Prot\" : 123, \"TimeZone\" : \"8\" } } }";

static int32_t show(const ORRERY_FINDING* finding, void* user) {
    (void)user;
    printf("line %u, %s: %s\n", (unsigned)finding->nLine, finding->szPath, finding->szKind);
    return 1; /* go on */
}

int main(void) {
    const int32_t count = ORRERY_ExplainReply("NTP", reply, sizeof reply - 1, 0, show, NULL);
    printf("%d findings\n", (int)count);
    return count < 0;
}
