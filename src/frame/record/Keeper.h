// Memory of the caller's as it was before a call touched it, for a call that may have to leave it so.
#pragma once

#include "frame/Arena.h"

#include <cstddef>
#include <cstring>

namespace orrery::record {

class Keeper {
  public:
    // Keeps at most `most` bytes, in `arena`.
    Keeper(Arena& arena, std::size_t most) noexcept : arena_(arena), left_(most) {}

    // To be called before the bytes are touched. False when they cannot be kept: they must not be touched then, and the
    // call has to end.
    bool Keep(std::byte* at, std::size_t size) noexcept {
        void* const copy = size <= left_ ? arena_.Allocate(sizeof(Kept) + size) : nullptr;
        if (copy == nullptr) {
            failed_ = true;
            return false;
        }
        left_ -= size;
        last_ = new (copy) Kept{last_, at, size};
        std::memcpy(last_ + 1, at, size);
        return true;
    }
    // Everything that was kept is again as it was; the latest first, since places may overlap.
    void PutBack() noexcept {
        for (; last_ != nullptr; last_ = last_->before)
            std::memcpy(last_->at, last_ + 1, last_->size);
    }
    bool failed() const noexcept { return failed_; }

  private:
    struct Kept {
        Kept* before;
        std::byte* at;
        std::size_t size;
    };

    Arena& arena_;
    std::size_t left_;
    Kept* last_ = nullptr;
    bool failed_ = false;
};

} // namespace orrery::record
