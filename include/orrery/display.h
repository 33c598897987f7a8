/* What a display shows and what a matrix switches: titles, outputs, colours, inputs, analog matrices, and small
 * switches of a site. Monitor walls are in monitor_wall.h, on-screen widgets in video_widget.h.
 *
 * A table that is an object is one record, an array gives a record an element, as many as fit; a null element leaves
 * its record cleared and is counted; other types fail. Written are as many records as fit the size: one bare, several
 * as a list. Keys that are absent leave 0 or an empty text; all keys are written unless told otherwise.
 *
 * Records that begin with dwSize, "VideoOut", "VideoColor" and "ChannelTitle", carry the size that the caller was
 * compiled with: set it in the first record before every call, also before reading. It is the distance from one record
 * to the next, whatever the later records' own words hold, which are neither read nor written. A dwSize below 4, or one
 * above the buffer, fails; 1 to 3 are told to the log besides. What lies within dwSize moves; what lies behind the
 * caller's own records stays as it was. Of these a missing table, and an empty list, succeed with a length of 0, and a
 * null element leaves the caller's record as it was. Of the other records a missing table fails, and an empty list
 * succeeds with a length of 0. */
#ifndef ORRERY_DISPLAY_H
#define ORRERY_DISPLAY_H

#include "orrery/comm_attribute.h"
#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SNAP_SECTIONS 42  /* sections of a snapshot schedule */
#define ORRERY_MATRIX_INPUTS 256 /* sources of an analog matrix that are told one by one */

/* ---- Titles ---- */

/* "ChannelTitle": what a channel is called on the screen. */
typedef struct CFG_CHANNEL_TITLE_INFO {
    uint32_t dwSize;
    int32_t nSerialNo; /* "SerialNo" */
    char szName[256];  /* "Name" */
} CFG_CHANNEL_TITLE_INFO;

/* "VideoOutputTitle": what a video output is called. */
typedef struct CFG_VIDEO_OUTPUT_TITLE_INFO {
    char szName[128]; /* "Name" */
} CFG_VIDEO_OUTPUT_TITLE_INFO;

/* ---- Outputs ---- */

/* Connector of a video output ("Mode"."Format"). Unknown texts read as 0; other codes are written as "Auto". */
enum {
    CFG_VIDEO_OUT_AUTO = 0, /* "Auto" */
    CFG_VIDEO_OUT_TV = 1,   /* "TV" */
    CFG_VIDEO_OUT_VGA = 2,  /* "VGA" */
    CFG_VIDEO_OUT_DVI = 3,  /* "DVI" */
    CFG_VIDEO_OUT_HDMI = 4, /* "HDMI" */
    CFG_VIDEO_OUT_SPOT = 5  /* "SPOT": a monitor beside the main one */
};

/* How lines are scanned ("Mode"."ScanFormat"). Unknown texts read as 0; other codes are not written. */
enum {
    CFG_SCAN_PROGRESSIVE = 0, /* "PROGRESSIVE" */
    CFG_SCAN_INTERLACE = 1    /* "INTERLACE" */
};

/* "VideoOut": a video output. */
typedef struct CFG_VIDEO_OUT_INFO {
    uint32_t dwSize;
    int32_t nMargin[4];   /* "Margin": left, top, right, bottom; what the list does not have is 0 */
    int32_t nBrightness;  /* "Color"."Brightness" */
    int32_t nContrast;    /* "Color"."Contrast" */
    int32_t nSaturation;  /* "Color"."Saturation" */
    int32_t nHue;         /* "Color"."Hue" */
    int32_t nWidth;       /* "Mode"."Width": pixels */
    int32_t nHeight;      /* "Mode"."Height": pixels */
    int32_t nBpp;         /* "Mode"."BPP": bits a pixel */
    int32_t emFormat;     /* "Mode"."Format": CFG_VIDEO_OUT_... */
    int32_t nRefreshRate; /* "Mode"."RefreshRate": hertz */
    int32_t nIQIMode;     /* "Mode"."IQIMode": improvement of the picture, the device's own number */
    int32_t emScanFormat; /* "Mode"."ScanFormat": CFG_SCAN_... */
} CFG_VIDEO_OUT_INFO;

/* Style of colours ("Style"). Unknown texts read as 0; other codes are written as an empty text. */
enum {
    CFG_COLOR_STYLE_NONE = 0,      /* "" */
    CFG_COLOR_STYLE_GENTLE = 1,    /* "Gentle" */
    CFG_COLOR_STYLE_STANDARD = 2,  /* "Standard" */
    CFG_COLOR_STYLE_FLAMBOYANT = 3 /* "Flamboyant" */
};

/* "VideoColor": the colours of a period of the day; a record a period. */
typedef struct CFG_VIDEO_COLOR_INFO {
    uint32_t dwSize;
    int32_t nBrightness;             /* "Brightness" */
    int32_t nContrast;               /* "Contrast" */
    int32_t nSaturation;             /* "Saturation" */
    int32_t nHue;                    /* "Hue" */
    int32_t nGamma;                  /* "Gamma" */
    int32_t nChromaSuppress;         /* "ChromaSuppress" */
    int32_t emStyle;                 /* "Style": CFG_COLOR_STYLE_... */
    CFG_TIME_SECTION stuTimeSection; /* "TimeSection": when they apply; its times have at most two digits a number. Of a
                                        text that does not read to its end, the numbers in front of that */
} CFG_VIDEO_COLOR_INFO;

/* ---- Inputs ---- */

/* "VideoIn": what stands behind a video input. */
typedef struct CFG_VIDEO_IN_INFO {
    char szType[128];         /* "Type" */
    char szID[128];           /* "ID" */
    char szName[128];         /* "Name" */
    char szManufacturer[128]; /* "Manufacturer" */
    char szModel[128];        /* "Model" */
    char szAddress[256];      /* "Address": where it stands */
    char szCivilCode[128];    /* "CivilCode": of the administrative area */
    char szOwner[128];        /* "Owner" */
    int32_t nParental;        /* "Parental": whether it has inputs of its own below it, as its register counts */
    int32_t nEnable;          /* "Enable": 0 off, another number on; written as the number */
    int32_t nSecrecy;         /* "Secrecy": level of secrecy, 0 for none */
    char szUpperDevice[128];  /* "UpperDevice"."Device": the device that it hangs on */
    int32_t nOutputChannel;   /* "OutputChannel": of that device, from 0 */
    char szRegisterWay[32];   /* "RegisterWay": how it registers, in the device's own words */
    char szRemoteName[128];   /* "RemoteName" */
    char szSignalType[32];    /* "SignalType": kind of signal, in the device's own words */
} CFG_VIDEO_IN_INFO;

/* "VideoInBoundary": what is cut off an input's picture, in pixels. */
typedef struct CFG_VIDEO_IN_BOUNDARY_INFO {
    int32_t nLeft;   /* "Left" */
    int32_t nUp;     /* "Up" */
    int32_t nRight;  /* "Right" */
    int32_t nBottom; /* "Bottom" */
} CFG_VIDEO_IN_BOUNDARY_INFO;

/* "Snap": when snapshots are taken. Of a section that does not read to its end the numbers in front of that are kept,
 * and the list goes on behind it; all sections are written, also those without a time. */
typedef struct CFG_SNAP_SCHEDULE_INFO {
    CFG_TIME_SECTION stuTimeSection[ORRERY_SNAP_SECTIONS]; /* "TimeSection": a flat list of sections */
} CFG_SNAP_SCHEDULE_INFO;

/* "MovedDetect": alarm when a camera was moved. */
typedef struct CFG_MOVED_DETECT_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nSensitivity;                   /* "Sensitivity" */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler": what the device does then */
} CFG_MOVED_DETECT_INFO;

/* ---- Analog matrices ---- */

/* An input of an analog matrix that has a source. */
typedef struct CFG_ANALOG_MATRIX_SOURCE {
    char szControlID[128]; /* "ControlID": under which the source is controlled */
    int32_t nActive;       /* "Active": 1 when the source is in use, as the device counts */
    char szFormat[32];     /* "Format": of the signal, in the device's own words */
} CFG_ANALOG_MATRIX_SOURCE;

/* "AnalogMatrix": a matrix switcher on a serial line. */
typedef struct CFG_ANALOG_MATRIX_INFO {
    char szName[128];                /* "Name" */
    char szModel[32];                /* "Model" */
    char szUserName[64];             /* "UserName" */
    char szPassWord[64];             /* "PassWord" */
    int32_t nInputChannelCount;      /* "InputChannelCount": inputs that the matrix has */
    int32_t nOutputChannelCount;     /* "OutputChannelCount": outputs that it has */
    char szProtocol[128];            /* "Protocol": on the serial line */
    int32_t nPortIndex;              /* "CommPort"."PortIndex": serial port of the device, from 0 */
    int32_t nAddress;                /* "CommPort"."Address": of the matrix on the line */
    CFG_COMM_ATTRIBUTE stuAttribute; /* "CommPort"."Attribute" */
    int32_t nSourceCount;            /* entries of stuInputChannelSource in use */
    CFG_ANALOG_MATRIX_SOURCE stuInputChannelSource[ORRERY_MATRIX_INPUTS]; /* "InputChannelSource"; not written when
                                                                             there are none */
} CFG_ANALOG_MATRIX_INFO;

/* "AnalogMatrixProtocol": a protocol that the device speaks to analog matrices. */
typedef struct CFG_ANALOG_MATRIX_PROTOCOL_INFO {
    char szProtocol[128]; /* "Protocol" */
} CFG_ANALOG_MATRIX_PROTOCOL_INFO;

/* ---- Switches and stations of a site ---- */

/* "Floodlight", "AirFan": a light or a fan that the device switches. All are the device's own numbers; true reads as
 * 1, and is written as the number. */
typedef struct CFG_SITE_SWITCH_INFO {
    int32_t nMode;    /* "Mode": what it is switched by */
    int32_t nClose;   /* "Close": when or whether it is switched off */
    int32_t nOpen;    /* "Open": when or whether it is switched on */
    int32_t nLinkage; /* "Linkage": whether alarms switch it */
} CFG_SITE_SWITCH_INFO;

/* "VTOInfo": a door station that this device talks to. */
typedef struct CFG_VTO_INFO {
    int32_t bEnable;            /* "Enable" */
    char szAddress[64];         /* "Address": IP address or host name */
    int32_t nPort;              /* "Port" */
    char szMiddleNumber[32];    /* "MiddleNumber": between those of building and room */
    char szMachineAddress[128]; /* "MachineAddress": where the station stands */
    char szType[32];            /* "Type" */
    char szPassword[32];        /* "Password" */
    char szUsername[32];        /* "Username" */
    char szRingFile[256];       /* "RingFile": sound of its bell */
    int32_t nRingVolume;        /* "RingVolume" */
} CFG_VTO_INFO;

#ifdef __cplusplus
}
#endif

#endif
