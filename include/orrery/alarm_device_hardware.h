/* Outputs, keyboards, extension boxes, lights and supervised devices.
 *
 * All but "FlashLight" take a record an element of a list, or one record from an object; other types and an empty list
 * are refused. One whole record is written bare, several as a list. Keys that are absent leave 0 unless told otherwise.
 */
#ifndef ORRERY_ALARM_DEVICE_HARDWARE_H
#define ORRERY_ALARM_DEVICE_HARDWARE_H

#include "orrery/comm_attribute.h"
#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "AlarmOut": an alarm output. */
typedef struct CFG_ALARM_OUT_INFO {
    char szName[64];     /* "Name" */
    char szType[128];    /* "Type": what hangs on it */
    int32_t nMode;       /* "Mode": 0 by events, 1 on, 2 off */
    int32_t nPulseDelay; /* "PulseDelay": length of a pulse, seconds */
    int32_t nSlot;       /* "Slot": root address, -1 when absent; -1 is not written */
    int32_t nLevel1;     /* "Level1": first cascade address, -1 when absent; -1 is not written */
    int32_t abLevel2;    /* 1 when "Level2" was there; "Level2" is written only when set */
    int32_t nLevel2;     /* "Level2": second cascade address */
} CFG_ALARM_OUT_INFO;

/* "ExAlarmOut": an output of an extension box. */
typedef struct CFG_EX_ALARM_OUT_INFO {
    char szName[64]; /* "Name" */
    int32_t nMode;   /* "Mode": 0 by events, 1 on, 2 off */
} CFG_EX_ALARM_OUT_INFO;

/* "AlarmKeyboard", "ExAlarmBox": a device on a serial line. */
typedef struct CFG_SERIAL_ALARM_DEVICE_INFO {
    int32_t bEnable;                 /* "Enable" */
    char szProtocolName[32];         /* "ProtocolName" */
    int32_t nPort;                   /* "Port": serial port */
    int32_t nAddress;                /* "Address": of the device on the line */
    CFG_COMM_ATTRIBUTE stuAttribute; /* "Attribute" */
} CFG_SERIAL_ALARM_DEVICE_INFO;

/* "FlashLight": a light beside the camera. Read from the reply of a refused call too. A text of exactly the capacity is
 * taken and loses its newline. */
typedef struct CFG_FLASH_LIGHT_INFO {
    int32_t nEnable;                                                        /* "Enable": 0 or 1; a number in the text */
    int32_t nBrightness;                                                    /* "Brightness": 0 to 100 */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSection": when it is lit. A cell
                                                                               that is no section stays zero, and those
                                                                               behind it are read */
} CFG_FLASH_LIGHT_INFO;

/* "SCADADev": a device that is supervised. The linkage is read in every case. An empty text is refused with the buffer
 * untouched. The log is told of an empty text, of a buffer or record below one record, of a text buffer without room
 * ("Parameters invalid"), and of a table that is neither a list nor an object ("Table in not array and object"). */
typedef struct CFG_SCADA_DEV_INFO {
    int32_t bEnable;                        /* "Enable" */
    char szDevType[64];                     /* "DevType" */
    char szDevName[64];                     /* "DevName" */
    int32_t nSlot;                          /* "Slot": root address */
    int32_t nLevel;                         /* "Level": cascade address */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_SCADA_DEV_INFO;

#ifdef __cplusplus
}
#endif

#endif
