/* Video diagnosis: servers that watch streams for faults such as lost signal, freezing or a colour cast. A profile says
 * which tests run with which thresholds, a task which sources are examined under which profile, a project when tasks
 * run.
 *
 * Memory is the caller's throughout. A list command takes a descriptor of exactly 16 bytes: nMax, the room of the array
 * behind pEntries, is set before reading and before writing; nReturned tells what was read, and what is written. A null
 * pEntries and an nMax below 1 fail in both directions. Records in the array are read in place and never cleared:
 * absent keys keep what the caller has there, presence flags too, so begin with zeros. A pointer in a record leads to
 * memory of the caller's own; where it is null that part is neither read nor written. A list made by hand needs its
 * nReturned set.
 *
 * In the text, profiles, tasks and projects are members of one object, under their names, in the order of the names'
 * bytes. A reply with more of them than nMax fails with nothing read. A member that is null is an entry of which only
 * the name is known; a table of another type than an object has no members. Of "result" only a false one counts, and
 * not before everything has been read: the call then fails with the entries filled. Of entries of one name the last is
 * written; without any the text is null.
 *
 * Texts may be exactly as long as their buffer. Nothing is written behind the text, not even a terminator, and nothing
 * when the call fails: pass a cleared buffer. */
#ifndef ORRERY_DIAGNOSIS_H
#define ORRERY_DIAGNOSIS_H

#include "orrery/remote_device.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_DIAGNOSIS_TYPES 11

/* The form that all descriptors below have, for code that handles several of them. */
typedef struct CFG_DIAGNOSIS_LIST_INFO {
    int32_t nMax;      /* room of the array, in entries */
    int32_t nReturned; /* entries in use */
    void* pEntries;    /* the caller's array */
} CFG_DIAGNOSIS_LIST_INFO;

/* ---- Profiles ---- */

/* A test that is on or off. */
typedef struct CFG_DIAG_ENABLE {
    uint8_t bEnable; /* "Enable" */
} CFG_DIAG_ENABLE;

/* A test for a state that lasts. */
typedef struct CFG_DIAG_BASIC {
    uint8_t bEnable;      /* "Enable" */
    int32_t nMinDuration; /* "MinDuration": shortest time of a fault, seconds */
} CFG_DIAG_BASIC;

/* A test with two thresholds. */
typedef struct CFG_DIAG_THRESHOLD {
    uint8_t bEnable;      /* "Enable" */
    int32_t nMinDuration; /* "MinDuration": shortest time of a fault, seconds */
    uint8_t byThreshold1; /* "Threshold1": of a warning */
    uint8_t byThreshold2; /* "Threshold2": of a fault */
} CFG_DIAG_THRESHOLD;

/* A test for stripes. */
typedef struct CFG_DIAG_STRIATION {
    uint8_t bEnable;      /* "Enable" */
    int32_t nMinDuration; /* "MinDuration": shortest time of a fault, seconds */
    uint8_t byThreshold1; /* "Threshold1": of a warning */
    uint8_t byThreshold2; /* "Threshold2": of a fault */
    uint8_t bUVDetection; /* "UVDetection": colour is looked at too */
} CFG_DIAG_STRIATION;

/* A test for values that leave a range. */
typedef struct CFG_DIAG_RANGE {
    uint8_t bEnable;           /* "Enable" */
    int32_t nMinDuration;      /* "MinDuration": shortest time of a fault, seconds */
    uint8_t byLowerThreshold1; /* "LowerThreshold1": below it a warning */
    uint8_t byUpperThreshold1; /* "UpperThreshold1": above it a warning */
    uint8_t byLowerThreshold2; /* "LowerThreshold2": below it a fault */
    uint8_t byUpperThreshold2; /* "UpperThreshold2": above it a fault */
} CFG_DIAG_RANGE;

/* A test whose thresholds are counts. */
typedef struct CFG_DIAG_COUNT {
    uint8_t bEnable;      /* "Enable" */
    int32_t nThreshold1;  /* "Threshold1": of a warning */
    int32_t nThreshold2;  /* "Threshold2": of a fault */
    int32_t nMinDuration; /* "MinDuration": shortest time of a fault, seconds */
} CFG_DIAG_COUNT;

/* Which tests run. Each pointer leads to one record of the caller's; null leaves the test out of both directions. */
typedef struct CFG_DIAGNOSIS_PROFILE {
    char szName[260];                         /* the name of the member that the profile stands under */
    CFG_DIAG_THRESHOLD* pstuVideoDither;      /* "VideoDitherDetection": shaking */
    CFG_DIAG_STRIATION* pstuVideoStriation;   /* "VideoStriationDetection": stripes */
    CFG_DIAG_BASIC* pstuVideoLoss;            /* "VideoLossDetection": no signal */
    CFG_DIAG_THRESHOLD* pstuVideoCover;       /* "VideoCoverDetection": the lens is covered */
    CFG_DIAG_BASIC* pstuVideoFrozen;          /* "VideoFrozenDetection": the picture stands still */
    CFG_DIAG_RANGE* pstuVideoBrightness;      /* "VideoBrightnessDetection" */
    CFG_DIAG_RANGE* pstuVideoContrast;        /* "VideoContrastDetection" */
    CFG_DIAG_THRESHOLD* pstuVideoUnbalance;   /* "VideoUnbalanceDetection": a colour cast */
    CFG_DIAG_THRESHOLD* pstuVideoNoise;       /* "VideoNoiseDetection" */
    CFG_DIAG_THRESHOLD* pstuVideoBlur;        /* "VideoBlurDetection" */
    CFG_DIAG_THRESHOLD* pstuVideoSceneChange; /* "VideoSceneChangeDetection" */
    CFG_DIAG_ENABLE* pstuVideoDelay;          /* "VideoDelay" */
    CFG_DIAG_ENABLE* pstuPTZMoving;           /* "PTZMoving": whether the head moves when told */
    CFG_DIAG_COUNT* pstuVideoBlackAndWhite;   /* "VideoBlackAndWhite": colour is missing */
    CFG_DIAG_COUNT* pstuVideoDramaticChange;  /* "VideoDramaticChange": read only when pstuVideoBlackAndWhite is
                                                 not null either */
} CFG_DIAGNOSIS_PROFILE;

/* "VideoDiagnosisProfile": the profiles. One with an empty name is written under an empty name. */
typedef struct CFG_DIAGNOSIS_PROFILE_LIST {
    int32_t nMax;                    /* room of pEntries, set before reading and writing */
    int32_t nReturned;               /* profiles in use */
    CFG_DIAGNOSIS_PROFILE* pEntries; /* members of the table: the caller's array */
} CFG_DIAGNOSIS_PROFILE_LIST;

/* ---- Tasks ---- */

/* Which of a channel's streams is examined ("VideoStream"). A text that is none of these gives 0; 0 and every other
 * code are written as an empty text. */
enum {
    CFG_DIAGNOSIS_STREAM_UNKNOWN = 0,
    CFG_DIAGNOSIS_STREAM_MAIN = 1,     /* "Main" */
    CFG_DIAGNOSIS_STREAM_EXTRA1 = 2,   /* "Extra1" */
    CFG_DIAGNOSIS_STREAM_EXTRA2 = 3,   /* "Extra2" */
    CFG_DIAGNOSIS_STREAM_EXTRA3 = 4,   /* "Extra3" */
    CFG_DIAGNOSIS_STREAM_SNAPSHOT = 5, /* "Snapshot" */
    CFG_DIAGNOSIS_STREAM_OBJECT = 6    /* "Object" */
};

/* A video input of a device that is examined. */
typedef struct CFG_DIAGNOSIS_VIDEOINPUT {
    int32_t bEnable;            /* "Enable" */
    char szName[64];            /* "Name" */
    char szControlID[128];      /* "ControlID": under which it is controlled */
    char szMainStreamUrl[260];  /* "MainStreamUrl" */
    char szExtraStreamUrl[260]; /* "ExtraStreamUrl" */
    int32_t nServiceType; /* "ServiceType": CFG_REMOTE_SERVICE_..., in the case shown there; a text that is none of
                             these gives -1, a code that is none of these writes an empty text */
} CFG_DIAGNOSIS_VIDEOINPUT;

/* A device that is examined, told in full. */
typedef struct CFG_DIAGNOSIS_DEVICE {
    char szAddress[260];                    /* "Address": IP address or host name */
    int32_t nPort;                          /* "Port" */
    char szUserName[260];                   /* "UserName" */
    char szPassword[260];                   /* "Password" */
    char szProtocolType[260];               /* "ProtocolType" */
    CFG_DIAGNOSIS_VIDEOINPUT* pVideoInputs; /* "VideoInputs": the caller's array, in which each element is read in
                                               place; read when it is a list, absent it is an empty one */
    int32_t nVideoInputMax;                 /* room of pVideoInputs, set before reading and writing */
    int32_t nVideoInputNum; /* video inputs in use: those of the text, at most nVideoInputMax, also when pVideoInputs is
                               null */
} CFG_DIAGNOSIS_DEVICE;

/* A stream that is examined, of a device that is named or told in full. Not written when it is neither, and neither
 * when the name or the address that its kind promises is empty: it then takes no place in the list. */
typedef struct CFG_DIAGNOSIS_SOURCE {
    uint8_t nDeviceKind;                /* set to 1 when "Device" was there, which is written only when this is set */
    uint8_t nDeviceInfoKind;            /* the same for "DeviceInfo" */
    char szDevice[260];                 /* "Device": identifier of a device that the server knows */
    CFG_DIAGNOSIS_DEVICE stuDeviceInfo; /* "DeviceInfo" */
    int32_t nVideoChannel;              /* "VideoChannel": from 0 */
    int32_t nVideoStream;               /* "VideoStream": CFG_DIAGNOSIS_STREAM_... */
    int32_t nDuration;                  /* "Duration": of the examination, seconds */
    int32_t bStartTime;                 /* set to 1 when "StartTime" was there, which is written only when this is 1 */
    NET_TIME_V2 stuStartTime; /* "StartTime": read only when its dwSize is 28 before the call; null is written with
                                 another dwSize */
} CFG_DIAGNOSIS_SOURCE;

/* Which sources are examined under which profile. */
typedef struct CFG_DIAGNOSIS_TASK {
    char szName[260];        /* of a single task the end of the reply's "name", of others the name of their member */
    char szProfile[260];     /* "Profile": name of a profile */
    int32_t nSourceMax;      /* room of pSources, set before reading and writing */
    int32_t nSourceReturned; /* sources in use: those of the text, at most nSourceMax, also when pSources is null */
    CFG_DIAGNOSIS_SOURCE* pSources; /* "Sources": the caller's array; absent it is an empty list */
} CFG_DIAGNOSIS_TASK;

/* "VideoDiagnosisTask": the tasks. Reading fails when the first entry's pSources is null or its nSourceMax below 1. An
 * entry with an empty name is not written.
 *
 * "VideoDiagnosisTask.x", with a task's name for x: that one task, as the table itself. It is read into the first
 * entry, with nReturned 1; its name is what follows the last "." in the reply's "params"."name", and left alone without
 * one. It is written from the first entry, without its name and whatever nReturned says, and only when nMax is
 * exactly 1. */
typedef struct CFG_DIAGNOSIS_TASK_LIST {
    int32_t nMax;                 /* room of pEntries, set before reading and writing */
    int32_t nReturned;            /* tasks in use */
    CFG_DIAGNOSIS_TASK* pEntries; /* members of the table, or the table: the caller's array */
} CFG_DIAGNOSIS_TASK_LIST;

/* ---- Projects ---- */

/* When a task of a project runs. */
typedef struct CFG_DIAGNOSIS_PROJECT_TASK {
    uint8_t bEnable;  /* "Enable" */
    char szName[260]; /* "Name": of the task; one without is not written and takes no place */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS]
                                   [ORRERY_DAY_SECTIONS]; /* "TimeSection": Sunday first; written
                                                             without leading zeros: "1 8:0:0-17:30:0" */
    int32_t bIsCycle; /* "IsCycle": the task begins anew once it is done; true at exactly 1 */
} CFG_DIAGNOSIS_PROJECT_TASK;

/* Tasks with their times. */
typedef struct CFG_DIAGNOSIS_PROJECT {
    char szName[260];      /* the name of the member that the project stands under */
    int32_t nTaskMax;      /* room of pTasks, set before reading and writing */
    int32_t nTaskReturned; /* tasks in use: those of the text, at most nTaskMax, also when pTasks is null */
    CFG_DIAGNOSIS_PROJECT_TASK* pTasks; /* "Tasks": the caller's array; absent it is an empty list */
} CFG_DIAGNOSIS_PROJECT;

/* "VideoDiagnosisProject": the projects. An entry with an empty name is not written. */
typedef struct CFG_DIAGNOSIS_PROJECT_LIST {
    int32_t nMax;                    /* room of pEntries, set before reading and writing */
    int32_t nReturned;               /* projects in use */
    CFG_DIAGNOSIS_PROJECT* pEntries; /* members of the table: the caller's array */
} CFG_DIAGNOSIS_PROJECT_LIST;

/* A project that runs at once. */
typedef struct CFG_DIAGNOSIS_REALPROJECT {
    char szProject[260];        /* "Project": its name */
    CFG_DIAGNOSIS_TASK stuTask; /* "Task": without its name */
} CFG_DIAGNOSIS_REALPROJECT;

/* "VideoDiagnosisRealProject": projects that run at once; written only, always as a list, of nMax entries whatever
 * nReturned says. */
typedef struct CFG_DIAGNOSIS_REALPROJECT_LIST {
    int32_t nMax;                        /* entries that are written */
    int32_t nReturned;                   /* not looked at */
    CFG_DIAGNOSIS_REALPROJECT* pEntries; /* elements of the list: the caller's array */
} CFG_DIAGNOSIS_REALPROJECT_LIST;

/* ---- The server ---- */

/* Which projects a server runs. */
typedef struct CFG_DIAGNOSIS_GLOBAL_ENTRY {
    int32_t bTourProject;        /* set to 1 when "TourProject" was there, which is written only when this is 1 */
    char szTourProject[260];     /* "TourProject": name of the project that runs by its times */
    int32_t bRealTimeProject;    /* set to 1 when "RealTimeProject" was there, which is written only when this is 1 */
    char szRealTimeProject[260]; /* "RealTimeProject": name of the project that runs at once */
} CFG_DIAGNOSIS_GLOBAL_ENTRY;

/* "VideoDiagnosisGlobal": the projects of each channel or server, as a list. "result" must be true, another type than a
 * list fails, and elements past nMax are passed over. Always written as a list. */
typedef struct CFG_DIAGNOSIS_GLOBAL_LIST {
    int32_t nMax;                         /* room of pEntries, set before reading and writing */
    int32_t nReturned;                    /* entries in use */
    CFG_DIAGNOSIS_GLOBAL_ENTRY* pEntries; /* elements of the table: the caller's array */
} CFG_DIAGNOSIS_GLOBAL_LIST;

/* "videoDiagnosisServer.getCaps": what a server can do. The reply has its keys in "caps", or in "params" itself where
 * there is no "caps"; "result" must read as the text "true". The buffer, and the record that is written, must have
 * exactly this size. */
typedef struct CFG_DIAGNOSIS_CAPS_INFO {
    int32_t nTypeNum;                          /* entries of szTypes in use */
    char szTypes[ORRERY_DIAGNOSIS_TYPES][260]; /* "SupportedType": names of the tests */
    int32_t nMaxProfiles;                      /* "MaxProfiles" */
    int32_t nMaxTasks;                         /* "MaxTasks" */
    int32_t nMaxSourcesOfTask;                 /* "MaxSourcesOfTask" */
    int32_t nMaxProjects;                      /* "MaxProjects" */
} CFG_DIAGNOSIS_CAPS_INFO;

/* "videoDiagnosisServer.getState": what a server is doing, from the reply's "state": one record, or a list of which as
 * many are read as the buffer holds. The length told is that of one record. */
typedef struct CFG_DIAGNOSIS_STATE_INFO {
    uint8_t bEnable;                        /* "Enable" */
    uint8_t bRunning;                       /* "Running" */
    char szCurrentProject[260];             /* "CurrentProject" */
    char szCurrentTask[260];                /* "CurrentTask" */
    char szCurrentProfile[260];             /* "CurrentProfile" */
    int32_t nSourceCountOfCurrentTask;      /* "SourceCountOfCurrentTask" */
    int32_t nIndexOfCurrentSource;          /* "IndexOfCurrentSource": from 0 */
    CFG_TIME_SECTION stuCurrentTimeSection; /* "CurrentTimeSection" */
    int32_t nTaskCountOfCurrentProject;     /* "TaskCountOfCurrentProject" */
    int32_t nIndexOfCurrentTask;            /* "IndexOfCurrentTask": from 0 */
} CFG_DIAGNOSIS_STATE_INFO;

#ifdef __cplusplus
}
#endif

#endif
