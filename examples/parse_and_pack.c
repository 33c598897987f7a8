/* Reads an alarm input's configuration as a device sends it, switches the input off, and writes the text to send back.
     cc -std=c99 parse_and_pack.c $(pkg-config --cflags --libs orrery) */
#include <orrery/orrery.h>
#include <stdio.h>

static const char reply[] = "{ \"result\" : true, \"params\" : { \"table\" : {"
                            "  \"Enable\" : true, \"Name\" : \"Front door\", \"SensorType\" : \"NC\" } } }";

int main(void) {
    /* README: begin */
    static CFG_ALARM_INPUT_INFO alarm; /* a third of a megabyte: not for the stack */
    static char text[65536];
    uint32_t length = 0;

    if (!CLIENT_ParseData("Alarm", reply, &alarm, sizeof alarm, &length)) return 1;
    printf("%s is %s\n", alarm.szName, alarm.bEnable ? "on" : "off");

    alarm.bEnable = 0;
    if (!CLIENT_PacketData("Alarm", &alarm, sizeof alarm, text, sizeof text)) return 1;
    fputs(text, stdout); /* the "table" of the request that sets it */
    /* README: end */
    return 0;
}
