#include "display/RecordTransfer.h"

#include "frame/Log.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;

namespace {

#define LOG_MEDIA(text)                                                                                                \
    (LogSetPosition("MediaConfig", __LINE__, E_LOG_LEVEL_ERROR), LogTrace(E_LOG_CODE_BAD_ARGUMENT, "%s", text))

// Clients look for this line under both commands.
constexpr const char* kBadBackup = "Media_RecordBackup_Packet Function Parameter is invalid.";

struct UInt32 {
    std::uint32_t nValue;
};
PART(kUInt32, UInt32,
     {
         FIELD(nValue, "", UInt).Always(),
     });

// A list, or the one number that is all of it.
void ReadSpeeds(const Field&, const json::Value& value, std::byte* record, ReadCall& call) {
    const json::Type type = value.type();
    const bool isNumber = type == json::Type::Int || type == json::Type::UInt || type == json::Type::Real;
    SET_MEMBER(record, CFG_RECORD_DOWNLOAD_SPEED_INFO, nSpeedCount, value.size());
    if (type != json::Type::Array && !isNumber) {
        LOG_MEDIA("Media_RecordDownloadSpeed_Parse Function Parameter table is invalid");
        call.refused = true;
        return;
    }
    auto* const speeds = reinterpret_cast<std::byte*>(MEMBER(record, CFG_RECORD_DOWNLOAD_SPEED_INFO, pnSpeeds));
    if (speeds == nullptr) {
        LOG_MEDIA(kBadBackup);
        call.refused = true;
        return;
    }
    const std::uint32_t room = MEMBER(record, CFG_RECORD_DOWNLOAD_SPEED_INFO, nMaxCount);
    if (isNumber) {
        SET_MEMBER(record, CFG_RECORD_DOWNLOAD_SPEED_INFO, nSpeedCount, 1);
        if (room > 0) Store(speeds, value.asUInt());
        return;
    }
    for (std::uint32_t i = 0; i < std::min(room, value.size()); ++i)
        Store(speeds + std::size_t{i} * sizeof(std::uint32_t), value[i].asUInt());
}

void WriteSpeeds(const Field&, const std::byte* record, WriteCall& call) {
    const auto info = Load<CFG_RECORD_DOWNLOAD_SPEED_INFO>(record);
    const auto* const speeds = reinterpret_cast<const std::byte*>(info.pnSpeeds);
    const std::uint32_t count = speeds == nullptr ? 0 : std::min(info.nSpeedCount, info.nMaxCount);
    if (count == 0) return;
    if (info.nSpeedCount == 1) return call.out.UInt(Load<std::uint32_t>(speeds));
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < count; ++i)
        call.out.UInt(Load<std::uint32_t>(speeds + std::size_t{i} * sizeof(std::uint32_t)));
    call.out.EndArray();
}

constexpr CustomCodec kSpeeds{ReadSpeeds, WriteSpeeds, "[7,3000000000]"};

} // namespace

TABLE(kRecordBackupRestore, CFG_RECORD_BACKUP_RESTORE_INFO,
      {
          FIELD(nBitrateLimit, "BitrateLimit", Int),
          FIELD(nDeviceCount),
          FIELD(szBackupDevices, "BackupDevices", Text).Count(AT(nDeviceCount)),
      });

TABLE(kRecordDownloadSpeed, CFG_RECORD_DOWNLOAD_SPEED_INFO,
      {
          FIELD(pnSpeeds, "", Custom(kSpeeds)).PointsTo(kUInt32).Capacity(AT(nMaxCount)).Count(AT(nSpeedCount)),
          FIELD(nMaxCount),
          FIELD(nSpeedCount),
      });

void LogBackupPack(Outcome outcome, const PackRequest&) noexcept {
    if (outcome == Outcome::RecordTooSmall) LOG_MEDIA(kBadBackup);
}

void LogSpeedParse(Outcome outcome, const ParseRequest&) noexcept {
    if (outcome == Outcome::BufferTooSmall) LOG_MEDIA("Media_RecordDownloadSpeed_Parse Function Parameter is invalid");
}

} // namespace orrery
