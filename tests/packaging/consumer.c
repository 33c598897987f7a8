/* A client in C99: one reply in, the same record out. Built against the installed package only. */
#include <orrery/orrery.h>
#include <stdio.h>
#include <string.h>

int main(void) {
    const char* reply = "{\"result\":true,\"params\":{\"table\":{\"Enable\":true}}}";
    CFG_ENABLE_INFO record;
    uint32_t length = 0;
    char text[64];

    if (!CLIENT_ParseData("PwdReset", reply, &record, (uint32_t)sizeof record, &length)) {
        puts("the reply was refused");
        return 1;
    }
    if (length != sizeof record || record.bEnable != 1) {
        printf("length %u, bEnable %d\n", (unsigned)length, (int)record.bEnable);
        return 1;
    }
    if (!CLIENT_PacketData("PwdReset", &record, (uint32_t)sizeof record, text, (uint32_t)sizeof text)) {
        puts("the record was refused");
        return 1;
    }
    if (strcmp(text, "{ \"Enable\" : true }\n") != 0) {
        printf("unexpected text: %s", text);
        return 1;
    }
    puts("consumer ok");
    return 0;
}
