// A command: its name, its record and the frames that serve it in each direction.
#pragma once

#include "frame/Frames.h"

#include <cstdint>
#include <string_view>

namespace orrery {

struct Command {
    enum class Frame : std::uint8_t { None, Generic, Family, Own };

    std::string_view name;
    const record::Table* table = nullptr;      // also the tools' view of a buffer that functions of its own serve
    const record::Table* otherTable = nullptr; // the record of a buffer of exactly its size, for a command of two forms
    Frame parse = Frame::None;
    Frame pack = Frame::None;
    GenericFrame genericFrame;
    ParseFrame parseFrame;
    PackFrame packFrame;
    Outcome (*ownParse)(const ParseRequest& request) = nullptr;
    Outcome (*ownPack)(const PackRequest& request) = nullptr;
    // Told why a call failed, for commands that log it.
    void (*parseFailed)(Outcome why, const ParseRequest& request) noexcept = nullptr;
    void (*packFailed)(Outcome why, const PackRequest& request) noexcept = nullptr;

    bool parses() const { return parse != Frame::None; }
    bool packs() const { return pack != Frame::None; }
};

Outcome RunParse(const Command& command, const ParseRequest& request) noexcept;
Outcome RunPack(const Command& command, const PackRequest& request) noexcept;

} // namespace orrery
