// Records that begin with `dwSize`, the size that the caller was compiled with: what both layouts have moves between
// the caller's record and a local one of this library's own layout, so that older and newer callers can both call.
#pragma once

#include "frame/record/Table.h"

#include <cstddef>

namespace orrery {

// Moves the common prefix behind the size words; each side keeps its own `dwSize`. The sizes are given apart from the
// records, as a caller's later records are as large as its first says, whatever their own words hold. False, with
// nothing moved and a log line, when either size is below that of the word itself.
bool ParamConvert(const std::byte* source, std::uint32_t sourceSize, std::byte* destination,
                  std::uint32_t destinationSize) noexcept;

// Tells the log of a size word below its own size.
void LogSizeWord() noexcept;

// Moves field by field, in record order, each only if both sizes reach past its end. Does nothing when a pointer is
// null or a size 0. Texts are cleared first and keep their last byte for the terminator.
void ConvertFields(const record::Table& table, const std::byte* source, std::uint32_t sourceSize,
                   std::byte* destination, std::uint32_t destinationSize) noexcept;

} // namespace orrery
