/* Several records from one reply, and back into one text. */
#include <orrery/orrery.h>
#include <stdio.h>

static const char reply[] = "{ \"result\" : true, \"params\" : { \"table\" : ["
                            "  { \"Name\" : \"Siren\", \"Mode\" : 1 }, { \"Name\" : \"Lamp\" },"
                            "  { \"Name\" : \"Gate\", \"Mode\" : 1 } ] } }";

int main(void) {
    CFG_EX_ALARM_OUT_INFO outputs[16]; /* as many as the device may have */
    char text[4096];
    uint32_t length = 0, count, i; /* some commands add to the length: it begins with 0 */

    if (!CLIENT_ParseData("ExAlarmOut", reply, outputs, sizeof outputs, &length)) return 1;
    count = length / sizeof outputs[0];
    printf("%u outputs\n", (unsigned)count);
    for (i = 0; i < count; ++i) {
        printf("%s: %d\n", outputs[i].szName, (int)outputs[i].nMode);
        outputs[i].nMode = 2; /* off */
    }
    /* The size says how many records there are. */
    if (!CLIENT_PacketData("ExAlarmOut", outputs, length, text, sizeof text)) return 1;
    fputs(text, stdout);
    return 0;
}
