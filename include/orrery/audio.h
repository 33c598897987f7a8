/* Where sound comes from, where it goes and how loud it is. Each command has one record. A missing table fails, and one
 * of another type than told is a record without keys, unless told otherwise. Keys that are absent leave 0 or an empty
 * text. Empty lists are not written. */
#ifndef ORRERY_AUDIO_H
#define ORRERY_AUDIO_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SPIRIT_PROPERTIES 16
#define ORRERY_SPIRIT_OUTPUTS 32
#define ORRERY_AUDIO_MATRICES 4
#define ORRERY_AUDIO_MATRIX_OUTPUTS 8
#define ORRERY_AUDIO_MATRIX_INPUTS 32
#define ORRERY_COMPOSE_CHANNELS 256
#define ORRERY_LOWER_MATRICES 16
#define ORRERY_LOWER_MATRIX_OUTPUTS 32
#define ORRERY_LOWER_MATRIX_INPUTS 64
#define ORRERY_AUDIO_VOLUMES 32
#define ORRERY_MIX_CHANNELS 256
#define ORRERY_SPEAK_FORMATS 16
#define ORRERY_SPEAK_PROPERTIES 32

/* ---- Voices that bring their picture to the front ---- */

/* A microphone and what it calls up. */
typedef struct CFG_AUDIO_SPIRIT_PROPERTY {
    int32_t nChannel;  /* "Channel": audio input, from 0 */
    int32_t nPriority; /* "Priority" */
    int32_t nPreset;   /* "Preset": of the camera that turns to the speaker */
} CFG_AUDIO_SPIRIT_PROPERTY;

/* "AudioSpirit": who speaks is shown. */
typedef struct CFG_AUDIO_SPIRIT_INFO {
    int32_t bEnable;        /* "Enable" */
    int32_t nAudioLimit;    /* "AudioLimit": loudness that counts as speech */
    int32_t nDelayTime;     /* "DelayTime": seconds until the next one is shown */
    int32_t nPropertyCount; /* entries of stuProperty in use */
    CFG_AUDIO_SPIRIT_PROPERTY stuProperty[ORRERY_SPIRIT_PROPERTIES]; /* "Property" */
    int32_t nOutCount;                                               /* entries of nOut in use */
    int32_t nOut[ORRERY_SPIRIT_OUTPUTS];                             /* "Linkage"."LowerMatrix"."Out": outputs that show
                                                                        the speaker */
} CFG_AUDIO_SPIRIT_INFO;

/* ---- Matrices ---- */

/* An audio output of a matrix. */
typedef struct CFG_AUDIO_MATRIX_OUTPUT {
    int32_t nInputCount;                               /* entries of nInputChannel in use */
    int32_t nInputChannel[ORRERY_AUDIO_MATRIX_INPUTS]; /* "InputChannel": inputs that it carries, from 0 */
} CFG_AUDIO_MATRIX_OUTPUT;

/* An audio matrix: stands as the list of its outputs, null when it has none. */
typedef struct CFG_AUDIO_MATRIX {
    int32_t nOutputCount;                                            /* entries of stuOutputs in use */
    CFG_AUDIO_MATRIX_OUTPUT stuOutputs[ORRERY_AUDIO_MATRIX_OUTPUTS]; /* the list itself: an object an output */
} CFG_AUDIO_MATRIX;

/* "AudioMatrixConfig" (inputs that each output carries), "AudioMatrixSilence" (inputs that each output is silent for):
 * a list of matrices; other types fail. What is beyond the room is left out. Always written as a list, null when there
 * is no matrix. */
typedef struct CFG_AUDIO_MATRIX_INFO {
    int32_t nMatrixCount;                                /* entries of stuMatrices in use */
    CFG_AUDIO_MATRIX stuMatrices[ORRERY_AUDIO_MATRICES]; /* the list itself */
} CFG_AUDIO_MATRIX_INFO;

/* An output of a lower matrix. */
typedef struct CFG_LOWER_MATRIX_OUTPUT {
    char szName[128];                        /* "Name" */
    int32_t emMode;                          /* "Mode": how inputs are chosen, the device's own number */
    int32_t nInCount;                        /* entries of nIn in use */
    int32_t nIn[ORRERY_LOWER_MATRIX_INPUTS]; /* "In": input channels, from 0 */
} CFG_LOWER_MATRIX_OUTPUT;

/* A lower matrix: stands as the list of its outputs, null when it has none. */
typedef struct CFG_LOWER_MATRIX {
    int32_t nOutputCount;                                            /* entries of stuOutputs in use */
    CFG_LOWER_MATRIX_OUTPUT stuOutputs[ORRERY_LOWER_MATRIX_OUTPUTS]; /* the list itself: an object an output */
} CFG_LOWER_MATRIX;

/* "LowerMatrix": matrices inside a device: a list of them; other types fail. What is beyond the room is left out.
 * Always written as a list, null when there is no matrix. */
typedef struct CFG_LOWER_MATRIX_INFO {
    int32_t nMatrixCount;                                /* entries of stuMatrices in use */
    CFG_LOWER_MATRIX stuMatrices[ORRERY_LOWER_MATRICES]; /* the list itself */
} CFG_LOWER_MATRIX_INFO;

/* ---- Channels joined into one ---- */

/* "ComposeChannel", "ComposeLinkage": channels that are shown together. */
typedef struct CFG_COMPOSE_CHANNEL_INFO {
    int32_t emSplit; /* "Split": how the picture is divided: 4 for "Split4", 1004 for "PIP4", 2000 for "Free", 3002
                        for "CompositeSplit2"; "Split3" is 10 and "Split3B" 11, other texts 1. Case does not count.
                        Every code from 0 is written: 3 as the text of 10; a negative one writes no key */
    int32_t nChannelCount;                      /* entries of nChannels in use */
    int32_t nChannels[ORRERY_COMPOSE_CHANNELS]; /* "ChannelCombination": channels, from 0 */
} CFG_COMPOSE_CHANNEL_INFO;

/* ---- Volumes and inputs ---- */

/* "AudioOutputVolume", "AudioInputVolume", "AudioMixVolume": volumes of all channels, a list of numbers. Another type
 * than a list has none, but for an object: each of its members stands for a volume of 0. Always written as a list, null
 * when there is no volume. */
typedef struct CFG_AUDIO_VOLUME_INFO {
    int32_t nCount;                          /* entries of byVolumes in use */
    uint8_t byVolumes[ORRERY_AUDIO_VOLUMES]; /* the list itself: 0 to 100; of a larger number its low 8 bits */
} CFG_AUDIO_VOLUME_INFO;

/* "AudioInput": where an audio input takes its sound. */
typedef struct CFG_AUDIO_INPUT_INFO {
    char szAudioSource[256]; /* "AudioSource": kind of source, in the device's own words */
} CFG_AUDIO_INPUT_INFO;

/* "AudioMixChannel": audio channels that are mixed; without any, null is written. A missing table reads nothing and
 * adds nothing to the length; the length of a call is added to: set it to 0 first. */
typedef struct CFG_AUDIO_MIX_CHANNEL_INFO {
    int32_t nCombinationCount;                 /* entries of nCombination in use */
    int32_t nCombination[ORRERY_MIX_CHANNELS]; /* "Combination": channels, from 0 */
} CFG_AUDIO_MIX_CHANNEL_INFO;

/* "AudioTouch": the voice is changed. A missing table reads nothing and adds nothing to the length; the length of a
 * call is added to: set it to 0 first. */
typedef struct CFG_AUDIO_TOUCH_INFO {
    int32_t bEnable;  /* "Enable" */
    char szInfo[256]; /* "Info": description */
    int32_t nPitch;   /* "Pitch": higher or lower than the voice itself, the device's own number */
} CFG_AUDIO_TOUCH_INFO;

/* ---- Talking to the device ---- */

/* Encoding of sound ("Format"). Unknown texts, and no text, read as 0. */
enum {
    CFG_SPEAK_PCM = 0,    /* "PCM" */
    CFG_SPEAK_ADPCM = 1,  /* "ADPCM" */
    CFG_SPEAK_G711A = 2,  /* "G.711A" */
    CFG_SPEAK_G711MU = 3, /* "G.711Mu" */
    CFG_SPEAK_G726 = 4,   /* "G.726" */
    CFG_SPEAK_G729 = 5,   /* "G.729" */
    CFG_SPEAK_MPEG2 = 6,  /* "MPEG2" */
    CFG_SPEAK_AMR = 7,    /* "AMR" */
    CFG_SPEAK_AAC = 8     /* "AAC" */
};

/* One way to use an encoding. */
typedef struct CFG_SPEAK_PROPERTY {
    int32_t nBitRate;    /* "BitRate": kilobits a second */
    int32_t nSampleBit;  /* "SampleBit": bits a sample */
    int32_t nSampleRate; /* "SampleRate": hertz */
} CFG_SPEAK_PROPERTY;

/* An encoding that the device understands. */
typedef struct CFG_SPEAK_FORMAT {
    int32_t emFormat;                                        /* "Format": CFG_SPEAK_... */
    int32_t nPropertyCount;                                  /* entries of stuProperty in use */
    CFG_SPEAK_PROPERTY stuProperty[ORRERY_SPEAK_PROPERTIES]; /* "Property" */
} CFG_SPEAK_FORMAT;

/* "speak.getCaps": what a client may speak to the device. Read from "params"."caps", or from "params" itself when there
 * is no "caps"; a reply that has neither fails. One without "result" is read too. Read only. */
typedef struct CFG_SPEAK_CAPS {
    int32_t nFormatCount;                                           /* entries of stuSupportedAudioFormat in use */
    CFG_SPEAK_FORMAT stuSupportedAudioFormat[ORRERY_SPEAK_FORMATS]; /* "SupportedAudioFormat" */
} CFG_SPEAK_CAPS;

#ifdef __cplusplus
}
#endif

#endif
