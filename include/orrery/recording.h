/* When a channel records, and where its recordings go.
 *
 * Keys that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_RECORDING_H
#define ORRERY_RECORDING_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Periods of recording begin with a mask of the kinds of recording that they are for. A record holds it in another
 * order of bits than the text; other bits than these are dropped both ways:
 *
 *     record  0x01  0x02  0x04  0x08  0x40
 *     text    0x02  0x04  0x01  0x10  0x40
 *
 * Of "3 08:00:00-17:30:00" a record has the mask 0x05. Each part of a clock time has two digits at the most. What is no
 * text leaves its period zero; of a text that is no period the parts before its fault are kept. */

#define ORRERY_RECORD_FORMAT_VERSION 3

/* "Record": when a channel records. A reply with "channel", or with a "channel" among its "params" when it has none of
 * its own, that is 0 or above tells of that channel alone, and its table is one record. Any other table is a list, a
 * record a channel, in which a null is a record without keys; nothing but a list is taken then. A missing table, and an
 * empty list, succeed with a length of 0. One record is written bare, several as a list. */
typedef struct CFG_RECORD_INFO {
    int32_t nChannel; /* the reply's "channel"; in a list the place of the record, from 0. Not written */
    CFG_TIME_SECTION
    stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSection": the first seven rows, Sunday first, with
                                                              masks of the kinds of recording; written always */
    int32_t nPreRecord;                                    /* "PreRecord": seconds recorded before an event */
    uint32_t bRedundancy;                                  /* "Redundancy": recorded to a second disk too */
    int32_t nStream; /* "Stream": which stream is recorded, read as unsigned; a negative number is not written */
    uint32_t nFormatVersion;    /* ORRERY_RECORD_FORMAT_VERSION once a record was read */
    uint32_t bHolidaySupported; /* 1 when "TimeSection" had an eighth row: it and bHolidayEnable are read and written
                                   only then */
    uint32_t bHolidayEnable;    /* "HolidayEnable" */
    CFG_TIME_SECTION stuHolidayTimeSection[ORRERY_DAY_SECTIONS]; /* of "TimeSection" the eighth row: holidays */
} CFG_RECORD_INFO;

/* "RecordMode": how channels record; one record or a list, in which a null is a record without keys. Records begin with
 * dwSize, the size that the caller was compiled with: the caller sets that of its first record before every call, and
 * it is the distance from one record to the next. A dwSize below 4, or above the buffer, fails. What lies behind the
 * caller's own records stays as it was. */
typedef struct CFG_RECORD_MODE_INFO {
    uint32_t dwSize;
    int32_t nChannel;    /* for the client's own use: no text tells it, 0 after reading */
    int32_t nMode;       /* "Mode": how the main stream is recorded */
    int32_t nModeExtra1; /* "ModeExtra1": how the first extra stream is */
    int32_t nModeExtra2; /* "ModeExtra2": how the second extra stream is */
} CFG_RECORD_MODE_INFO;

#define ORRERY_MONTHS 12

/* "HolidaySchedule": which days are holidays, and what is recorded on them. It stands at the top of the reply, under
 * the command's name, and is written so; the device's "result" is not looked at. One record or a list; a null in it
 * leaves its record zero, and an empty list is refused. One record is written bare, several as a list. */
typedef struct CFG_HOLIDAY_SCHEDULE_INFO {
    int32_t bEnable;  /* "En" */
    int32_t nChannel; /* "Chn", which counts from 1 in the text: from 0 */
    uint32_t
        nMonthSchedule[ORRERY_MONTHS]; /* "MonthSchedule": for each month from January on the mask of its holidays */
    CFG_TIME_SECTION stuTimeSection[ORRERY_DAY_SECTIONS]; /* "TimeSectionGroup": periods of those days, with masks of
                                                             the kinds of recording */
} CFG_HOLIDAY_SCHEDULE_INFO;

/* What is stored at a point: the name of its member in the text, case folded. */
typedef enum CFG_RECORD_STORAGE_TYPE {
    CFG_RECORD_STORAGE_TIMING_RECORD = 0,         /* "TimingRecord" */
    CFG_RECORD_STORAGE_MANUAL_RECORD = 1,         /* "ManualRecord" */
    CFG_RECORD_STORAGE_VIDEO_DETECT_RECORD = 2,   /* "VideoDetectRecord" */
    CFG_RECORD_STORAGE_ALARM_RECORD = 3,          /* "AlarmRecord" */
    CFG_RECORD_STORAGE_CARD_RECORD = 4,           /* "CardRecord" */
    CFG_RECORD_STORAGE_EVENT_RECORD = 5,          /* "EventRecord" */
    CFG_RECORD_STORAGE_TIMING_SNAPSHOT = 6,       /* "TimingSnapShot" */
    CFG_RECORD_STORAGE_MANUAL_SNAPSHOT = 7,       /* "ManualSnapShot" */
    CFG_RECORD_STORAGE_VIDEO_DETECT_SNAPSHOT = 8, /* "VideoDetectSnapShot" */
    CFG_RECORD_STORAGE_ALARM_SNAPSHOT = 9,        /* "AlarmSnapShot" */
    CFG_RECORD_STORAGE_CARD_SNAPSHOT = 10,        /* "CardSnapShot" */
    CFG_RECORD_STORAGE_EVENT_SNAPSHOT = 11,       /* "EventSnapShot" */
    CFG_RECORD_STORAGE_TIMING_EXTRA1_RECORD = 12, /* "TimingExtra1Record" */
    CFG_RECORD_STORAGE_UNKNOWN = 13               /* any other name; it and all other codes are not written */
} CFG_RECORD_STORAGE_TYPE;

/* Where one kind of recordings or snapshots goes. */
typedef struct CFG_RECORD_STORAGE_POINT_ITEM {
    uint32_t dwSize; /* the size of this record, set when the item is read; not looked at when it is written */
    int32_t emType;  /* the name under which the item stands: CFG_RECORD_STORAGE_TYPE */
    int32_t nLocal;  /* "Local": at the device itself */
    char szRealtimeCompress[256]; /* "RealtimeCompress": place of what is compressed as it is recorded */
    char szRedundant[256];        /* "Redundant": place of the second copy */
    char szRemote[256];           /* "Remote": place of the copy elsewhere */
    uint32_t bAutoSync;           /* "AutoSync": the remote place gets what it missed once it is back */
    uint32_t nAutoSyncRange;      /* "AutoSyncRange": how far back, hours */
    uint32_t bLocalForEmergency;  /* "LocalForEmergency": kept at the device while the remote place is away */
    uint32_t nCompressBefore;     /* "CompressBefore": what is older is compressed, days */
} CFG_RECORD_STORAGE_POINT_ITEM;

#define ORRERY_RECORD_STORAGE_POINTS 32

/* "RecordStoragePoint": where the recordings of a channel go. The table is an object, each member of which is an item
 * of its kind; they come in the order of their names' bytes, a member that is null is an item without keys. A missing
 * table gives a record of zeros; the device's "result" is not looked at. Written is the same object, of several items
 * of one kind the last; null when there is none to write. A text of exactly the capacity loses its newline.
 *
 * A buffer of exactly the size of CFG_RECORD_STORAGE_POINT_CHANNELS is one, and the channels' records are where it
 * says. */
typedef struct CFG_RECORD_STORAGE_POINT_INFO {
    int32_t nCount;                                                       /* entries of stuItems in use */
    CFG_RECORD_STORAGE_POINT_ITEM stuItems[ORRERY_RECORD_STORAGE_POINTS]; /* the members, at most 32 */
} CFG_RECORD_STORAGE_POINT_INFO;

/* "RecordStoragePoint" for all channels: the table is a list, in which a null is a channel without items. It begins
 * with the size that the caller was compiled with, and what lies behind it is neither read nor written: with a dwSize
 * of 4 there are no channels. A dwSize below 4 is told to the log; a reply then succeeds and tells nothing. A missing
 * table, and one that is no list, give a count of 0. Writing fails without channels. A channel without items to write
 * is null in the list, and has no place behind the last one that has some. */
typedef struct CFG_RECORD_STORAGE_POINT_CHANNELS {
    uint32_t dwSize;
    int32_t nChannelCount; /* room of the array, set before reading; channels in use after it, and before writing */
    CFG_RECORD_STORAGE_POINT_INFO* pstuChannels; /* the list itself: the caller's array, set before reading; null has
                                                    room for nothing. Records that are read are cleared first */
} CFG_RECORD_STORAGE_POINT_CHANNELS;

/* "recordManager.getCaps": what a device can record. */
typedef struct CFG_RECORD_CAPS {
    int32_t bSupportHoliday;         /* "SupportHoliday": plans have a row of holidays */
    int32_t bSupportExtraRecordMode; /* "SupportExtraRecordMode": extra streams have modes of their own */
    int32_t nMaxPreRecordTime;       /* "MaxPreRecordTime": most seconds before an event */
    int32_t nMaxRemoteBitrate;       /* "MaxRemoteBitrate": most of all remote channels, kilobits a second */
    int32_t nMaxRemoteRawBitrate;    /* "MaxRemoteRawBitrate": the same before they are compressed again */
    int32_t nMaxStreams;             /* "MaxStreams": most streams recorded at a time */
} CFG_RECORD_CAPS;

#ifdef __cplusplus
}
#endif

#endif
