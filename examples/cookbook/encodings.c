/* Texts of records are in the encoding of the process, those of devices always UTF-8. */
#include <locale.h>
#include <orrery/orrery.h>
#include <stdio.h>

static const char reply[] = "{ \"result\" : true, \"params\" : { \"table\" : { \"Name\" : \"T\xc3\xbcr\" } } }";

int main(void) {
    static CFG_ALARM_OUT_INFO output;
    static char text[1024];
    const unsigned char* at;

    setlocale(LC_ALL, ""); /* the user's; without this call it is "C", where bytes pass as they are */
    if (!CLIENT_ParseData("AlarmOut", reply, &output, sizeof output, NULL)) return 1;
    for (at = (const unsigned char*)output.szName; *at; ++at)
        printf("%02x ", *at);
    putchar('\n');
    /* The text is UTF-8 again. */
    if (!CLIENT_PacketData("AlarmOut", &output, sizeof output, text, sizeof text)) return 1;
    fputs(text, stdout);
    return 0;
}
