/* How a serial line is set, as PTZ heads, alarm keyboards and extension boxes on RS-485 and RS-232 carry it. */
#ifndef ORRERY_COMM_ATTRIBUTE_H
#define ORRERY_COMM_ATTRIBUTE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of a character. */
enum {
    CFG_COMM_DATA_BITS_5 = 0, /* 5 */
    CFG_COMM_DATA_BITS_6 = 1, /* 6 */
    CFG_COMM_DATA_BITS_7 = 2, /* 7 */
    CFG_COMM_DATA_BITS_8 = 3  /* 8 */
};

/* Stop bits. */
enum {
    CFG_COMM_STOP_BITS_1 = 0,   /* "1" */
    CFG_COMM_STOP_BITS_1_5 = 1, /* "1.5" */
    CFG_COMM_STOP_BITS_2 = 2    /* "2" */
};

/* Parity. The texts compare with case folded. */
enum {
    CFG_COMM_PARITY_NONE = 0, /* "None" */
    CFG_COMM_PARITY_ODD = 1,  /* "Odd" */
    CFG_COMM_PARITY_EVEN = 2, /* "Even" */
    CFG_COMM_PARITY_MARK = 3, /* "Mark" */
    CFG_COMM_PARITY_SPACE = 4 /* "Space" */
};

/* Bits a second. */
enum {
    CFG_COMM_BAUD_300 = 0,   /* 300 */
    CFG_COMM_BAUD_600 = 1,   /* 600 */
    CFG_COMM_BAUD_1200 = 2,  /* 1200 */
    CFG_COMM_BAUD_2400 = 3,  /* 2400 */
    CFG_COMM_BAUD_4800 = 4,  /* 4800 */
    CFG_COMM_BAUD_9600 = 5,  /* 9600 */
    CFG_COMM_BAUD_19200 = 6, /* 19200 */
    CFG_COMM_BAUD_38400 = 7, /* 38400 */
    CFG_COMM_BAUD_57600 = 8, /* 57600 */
    CFG_COMM_BAUD_115200 = 9 /* 115200 */
};

/* The "Attribute" of a serial line. Text form: [ 9600, 8, "None", "1" ]: baud rate, data bits, parity, stop bits. Read
 * from an array of at least four elements; an element that none of the codes stands for reads as 0. A code out of range
 * writes null in its place, and nothing behind the last element that has a value; without any, null is written. */
typedef struct CFG_COMM_ATTRIBUTE {
    uint8_t byDataBits; /* CFG_COMM_DATA_BITS_... */
    uint8_t byStopBits; /* CFG_COMM_STOP_BITS_... */
    uint8_t byParity;   /* CFG_COMM_PARITY_... */
    uint8_t byBaudRate; /* CFG_COMM_BAUD_... */
} CFG_COMM_ATTRIBUTE;

#ifdef __cplusplus
}
#endif

#endif
