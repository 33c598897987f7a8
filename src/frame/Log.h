// How the library's own code says why it refused something. Without a sink a line costs a load.
#pragma once

#include <cstdint>

#include <orrery/log.h>

namespace orrery {

// The source position of the line that follows: a source name such as "AlarmConfig", and its line.
void LogSetPosition(const char* file, int line, E_LOG_LEVEL level) noexcept;

// A printf-style line. Always preceded by its position, on the same thread.
void LogTrace(std::uint32_t code, const char* format, ...) noexcept __attribute__((format(printf, 2, 3)));

// False when nobody listens, for lines whose arguments cost something to make.
bool LogHasSink() noexcept;

} // namespace orrery
