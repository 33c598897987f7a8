// Requests to a device's configuration manager and what comes back.
#pragma once

#include "frame/Request/CRequest.h"
#include "frame/record/Table.h"

namespace orrery {

// "configManager.deleteConfig".
struct CFG_DELETE_PARAM {
    const char* szName;      // of the configuration
    std::uint32_t dwOptions; // what the device asks for: the bits of its "options" are added up
};

// One name of a configuration's members. The caller owns the buffer.
struct CFG_MEMBER_NAME {
    std::uint32_t dwSize;
    char* szBuffer;           // without a terminator when the name fills it
    std::int32_t nBufferSize; // bytes at szBuffer; afterwards those that were filled, the terminator included
};
static_assert(sizeof(CFG_MEMBER_NAME) == 24);

// "configManager.getMemberNames".
struct CFG_MEMBER_NAMES {
    const char* szName;     // of the configuration
    std::int32_t nMaxCount; // entries at pNames
    std::int32_t nRetCount; // those that were filled
    CFG_MEMBER_NAME* pNames;
};

// What a device wants done after a configuration was deleted.
enum : std::uint32_t {
    CFG_OPTION_NEED_RESTART = 1,     // "NeedRestart"
    CFG_OPTION_NEED_REBOOT = 2,      // "NeedReboot"
    CFG_OPTION_WRITE_FILE_ERROR = 4, // "WriteFileError"
    CFG_OPTION_CAPS_NOT_SUPPORT = 8, // "CapsNotSupport"
    CFG_OPTION_VALIDATE_FAILED = 16  // "ValidateFailed"
};

class CReqConfig final : public CRequest {
  public:
    // Values of nRequestType, with what pPayload then points to.
    static constexpr std::uint32_t kDeleteConfig = 0x70002;   // CFG_DELETE_PARAM
    static constexpr std::uint32_t kGetMemberNames = 0x70004; // CFG_MEMBER_NAMES
    static constexpr std::uint32_t kTableReply = 0x70006;     // the record of pTable; the answer only

    const char* serialize(std::size_t& length) noexcept override;
    std::int32_t deserialize(const char* text, std::size_t length) noexcept override;

    // True when the last answer held what its payload is filled from: options, names or a table.
    bool hasRead() const noexcept { return hasRead_; }
    // True when the last answer was given up for want of memory.
    bool outOfMemory() const noexcept { return outOfMemory_; }

    void* pPayload = nullptr;
    const record::Table* pTable = nullptr; // how a table's record is read; what it holds and lacks stays

  private:
    bool hasRead_ = false;
    bool outOfMemory_ = false;
};

} // namespace orrery
