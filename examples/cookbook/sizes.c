/* Records that begin with their size: the caller tells for which headers it was compiled. */
#include <orrery/orrery.h>
#include <stdio.h>
#include <string.h>

static const char reply[] =
    "{ \"result\" : true, \"params\" : { \"table\" : ["
    "  { \"SerialNo\" : 1, \"Name\" : \"Door\" }, { \"SerialNo\" : 2, \"Name\" : \"Yard\" } ] } }";

int main(void) {
    CFG_CHANNEL_TITLE_INFO titles[8];
    char text[4096];
    uint32_t length = 0, i;

    memset(titles, 0, sizeof titles);
    if (CLIENT_ParseData("ChannelTitle", reply, titles, sizeof titles, &length)) return 1; /* sizes of 0 are refused */
    /* Sets dwSize of all of them, and of the records inside, where there are such. */
    if (!ORRERY_SetSizeWords("ChannelTitle", titles, sizeof titles)) return 1;
    if (!CLIENT_ParseData("ChannelTitle", reply, titles, sizeof titles, &length)) return 1;
    for (i = 0; i < length / sizeof titles[0]; ++i) {
        printf("%d %s, of %u bytes\n", (int)titles[i].nSerialNo, titles[i].szName, (unsigned)titles[i].dwSize);
        titles[i].nSerialNo += 10;
    }
    if (!CLIENT_PacketData("ChannelTitle", titles, length, text, sizeof text)) return 1;
    fputs(text, stdout);
    return 0;
}
