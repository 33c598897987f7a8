// What the companion asks of the system, each in a file of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orrery::tool {

enum StandardStream : int { kInput = 0, kOutput = 1, kErrors = 2 };

bool IsTerminal(int stream);
// 0 where the terminal does not tell.
std::size_t TerminalColumns(int stream);

// Bytes of the standard streams go through as they are: a file of replies is the same on every system.
void LeaveBytesAsTheyAre();

// Nothing has this name, as against a file that can't be read.
bool IsMissing(const std::string& name);

// A file, or the standard input ("-"), that is read as it comes. What went wrong stands in errno.
class ByteSource {
  public:
    explicit ByteSource(const std::string& name);
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    ~ByteSource();

    bool isOpen() const { return file_ >= 0; }
    bool isInput() const { return isInput_; }
    // Bytes of a file; 0 of what has no end of its own.
    std::uint64_t Size() const;
    // 0 where nothing more has come, below 0 when it can't be read.
    std::ptrdiff_t Read(char* bytes, std::size_t most);

  private:
    bool isInput_;
    int file_;
};

} // namespace orrery::tool
