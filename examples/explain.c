/* Prints why a reply is refused or what of it is lost: explain COMMAND < reply.json */
#include <orrery/explain.h>
#include <stdio.h>

static char text[1 << 20];

static int32_t show(const ORRERY_FINDING* finding, void* user) {
    static const char* const gravity[] = {"", "note", "lost", "refused"};
    (void)user;
    printf("%u:%u %s: %s: %s", (unsigned)finding->nLine, (unsigned)finding->nColumn, gravity[finding->nGravity],
           finding->szPath, finding->szMessage);
    if (finding->szField[0] != '\0') printf(" [%s]", finding->szField);
    putchar('\n');
    return 1; /* go on */
}

int main(int argc, char** argv) {
    const size_t length = fread(text, 1, sizeof text, stdin);
    int32_t count;

    if (argc != 2) {
        fputs("usage: explain COMMAND < reply.json\n", stderr);
        return 2;
    }
    count = ORRERY_ExplainReply(argv[1], text, length, 0, show, NULL);
    if (count < 0) {
        fprintf(stderr, "%s: %s\n", argv[1],
                count == ORRERY_EXPLAIN_UNKNOWN_COMMAND ? "no command of that name reads replies" : "can't explain");
        return 2;
    }
    printf("%d findings\n", (int)count);
    return count > 0;
}
