// Commands by name: an open-addressing index over the folded names, made when the library is compiled.
#pragma once

#include "frame/Command.h"
#include "frame/JsonParser.h"
#include "frame/NameHash.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orrery {

// Declared only: a row that reaches it does not compile.
void a_command_stands_in_the_map_twice();

template <std::size_t N>
class CommandIndex {
  public:
    consteval explicit CommandIndex(const Command (&commands)[N]) : commands_(commands) {
        slots_.fill(kFree);
        for (std::uint16_t i = 0; i < N; ++i) {
            std::size_t slot = Hash(commands[i].name) % slots_.size();
            for (; slots_[slot] != kFree; slot = (slot + 1) % slots_.size()) {
                if (SameFolded(commands[slots_[slot]].name, commands[i].name)) a_command_stands_in_the_map_twice();
            }
            slots_[slot] = i;
        }
    }

    const Command* Find(std::string_view name) const noexcept {
        for (std::size_t slot = HashNow(name) % slots_.size(); slots_[slot] != kFree;
             slot = (slot + 1) % slots_.size()) {
            const Command& command = commands_[slots_[slot]];
            if (EqualsFolded(command.name, name)) return &command;
        }
        return nullptr;
    }

  private:
    static constexpr std::uint16_t kFree = 0xffff;

    static constexpr std::size_t SlotCount() {
        std::size_t slots = 1;
        while (slots < 2 * N)
            slots *= 2;
        return slots;
    }
    static constexpr char Folded(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
    static constexpr bool SameFolded(std::string_view left, std::string_view right) {
        if (left.size() != right.size()) return false;
        for (std::size_t i = 0; i < left.size(); ++i) {
            if (Folded(left[i]) != Folded(right[i])) return false;
        }
        return true;
    }
    static constexpr std::uint32_t Hash(std::string_view name) {
        const std::string_view tail = name.size() < 8 ? name : name.substr(name.size() - 8);
        return NameHash(orrery::Folded(record::LeadingBytes(name)), orrery::Folded(record::LeadingBytes(tail)),
                        name.size());
    }
    // The same, eight bytes at a time.
    static std::uint32_t HashNow(std::string_view name) noexcept {
        if (name.size() < 8) {
            const std::uint64_t word = orrery::Folded(ShortWord(name.data(), name.size()));
            return NameHash(word, word, name.size());
        }
        const char* const last = name.data() + name.size() - 8;
        return NameHash(orrery::Folded(Word(name.data())), orrery::Folded(Word(last)), name.size());
    }

    const Command* commands_;
    std::array<std::uint16_t, SlotCount()> slots_{};
};

} // namespace orrery
