/* liborrery-explain: what a translation passes over in silence. The functions of calls.h answer 1 or 0 and say no more;
 * these look at the same text with the same tables and tell, finding by finding, why a reply is refused, what of it
 * does not reach the record, and what is odd about it. They change nothing and keep nothing between calls; any number
 * of threads may call at once. A program links this library beside liborrery, which needs nothing of it. */
#ifndef ORRERY_EXPLAIN_H
#define ORRERY_EXPLAIN_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* What a finding is about. Its word, such as "unknown-key", stands in szKind. */
enum {
    ORRERY_FINDING_NOT_JSON = 1,          /* "not-json": the text is no JSON, from the place told on */
    ORRERY_FINDING_REFUSED = 2,           /* "refused": the device's "result" refuses the call */
    ORRERY_FINDING_NO_VALUE = 3,          /* "no-value": there is nothing where the command looks for its value */
    ORRERY_FINDING_WRONG_SHAPE = 4,       /* "wrong-shape": a list of another length, or a value that holds no record */
    ORRERY_FINDING_DEVICE_ERROR = 5,      /* "device-error": the reply carries an "error" of the device */
    ORRERY_FINDING_TRAILING_TEXT = 6,     /* "trailing-text": text behind the document, which nobody reads */
    ORRERY_FINDING_DUPLICATE_KEY = 7,     /* "duplicate-key": a key stands again further on, where it counts */
    ORRERY_FINDING_UNKNOWN_KEY = 8,       /* "unknown-key": nothing reads this key; szNearest is one that is read */
    ORRERY_FINDING_WRONG_TYPE = 9,        /* "wrong-type": a JSON type that the field makes nothing, or less, of */
    ORRERY_FINDING_OUT_OF_RANGE = 10,     /* "out-of-range": a number that the field cannot hold or does not take, or
                                             one that its header does not know */
    ORRERY_FINDING_UNKNOWN_TEXT = 11,     /* "unknown-text": a text that names no code; szNearest lists those that do */
    ORRERY_FINDING_TEXT_CUT = 12,         /* "text-cut": a text is longer than its field; nLost bytes are lost */
    ORRERY_FINDING_ELEMENTS_DROPPED = 13, /* "elements-dropped": a list is longer than its array; nLost are dropped */
    ORRERY_FINDING_LIST_FOR_RECORD = 14,  /* "list-for-record": a list where one record is read */
    ORRERY_FINDING_NULL = 15,             /* "null": a null where a value is read */
    ORRERY_FINDING_BAD_TIME = 16,         /* "bad-time": a text that is no time, or one of no clock or calendar */
    ORRERY_FINDING_UNKNOWN_ITEM = 17,     /* "unknown-item": an event or a rule of a type that nobody knows */
    ORRERY_FINDING_WRITES_NOTHING = 18    /* "writes-nothing": a member of a record that leaves no trace in its text */
};

/* What a finding means. */
enum {
    ORRERY_FINDING_NOTE = 1, /* nothing is lost: a null, a text behind the document, a device's own message */
    ORRERY_FINDING_LOST = 2, /* the call succeeds, and a part of the text does not reach the record as it stands */
    ORRERY_FINDING_FATAL = 3 /* the call answers 0 */
};

/* One finding. Texts are UTF-8 and live during the callback only; none of them is null. */
typedef struct tagORRERY_FINDING {
    uint32_t dwSize;  /* sizeof(ORRERY_FINDING) of the library: later versions add members at the end */
    int32_t nKind;    /* ORRERY_FINDING_..., as above */
    int32_t nGravity; /* ORRERY_FINDING_NOTE, _LOST or _FATAL */
    uint32_t nLine;   /* from 1; of a record 0 */
    uint32_t nColumn; /* from 1, in characters; of a record 0 */
    uint32_t nLost;   /* bytes of a text that was cut, elements of a list that were dropped; otherwise 0 */
    uint64_t
        nOffset; /* of the value, of an unknown or repeated key, or of the error, in bytes from the text's beginning */
    uint64_t nLength;      /* bytes there; 0 at the end of the text */
    const char* szKind;    /* the kind as a word */
    const char* szPath;    /* where in the document: params.table[2].Port; empty: the document itself */
    const char* szField;   /* the member of the record: CFG_NTP_INFO.nPort; empty when there is none */
    const char* szMessage; /* what happens, as a sentence without a line break */
    const char*
        szNearest; /* the nearest key, or the texts that are known, separated by ", "; empty when there is none */
} ORRERY_FINDING;

/* Takes the findings, in the order of the text. 0 ends the call. It must return. */
typedef int32_t (*ORRERY_FINDING_CALLBACK)(const ORRERY_FINDING* finding, void* user);

/* What these functions answer instead of a count. */
#define ORRERY_EXPLAIN_BAD_ARGUMENT (-1)    /* a null argument */
#define ORRERY_EXPLAIN_UNKNOWN_COMMAND (-2) /* no command of that name does that */
#define ORRERY_EXPLAIN_NO_MEMORY (-3)

/* Explains a device's reply as CLIENT_ParseData would read it. `length` is the text's length in bytes, so that what
 * stands behind a NUL is found too. `records` is how many records the caller's buffer holds; 0: as many as the reply
 * has. What stands behind pointers of the caller's is taken as large enough. Answers how many findings there are, those
 * that were not handed over included. Where there are none, it takes at most three times as long as the parse. What is
 * told is put into words, and its place looked up: short replies, of which each number is told, take up to ten times.
 */
int32_t ORRERY_ExplainReply(const char* command, const char* text, size_t length, uint32_t records,
                            ORRERY_FINDING_CALLBACK callback, void* user);

/* The same of a text of analyzer events, as CLIENT_ParseAnalyzerEventData would read it. */
int32_t ORRERY_ExplainEvents(const char* text, size_t length, ORRERY_FINDING_CALLBACK callback, void* user);

/* Explains records of the caller's as CLIENT_PacketData would write them: why they are refused, what of them leaves no
 * trace in the text, which codes have no name. Members whose bytes are all 0 are not told of. A finding has no place in
 * a text: nLine, nColumn, nOffset and nLength are 0, and szPath is the member, stuServers[1].nPort, behind [2]. where
 * there are several records. The records are tried again and again, member by member: this is for finding mistakes, not
 * for every call. */
int32_t ORRERY_ExplainRecord(const char* command, const void* record, uint32_t recordSize,
                             ORRERY_FINDING_CALLBACK callback, void* user);

/* How well a command fits a reply. */
typedef struct tagORRERY_FIT {
    uint32_t dwSize;       /* sizeof(ORRERY_FIT) of the library */
    uint32_t nRead;        /* keys of the reply that the command reads */
    uint32_t nLeft;        /* keys that nothing reads */
    uint32_t nWrong;       /* other findings but notes */
    int32_t bRefused;      /* 1: the command refuses the reply */
    const char* szCommand; /* its name; empty for a text of analyzer events, which no command reads */
} ORRERY_FIT;

/* Takes the commands that fit, the best first. 0 ends the call. */
typedef int32_t (*ORRERY_FIT_CALLBACK)(const ORRERY_FIT* fit, void* user);

/* Finds the commands whose replies look like this text: those that read a key of it at least. Of commands whose records
 * are read by the same table, each is told. Answers how many fit; 0 also for a text that is no JSON. */
int32_t ORRERY_FindFits(const char* text, size_t length, ORRERY_FIT_CALLBACK callback, void* user);

#ifdef __cplusplus
}
#endif

#endif
