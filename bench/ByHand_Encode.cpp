#include "bench/ByHand_Values.h"

#include <type_traits>

namespace orrery::bench::byhand {

namespace {

using rapidjson::kArrayType;
using rapidjson::kObjectType;
using rapidjson::SizeType;
using rapidjson::StringRef;

constexpr SizeType kChannels = std::extent_v<decltype(EncodeChannels::channels)>;

constexpr std::string_view kVideoCodecs[] = {"MPEG4", "MS-MPEG4",  "MPEG2", "MPEG1", "H.263",
                                             "MJPG",  "FCC-MPEG4", "H.264", "H.265", "SVAC"};
constexpr std::string_view kAudioCodecs[] = {"G.711A", "PCM", "G.711Mu", "AMR", "AAC"};
constexpr std::string_view kControls[] = {"CBR", "VBR"};
constexpr std::string_view kPacks[] = {"QVAV", "PS"};
constexpr std::string_view kProfiles[] = {"", "Baseline", "Main", "Extended", "High"};

template <std::size_t N>
void Code(const Value& object, const char* key, const std::string_view (&names)[N], int unknown, int32_t& field,
          uint8_t& flag) {
    if (const Value* value = Get(object, key)) {
        field = CodeOf(*value, names, unknown);
        flag = 1;
    }
}

void ReadVideo(const Value& object, CFG_ENCODE_VIDEO& video) {
    Int(object, "BitRate", video.nBitRate, video.abBitRate);
    Code(object, "BitRateControl", kControls, CFG_BITRATE_CBR, video.emBitRateControl, video.abBitRateControl);
    Code(object, "Compression", kVideoCodecs, CFG_VIDEO_UNKNOWN, video.emCompression, video.abCompression);
    if (const Value* fps = Get(object, "FPS")) {
        video.fFps = fps->IsNumber() ? static_cast<float>(fps->GetDouble()) : 0;
        video.abFps = 1;
    }
    Int(object, "GOP", video.nGop, video.abGop);
    Int(object, "Height", video.nHeight, video.abHeight);
    Code(object, "Pack", kPacks, CFG_STREAM_QVAV, video.emPack, video.abPack);
    Code(object, "Profile", kProfiles, CFG_H264_BASELINE, video.emProfile, video.abProfile);
    Int(object, "Quality", video.nQuality, video.abQuality);
    Int(object, "Width", video.nWidth, video.abWidth);
}

void ReadAudio(const Value& object, CFG_ENCODE_AUDIO& audio) {
    Code(object, "Compression", kAudioCodecs, CFG_AUDIO_G711A, audio.emCompression, audio.abCompression);
    Int(object, "Depth", audio.nDepth, audio.abDepth);
    Int(object, "Frequency", audio.nFrequency, audio.abFrequency);
    Int(object, "Mode", audio.nMode, audio.abMode);
    Code(object, "Pack", kPacks, CFG_STREAM_QVAV, audio.emPack, audio.abPack);
    Int(object, "PacketPeriod", audio.nPacketPeriod, audio.abPacketPeriod);
}

void LowerFlags(CFG_ENCODE_FORMAT& format) {
    format.abVideoEnable = format.abAudioEnable = format.abSnapEnable = format.abAudio = 0;
    CFG_ENCODE_VIDEO& video = format.stuVideo;
    video.abCompression = video.abWidth = video.abHeight = video.abBitRateControl = video.abBitRate = 0;
    video.abFps = video.abGop = video.abQuality = video.abPack = video.abProfile = 0;
    CFG_ENCODE_AUDIO& audio = format.stuAudio;
    audio.abCompression = audio.abDepth = audio.abFrequency = audio.abMode = audio.abPack = audio.abPacketPeriod = 0;
}

void ReadFormats(const Value& channel, const char* key, CFG_ENCODE_FORMAT (&formats)[ORRERY_ENCODE_FORMATS],
                 uint32_t& count) {
    const Value* const list = Get(channel, key);
    if (list == nullptr || !list->IsArray()) return;
    count = list->Size();
    for (SizeType i = 0; i < std::min<SizeType>(count, ORRERY_ENCODE_FORMATS); ++i) {
        const Value& object = (*list)[i];
        CFG_ENCODE_FORMAT& format = formats[i];
        LowerFlags(format);
        if (const Value* audio = Get(object, "Audio")) {
            format.abAudio = 1;
            ReadAudio(*audio, format.stuAudio);
        }
        Bool(object, "AudioEnable", format.bAudioEnable, format.abAudioEnable);
        Bool(object, "SnapEnable", format.bSnapEnable, format.abSnapEnable);
        if (const Value* video = Get(object, "Video")) ReadVideo(*video, format.stuVideo);
        Bool(object, "VideoEnable", format.bVideoEnable, format.abVideoEnable);
    }
}

template <std::size_t N>
void Number(Value& object, const char (&key)[N], int number, uint8_t flag, Pool& pool) {
    if (flag != 0) object.AddMember(StringRef(key), Value(number), pool);
}

template <std::size_t N>
void Switch(Value& object, const char (&key)[N], int on, uint8_t flag, Pool& pool) {
    if (flag != 0) object.AddMember(StringRef(key), Value(on != 0), pool);
}

template <std::size_t N, std::size_t C>
void Name(Value& object, const char (&key)[N], const std::string_view (&names)[C], int code, uint8_t flag, Pool& pool) {
    if (flag == 0 || code < 0 || code >= static_cast<int>(C)) return;
    object.AddMember(StringRef(key), StringRef(names[code].data(), static_cast<SizeType>(names[code].size())), pool);
}

Value Audio(const CFG_ENCODE_AUDIO& audio, Pool& pool) {
    Value object(kObjectType);
    Name(object, "Compression", kAudioCodecs, audio.emCompression, audio.abCompression, pool);
    Number(object, "Depth", audio.nDepth, audio.abDepth, pool);
    Number(object, "Frequency", audio.nFrequency, audio.abFrequency, pool);
    Number(object, "Mode", audio.nMode, audio.abMode, pool);
    Name(object, "Pack", kPacks, audio.emPack, audio.abPack, pool);
    Number(object, "PacketPeriod", audio.nPacketPeriod, audio.abPacketPeriod, pool);
    return object;
}

Value Video(const CFG_ENCODE_VIDEO& video, Pool& pool) {
    Value object(kObjectType);
    Number(object, "BitRate", video.nBitRate, video.abBitRate, pool);
    Name(object, "BitRateControl", kControls, video.emBitRateControl, video.abBitRateControl, pool);
    Name(object, "Compression", kVideoCodecs, video.emCompression, video.abCompression, pool);
    if (video.abFps != 0) object.AddMember("FPS", static_cast<double>(video.fFps), pool);
    Number(object, "GOP", video.nGop, video.abGop, pool);
    Number(object, "Height", video.nHeight, video.abHeight, pool);
    Name(object, "Pack", kPacks, video.emPack, video.abPack, pool);
    Name(object, "Profile", kProfiles, video.emProfile, video.abProfile, pool);
    Number(object, "Quality", video.nQuality, video.abQuality, pool);
    Number(object, "Width", video.nWidth, video.abWidth, pool);
    return object;
}

template <std::size_t N>
void Formats(Value& channel, const char (&key)[N], const CFG_ENCODE_FORMAT (&formats)[ORRERY_ENCODE_FORMATS],
             uint32_t count, Pool& pool) {
    count = std::min<uint32_t>(count, ORRERY_ENCODE_FORMATS);
    Value list(kArrayType);
    list.Reserve(count, pool);
    for (uint32_t i = 0; i < count; ++i) {
        const CFG_ENCODE_FORMAT& format = formats[i];
        Value object(kObjectType);
        if (format.abAudio != 0) object.AddMember("Audio", Audio(format.stuAudio, pool), pool);
        Switch(object, "AudioEnable", format.bAudioEnable, format.abAudioEnable, pool);
        Switch(object, "SnapEnable", format.bSnapEnable, format.abSnapEnable, pool);
        object.AddMember("Video", Video(format.stuVideo, pool), pool);
        Switch(object, "VideoEnable", format.bVideoEnable, format.abVideoEnable, pool);
        list.PushBack(object, pool);
    }
    channel.AddMember(StringRef(key), list, pool);
}

} // namespace

bool ParseEncode(const char* text, EncodeChannels& record) {
    LocalDocument document;
    const Value* const params = ParamsOf(*document, text);
    const Value* const result = Get(*document, "result");
    if (result == nullptr || !result->IsTrue()) return false;
    const Value* const table = params == nullptr ? nullptr : Get(*params, "table");
    const Value* const channel = Get(*document, "channel");
    // A device that was asked for all channels answers -1.
    if (table == nullptr || !table->IsArray() || channel == nullptr || NumberOf(*channel) >= 0) return false;
    for (SizeType i = 0; i < std::min(table->Size(), kChannels); ++i) {
        CFG_ENCODE_INFO& info = record.channels[i];
        const Value& object = (*table)[i];
        info.nChannel = static_cast<int32_t>(i);
        ReadFormats(object, "ExtraFormat", info.stuExtraFormat, info.nExtraFormatCount);
        ReadFormats(object, "MainFormat", info.stuMainFormat, info.nMainFormatCount);
        ReadFormats(object, "SnapFormat", info.stuSnapFormat, info.nSnapFormatCount);
        info.nFormatVersion = 3;
    }
    return true;
}

void WriteEncode(const EncodeChannels& record, rapidjson::StringBuffer& out) {
    LocalDocument document;
    Pool& pool = document->GetAllocator();
    Value& table = document->SetArray();
    table.Reserve(kChannels, pool);
    for (const CFG_ENCODE_INFO& info : record.channels) {
        Value object(kObjectType);
        Formats(object, "ExtraFormat", info.stuExtraFormat, info.nExtraFormatCount, pool);
        Formats(object, "MainFormat", info.stuMainFormat, info.nMainFormatCount, pool);
        Formats(object, "SnapFormat", info.stuSnapFormat, info.nSnapFormatCount, pool);
        table.PushBack(object, pool);
    }
    Write(*document, out);
}

bool PackEncode(const EncodeChannels& record, char* text, std::size_t capacity) {
    rapidjson::StringBuffer out;
    WriteEncode(record, out);
    return Deliver(out, text, capacity);
}

} // namespace orrery::bench::byhand
