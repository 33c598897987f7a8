#include "orrery/System.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orrery::tool {

bool IsTerminal(int stream) {
    return isatty(stream) == 1;
}

std::size_t TerminalColumns(int stream) {
    winsize size{};
    return ioctl(stream, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

void LeaveBytesAsTheyAre() {}

bool IsMissing(const std::string& name) {
    struct stat about {};
    return stat(name.c_str(), &about) != 0 && errno == ENOENT;
}

ByteSource::ByteSource(const std::string& name)
    : isInput_(name == "-"), file_(isInput_ ? +kInput : open(name.c_str(), O_RDONLY | O_CLOEXEC)) {}

ByteSource::~ByteSource() {
    if (!isInput_ && file_ >= 0) close(file_);
}

std::uint64_t ByteSource::Size() const {
    struct stat about {};
    const bool isFile = fstat(file_, &about) == 0 && S_ISREG(about.st_mode);
    return isFile ? static_cast<std::uint64_t>(about.st_size) : 0;
}

std::ptrdiff_t ByteSource::Read(char* bytes, std::size_t most) {
    for (;;) {
        const ssize_t got = read(file_, bytes, most);
        if (got >= 0 || errno != EINTR) return got;
    }
}

} // namespace orrery::tool
