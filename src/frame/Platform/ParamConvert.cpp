#include "frame/Platform/ParamConvert.h"

#include "frame/Log.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>

namespace orrery {

void LogSizeWord() noexcept {
    LogSetPosition("Platform/ParamConvert", 103, E_LOG_LEVEL_ERROR);
    LogTrace(E_LOG_CODE_RECORD_SIZE, "_ParamConvert: invalid dwSize");
}

bool ParamConvert(const std::byte* source, std::uint32_t sourceSize, std::byte* destination,
                  std::uint32_t destinationSize) noexcept {
    constexpr std::uint32_t kWord = sizeof(std::uint32_t);
    if (sourceSize < kWord || destinationSize < kWord) {
        LogSizeWord();
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
        if (field.cell != record::Cell::Char) {
            std::memcpy(to, from, field.size);
            continue;
        }
        std::memset(to, 0, field.size);
        for (std::uint32_t at = 0; at < field.size; at += field.elementSize) {
            const auto text = record::TextAt(from + at, field.elementSize - 1);
            std::memcpy(to + at, text.data(), text.size());
        }
    }
}

} // namespace orrery
