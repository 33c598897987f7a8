/* Video, audio and picture encoding: stream formats, planned and adaptive encoding, stream encryption, strobe lamps.
 *
 * A text of exactly the capacity loses its newline for "Encode", "EncodePlan", "SmartEncode" and "EncodeEncrypt",
 * stands without a terminator for "NvrEncrypt" and "StroboscopicLamp", and is too long for "EncodeAdapt" and
 * "CompressPlay".
 *
 * Commands of one record or a list ("Encode", "EncodeAdapt", "SmartEncode", "CompressPlay") write a bare record when
 * the size is that of one record, else a list of those that fit. An empty list is as good as a missing table; of
 * "EncodeAdapt" and "CompressPlay" tables of other types are refused. Keys that are absent leave 0 unless told
 * otherwise. */
#ifndef ORRERY_ENCODE_H
#define ORRERY_ENCODE_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Picture sizes by name ("Resolution"). Names are read with case folded; where two are told, the first is written. */
typedef enum CFG_RESOLUTION {
    CFG_RESOLUTION_D1 = 0,     /* "D1": 704 x 576 (PAL), 704 x 480 (NTSC) */
    CFG_RESOLUTION_HD1 = 1,    /* "HD1": 352 x 576 */
    CFG_RESOLUTION_BCIF = 2,   /* "BCIF", "2CIF": 704 x 288 */
    CFG_RESOLUTION_CIF = 3,    /* "CIF": 352 x 288 */
    CFG_RESOLUTION_QCIF = 4,   /* "QCIF": 176 x 144 */
    CFG_RESOLUTION_VGA = 5,    /* "VGA": 640 x 480 */
    CFG_RESOLUTION_QVGA = 6,   /* "QVGA": 320 x 240 */
    CFG_RESOLUTION_SVCD = 7,   /* "SVCD": 480 x 480 */
    CFG_RESOLUTION_QQVGA = 8,  /* "QQVGA": 160 x 120 */
    CFG_RESOLUTION_SVGA = 9,   /* "SVGA": 800 x 600 */
    CFG_RESOLUTION_XVGA = 10,  /* "XVGA": 1024 x 768 */
    CFG_RESOLUTION_WXGA = 11,  /* "WXGA": 1280 x 800 */
    CFG_RESOLUTION_SXGA = 12,  /* "SXGA": 1280 x 1024 */
    CFG_RESOLUTION_WSXGA = 13, /* "WSXGA": 1600 x 1024 */
    CFG_RESOLUTION_UXGA = 14,  /* "UXGA": 1600 x 1200 */
    CFG_RESOLUTION_WUXGA = 15, /* "WUXGA": 1920 x 1200 */
    CFG_RESOLUTION_ND1 = 16,   /* "ND1": 240 x 192 */
    CFG_RESOLUTION_720P = 17,  /* "720": 1280 x 720 */
    CFG_RESOLUTION_1080P = 18, /* "1080": 1920 x 1080 */
    CFG_RESOLUTION_1_3M = 19,  /* "1_3M", "1280x960" */
    CFG_RESOLUTION_2_5M = 20,  /* "2_5M", "1872x1408" */
    CFG_RESOLUTION_5M = 21,    /* "5M", "3744x1408" */
    CFG_RESOLUTION_3M = 22,    /* "3M", "2048x1536" */
    CFG_RESOLUTION_5_0M = 23,  /* "5_0M", "2432x2048" */
    CFG_RESOLUTION_1_2M = 24,  /* "1_2M", "1216x1024" */
    CFG_RESOLUTION_1408X1024 = 25,
    CFG_RESOLUTION_3296X2472 = 26,
    CFG_RESOLUTION_5_1M = 27,   /* "5_1M", "2560x1920" */
    CFG_RESOLUTION_960H = 28,   /* "960H": 960 x 576 */
    CFG_RESOLUTION_DV720P = 29, /* "DV720P" */
    CFG_RESOLUTION_2560X1600 = 30,
    CFG_RESOLUTION_2336X1752 = 31,
    CFG_RESOLUTION_2592X2048 = 32,
    CFG_RESOLUTION_UNKNOWN = 33 /* every other name; written, like every other code, as "" */
} CFG_RESOLUTION;

/* Video codecs ("Compression" of "Video"). */
typedef enum CFG_VIDEO_COMPRESSION {
    CFG_VIDEO_MPEG4 = 0,     /* "MPEG4" */
    CFG_VIDEO_MS_MPEG4 = 1,  /* "MS-MPEG4" */
    CFG_VIDEO_MPEG2 = 2,     /* "MPEG2" */
    CFG_VIDEO_MPEG1 = 3,     /* "MPEG1" */
    CFG_VIDEO_H263 = 4,      /* "H.263" */
    CFG_VIDEO_MJPG = 5,      /* "MJPG" */
    CFG_VIDEO_FCC_MPEG4 = 6, /* "FCC-MPEG4" */
    CFG_VIDEO_H264 = 7,      /* "H.264" */
    CFG_VIDEO_H265 = 8,      /* "H.265" */
    CFG_VIDEO_SVAC = 9,      /* "SVAC" */
    CFG_VIDEO_UNKNOWN = 10   /* every other name; written, like every other code, as "" */
} CFG_VIDEO_COMPRESSION;

/* Audio codecs ("Compression" of "Audio"). */
typedef enum CFG_AUDIO_COMPRESSION {
    CFG_AUDIO_G711A = 0,  /* "G.711A"; read from every other name too, and written for every other code */
    CFG_AUDIO_PCM = 1,    /* "PCM" */
    CFG_AUDIO_G711MU = 2, /* "G.711Mu" */
    CFG_AUDIO_AMR = 3,    /* "AMR" */
    CFG_AUDIO_AAC = 4     /* "AAC" */
} CFG_AUDIO_COMPRESSION;

/* How the bit rate is kept ("BitRateControl"). Names are read with case folded. */
typedef enum CFG_BITRATE_CONTROL {
    CFG_BITRATE_CBR = 0, /* "CBR": constant; read from every other name too, and written for every other code */
    CFG_BITRATE_VBR = 1  /* "VBR": variable */
} CFG_BITRATE_CONTROL;

/* How a stream is packed ("Pack"). Other codes are not written. */
typedef enum CFG_STREAM_PACK {
    CFG_STREAM_QVAV = 0, /* "QVAV"; read from every other name too */
    CFG_STREAM_PS = 1    /* "PS" */
} CFG_STREAM_PACK;

/* Profiles of H.264 ("Profile"). */
typedef enum CFG_H264_PROFILE {
    CFG_H264_BASELINE = 1, /* "Baseline"; read from every other name too, and written for every other code */
    CFG_H264_MAIN = 2,     /* "Main" */
    CFG_H264_EXTENDED = 3, /* "Extended" */
    CFG_H264_HIGH = 4      /* "High" */
} CFG_H264_PROFILE;

/* ---- "Encode" ------------------------------------------------------------------------------------------------------
 * Reading changes only what the text tells: a key that is absent leaves the caller's value, and its ab flag becomes 0.
 * Of a list, only the formats that it has elements for are looked at; a key that is no list leaves formats and count
 * alone. Writing writes the keys whose ab flag is set. */

/* "Video" of a format. */
typedef struct CFG_ENCODE_VIDEO {
    uint8_t abCompression; /* 1 when the key was there; the key is written only when set. So are all that follow. */
    uint8_t abWidth;
    uint8_t abHeight;
    uint8_t abBitRateControl;
    uint8_t abBitRate;
    uint8_t abFps;
    uint8_t abGop;
    uint8_t abQuality;
    uint8_t abPack;
    uint8_t abProfile;
    int32_t emCompression;    /* "Compression": CFG_VIDEO_COMPRESSION */
    int32_t nWidth;           /* "Width": pixels */
    int32_t nHeight;          /* "Height": pixels */
    int32_t emBitRateControl; /* "BitRateControl": CFG_BITRATE_CONTROL */
    int32_t nBitRate;         /* "BitRate": kilobits a second */
    float fFps;               /* "FPS": pictures a second; below 1 for one picture in several seconds */
    int32_t nGop;             /* "GOP": pictures from one key picture to the next */
    int32_t nQuality;         /* "Quality": 1 (worst) to 6 (best) */
    int32_t emPack;           /* "Pack": CFG_STREAM_PACK */
    int32_t emProfile;        /* "Profile": CFG_H264_PROFILE */
} CFG_ENCODE_VIDEO;

/* "Audio" of a format. */
typedef struct CFG_ENCODE_AUDIO {
    uint8_t abCompression; /* as the flags of CFG_ENCODE_VIDEO */
    uint8_t abDepth;
    uint8_t abFrequency;
    uint8_t abMode;
    uint8_t abPack;
    uint8_t abPacketPeriod;
    int32_t emCompression; /* "Compression": CFG_AUDIO_COMPRESSION */
    int32_t nDepth;        /* "Depth": bits a sample */
    int32_t nFrequency;    /* "Frequency": samples a second */
    int32_t nMode;         /* "Mode": number of the codec's mode */
    int32_t emPack;        /* "Pack": CFG_STREAM_PACK */
    int32_t nPacketPeriod; /* "PacketPeriod": milliseconds */
} CFG_ENCODE_AUDIO;

/* One stream format. */
typedef struct CFG_ENCODE_FORMAT {
    uint8_t abVideoEnable; /* 1 when "VideoEnable" or "VideoEn" was there */
    uint8_t abAudioEnable; /* 1 when "AudioEnable" was there */
    uint8_t abSnapEnable;  /* 1 when "SnapEnable" was there */
    uint8_t byReserved;
    uint8_t abAudio; /* 1 when "Audio" was there; stuAudio is written only when set */
    uint8_t byReserved2[3];
    int32_t bVideoEnable;      /* "VideoEnable", or "VideoEn" of older devices when there is none; never written so */
    CFG_ENCODE_VIDEO stuVideo; /* "Video": written when any of its flags is set */
    int32_t bAudioEnable;      /* "AudioEnable" */
    int32_t bSnapEnable;       /* "SnapEnable" */
    uint32_t dwReserved;
    CFG_ENCODE_AUDIO stuAudio; /* "Audio" */
} CFG_ENCODE_FORMAT;

#define ORRERY_ENCODE_FORMATS 4

/* "Encode": the formats of one channel. A reply whose top-level "channel" is negative holds a list of records, any
 * other one record. A missing table succeeds with a length of 0 and changes nothing. A count is that of the list in the
 * text, even above the 4 that are kept; writing ends at 4. */
typedef struct CFG_ENCODE_INFO {
    int32_t nChannel;       /* the reply's top-level "channel", of a list of records the index; not written */
    char szChannelName[64]; /* in no text; for the client's own use */
    CFG_ENCODE_FORMAT stuMainFormat[ORRERY_ENCODE_FORMATS]; /* "MainFormat": normal, motion, alarm recording */
    uint32_t nMainFormatCount;
    CFG_ENCODE_FORMAT stuExtraFormat[ORRERY_ENCODE_FORMATS]; /* "ExtraFormat": first to third extra stream */
    uint32_t nExtraFormatCount;
    CFG_ENCODE_FORMAT stuSnapFormat[ORRERY_ENCODE_FORMATS]; /* "SnapFormat": normal, motion, alarm pictures */
    uint32_t nSnapFormatCount;
    uint32_t dwReserved[231];
    uint32_t nFormatVersion; /* layout of the formats: reading sets 3 */
} CFG_ENCODE_INFO;

/* "EncodePlan": one planned encoding, of a list, a record an entry. Read from the reply of a refused call too; a table
 * that is missing or no list succeeds with a length of 0. Written is always a list, in which entries that are off stand
 * as null. */
typedef struct CFG_ENCODE_PLAN_INFO {
    uint32_t bEnable;      /* 1 when the list has an entry at this place; only such entries are written */
    uint32_t nExpectTime;  /* "ExpectTime": days of recording that the disks are to hold */
    uint32_t emResolution; /* "Resolution": CFG_RESOLUTION */
    uint32_t nBitRate;     /* "BitRate": kilobits a second */
} CFG_ENCODE_PLAN_INFO;

/* What gives way when the network is slow ("Policy"). Names compare exactly; other codes are not written. */
typedef enum CFG_ADAPT_POLICY {
    CFG_ADAPT_UNKNOWN = 0,
    CFG_ADAPT_NONE = 1,    /* "None" */
    CFG_ADAPT_QUALITY = 2, /* "Quality": pictures stay good */
    CFG_ADAPT_FLUENCY = 3  /* "Fluency": pictures keep coming */
} CFG_ADAPT_POLICY;

/* How fluency is kept ("FluencyMode"). Names compare exactly; other codes are not written. */
typedef enum CFG_FLUENCY_MODE {
    CFG_FLUENCY_UNKNOWN = 0,
    CFG_FLUENCY_FAST = 1,    /* "Fast" */
    CFG_FLUENCY_SLOW = 2,    /* "Slow" */
    CFG_FLUENCY_SYNC = 3,    /* "Sync" */
    CFG_FLUENCY_SLOWSYNC = 4 /* "Slowsync" */
} CFG_FLUENCY_MODE;

/* "EncodeAdapt": adaptation of a stream to the network, one record or a list. */
typedef struct CFG_ENCODE_ADAPT_INFO {
    int32_t emPolicy;      /* "Policy": CFG_ADAPT_POLICY, 0 when absent */
    int32_t emFluencyMode; /* "FluencyMode": CFG_FLUENCY_MODE, 0 when absent */
} CFG_ENCODE_ADAPT_INFO;

/* "SmartEncode": encoding that spends bits where something moves: a list, or one record from any other value. A missing
 * table succeeds with a length of 0. */
typedef struct CFG_SMART_ENCODE_INFO {
    uint32_t bEnable; /* "Enable" */
    uint32_t dwReserved[64];
} CFG_SMART_ENCODE_INFO;

/* "CompressPlay": smaller pictures for playback, one record or a list. */
typedef struct CFG_COMPRESS_PLAY_INFO {
    uint32_t bEnable;      /* "Enable" */
    uint32_t emResolution; /* "Resolution": CFG_RESOLUTION */
    uint32_t nBitRate;     /* "BitRate": kilobits a second */
} CFG_COMPRESS_PLAY_INFO;

/* ---- Encryption ---- */

/* Ciphers ("Type"). Reading knows one. Written are the names of one list, of ciphers and modes in turn: codes above 0
 * write a mode's name, 5 and codes outside the list "UnKnown". */
typedef enum CFG_ENCRYPT_TYPE {
    CFG_ENCRYPT_AES = 0,    /* "AES" */
    CFG_ENCRYPT_UNKNOWN = 1 /* every other name */
} CFG_ENCRYPT_TYPE;

/* Block modes ("Mode"). */
typedef enum CFG_ENCRYPT_MODE {
    CFG_ENCRYPT_ECB = 0,         /* "ECB" */
    CFG_ENCRYPT_CBC = 1,         /* "CBC" */
    CFG_ENCRYPT_CFB = 2,         /* "CFB" */
    CFG_ENCRYPT_OFB = 3,         /* "OFB" */
    CFG_ENCRYPT_MODE_UNKNOWN = 4 /* every other name; written, like every other code but -1 ("AES"), as "UnKnown" */
} CFG_ENCRYPT_MODE;

/* One stream's encryption. Reading leaves what the text leaves out. All six keys are written. */
typedef struct CFG_ENCRYPT_ITEM {
    uint32_t bEncryptEnable; /* "EncryptEnable" */
    int32_t emType;          /* "Type": CFG_ENCRYPT_TYPE */
    int32_t emMode;          /* "Mode": CFG_ENCRYPT_MODE */
    uint16_t nLength;        /* "Length": bits of the key */
    char szKey[32];          /* "Key": read only of "AES" */
    NET_TIME_V2 stuTime;     /* "Time": since when the key is in use; the caller sets its dwSize to 28 beforehand */
} CFG_ENCRYPT_ITEM;

/* "EncodeEncrypt": encryption of a channel's streams, in an array of the caller's. Read from the reply of a refused
 * call too. A missing table fails; one that is no list succeeds with the length not set. */
typedef struct CFG_ENCODE_ENCRYPT_INFO {
    int32_t nChannel;            /* the reply's "channel", 0 when absent, also of a reply without table; not written */
    CFG_ENCRYPT_ITEM* pstuItems; /* input: the caller's array; null has room for nothing */
    uint8_t nMaxCount;           /* input: its room; writing writes this many items, not nReturnCount */
    uint8_t nReturnCount;        /* items read: a list ends at its first null; left alone when there is no list */
} CFG_ENCODE_ENCRYPT_INFO;

/* One entry of "NvrEncrypt". */
typedef struct CFG_NVR_ENCRYPT_ITEM {
    uint32_t bEnable;         /* "Enable" */
    uint32_t bMatchNvrEnable; /* "MatchNvrEnable": only the recorder below may decrypt */
    char szNvrAddress[16];    /* "NvrAddress": IPv4 */
    int32_t nMatchPort;       /* "MatchPort" */
    int32_t nTalkPort;        /* "TalkPort" */
    char szDevId[32];         /* "DevID" */
} CFG_NVR_ENCRYPT_ITEM;

#define ORRERY_NVR_ENCRYPT_ITEMS 4

/* "NvrEncrypt": encryption between camera and recorder. A list of lists fills a record a list, if all of them fit, and
 * tells a length of 0 all the same; a plain list fills one. A record is cleared only when it is read. Only a single
 * record is written: several give the text "null". A table of another type, a missing one and an empty list succeed
 * with the length not set. */
typedef struct CFG_NVR_ENCRYPT_INFO {
    int32_t nChannel; /* the reply's "channel", 0 when absent, in the first record, whatever the reply's table; not
                         written, but -1 puts the list into an outer list */
    uint32_t nCount;  /* items in use, at most 4 */
    CFG_NVR_ENCRYPT_ITEM stuItems[ORRERY_NVR_ENCRYPT_ITEMS]; /* the list itself */
} CFG_NVR_ENCRYPT_INFO;

#define ORRERY_STROBE_LAMPS 8
#define ORRERY_STROBE_PORTS 8

/* One entry of "StroboscopicLamp". */
typedef struct CFG_STROBOSCOPIC_LAMP {
    int32_t nMode;              /* "Mode": 0 off, 1 on, 2 automatic */
    int32_t nValue;             /* "Value": brightness */
    int32_t nPole;              /* "Pole": 0 low level, 1 high level */
    int32_t nPreValue;          /* "PreValue": brightness ahead of the flash */
    int32_t nDutyCycle;         /* "DutyCycle": percent */
    int32_t nFrequencyMultiple; /* "FrequencyMultiple" */
    uint32_t dwReserved[26];
    int32_t nStroboscopicMode;           /* "StroboscopicMode": kind of control */
    int32_t nPreTime;                    /* "PreTime": microseconds ahead of the flash */
    int32_t nPulseWidth;                 /* "PulseWidth" */
    int32_t nDelayTime;                  /* "DelayTime" */
    int32_t nFrequency;                  /* "Frequency": hertz */
    uint32_t nPortCount;                 /* ports in use, at most 8 */
    int8_t byPorts[ORRERY_STROBE_PORTS]; /* "Port": the low byte of each number */
} CFG_STROBOSCOPIC_LAMP;

/* "StroboscopicLamp": flash lamps of a traffic camera. The length of a reply is this whole record's times nCount, which
 * may be more than was filled. A missing table succeeds with the length not set. */
typedef struct CFG_STROBOSCOPIC_LAMP_INFO {
    uint32_t nCount;                                     /* lamps in use, at most 8 */
    CFG_STROBOSCOPIC_LAMP stuLamps[ORRERY_STROBE_LAMPS]; /* the list itself */
} CFG_STROBOSCOPIC_LAMP_INFO;

#ifdef __cplusplus
}
#endif

#endif
