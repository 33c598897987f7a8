// Memory whose last byte is the last one that may be touched: behind it begins a page that nobody may read or write,
// so that a load or a store too many ends the test at once, whatever the build.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace orrery::test {

class GuardedBuffer {
  public:
    explicit GuardedBuffer(std::size_t size) : size_(size) {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t room = (size + page - 1) / page * page;
        mapped_ = room + page;
        void* const memory = mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) std::abort();
        base_ = static_cast<char*>(memory);
        if (mprotect(base_ + room, page, PROT_NONE) != 0) std::abort();
        data_ = base_ + room - size;
    }
    explicit GuardedBuffer(std::string_view content) : GuardedBuffer(content.size()) {
        if (!content.empty()) std::memcpy(data_, content.data(), content.size());
    }
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;
    ~GuardedBuffer() { munmap(base_, mapped_); }

    char* data() const { return data_; }
    std::size_t size() const { return size_; }
    std::string_view view() const { return {data_, size_}; }

  private:
    std::size_t size_;
    std::size_t mapped_ = 0;
    char* base_ = nullptr;
    char* data_ = nullptr;
};

} // namespace orrery::test
