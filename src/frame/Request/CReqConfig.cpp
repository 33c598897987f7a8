#include "frame/Request/CReqConfig.h"

#include "frame/JsonParser.h"
#include "frame/json/Reader.h"
#include "frame/json/TextWriter.h"
#include "frame/record/Engine.h"
#include "frame/record/Names.h"

#include <algorithm>

namespace orrery {

namespace {

using json::Value;

NAMES(kOptions, record::kFolded.Unknown(0),
      {
          {CFG_OPTION_NEED_RESTART, "NeedRestart"},
          {CFG_OPTION_NEED_REBOOT, "NeedReboot"},
          {CFG_OPTION_WRITE_FILE_ERROR, "WriteFileError"},
          {CFG_OPTION_CAPS_NOT_SUPPORT, "CapsNotSupport"},
          {CFG_OPTION_VALIDATE_FAILED, "ValidateFailed"},
      });
constexpr std::uint32_t kMostOptions = 32;

// Added, not joined: an option that a device repeats counts twice.
void ReadOptions(const Value& options, CFG_DELETE_PARAM& payload) noexcept {
    const std::uint32_t count = std::min(options.size(), kMostOptions);
    for (std::uint32_t i = 0; i < count; ++i) {
        payload.dwOptions += static_cast<std::uint32_t>(*kOptions.CodeOf(options[i].asString()));
    }
}

// As much of the name and its terminator as the buffer takes.
void ReadName(std::string_view name, CFG_MEMBER_NAME& member) noexcept {
    member.dwSize = sizeof member;
    const auto needed = static_cast<std::int32_t>(std::min<std::size_t>(name.size(), INT32_MAX - 1)) + 1;
    member.nBufferSize = std::min(member.nBufferSize, needed);
    if (member.szBuffer == nullptr || member.nBufferSize <= 0) return;
    const auto size = static_cast<std::size_t>(member.nBufferSize);
    if (const std::size_t kept = std::min(size, name.size()); kept > 0) std::memcpy(member.szBuffer, name.data(), kept);
    if (size > name.size()) member.szBuffer[name.size()] = '\0';
}

void ReadNames(const Value& names, CFG_MEMBER_NAMES& payload) noexcept {
    const std::int64_t room = payload.pNames == nullptr ? 0 : std::max(payload.nMaxCount, 0);
    payload.nRetCount = static_cast<std::int32_t>(std::min<std::int64_t>(names.size(), room));
    for (std::int32_t i = 0; i < payload.nRetCount; ++i) {
        ReadName(names[static_cast<std::uint32_t>(i)].asString(), payload.pNames[i]);
    }
}

const char* MethodOf(std::uint32_t requestType) noexcept {
    switch (requestType) {
    case CReqConfig::kDeleteConfig:
        return "configManager.deleteConfig";
    case CReqConfig::kGetMemberNames:
        return "configManager.getMemberNames";
    default:
        return nullptr;
    }
}

const char* NameIn(std::uint32_t requestType, const void* payload) noexcept {
    if (payload == nullptr) return nullptr;
    return requestType == CReqConfig::kDeleteConfig ? static_cast<const CFG_DELETE_PARAM*>(payload)->szName
                                                    : static_cast<const CFG_MEMBER_NAMES*>(payload)->szName;
}

void WriteRequest(const CReqConfig& request, json::TextWriter& out) noexcept {
    const char* const method = MethodOf(request.nRequestType);
    out.BeginObject();
    out.Key("id");
    out.UInt(request.nPacketId);
    if (method != nullptr) {
        out.Key("method");
        out.String(method);
    }
    out.Key("object");
    out.UInt(request.nObjectId);
    out.Key("params");
    out.BeginObject();
    if (method != nullptr) {
        const char* const name = NameIn(request.nRequestType, request.pPayload);
        out.Key("name");
        if (name == nullptr)
            out.Null();
        else
            out.String(name);
    }
    out.EndObject();
    out.Key("session");
    out.UInt(request.nSessionId);
    out.EndObject();
    out.EndText();
}

} // namespace

const char* CReqConfig::serialize(std::size_t& length) noexcept {
    length = 0;
    json::TextWriter measure(nullptr, 0);
    WriteRequest(*this, measure);
    char* const room = strText_.Make(measure.length());
    if (room == nullptr) return nullptr;
    json::TextWriter out(room, measure.length());
    WriteRequest(*this, out);
    length = out.length();
    return room;
}

std::int32_t CReqConfig::deserialize(const char* text, std::size_t) noexcept {
    hasRead_ = outOfMemory_ = false;
    if (text == nullptr) return 0;
    StackArena<std::size_t{16} << 10> arena;
    Value root;
    if (!json::Parse(std::string_view(text), arena, root)) {
        outOfMemory_ = arena.failed();
        return 0;
    }
    const Value& result = root["result"];
    if (result.isNull()) return 1;
    nError = 0;
    nResult = result.asBool() ? 1 : 0;
    if (pPayload == nullptr) return 1;

    const Value& params = root["params"];
    const auto found = [&](const Value& value) { return hasRead_ = !value.isNull(); };
    switch (nRequestType) {
    case kDeleteConfig:
        if (found(params["options"])) ReadOptions(params["options"], *static_cast<CFG_DELETE_PARAM*>(pPayload));
        break;
    case kGetMemberNames:
        if (found(params["names"])) ReadNames(params["names"], *static_cast<CFG_MEMBER_NAMES*>(pPayload));
        break;
    case kTableReply:
        if (pTable != nullptr && found(params["table"])) {
            LocalText local(arena);
            JsonParser parser(local);
            record::ReadCall call{parser, root};
            record::ReadFields(*pTable, params["table"], static_cast<std::byte*>(pPayload), call);
        }
        break;
    default:
        break;
    }
    outOfMemory_ = arena.failed(); // a text that could not be converted
    return outOfMemory_ ? 0 : 1;
}

} // namespace orrery
