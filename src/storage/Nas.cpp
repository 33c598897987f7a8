#include "storage/Nas.h"

#include "frame/ReplySteps.h"
#include "frame/record/Engine.h"

#include <cstring>

namespace orrery {

using namespace record;
using json::Value;

namespace {

NAMES(kProtocols, kExact.Unknown(CFG_NAS_PROTOCOL_UNKNOWN),
      {
          {CFG_NAS_PROTOCOL_FTP, "FTP"},
          {CFG_NAS_PROTOCOL_SMB, "SMB"},
          {CFG_NAS_PROTOCOL_ISCSI, "ISCSI"},
          {CFG_NAS_PROTOCOL_NFS, "NFS"},
      });

NAMES(kEncodings, kExact.Unknown(CFG_NAS_ENCODING_UNKNOWN),
      {
          {CFG_NAS_ENCODING_UTF8, "UTF-8"},
          {CFG_NAS_ENCODING_GB2312, "GB2312"},
      });

NAMES(kClouds, kExact.Unknown(CFG_NAS_CLOUD_UNKNOWN),
      {
          {CFG_NAS_CLOUD_BAIDU_CLOUD, "BaiduCloud"},
          {CFG_NAS_CLOUD_GOOGLE_DRIVE, "GoogleDrive"},
          {CFG_NAS_CLOUD_DROPBOX, "Dropbox"},
      });

} // namespace

TABLE(kNas, CFG_NAS_INFO,
      {
          FIELD(nEnable, "Enable", Int),
          FIELD(szName, "Name", Text),
          FIELD(emProtocol, "Protocol", Names(kProtocols)),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(szUserName, "UserName", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(szDirectory, "Directory", Text),
          FIELD(emCharacterEncoding, "CharacterEncoding", Names(kEncodings)),
          FIELD(nTimeOut, "TimeOut", UInt),
          FIELD(nStreamID, "StreamID", UInt),
          FIELD(stuUpdateTime, "UpdateTime", NetTime),
          FIELD(emCloudProtocol, "CloudProtocol", Names(kClouds)),
          FIELD(szSubDirectory, "SubDirectory", Text),
      });

Outcome ParseNas(const ParseRequest& request) noexcept {
    constexpr std::uint32_t kRecord = sizeof(CFG_NAS_INFO);
    if (request.bufferSize < kRecord) return Outcome::BufferTooSmall;
    auto* const buffer = static_cast<std::byte*>(request.buffer);
    std::memset(buffer, 0, request.bufferSize);
    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    if (!ResultPasses(ResultTest::MustBeTrue, document.root["result"])) return Outcome::Refused;

    const Value& alone = FindValue(Source::Top, "NAS", document.root);
    const Value& list = FindValue(Source::Table, "", document.root);
    const bool isAlone = !alone.isNull();
    if (!isAlone && list.type() != json::Type::Array) return list.isNull() ? Outcome::NoValue : Outcome::WrongShape;
    if (!isAlone && list.size() == 0) return Outcome::NoValue;

    ReadCall call{document.parser, document.root};
    ReplyRecords records(kNas, ParseFrame(), request, kRecord, call);
    ReadAll(isAlone ? Holds::OneRecord : Holds::Elements, isAlone ? alone : list, false, records);
    if (isAlone) SET_MEMBER(buffer, CFG_NAS_INFO, emProtocol, CFG_NAS_PROTOCOL_FTP);
    if (document.arena.failed()) {
        std::memset(buffer, 0, request.bufferSize);
        return Outcome::OutOfMemory;
    }
    if (request.returnedLength != nullptr) *request.returnedLength = records.used() * kRecord;
    return Outcome::Done;
}

} // namespace orrery
