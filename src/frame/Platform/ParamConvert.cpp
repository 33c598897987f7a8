#include "frame/Platform/ParamConvert.h"

#include "frame/Log.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>

namespace orrery {

bool ParamConvert(const std::byte* source, std::uint32_t sourceSize, std::byte* destination,
                  std::uint32_t destinationSize) noexcept {
    constexpr std::uint32_t kWord = sizeof(std::uint32_t);
    if (sourceSize < kWord || destinationSize < kWord) {
        LogSetPosition("Platform/ParamConvert", 103, E_LOG_LEVEL_ERROR);
        LogTrace(static_cast<int>(0x9000001e), "_ParamConvert: invalid dwSize");
        return false;
    }
    std::memmove(destination + kWord, source + kWord, std::min(sourceSize, destinationSize) - kWord);
    return true;
}

void ConvertFields(const record::Table& table, const std::byte* source, std::uint32_t sourceSize,
                   std::byte* destination, std::uint32_t destinationSize) noexcept {
    if (source == nullptr || destination == nullptr) return;
    const std::uint32_t both = std::min(sourceSize, destinationSize);
    for (const record::Field& field : table) {
        if (field.alias || field.size == 0 || field.kind == record::Kind::Size) continue;
        if (field.offset + field.size > both) continue;
        std::byte* const to = destination + field.offset;
        const std::byte* const from = source + field.offset;
        if (field.cell == record::Cell::Char && field.rank == 0) {
            std::memset(to, 0, field.size);
            const auto text = record::TextAt(from, field.size - 1);
            std::memcpy(to, text.data(), text.size());
        } else {
            std::memcpy(to, from, field.size);
        }
    }
}

} // namespace orrery
