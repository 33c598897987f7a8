/* What a device's encoders and overlays can do. */
#ifndef ORRERY_ENCODE_CAPS_H
#define ORRERY_ENCODE_CAPS_H

#include "orrery/types.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_ENCODE_DEVICES 256
#define ORRERY_PREVIEW_SPLITS 8
#define ORRERY_NAA_EXTRAS 4
#define ORRERY_DSP_IMAGE_SIZES 256
#define ORRERY_DSP_ASSISTANTS 32
#define ORRERY_DSP_NO_SIZE 0xFF /* ends a list of picture sizes */

/* Way of seeing a picture before it is recorded ("PreviewMode"). */
enum {
    CFG_PREVIEW_UNKNOWN = 0,      /* absent, "" and unknown texts */
    CFG_PREVIEW_SNAPSHOT = 1,     /* "SnapShot": single pictures */
    CFG_PREVIEW_SPLIT_ENCODE = 2, /* "SplitEncode": the divided picture is encoded */
    CFG_PREVIEW_SPLIT_SNAP = 3    /* "SplitSnap": single pictures of the divided picture */
};

/* Least and largest size of a picture of CIF format that an encoder makes on its own. */
typedef struct CFG_ENCODE_DEVICE_CAPS {
    int32_t nMaxCifPFrameSize; /* "MaxCIFPFrameSize": kilobits */
    int32_t nMinCifPFrameSize; /* "MinCIFPFrameSize": kilobits */
} CFG_ENCODE_DEVICE_CAPS;

/* "encode.getCaps". Read also of a call that the device refused; a missing "caps" reads as an empty one. */
typedef struct CFG_ENCODE_CAPS {
    uint32_t nDeviceCount; /* members of "caps", at most 256: so many entries of stuDevices are read */
    CFG_ENCODE_DEVICE_CAPS stuDevices[ORRERY_ENCODE_DEVICES]; /* "VideoEncodeDevices": an entry an encoder */
    int32_t emPreviewMode;                                    /* "PreviewMode": CFG_PREVIEW_... */
    int32_t nSplitCount;                                      /* entries of nPreviewSplitNum in use; 1 when absent */
    int32_t nPreviewSplitNum[ORRERY_PREVIEW_SPLITS]; /* "PreviewSplitNumList": numbers of pictures that a screen may
                                                        be divided into; -1 in the first when it is no list */
} CFG_ENCODE_CAPS;

/* Of one extra stream. */
typedef struct CFG_ENCODE_NAA_EXTRA {
    int32_t nExtraAdapt;    /* of "ExtraAdapt": the stream adapts to the network */
    int32_t nExtraIpSmooth; /* of "ExtraIPSmooth": sizes of whole and of part pictures are kept alike */
} CFG_ENCODE_NAA_EXTRA;

/* "encode.getNAACaps": how streams adapt to the network. A missing "caps" reads as an empty one. */
typedef struct CFG_ENCODE_NAA_CAPS {
    int32_t dwReserved;
    int32_t nMainIpSmooth; /* "MainIPSmooth", its first element: as nExtraIpSmooth, of the main stream */
    int32_t dwReservedMain[6];
    CFG_ENCODE_NAA_EXTRA stuExtra[ORRERY_NAA_EXTRAS]; /* of the lists "ExtraAdapt" and "ExtraIPSmooth": an entry an
                                                         element of the first, at most four */
} CFG_ENCODE_NAA_CAPS;

/* "encode.getCropCaps": whether part of the picture can be an extra stream. "result" must be the value true. A missing
 * "caps" reads as an empty one. */
typedef struct CFG_ENCODE_CROP_CAPS {
    int32_t nExtra1; /* "Extra1"."Support": 1 when it can */
    int32_t nExtra2; /* "Extra2"."Support": 1 when it can */
} CFG_ENCODE_CROP_CAPS;

/* "OSDManager.getCaps": which texts can be laid over the picture. A missing "caps" reads as an empty one. */
typedef struct CFG_OSD_CAPS {
    int32_t bLineSpacing;   /* "OSDLineSpacing"."Support" */
    int32_t bSysAbnormal;   /* "OSDSysAbnormal"."Support" */
    int32_t bNetAbort;      /* "OSDSysAbnormal"."NetAbort" */
    int32_t bIpConflict;    /* "OSDSysAbnormal"."IPConflict" */
    int32_t bVoltageStatus; /* "OSDSysAbnormal"."VoltageStatus" */
    int32_t bSdHotPlug;     /* "OSDSysAbnormal"."SDHotPlug" */
    int32_t bSdLowSpace;    /* "OSDSysAbnormal"."SDLowSpace" */
    int32_t bSdFailure;     /* "OSDSysAbnormal"."SDFailure" */
    int32_t bDestroy;       /* "OSDSysAbnormal"."Destroy" */
    int32_t bOvercurrent;   /* "OSDSysAbnormal"."OutputPowerStatus"."Overcurrent" */
    int32_t bPtzTaskName;   /* "OSDPtzTaskName"."Support" */
    int32_t nMaxSize;       /* "OSDPicture"."MaxSize": of a picture laid over, in kilobytes */
    int32_t nMaxWidth;      /* "OSDPicture"."MaxWidth": pixels */
    int32_t nMaxHeight;     /* "OSDPicture"."MaxHeight": pixels */
} CFG_OSD_CAPS;

/* "OSDManager.getCustomCaps": which texts of its own a client may lay over the picture. A missing "caps" reads as an
 * empty one. */
typedef struct CFG_OSD_CUSTOM_CAPS {
    uint32_t dwReserved;
    uint32_t bGeography; /* "Geography"."Support": the place of the camera */
    uint32_t dwReservedTitle;
    int32_t nTitleLine; /* "Geography"."TitleLine": lines of text */
} CFG_OSD_CUSTOM_CAPS;

/* "DspEncodeCap": what an older device's encoder can do, at the document's top level; read also of a call that the
 * device refused, and missing it reads as empty. Packs under its own key. Sizes of pictures are the resolutions of
 * CFG_RESOLUTION, a bit or an entry each. */
typedef struct CFG_DSP_ENCODE_CAP {
    uint32_t dwVideoStandardMask;                        /* "VideoStandardMask": a bit a video standard */
    uint32_t dwImageSizeMask;                            /* "ImageSizeMask": a bit a size of the main stream */
    uint32_t dwEncodeModeMask;                           /* "EncodeModeMask": a bit a way of holding the bit rate */
    uint32_t dwStreamCap;                                /* "StreamCap": a bit a kind of stream */
    uint32_t dwImageSizeMaskAssi[ORRERY_DSP_ASSISTANTS]; /* "ImageSizeMask_Assi": for each size of the main stream a bit
                                                            a size that the extra stream may have beside it */
    uint32_t dwMaxEncodePower;                           /* "MaxEncodePower": pixels a second */
    int32_t nMaxSupportChannel;                          /* "MaxSupportChannel" */
    int32_t nChannelMaxSetSync;                  /* "ChannelMaxSetSync": 1 when all channels share their settings */
    uint8_t byImageSize[ORRERY_DSP_IMAGE_SIZES]; /* "ImageSize": sizes of the main stream up to the first 0xFF; from
                                                    "ImageSizeMask" when absent. Written up to the first 0xFF */
    uint8_t byImageSizeAssi[ORRERY_DSP_IMAGE_SIZES]
                           [ORRERY_DSP_IMAGE_SIZES]; /* "ImageSize_Assi": for each entry of byImageSize the sizes of the
                                                        extra stream, ended as it; from "ImageSizeMask_Assi" when
                                                        "ImageSize" is absent */
    int32_t nMaxFrameOfImageSize[ORRERY_DSP_IMAGE_SIZES]; /* "MaxFrameOfImageSize": frames a second */
    int32_t nResolution[ORRERY_DSP_IMAGE_SIZES];          /* "Resolution": of the main stream */
    int32_t nResolution1[ORRERY_DSP_IMAGE_SIZES];         /* "Resolution_1": of the extra stream */
    uint32_t bEncodeCap;                                  /* "EncodeCap" */
    int32_t nResolutionNum;                               /* "ResolutionNum": entries of nResolution in use */
    int32_t nResolutionNum1;                              /* "ResolutionNum_1": entries of nResolution1 in use */
} CFG_DSP_ENCODE_CAP;

#ifdef __cplusplus
}
#endif

#endif
