// A text on the heap whose owner learns of an allocation that fails.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace orrery {

struct FreeBlock {
    void operator()(void* block) const noexcept { std::free(block); }
};
// Memory of malloc.
using HeapBlock = std::unique_ptr<void, FreeBlock>;

class HeapText {
  public:
    // Room for `size` characters and a terminator, which is set; the old text is gone. Null, with the old text kept,
    // when there is no memory.
    char* Make(std::size_t size) noexcept {
        HeapBlock block(std::malloc(size + 1));
        if (block == nullptr) return nullptr;
        block_ = std::move(block);
        size_ = size;
        auto* const text = static_cast<char*>(block_.get());
        text[size] = '\0';
        return text;
    }
    bool Assign(std::string_view text) noexcept {
        char* const room = Make(text.size());
        if (room == nullptr) return false;
        if (!text.empty()) std::memcpy(room, text.data(), text.size());
        return true;
    }

    const char* c_str() const noexcept { return block_ == nullptr ? "" : static_cast<const char*>(block_.get()); }
    std::string_view view() const noexcept { return {c_str(), size_}; }
    std::size_t size() const noexcept { return size_; }

  private:
    HeapBlock block_;
    std::size_t size_ = 0;
};

} // namespace orrery
