#include "frame/Command.h"

namespace orrery {

namespace {

Outcome Parse(const Command& command, const ParseRequest& request) noexcept {
    switch (command.parse) {
    case Command::Frame::None:
        break;
    case Command::Frame::Generic:
        return ParseGeneric(*command.table, command.genericFrame, request);
    case Command::Frame::Family:
        return ParseFamily(*command.table, command.parseFrame, request);
    case Command::Frame::Own:
        return command.ownParse(request);
    }
    return Outcome::UnknownCommand;
}

Outcome Pack(const Command& command, const PackRequest& request) noexcept {
    switch (command.pack) {
    case Command::Frame::None:
        break;
    case Command::Frame::Generic:
        return PacketGeneric(*command.table, command.genericFrame, request);
    case Command::Frame::Family:
        return PacketFamily(*command.table, command.packFrame, request);
    case Command::Frame::Own:
        return command.ownPack(request);
    }
    return Outcome::UnknownCommand;
}

} // namespace

Outcome RunParse(const Command& command, const ParseRequest& request) noexcept {
    if (request.text == nullptr || request.buffer == nullptr || request.bufferSize == 0) return Outcome::BadArguments;
    const Outcome outcome = Parse(command, request);
    if (outcome != Outcome::Done && command.parseFailed != nullptr) command.parseFailed(outcome, request);
    return outcome;
}

Outcome RunPack(const Command& command, const PackRequest& request) noexcept {
    if (request.record == nullptr || request.textBuffer == nullptr) return Outcome::BadArguments;
    const Outcome outcome = Pack(command, request);
    if (outcome != Outcome::Done && command.packFailed != nullptr) command.packFailed(outcome, request);
    return outcome;
}

} // namespace orrery
