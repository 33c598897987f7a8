#include "media/EncodeCaps.h"

#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>

namespace orrery {

using namespace record;
using json::Value;

namespace {

// ---- "encode.getCaps" ----

NAMES(kPreviewModes, kFolded,
      {
          {CFG_PREVIEW_UNKNOWN, ""},
          {CFG_PREVIEW_SNAPSHOT, "SnapShot"},
          {CFG_PREVIEW_SPLIT_ENCODE, "SplitEncode"},
          {CFG_PREVIEW_SPLIT_SNAP, "SplitSnap"},
      });

PART(kEncodeDevice, CFG_ENCODE_DEVICE_CAPS,
     {
         FIELD(nMaxCifPFrameSize, "MaxCIFPFrameSize", Int),
         FIELD(nMinCifPFrameSize, "MinCIFPFrameSize", Int),
     });

// Clients were built for as many devices as "caps" has members, whatever their list holds.
void CountDevices(const Value& caps, std::byte* record, ReadCall&) {
    const std::uint32_t count = std::min<std::uint32_t>(caps.size(), ORRERY_ENCODE_DEVICES);
    SET_MEMBER(record, CFG_ENCODE_CAPS, nDeviceCount, count);
    std::memset(record + offsetof(CFG_ENCODE_CAPS, stuDevices) + count * sizeof(CFG_ENCODE_DEVICE_CAPS), 0,
                (ORRERY_ENCODE_DEVICES - count) * sizeof(CFG_ENCODE_DEVICE_CAPS));
    if (caps["PreviewSplitNumList"].type() == json::Type::Array) return;
    SET_MEMBER(record, CFG_ENCODE_CAPS, nSplitCount, 1);
    Store<std::int32_t>(record + offsetof(CFG_ENCODE_CAPS, nPreviewSplitNum), -1);
}

// ---- "encode.getNAACaps" ----

void ReadMainSmooth(const Field&, const Value& list, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_ENCODE_NAA_CAPS, nMainIpSmooth, list[0].asInt());
}
constexpr CustomCodec kMainSmooth{ReadMainSmooth};

PART(kNaaExtra, CFG_ENCODE_NAA_EXTRA,
     {
         FIELD(nExtraAdapt),
         FIELD(nExtraIpSmooth),
     });

// Two lists side by side, the first of which tells how many there are.
void ReadExtras(const Value& caps, std::byte* record, ReadCall&) {
    const Value& adapt = caps["ExtraAdapt"];
    const Value& smooth = caps["ExtraIPSmooth"];
    const auto count = std::min<std::uint32_t>(static_cast<std::uint32_t>(adapt.elements().size()), ORRERY_NAA_EXTRAS);
    for (std::uint32_t i = 0; i < count; ++i) {
        const CFG_ENCODE_NAA_EXTRA extra = {adapt[i].asInt(), smooth[i].asInt()};
        Store(record + offsetof(CFG_ENCODE_NAA_CAPS, stuExtra) + i * sizeof extra, extra);
    }
}

// ---- "DspEncodeCap" ----

constexpr std::byte kNoSize{ORRERY_DSP_NO_SIZE};
constexpr std::size_t kSizes = ORRERY_DSP_IMAGE_SIZES;

std::byte* SizesOf(std::byte* record) {
    return record + offsetof(CFG_DSP_ENCODE_CAP, byImageSize);
}
std::byte* RowsOf(std::byte* record) {
    return record + offsetof(CFG_DSP_ENCODE_CAP, byImageSizeAssi);
}

void CopySizes(const Value& list, std::byte* sizes) {
    const auto elements = list.elements();
    for (std::size_t i = 0; i < std::min(elements.size(), kSizes); ++i)
        sizes[i] = static_cast<std::byte>(elements[i].asInt());
}

// The bits of a mask, in order.
std::size_t ListBits(std::uint32_t mask, std::byte* sizes) {
    std::size_t used = 0;
    for (unsigned bit = 0; bit < 32; ++bit) {
        if ((mask >> bit & 1) != 0) sizes[used++] = static_cast<std::byte>(bit);
    }
    return used;
}

// Devices that are too old for the lists tell sizes by masks alone.
void ReadSizes(const Value& cap, std::byte* record, ReadCall&) {
    std::memset(SizesOf(record), ORRERY_DSP_NO_SIZE, kSizes);
    std::memset(RowsOf(record), ORRERY_DSP_NO_SIZE, kSizes * kSizes);
    if (const Value& sizes = cap["ImageSize"]; !sizes.isNull()) {
        CopySizes(sizes, SizesOf(record));
        const auto rows = cap["ImageSize_Assi"].elements();
        for (std::size_t i = 0; i < std::min(rows.size(), kSizes); ++i)
            CopySizes(rows[i], RowsOf(record) + i * kSizes);
        return;
    }
    const std::size_t used = ListBits(MEMBER(record, CFG_DSP_ENCODE_CAP, dwImageSizeMask), SizesOf(record));
    for (std::size_t i = 0; i < used; ++i) {
        const auto size = static_cast<std::size_t>(SizesOf(record)[i]);
        const auto mask = Load<std::uint32_t>(record + offsetof(CFG_DSP_ENCODE_CAP, dwImageSizeMaskAssi)
                                              + size * sizeof(std::uint32_t));
        ListBits(mask, RowsOf(record) + i * kSizes);
    }
}

std::size_t LengthOf(const std::byte* sizes) {
    return static_cast<std::size_t>(std::find(sizes, sizes + kSizes, kNoSize) - sizes);
}

void WriteOne(const std::byte* sizes, std::size_t length, WriteCall& call) {
    call.out.BeginArray();
    for (std::size_t i = 0; i < length; ++i)
        call.out.UInt(static_cast<std::uint32_t>(sizes[i]));
    call.out.EndArray();
}

void WriteSizes(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* const sizes = record + field.offset;
    const std::size_t length = LengthOf(sizes);
    if (length == 0) return;
    call.Key();
    WriteOne(sizes, length, call);
}

// A row for each size; one without entries is null in its place, and has none at the end.
void WriteRows(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* const rows = record + field.offset;
    std::size_t count = LengthOf(record + offsetof(CFG_DSP_ENCODE_CAP, byImageSize));
    while (count > 0 && LengthOf(rows + (count - 1) * kSizes) == 0)
        --count;
    if (count == 0) return;
    call.Key();
    call.out.BeginArray();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t length = LengthOf(rows + i * kSizes);
        if (length == 0)
            call.out.Null();
        else
            WriteOne(rows + i * kSizes, length, call);
    }
    call.out.EndArray();
}

constexpr CustomCodec kSizeList{nullptr, WriteSizes, "[0,2]"};
constexpr CustomCodec kSizeRows{nullptr, WriteRows, "[[0,1],[2]]"};

} // namespace

TABLE(kEncodeCaps, CFG_ENCODE_CAPS,
      {
          FIELD(nDeviceCount),
          FIELD(stuDevices, "VideoEncodeDevices", Record(kEncodeDevice)),
          FIELD(emPreviewMode, "PreviewMode", Names(kPreviewModes)),
          FIELD(nSplitCount),
          FIELD(nPreviewSplitNum, "PreviewSplitNumList", Int).Count(AT(nSplitCount)),
      })
    .AfterRead(CountDevices);

TABLE(kEncodeNaaCaps, CFG_ENCODE_NAA_CAPS,
      {
          FIELD(dwReserved),
          FIELD(nMainIpSmooth, "MainIPSmooth", Custom(kMainSmooth)),
          FIELD(dwReservedMain),
          FIELD(stuExtra, nullptr, Record(kNaaExtra)),
      })
    .AfterRead(ReadExtras);

TABLE(kEncodeCropCaps, CFG_ENCODE_CROP_CAPS,
      {
          FIELD(nExtra1, "Extra1/Support", Int),
          FIELD(nExtra2, "Extra2/Support", Int),
      });

TABLE(kOsdCaps, CFG_OSD_CAPS,
      {
          FIELD(bLineSpacing, "OSDLineSpacing/Support", Bool),
          FIELD(bSysAbnormal, "OSDSysAbnormal/Support", Bool),
          FIELD(bNetAbort, "OSDSysAbnormal/NetAbort", Bool),
          FIELD(bIpConflict, "OSDSysAbnormal/IPConflict", Bool),
          FIELD(bVoltageStatus, "OSDSysAbnormal/VoltageStatus", Bool),
          FIELD(bSdHotPlug, "OSDSysAbnormal/SDHotPlug", Bool),
          FIELD(bSdLowSpace, "OSDSysAbnormal/SDLowSpace", Bool),
          FIELD(bSdFailure, "OSDSysAbnormal/SDFailure", Bool),
          FIELD(bDestroy, "OSDSysAbnormal/Destroy", Bool),
          FIELD(bOvercurrent, "OSDSysAbnormal/OutputPowerStatus/Overcurrent", Bool),
          FIELD(bPtzTaskName, "OSDPtzTaskName/Support", Bool),
          FIELD(nMaxSize, "OSDPicture/MaxSize", Int),
          FIELD(nMaxWidth, "OSDPicture/MaxWidth", Int),
          FIELD(nMaxHeight, "OSDPicture/MaxHeight", Int),
      });

TABLE(kOsdCustomCaps, CFG_OSD_CUSTOM_CAPS,
      {
          FIELD(dwReserved),
          FIELD(bGeography, "Geography/Support", Bool),
          FIELD(dwReservedTitle),
          FIELD(nTitleLine, "Geography/TitleLine", Int),
      });

TABLE(kDspEncodeCap, CFG_DSP_ENCODE_CAP,
      {
          FIELD(dwVideoStandardMask, "VideoStandardMask", UInt),
          FIELD(dwImageSizeMask, "ImageSizeMask", UInt),
          FIELD(dwEncodeModeMask, "EncodeModeMask", UInt),
          FIELD(dwStreamCap, "StreamCap", UInt),
          FIELD(dwImageSizeMaskAssi, "ImageSizeMask_Assi", UInt),
          FIELD(dwMaxEncodePower, "MaxEncodePower", UInt),
          FIELD(nMaxSupportChannel, "MaxSupportChannel", Int),
          FIELD(nChannelMaxSetSync, "ChannelMaxSetSync", Int),
          FIELD(byImageSize, "ImageSize", Custom(kSizeList)),
          FIELD(byImageSizeAssi, "ImageSize_Assi", Custom(kSizeRows)),
          FIELD(nMaxFrameOfImageSize, "MaxFrameOfImageSize", Int),
          FIELD(nResolution, "Resolution", Int),
          FIELD(nResolution1, "Resolution_1", Int),
          FIELD(bEncodeCap, "EncodeCap", Bool),
          FIELD(nResolutionNum, "ResolutionNum", Int),
          FIELD(nResolutionNum1, "ResolutionNum_1", Int),
      })
    .AfterRead(ReadSizes);

} // namespace orrery
