#include "orrery/System.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace orrery::tool {

bool IsTerminal(int stream) {
    DWORD mode = 0; // a console has one; _isatty takes printers and the null device too
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(stream)), &mode) != 0;
}

std::size_t TerminalColumns(int stream) {
    CONSOLE_SCREEN_BUFFER_INFO about{};
    if (GetConsoleScreenBufferInfo(reinterpret_cast<HANDLE>(_get_osfhandle(stream)), &about) == 0) return 0;
    return static_cast<std::size_t>(std::max(0, about.srWindow.Right - about.srWindow.Left + 1));
}

void LeaveBytesAsTheyAre() {
    for (const int stream : {kInput, kOutput, kErrors})
        _setmode(stream, _O_BINARY);
}

bool IsMissing(const std::string& name) {
    struct _stat64 about {};
    return _stat64(name.c_str(), &about) != 0 && errno == ENOENT;
}

ByteSource::ByteSource(const std::string& name)
    : isInput_(name == "-"), file_(isInput_ ? +kInput : _open(name.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT)) {}

ByteSource::~ByteSource() {
    if (!isInput_ && file_ >= 0) _close(file_);
}

std::uint64_t ByteSource::Size() const {
    struct _stat64 about {};
    const bool isFile = _fstat64(file_, &about) == 0 && (about.st_mode & _S_IFMT) == _S_IFREG;
    return isFile ? static_cast<std::uint64_t>(about.st_size) : 0;
}

std::ptrdiff_t ByteSource::Read(char* bytes, std::size_t most) {
    return _read(file_, bytes, static_cast<unsigned>(std::min<std::size_t>(most, 1 << 30)));
}

} // namespace orrery::tool
