#include "media/Encode.h"

#include "frame/record/Engine.h"
#include "media/Resolution.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kVideoCompressions, kExact.Unknown(CFG_VIDEO_UNKNOWN).OutsideWrites(""),
      {
          {CFG_VIDEO_MPEG4, "MPEG4"},
          {CFG_VIDEO_MS_MPEG4, "MS-MPEG4"},
          {CFG_VIDEO_MPEG2, "MPEG2"},
          {CFG_VIDEO_MPEG1, "MPEG1"},
          {CFG_VIDEO_H263, "H.263"},
          {CFG_VIDEO_MJPG, "MJPG"},
          {CFG_VIDEO_FCC_MPEG4, "FCC-MPEG4"},
          {CFG_VIDEO_H264, "H.264"},
          {CFG_VIDEO_H265, "H.265"},
          {CFG_VIDEO_SVAC, "SVAC"},
      });

NAMES(kAudioCompressions, kExact.Unknown(CFG_AUDIO_G711A).OutsideWrites("G.711A"),
      {
          {CFG_AUDIO_G711A, "G.711A"},
          {CFG_AUDIO_PCM, "PCM"},
          {CFG_AUDIO_G711MU, "G.711Mu"},
          {CFG_AUDIO_AMR, "AMR"},
          {CFG_AUDIO_AAC, "AAC"},
      });

NAMES(kBitRateControls, kFolded.Unknown(CFG_BITRATE_CBR).OutsideWrites("CBR"),
      {
          {CFG_BITRATE_CBR, "CBR"},
          {CFG_BITRATE_VBR, "VBR"},
      });

NAMES(kPacks, kExact.Unknown(CFG_STREAM_QVAV),
      {
          {CFG_STREAM_QVAV, "QVAV"},
          {CFG_STREAM_PS, "PS"},
      });

NAMES(kProfiles, kExact.Unknown(CFG_H264_BASELINE).OutsideWrites("Baseline"),
      {
          {CFG_H264_BASELINE, "Baseline"},
          {CFG_H264_MAIN, "Main"},
          {CFG_H264_EXTENDED, "Extended"},
          {CFG_H264_HIGH, "High"},
      });

NAMES(kPolicies, kExact.Unknown(CFG_ADAPT_UNKNOWN),
      {
          {CFG_ADAPT_NONE, "None"},
          {CFG_ADAPT_QUALITY, "Quality"},
          {CFG_ADAPT_FLUENCY, "Fluency"},
      });

NAMES(kFluencyModes, kExact.Unknown(CFG_FLUENCY_UNKNOWN),
      {
          {CFG_FLUENCY_FAST, "Fast"},
          {CFG_FLUENCY_SLOW, "Slow"},
          {CFG_FLUENCY_SYNC, "Sync"},
          {CFG_FLUENCY_SLOWSYNC, "Slowsync"},
      });

// ---- "Encode" ----

PART(kEncodeVideo, CFG_ENCODE_VIDEO,
     {
         FIELD(abCompression),
         FIELD(abWidth),
         FIELD(abHeight),
         FIELD(abBitRateControl),
         FIELD(abBitRate),
         FIELD(abFps),
         FIELD(abGop),
         FIELD(abQuality),
         FIELD(abPack),
         FIELD(abProfile),
         FIELD(emCompression, "Compression", Names(kVideoCompressions)).SetsAndNeeds(AT(abCompression)),
         FIELD(nWidth, "Width", Int).SetsAndNeeds(AT(abWidth)),
         FIELD(nHeight, "Height", Int).SetsAndNeeds(AT(abHeight)),
         FIELD(emBitRateControl, "BitRateControl", Names(kBitRateControls)).SetsAndNeeds(AT(abBitRateControl)),
         FIELD(nBitRate, "BitRate", Int).SetsAndNeeds(AT(abBitRate)),
         FIELD(fFps, "FPS", Real).SetsAndNeeds(AT(abFps)),
         FIELD(nGop, "GOP", Int).SetsAndNeeds(AT(abGop)),
         FIELD(nQuality, "Quality", Int).SetsAndNeeds(AT(abQuality)),
         FIELD(emPack, "Pack", Names(kPacks)).SetsAndNeeds(AT(abPack)),
         FIELD(emProfile, "Profile", Names(kProfiles)).SetsAndNeeds(AT(abProfile)),
     });

PART(kEncodeAudio, CFG_ENCODE_AUDIO,
     {
         FIELD(abCompression),
         FIELD(abDepth),
         FIELD(abFrequency),
         FIELD(abMode),
         FIELD(abPack),
         FIELD(abPacketPeriod),
         FIELD(emCompression, "Compression", Names(kAudioCompressions)).SetsAndNeeds(AT(abCompression)),
         FIELD(nDepth, "Depth", Int).SetsAndNeeds(AT(abDepth)),
         FIELD(nFrequency, "Frequency", Int).SetsAndNeeds(AT(abFrequency)),
         FIELD(nMode, "Mode", Int).SetsAndNeeds(AT(abMode)),
         FIELD(emPack, "Pack", Names(kPacks)).SetsAndNeeds(AT(abPack)),
         FIELD(nPacketPeriod, "PacketPeriod", Int).SetsAndNeeds(AT(abPacketPeriod)),
     });

// Older devices say "VideoEn". Keys are read in byte order, so that a "VideoEnable" beside it stands.
PART(kEncodeFormat, CFG_ENCODE_FORMAT,
     {
         FIELD(abVideoEnable),
         FIELD(abAudioEnable),
         FIELD(abSnapEnable),
         FIELD(byReserved),
         FIELD(abAudio),
         FIELD(byReserved2),
         FIELD(bVideoEnable, "VideoEnable", Bool).SetsAndNeeds(AT(abVideoEnable)),
         FIELD(bVideoEnable, "VideoEn", Bool).SetsAndNeeds(AT(abVideoEnable)).ReadOnly().Alias(),
         FIELD(stuVideo, "Video", Record(kEncodeVideo)).WriteUnlessBare(),
         FIELD(bAudioEnable, "AudioEnable", Bool).SetsAndNeeds(AT(abAudioEnable)),
         FIELD(bSnapEnable, "SnapEnable", Bool).SetsAndNeeds(AT(abSnapEnable)),
         FIELD(dwReserved),
         FIELD(stuAudio, "Audio", Record(kEncodeAudio)).SetsAndNeeds(AT(abAudio)).WriteUnlessBare(),
     })
    .ClearsFlags();

// A device that was asked for all channels answers a negative one, and each record is known by its place.
void ReadChannel(const Field&, const json::Value& value, std::byte* record, ReadCall& call) {
    const std::int32_t channel = value.asInt();
    SET_MEMBER(record, CFG_ENCODE_INFO, nChannel, channel < 0 ? static_cast<std::int32_t>(call.index) : channel);
}

constexpr CustomCodec kChannel{ReadChannel, nullptr};

constexpr std::int32_t kFormatVersion = 3;

bool IsPlanned(const std::byte* record) {
    return MEMBER(record, CFG_ENCODE_PLAN_INFO, bEnable) != 0;
}

} // namespace

Take EncodeTakes(const json::Value& root) {
    return root["channel"].asInt() < 0 ? Take::Many : Take::One;
}

TABLE(kEncode, CFG_ENCODE_INFO,
      {
          FIELD(nChannel, "channel", Custom(kChannel)).FromRoot().Always(),
          FIELD(szChannelName),
          FIELD(stuMainFormat, "MainFormat", Record(kEncodeFormat)).CountUncapped(AT(nMainFormatCount)),
          FIELD(nMainFormatCount),
          FIELD(stuExtraFormat, "ExtraFormat", Record(kEncodeFormat)).CountUncapped(AT(nExtraFormatCount)),
          FIELD(nExtraFormatCount),
          FIELD(stuSnapFormat, "SnapFormat", Record(kEncodeFormat)).CountUncapped(AT(nSnapFormatCount)),
          FIELD(nSnapFormatCount),
          FIELD(dwReserved),
          FIELD(nFormatVersion).Absent(kFormatVersion),
      });

// ---- The small commands around it ----

TABLE(kEncodePlan, CFG_ENCODE_PLAN_INFO,
      {
          FIELD(bEnable, "", Presence),
          FIELD(nExpectTime, "ExpectTime", UInt),
          FIELD(emResolution, "Resolution", Names(kResolutions)),
          FIELD(nBitRate, "BitRate", UInt),
      })
    .Writes(IsPlanned);

TABLE(kEncodeAdapt, CFG_ENCODE_ADAPT_INFO,
      {
          FIELD(emPolicy, "Policy", Names(kPolicies)),
          FIELD(emFluencyMode, "FluencyMode", Names(kFluencyModes)),
      });

TABLE(kSmartEncode, CFG_SMART_ENCODE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(dwReserved),
      });

TABLE(kCompressPlay, CFG_COMPRESS_PLAY_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(emResolution, "Resolution", Names(kResolutions)),
          FIELD(nBitRate, "BitRate", UInt),
      });

} // namespace orrery
