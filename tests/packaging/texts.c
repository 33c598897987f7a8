/* What a platform's library makes of every command, to be held against another's: the text of an empty record, the
 * record that this text reads as, and that record's text. Lines of the standard input: a command, the size of its
 * record, whether it reads replies, and whether its record has addresses, which differ from run to run. */
#include <orrery/calls.h>
#include <orrery/helpers.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define ROOM (4u << 20)

static unsigned long long Sum(const unsigned char* bytes, size_t size) {
    unsigned long long sum = 14695981039346656037ull;
    size_t i;
    for (i = 0; i < size; ++i)
        sum = (sum ^ bytes[i]) * 1099511628211ull;
    return sum;
}

static void Clear(const char* command, unsigned char* record, unsigned size) {
    memset(record, 0, size);
    if (ORRERY_SetSizeWords(command, record, size) == 0) printf("no size words: ");
}

/* What is written is known to its end only where nothing stood behind it. */
static int Pack(const char* command, const unsigned char* record, unsigned size, char* text) {
    memset(text, 0, ROOM);
    if (CLIENT_PacketData(command, record, size, text, ROOM - 1) == 0) {
        puts("refused");
        return 0;
    }
    printf("%s%s", text, strchr(text, '\n') == 0 ? "\n" : "");
    return 1;
}

int main(void) {
    char command[256];
    unsigned size, reads, leads;
    char* const text = (char*)malloc(ROOM);
    char* const reply = (char*)malloc(ROOM + 64);
    int count = 0;
    if (text == 0 || reply == 0) return 1;
    while (scanf("%255s %u %u %u", command, &size, &reads, &leads) == 4) {
        unsigned char* const record = (unsigned char*)malloc(size);
        uint32_t length = 0;
        if (record == 0) return 1;
        ++count;
        printf("%s\n", command);
        Clear(command, record, size);
        if (Pack(command, record, size, text) && reads) {
            sprintf(reply, "{\"result\":true,\"params\":{\"table\":%s}}", text);
            Clear(command, record, size);
            if (CLIENT_ParseData(command, reply, record, size, &length) == 0) {
                puts("refused");
            } else {
                printf("%u %llx\n", (unsigned)length, leads ? 0 : Sum(record, size));
                if (!Pack(command, record, size, text)) puts("refused again");
            }
        }
        free(record);
    }
    free(text);
    free(reply);
    return count > 0 ? 0 : 1;
}
